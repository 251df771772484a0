#pragma once

#include <sstream>
#include <string>

#include <brivane/frame/Design.h>

namespace brivane::tests {

/// A design as a page that can be read: a line for the surface and one for each control. What a control has as every
/// other of its kind has it, is not written.
inline std::string Sheet(const frame::Design& design) {
  static constexpr const char* kKinds[] = {"Frame",    "Label",   "TextBox", "JaNee",    "Hint",   "OptionButton",
                                           "CheckBox", "ListBox", "Button",  "ListView", "Surface"};
  static constexpr const char* kFormats[] = {"", "Text", "Amount", "Number", "WholeNumber", "Date"};
  std::ostringstream page;
  page << design.name << ' ' << design.width << ' ' << design.height << ' ' << design.fontName << ' '
       << design.fontSize;
  if (!design.caption.empty()) page << " \"" << design.caption << '"';
  for (const frame::Row& row : design.rows) {
    page << '\n' << row.name;
    if (row.index != frame::kNoIndex) page << ' ' << row.index;
    page << ": " << kKinds[static_cast<int>(row.kind)];
    if (!row.parent.empty()) page << " in " << row.parent;
    page << ' ' << row.place.left << ' ' << row.place.top << ' ' << row.place.width << ' ' << row.place.height;
    if (row.tab != 0) page << ", tab " << row.tab;
    if (!row.caption.empty()) page << ", \"" << row.caption << '"';
    if (row.mnemonic != '\0') page << ", Alt+" << row.mnemonic;
    if (!row.label.empty()) page << ", called " << row.label;
    if (row.format != frame::Format::None) page << ", " << kFormats[static_cast<int>(row.format)];
    if (!row.countsFrom.empty()) page << " from " << row.countsFrom;
    if (!row.bordered) page << ", without a border";
    if (row.locked) page << ", locked";
    if (row.multiline) page << ", over lines";
    for (const host::ListEntry& entry : row.entries) page << ", " << entry.itemData << ' ' << entry.text;
  }
  return page.str();
}

}  // namespace brivane::tests

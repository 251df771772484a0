#include <cmath>
#include <sstream>

#include "tests/toolkits/web/Stage.h"
#include <brivane/controls/Caption.h>
#include <brivane/controls/Choices.h>
#include <brivane/controls/Dump.h>
#include <brivane/controls/entry/Content.h>

namespace brivane::test {
namespace {

using controls::ControlDump;
using host::Kind;

constexpr float kTwipsAPixel = 15;
/// Below what the browser keeps of a length.
constexpr float kSame = 0.1F;

/// What the page says of an element, taken from the front: texts with a separator behind each.
class Said {
 public:
  explicit Said(std::string text) : text_(std::move(text)) {}

  [[nodiscard]] bool More() const { return at_ < text_.size(); }
  std::string Text() {
    const std::size_t end = text_.find('\x1f', at_);
    std::string next = text_.substr(at_, end - at_);
    at_ = end == std::string::npos ? text_.size() : end + 1;
    return next;
  }
  int Number() { return std::stoi(Text()); }
  bool Yes() { return Text() == "true"; }

 private:
  std::string text_;
  std::size_t at_ = 0;
};

controls::DumpValue ReadShown(const std::string& text, frame::Format format) {
  const controls::TypedContent content = controls::ReadContent(text, format);
  if (!content.refusal.empty()) return text;
  if (const auto* number = std::get_if<double>(&content.value)) return *number;
  if (const auto* date = std::get_if<host::Date>(&content.value)) return *date;
  if (const auto* typed = std::get_if<std::string>(&content.value)) return *typed;
  if (format == frame::Format::Date) return host::kNoDate;
  return format == frame::Format::Text ? controls::DumpValue(std::string()) : controls::DumpValue(0.0);
}

/// What was asked for where it is shown so, else what is shown.
host::Twips Length(const std::string& pixels, host::Twips asked) {
  const float shown = std::stof(pixels) * kTwipsAPixel;
  return std::abs(shown - asked.value) < kSame * kTwipsAPixel ? asked : host::Twips{shown};
}

std::string WithoutMarks(const std::string& caption) {
  std::string plain;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&' && i + 1 < caption.size()) ++i;
    plain += caption[i];
  }
  return plain;
}

void ReadList(Said& said, ControlDump& dump) {
  ControlDump::ListContent shown;
  shown.index = said.Number();
  while (said.More()) {
    const std::size_t place = shown.entries.size();
    shown.entries.push_back({said.Text(), place < dump.list->entries.size() ? dump.list->entries[place].itemData : 0});
  }
  dump.list = shown;
}

void ReadListView(Said& said, ControlDump& dump) {
  ControlDump::ListViewContent shown;
  const ControlDump::ListViewContent& asked = *dump.listView;
  shown.selected = static_cast<std::size_t>(said.Number());
  for (int columns = said.Number(); columns > 0; --columns) {
    const std::size_t place = shown.columns.size();
    const host::Twips width = place < asked.columns.size() ? asked.columns[place].width : host::Twips{0};
    std::string heading = said.Text();
    shown.columns.push_back({std::move(heading), Length(said.Text(), width)});
  }
  while (said.More()) {
    const std::size_t place = shown.items.size();
    controls::ListView::Item item{place < asked.items.size() ? asked.items[place].key : "", {}};
    for (int cells = said.Number(); cells > 0; --cells) {
      std::string text = said.Text();
      item.cells.push_back({std::move(text), said.Yes()});
    }
    shown.items.push_back(std::move(item));
  }
  dump.listView = shown;
}

ControlDump Read(const controls::AnyControl& control, const Stage& stage) {
  ControlDump dump = controls::Dump(control);
  Said said(stage.Look("shown", &control));
  dump.kind = static_cast<Kind>(said.Number());
  dump.visible = said.Yes();
  dump.enabled = said.Yes();
  for (host::Twips* const length : {&dump.place.left, &dump.place.top, &dump.place.width, &dump.place.height})
    *length = Length(said.Text(), *length);
  const std::string caption = said.Text();
  if (dump.caption && caption != WithoutMarks(controls::MarkedCaption(control.Row(), *dump.caption)))
    dump.caption = caption;
  switch (control.ControlKind()) {
    case Kind::TextBox:
      dump.locked = said.Yes();
      dump.value = ReadShown(said.Text(), control.Row().format);
      break;
    case Kind::JaNee: dump.value = said.Yes() ? host::kJa : host::kNee; break;
    case Kind::CheckBox: dump.value = said.Yes() ? host::kTicked : host::kUnticked; break;
    case Kind::OptionButton: dump.value = said.Yes(); break;
    case Kind::ListBox: ReadList(said, dump); break;
    case Kind::ListView: ReadListView(said, dump); break;
    default: break;
  }
  return dump;
}

}  // namespace

std::vector<ControlDump> DumpShown(const controls::Surface& surface, const Stage& stage) {
  std::vector<ControlDump> dumps;
  for (const auto& control : surface.Made()) {
    dumps.push_back(Read(*control, stage));
    if (control->ControlKind() != Kind::Surface) continue;
    std::vector<ControlDump> inner = DumpShown(static_cast<const controls::Surface&>(*control), stage);
    dumps.insert(dumps.end(), std::make_move_iterator(inner.begin()), std::make_move_iterator(inner.end()));
  }
  return dumps;
}

}  // namespace brivane::test

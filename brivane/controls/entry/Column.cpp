#include <brivane/controls/Surface.h>
#include <brivane/controls/entry/Column.h>
#include <brivane/controls/entry/Content.h>
#include <brivane/frame/Trim.h>

namespace brivane::controls {

using frame::TextId;

bool IsColumn(std::string_view text) { return frame::Trim(text).find_first_of("\n\t") != std::string_view::npos; }

Column ReadColumn(std::string_view text, const controls::TextBox& first) {
  Column column;
  int surplus = 0;
  for (int i = 0; !text.empty(); ++i) {
    const std::size_t end = text.find('\n');
    const std::string_view line = frame::Trim(text.substr(0, end));
    text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
    if (line.empty()) continue;
    if (line.find('\t') != std::string_view::npos) return {.refusal = TextId::OneColumn};
    TypedContent content = ReadContent(line, first.Format());
    if (!content.refusal.empty()) return {.refusal = {TextId::InLine, {std::to_string(i + 1), content.refusal}}};
    auto* const box = static_cast<controls::TextBox*>(first.Owner()->Find(first.DesignName(), first.Index() + i));
    if (box == nullptr)
      ++surplus;
    else if (box->Reachable() && !box->Locked())
      column.entries.push_back({box, std::move(content.value)});
  }
  if (surplus == 1) column.surplus = TextId::LineLeftOver;
  if (surplus > 1) column.surplus = {TextId::LinesLeftOver, {std::to_string(surplus)}};
  return column;
}

}  // namespace brivane::controls

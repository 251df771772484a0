#include "component/testdoor/State.h"

#include <type_traits>
#include <vector>

#include "component/testdoor/TestDoor.h"
#include <brivane/controls/Dump.h>

namespace brivane::component {

namespace {

using Values = std::vector<Variant>;

Variant ListOf(const Values& values) { return Variant(std::span<const Variant>(values)); }
Variant Number(host::Twips twips) { return Variant(static_cast<double>(twips.value)); }
Variant Whole(std::size_t number) { return Variant(static_cast<std::int32_t>(number)); }

Variant ValueOf(const controls::DumpValue& value) {
  return std::visit(
      []<class T>(const T& held) {
        if constexpr (std::is_same_v<T, std::monostate>)
          return Variant();
        else if constexpr (std::is_same_v<T, int>)
          return Variant(static_cast<std::int32_t>(held));
        else
          return Variant(held);
      },
      value);
}

template <class T> Variant Optional(const std::optional<T>& value) { return value ? Variant(*value) : Variant(); }
Variant Optional(const std::optional<host::Color>& color) { return color ? Variant(color->value) : Variant(); }

Variant ListState(const controls::ControlDump::ListContent& list) {
  Values values{Variant(static_cast<std::int32_t>(list.index))};
  for (const auto& entry : list.entries) {
    values.emplace_back(entry.text);
    values.emplace_back(entry.itemData);
  }
  return ListOf(values);
}

Variant ReportState(const controls::ControlDump::ListViewContent& report) {
  Values columns;
  for (const auto& column : report.columns) columns.push_back(ListOf({Variant(column.heading), Number(column.width)}));
  Values rows;
  for (const auto& item : report.items) {
    Values cells;
    for (const auto& cell : item.cells) cells.push_back(ListOf({Variant(cell.text), Variant(cell.bold)}));
    rows.push_back(ListOf({Variant(item.key), ListOf(cells)}));
  }
  return ListOf({Whole(report.selected), ListOf(columns), ListOf(rows)});
}

Variant Row(const controls::ControlDump& control) {
  return ListOf({Variant(control.name), Whole(static_cast<std::size_t>(control.kind)), Variant(control.visible),
                 Variant(control.enabled), Number(control.place.left), Number(control.place.top),
                 Number(control.place.width), Number(control.place.height), ValueOf(control.value),
                 Optional(control.caption), Optional(control.backColor), Optional(control.locked),
                 control.list ? ListState(*control.list) : Variant(),
                 control.listView ? ReportState(*control.listView) : Variant()});
}

Variant SelectedText(const controls::ControlDump::ListContent& list) {
  return list.index == host::kNoSelection ? Variant()
                                          : Variant(list.entries[static_cast<std::size_t>(list.index)].text);
}

Variant SelectedKey(const controls::ControlDump::ListViewContent& report) {
  return report.selected == 0 ? Variant() : Variant(report.items[report.selected - 1].key);
}

}  // namespace

Variant AspectOf(const controls::AnyControl& control, std::string_view aspect) {
  if (aspect == "reachable") return Variant(control.Reachable());
  const controls::ControlDump dump = controls::Dump(control);
  if (aspect == "kind") return Whole(static_cast<std::size_t>(dump.kind));
  if (aspect == "visible") return Variant(dump.visible);
  if (aspect == "enabled") return Variant(dump.enabled);
  if (aspect == "left") return Number(dump.place.left);
  if (aspect == "top") return Number(dump.place.top);
  if (aspect == "width") return Number(dump.place.width);
  if (aspect == "height") return Number(dump.place.height);
  if (aspect == "value") return ValueOf(dump.value);
  if (aspect == "caption") return Optional(dump.caption);
  if (aspect == "backcolor") return Optional(dump.backColor);
  if (aspect == "index") return dump.list ? Variant(static_cast<std::int32_t>(dump.list->index)) : Variant();
  if (aspect == "count") return dump.list ? Whole(dump.list->entries.size()) : Variant();
  if (aspect == "text") return dump.list ? SelectedText(*dump.list) : Variant();
  if (aspect == "selected") return dump.listView ? SelectedKey(*dump.listView) : Variant();
  throw NoSuch("aspect", aspect);
}

Variant DumpOf(const controls::Surface& surface) {
  Values rows;
  for (const controls::ControlDump& control : controls::DumpAll(surface)) rows.push_back(Row(control));
  return ListOf(rows);
}

}  // namespace brivane::component

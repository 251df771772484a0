#include "tests/component/replay/Door.h"

#include <utility>

#include "TestDoor_idl.h"

namespace brivane::latebound {

namespace {

struct Word {
  const wchar_t* action;
  Variant value;
};

Word InWords(const controls::Action& action) {
  struct Wording {
    Word operator()(const controls::Press&) const { return {L"press", Missing()}; }
    Word operator()(const controls::Select&) const { return {L"select", Missing()}; }
    Word operator()(const controls::Tick& tick) const { return {L"tick", ToVariant(tick.value)}; }
    Word operator()(const controls::Toggle& toggle) const { return {L"toggle", ToVariant(toggle.value)}; }
    Word operator()(const controls::Choose& choose) const { return {L"choose", ToVariant(choose.index)}; }
    Word operator()(const controls::Close&) const { return {L"close", Missing()}; }
    Word operator()(const controls::Enter& enter) const {
      return {L"enter", std::visit(
                            []<class T>(const T& typed) {
                              if constexpr (std::is_same_v<T, std::monostate>)
                                return Variant();
                              else
                                return ToVariant(typed);
                            },
                            enter.value)};
    }
  };
  return std::visit(Wording{}, action);
}

controls::DumpValue ToValue(const Variant& value) {
  switch (value.Type()) {
    case VT_EMPTY: return std::monostate{};
    case VT_BOOL: return FromVariant<bool>(value.get());
    case VT_BSTR: return FromVariant<std::string>(value.get());
    case VT_DATE: return FromVariant<host::Date>(value.get());
    case VT_R8: return FromVariant<double>(value.get());
    default: return static_cast<int>(FromVariant<std::int32_t>(value.get()));
  }
}

host::Twips ToTwips(const Variant& value) { return {FromVariant<float>(value.get())}; }

/// The index, then text and item data of each entry.
controls::ControlDump::ListContent ToList(const Variant& value) {
  const std::vector<Variant> parts = Elements(value.get());
  controls::ControlDump::ListContent list;
  list.index = FromVariant<std::int32_t>(parts.at(0).get());
  for (std::size_t i = 1; i + 1 < parts.size(); i += 2)
    list.entries.push_back(
        {.text = FromVariant<std::string>(parts[i].get()), .itemData = FromVariant<std::int32_t>(parts[i + 1].get())});
  return list;
}

/// The selected row, the columns (heading, width), the rows (key, cells (text, bold)).
controls::ControlDump::ListViewContent ToListView(const Variant& value) {
  const std::vector<Variant> parts = Elements(value.get());
  controls::ControlDump::ListViewContent list;
  list.selected = static_cast<std::size_t>(FromVariant<std::int32_t>(parts.at(0).get()));
  for (const Variant& column : Elements(parts.at(1).get())) {
    const std::vector<Variant> of = Elements(column.get());
    list.columns.push_back({.heading = FromVariant<std::string>(of.at(0).get()), .width = ToTwips(of.at(1))});
  }
  for (const Variant& row : Elements(parts.at(2).get())) {
    const std::vector<Variant> of = Elements(row.get());
    controls::ListView::Item item{.key = FromVariant<std::string>(of.at(0).get()), .cells = {}};
    for (const Variant& cell : Elements(of.at(1).get())) {
      const std::vector<Variant> text = Elements(cell.get());
      item.cells.push_back(
          {.text = FromVariant<std::string>(text.at(0).get()), .bold = FromVariant<bool>(text.at(1).get())});
    }
    list.items.push_back(std::move(item));
  }
  return list;
}

bool IsThere(const Variant& value) { return value.Type() != VT_EMPTY && value.Type() != VT_NULL; }

controls::ControlDump ToDump(const Variant& control) {
  const std::vector<Variant> of = Elements(control.get());
  controls::ControlDump dump;
  dump.name = FromVariant<std::string>(of.at(0).get());
  dump.visible = FromVariant<bool>(of.at(2).get());
  dump.enabled = FromVariant<bool>(of.at(3).get());
  dump.place = {ToTwips(of.at(4)), ToTwips(of.at(5)), ToTwips(of.at(6)), ToTwips(of.at(7))};
  dump.value = ToValue(of.at(8));
  if (IsThere(of.at(9))) dump.caption = FromVariant<std::string>(of[9].get());
  if (IsThere(of.at(10))) dump.backColor = host::Color{FromVariant<std::int32_t>(of[10].get())};
  if (IsThere(of.at(11))) dump.locked = FromVariant<bool>(of[11].get());
  if (IsThere(of.at(12))) dump.list = ToList(of[12]);
  if (IsThere(of.at(13))) dump.listView = ToListView(of[13]);
  return dump;
}

}  // namespace

Ptr<IDispatch> DoorOf(IUnknown& object) {
  Ptr<ITestDoorHolder> holder;
  Ptr<ITestDoor> door;
  Check(object.QueryInterface(IID_ITestDoorHolder, holder.OutVoid()), "the object has no test door");
  Check(holder->TestDoor(door.Out()), "the object's test door does not open");
  return Ptr<IDispatch>(door.get());
}

std::optional<bool> Door::Reachable(const std::string& element) const {
  try {
    return FromVariant<bool>(
        Call(*door_.get(), L"Read", {ToVariant(element), ToVariant(std::string("reachable"))}).get());
  } catch (const host::Error& error) {
    if (error.Number() == static_cast<std::int32_t>(host::ErrorNumber::NoSuchElement)) return std::nullopt;
    throw;
  }
}

controls::Outcome Door::Perform(const std::string& element, const controls::Action& action) const {
  Word word = InWords(action);
  const Variant outcome = Call(*door_.get(), L"Perform",
                               {ToVariant(element), ToVariant(ToUtf8(std::wstring_view(word.action))), word.value});
  return static_cast<controls::Outcome>(FromVariant<std::int16_t>(outcome.get()));
}

std::vector<controls::ControlDump> Door::Dump() const {
  std::vector<controls::ControlDump> dump;
  for (const Variant& control : Elements(Call(*door_.get(), L"Dump").get())) dump.push_back(ToDump(control));
  return dump;
}

void Door::Size(const std::string& element, float width, float height) const {
  (void)Call(*door_.get(), L"Resize",
             {ToVariant(element), ToVariant(static_cast<double>(width)), ToVariant(static_cast<double>(height))});
}

Variant Door::Read(const wchar_t* aspect) const {
  return Call(*door_.get(), L"Read", {ToVariant(std::string()), ToVariant(ToUtf8(std::wstring_view(aspect)))});
}

void Door::Set(const wchar_t* setting, Variant value) const {
  (void)Call(*door_.get(), L"Set", {ToVariant(ToUtf8(std::wstring_view(setting))), std::move(value)});
}

void Door::SetCallback(IDispatch& callback) const { Put(*door_.get(), L"Callback", {ToVariant(&callback)}); }

void Door::EndCallback() const { Put(*door_.get(), L"Callback", {ToVariant(static_cast<IDispatch*>(nullptr))}); }

}  // namespace brivane::latebound

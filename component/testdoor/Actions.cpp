#include "component/testdoor/Actions.h"

#include <charconv>

#include "component/testdoor/TestDoor.h"
#include <brivane/controls/ListBox.h>
#include <brivane/host/Error.h>

namespace brivane::component {

namespace {

controls::BoxValue Typed(const VARIANT& value) {
  const Variant plain = Variant::CopyOf(value);
  switch (plain.Type()) {
    case VT_EMPTY:
    case VT_NULL:
    case VT_ERROR: return std::monostate();
    case VT_BSTR: return As<std::string>(plain);
    case VT_DATE: return As<host::Date>(plain);
    default: return As<double>(plain);
  }
}

int Entry(const VARIANT& value, const controls::AnyControl& control) {
  const Variant plain = Variant::CopyOf(value);
  if (plain.Type() != VT_BSTR) return As<std::int32_t>(plain);
  const auto* const list = dynamic_cast<const controls::ListBox*>(&control);
  if (!list) throw NoSuch("list", control.ElementName());
  const std::string text = As<std::string>(plain);
  for (int i = 0; i < list->ListCount(); ++i)
    if (list->List(i) == text) return i;
  throw host::Error(host::ErrorNumber::NoSuchListEntry);
}

}  // namespace

controls::AnyControl* FindElement(controls::Surface& surface, std::string_view element) {
  const std::size_t open = element.find('(');
  if (open == std::string_view::npos) return surface.Find(element);
  int index = frame::kNoIndex;
  const char* const end = element.data() + element.size();
  const auto [stop, error] = std::from_chars(element.data() + open + 1, end, index);
  if (error != std::errc() || stop + 1 != end || *stop != ')') return nullptr;
  return surface.Find(element.substr(0, open), index);
}

controls::Action ActionOf(std::string_view name, const VARIANT& value, const controls::AnyControl& control) {
  if (name == "press") return controls::Press{};
  if (name == "select") return controls::Select{};
  if (name == "tick") return controls::Tick{As<std::int32_t>(value)};
  if (name == "toggle") return controls::Toggle{As<std::int32_t>(value)};
  if (name == "choose") return controls::Choose{Entry(value, control)};
  if (name == "enter") return controls::Enter{Typed(value)};
  if (name == "close") return controls::Close{};
  throw NoSuch("action", name);
}

}  // namespace brivane::component

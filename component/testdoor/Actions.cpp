#include "component/testdoor/Actions.h"

#include <charconv>

#include "component/testdoor/Proefdeur.h"
#include "host/Error.h"
#include "toolkits/headless/ListBox.h"

namespace brivane::component {

namespace {

headless::BoxValue Typed(const VARIANT& value) {
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

int Entry(const VARIANT& value, const headless::AnyControl& control) {
  const Variant plain = Variant::CopyOf(value);
  if (plain.Type() != VT_BSTR) return As<std::int32_t>(plain);
  const auto* const list = dynamic_cast<const headless::ListBox*>(&control);
  if (!list) throw NoSuch("list", control.ElementName());
  const std::string text = As<std::string>(plain);
  for (int i = 0; i < list->ListCount(); ++i)
    if (list->List(i) == text) return i;
  throw host::Error(host::ErrorNumber::NoSuchListEntry);
}

}  // namespace

headless::AnyControl* FindElement(headless::Surface& surface, std::string_view element) {
  const std::size_t open = element.find('(');
  if (open == std::string_view::npos) return surface.Find(element);
  int index = frame::kNoIndex;
  const char* const end = element.data() + element.size();
  const auto [stop, error] = std::from_chars(element.data() + open + 1, end, index);
  if (error != std::errc() || stop + 1 != end || *stop != ')') return nullptr;
  return surface.Find(element.substr(0, open), index);
}

headless::Action ActionOf(std::string_view name, const VARIANT& value, const headless::AnyControl& control) {
  if (name == "press") return headless::Press{};
  if (name == "select") return headless::Select{};
  if (name == "tick") return headless::Tick{As<std::int32_t>(value)};
  if (name == "toggle") return headless::Toggle{As<std::int32_t>(value)};
  if (name == "choose") return headless::Choose{Entry(value, control)};
  if (name == "enter") return headless::Enter{Typed(value)};
  if (name == "close") return headless::Close{};
  throw NoSuch("action", name);
}

}  // namespace brivane::component

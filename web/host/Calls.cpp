#include "web/host/Calls.h"

#include <emscripten.h>

#include <cstdlib>
#include <vector>

#include <brivane/host/Error.h>

namespace {

/// As the script reads and writes it.
struct Wire {
  std::int32_t type = 0;
  std::int32_t object = 0;
  double number = 0;
  char* text = nullptr;  ///< of an answer: to be freed
  char* more = nullptr;  ///< of a failure: its source, to be freed
};
static_assert(sizeof(Wire) == 24);

enum class Way { Get, Put, Call, Element, Make };

}  // namespace

// clang-format off
EM_JS(int, brivane_call, (int page, int object, int way, const char* name, const void* given, int count, void* answer), {
  return Module["host"]["call"](page, object, way, name, given, count, answer);
})
EM_JS(void, brivane_let_go, (int page, int object), { Module["host"]["letGo"](page, object); })
// clang-format on

namespace brivane::webhost {

namespace {

constexpr int kMostArguments = 6;

std::string Taken(char* text) {
  std::string taken(text != nullptr ? text : "");
  std::free(text);
  return taken;
}

Wire ToWire(const Value& value) {
  Wire wire;
  wire.type = static_cast<std::int32_t>(value.type);
  wire.object = value.object ? value.object->Number() : 0;
  wire.number = value.number;
  wire.text = const_cast<char*>(value.text.c_str());
  return wire;
}

Value Ask(int page, int object, Way way, const char* name, const Wire* arguments, std::size_t count) {
  Wire wire;
  const bool failed =
      brivane_call(page, object, static_cast<int>(way), name, arguments, static_cast<int>(count), &wire) != 0;
  std::string text = Taken(wire.text);
  const std::string more = Taken(wire.more);
  if (failed) throw host::Error(static_cast<std::int32_t>(wire.number), text, more);
  Value value;
  value.type = static_cast<Value::Type>(wire.type);
  value.number = wire.number;
  value.text = std::move(text);
  if (value.type == Value::Type::Object) value.object = std::make_shared<const Kept>(page, wire.object);
  return value;
}

Value Ask(const Object& object, Way way, const char* name, std::initializer_list<Value> arguments) {
  Wire wires[kMostArguments];
  std::size_t count = 0;
  for (const Value& argument : arguments) wires[count++] = ToWire(argument);
  const Kept& kept = host::Need(object);
  return Ask(kept.Page(), kept.Number(), way, name, wires, count);
}

}  // namespace

Kept::~Kept() { brivane_let_go(page_, number_); }

Value Get(const Object& object, const char* name, std::initializer_list<Value> arguments) {
  return Ask(object, Way::Get, name, arguments);
}

void Put(const Object& object, const char* name, const Value& value, int index) {
  (void)Ask(object, Way::Put, name, {value, Value(std::int32_t{index})});
}

void Call(const Object& object, const char* name, std::initializer_list<Value> arguments) {
  (void)Ask(object, Way::Call, name, arguments);
}

Value Element(const Object& object, int index) { return Ask(object, Way::Element, "", {Value(std::int32_t{index})}); }

Object Make(int page, const char* what, const std::string& control) {
  const Value given(control);
  const Wire wire = ToWire(given);
  return As<Object>(Ask(page, 0, Way::Make, what, &wire, 1));
}

}  // namespace brivane::webhost

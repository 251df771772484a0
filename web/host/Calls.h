#pragma once

#include <initializer_list>

#include "web/host/Value.h"

/// The one way to the host's objects. A failure of the host comes out as its error: number, description and source of
/// what was thrown, or number 440 with its text. A member that there is not fails with error 438.
namespace brivane::webhost {

/// A property, or what a method answers: the object decides which it is. `name` is a literal.
[[nodiscard]] Value Get(const Object& object, const char* name, std::initializer_list<Value> arguments = {});
/// A property; with an index from 1 an element of it.
void Put(const Object& object, const char* name, const Value& value, int index = 0);
/// A method without an answer.
void Call(const Object& object, const char* name, std::initializer_list<Value> arguments = {});
/// An element of an array from 0; nothing past the last.
[[nodiscard]] Value Element(const Object& object, int index);
/// What the script of a page makes for a control where the host's class is needed: "ProcedureTrace" or
/// "DossierControle".
[[nodiscard]] Object Make(int page, const char* what, const std::string& control);

}  // namespace brivane::webhost

#pragma once

#include "component/testdoor/Hooks.h"
#include "component/testdoor/Interfaces.h"

/// What holds for objects from their creation on: while a control is made it measures the screen and traces already.
namespace brivane::component {

/// The door of the classes: its settings and its callback are those of every object that is made from then on, until
/// the callback is taken away. It opens to no controls.
[[nodiscard]] ITestDoor* NewClassDoor();

/// Gives a new object what the door of the classes holds ready.
void Prepare(Hooks& hooks);

}  // namespace brivane::component

#pragma once

namespace brivane::test {

/// A key that types no letter or digit.
enum class Key {
  Tab,
  Enter,
  KeypadEnter,
  Escape,
  Space,
  Delete,
  Left,
  Right,
  Up,
  Down,
  Home,
  End,
  PageUp,
  PageDown,
  F4,
  KeypadPoint,
  KeypadComma,
};

/// What is held meanwhile.
enum class With { None, Shift, Control, Alt };

}  // namespace brivane::test

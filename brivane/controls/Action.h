#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

#include <brivane/host/Date.h>
#include <brivane/host/Export.h>
#include <brivane/host/Twips.h>

/// What a person can do to a control, as data: the one door that real event sources, scripts, tests
/// and fuzzers share.
namespace brivane::controls {

/// The content of a text box: empty, a text, a number or a date.
using BoxValue = std::variant<std::monostate, std::string, double, host::Date>;

/// Presses a button.
struct Press {
  friend bool operator==(const Press&, const Press&) = default;
};
/// Selects an option.
struct Select {
  friend bool operator==(const Select&, const Select&) = default;
};
/// Ticks or unticks a check box: host::kTicked or host::kUnticked.
struct Tick {
  int value = 0;  ///< any other is ignored
  friend bool operator==(const Tick&, const Tick&) = default;
};
/// Sets a yes/no toggle: host::kJa or host::kNee.
struct Toggle {
  int value = 0;  ///< any other is ignored
  friend bool operator==(const Toggle&, const Toggle&) = default;
};
/// Picks the entry of a list at a position from 0.
struct Choose {
  int index = 0;  ///< one that the list does not have is ignored
  friend bool operator==(const Choose&, const Choose&) = default;
};
/// Types a value into a box and leaves the box. A value that is not of the box's kind is held as typed.
struct Enter {
  BoxValue value;  ///< empty empties the box
  friend bool operator==(const Enter&, const Enter&) = default;
};
/// Closes a form by its close box.
struct Close {
  friend bool operator==(const Close&, const Close&) = default;
};

/// One thing that a person does. Which control takes which is told by each; a control ignores any other.
using Action = std::variant<Press, Select, Tick, Toggle, Choose, Enter, Close>;

/// What became of an action.
enum class Outcome : std::uint8_t {
  Done,     ///< it took place, with all that it set off
  Ignored,  ///< the control cannot be reached, is locked, or is of a kind that knows no such action
  Refused,  ///< the box's Validation set Cancel: the content stays as typed and the focus in the box
};

class AnyControl;
class Surface;

/// Follows every action that passes the door, those that are ignored too. Actions nest, where one
/// opens a form or lets pending events run.
class BRIVANE_API ActionListener {
 public:
  virtual ~ActionListener() = default;
  /// A person is about to act on a control. A failure here is a failure of the action.
  virtual void Before(AnyControl& control, const Action& action) = 0;
  /// No outcome: the action failed, and its failure goes on to the caller.
  virtual void After(AnyControl& control, const Action& action, std::optional<Outcome> outcome) = 0;
  /// The container is about to size a surface.
  virtual void Sizing(Surface&, host::Twips /*width*/, host::Twips /*height*/) {}
};

}  // namespace brivane::controls

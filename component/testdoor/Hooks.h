#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "component/automation/LateBound.h"
#include "component/automation/Toolkit.h"

namespace brivane::component {

/// What a door for tests has set on the toolkit of one object: the machine's answers, and who is asked in a person's
/// place.
class Hooks {
 public:
  explicit Hooks(Toolkit& toolkit) : toolkit_(toolkit) {}

  /// Fails with error 5 for a setting that there is not.
  void Set(std::string_view setting, const VARIANT& value);
  /// Nothing takes the callback away.
  void SetCallback(ComPtr<IDispatch> callback);
  /// An object that the callback makes with that member; nothing where it has no such member.
  [[nodiscard]] ComPtr<IDispatch> MadeByCallback(std::wstring_view member, std::string_view control);

 private:
  [[nodiscard]] host::MessageAnswer Ask(const std::string& title, const std::string& text, host::MessageStyle style);
  void RunForm(headless::Form& form);

  Toolkit& toolkit_;
  LateBound callback_;
};

}  // namespace brivane::component

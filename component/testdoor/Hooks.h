#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "component/automation/HostSession.h"
#include "component/automation/Toolkit.h"

namespace brivane::component {

/// What a door for tests has set on the toolkit of one object: the machine's answers, and who is asked in a person's
/// place.
class Hooks {
 public:
  Hooks(Toolkit& toolkit, HostSession& session) : toolkit_(toolkit), session_(session) {}

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
  HostSession& session_;
  LateBound callback_;
};

}  // namespace brivane::component

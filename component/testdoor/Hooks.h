#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "component/automation/HostSession.h"
#include "component/automation/Toolkit.h"
#include <brivane/scenario/frmScenario.h>

namespace brivane::component {

/// What a door for tests has set on the toolkit of one object: the machine's answers, and who is asked in a person's
/// place.
class Hooks {
 public:
  /// What the door of the classes holds ready is set at once.
  Hooks(Toolkit& toolkit, HostSession& session);

  /// Fails with error 5 for a setting that there is not.
  void Set(std::string_view setting, const VARIANT& value);
  /// Nothing takes the callback away.
  void SetCallback(ComPtr<IDispatch> callback);
  /// An object that the callback makes with that member; nothing where it has no such member.
  [[nodiscard]] ComPtr<IDispatch> MadeByCallback(std::wstring_view member, std::string_view control);
  /// The form that is shown next.
  void Opening(const brivane::frmScenario& form) { opening_ = &form; }

 private:
  [[nodiscard]] host::MessageAnswer Ask(const std::string& title, const std::string& text, host::MessageStyle style);
  void RunForm(controls::Form& form);

  Toolkit& toolkit_;
  HostSession& session_;
  LateBound callback_;
  const brivane::frmScenario* opening_ = nullptr;
  host::Subscription closed_;  ///< to the form that was shown last
};

}  // namespace brivane::component

#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include <brivane/controls/FailureWatch.h>
#include <brivane/controls/Surface.h>
#include <brivane/host/Export.h>

namespace brivane::controls {

/// What a control on a surface stands for.
enum class BindingState : std::uint8_t {
  Never,    ///< nothing yet: it is as designed
  Bound,    ///< the column that it was bound to last
  Failed,   ///< nothing: the last binding failed
  Unbound,  ///< nothing: it let go of the host
};

/// What became of a binding.
enum class BindingResult : std::uint8_t {
  Bound,    ///< the control shows the column
  Failed,   ///< the host was told why by its own ReportError; the control takes no input until it is bound
  Refused,  ///< something that is being typed does not pass: the control stays bound as it was, and shows what it is
};

/// Whether the control on a surface is bound, for those who put it before a person.
///
/// A binding that fails leaves some of the earlier column and some of the new one in the control. What is wrong then is
/// the host's to hear; here it is kept from a person: a veil lies over the surface (Surface::SetVeiled) until a
/// binding succeeds.
///
///     controls::Binding binding(*surface);  // after the surface, gone before it
///     if (binding.Bind([&] { editor.SetApplication(application, 0, 1); }) != BindingResult::Bound) ...
///     binding.Unbind([&] { editor.Unbind(); });
class BRIVANE_API Binding {
 public:
  /// A surface that one of these toolkits made. It outlives this.
  explicit Binding(host::Surface& surface);

  /// Runs a binding. It has failed where a procedure of the control did since the last binding began, also where that
  /// was reported, and where this throws, which goes on to the caller. May be called again from inside; what came last
  /// counts.
  BindingResult Bind(const std::function<void()>& bind);
  /// Runs what lets go of the host's objects, after the veil was laid. May be called from inside a binding, which has
  /// failed then.
  void Unbind(const std::function<void()>& letGo);

  /// What the control stands for now.
  [[nodiscard]] BindingState State() const { return state_; }
  /// A binding failed or was let go of: there is nothing to show and nothing to check.
  [[nodiscard]] bool IsVoid() const { return state_ == BindingState::Failed || state_ == BindingState::Unbound; }

 private:
  void Put(BindingState state);

  Surface& surface_;
  FailureWatch failures_;
  BindingState state_ = BindingState::Never;
  unsigned turn_ = 0;  ///< counts the bindings and unbindings that began
  std::shared_ptr<const char> life_ = std::make_shared<const char>('\0');
};

}  // namespace brivane::controls

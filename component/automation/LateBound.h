#pragma once

#include <dispex.h>

#include <map>
#include <memory>
#include <span>
#include <string_view>

#include "component/automation/ComPtr.h"
#include "component/automation/Variant.h"
#include <brivane/controls/life/Life.h>

namespace brivane::component {

/// An object of the host whose members are found by name as they are used.
///
///     const auto term = As<std::int16_t>(record.Get(L"Termijn"));
///     record.Put(L"Voorstel", Variant("J"), std::array{Variant(number)});
///
/// Reached through IDispatchEx where the object has it (a class of a script has nothing else), else through IDispatch.
/// A failure of the object is thrown with its number, description and source. Names must be literals: what they stand
/// for is remembered.
///
/// Where the object is used by a control, what uses it is abandoned before and after a call, also one that fails, once
/// the host has let go of the control or closed it: the host may do so while it is called.
class LateBound {
 public:
  LateBound() = default;
  explicit LateBound(ComPtr<IDispatch> object, std::shared_ptr<const controls::Life> life = nullptr);

  [[nodiscard]] IDispatch* Object() const { return object_.Get(); }
  [[nodiscard]] explicit operator bool() const { return static_cast<bool>(object_); }

  /// A property, with its indexes where it has them, or a function: the object decides which it is.
  [[nodiscard]] Variant Get(std::wstring_view name, std::span<const Variant> arguments = {});
  void Put(std::wstring_view name, const Variant& value, std::span<const Variant> indexes = {});
  /// A procedure without a result.
  void Call(std::wstring_view name, std::span<const Variant> arguments = {});
  /// A procedure with one argument, an object that it may put another in the place of.
  void CallByRef(std::wstring_view name, ComPtr<IDispatch>& object);
  /// Whether there is such a member.
  [[nodiscard]] bool Has(std::wstring_view name);

 private:
  [[nodiscard]] HRESULT Find(std::wstring_view name, DISPID& id);
  [[nodiscard]] DISPID Need(std::wstring_view name);
  void Invoke(std::wstring_view name, WORD flags, DISPPARAMS& arguments, VARIANT* result);

  ComPtr<IDispatch> object_;
  ComPtr<IDispatchEx> scripted_;
  std::shared_ptr<const controls::Life> life_;
  ComPtr<IServiceProvider> caller_;  ///< as a script's object is told it
  std::map<std::wstring_view, DISPID> ids_;
};

}  // namespace brivane::component

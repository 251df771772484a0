#include "component/automation/LateBound.h"

#include <utility>
#include <vector>

#include "component/automation/Bstr.h"
#include "component/automation/Caller.h"
#include "component/automation/Errors.h"

namespace brivane::component {

namespace {

/// Arguments as a call wants them: the last one first. The variants are lent, not copied.
std::vector<VARIANT> Reversed(std::span<const Variant> arguments) {
  std::vector<VARIANT> reversed;
  for (auto argument = arguments.rbegin(); argument != arguments.rend(); ++argument)
    reversed.push_back(argument->Raw());
  return reversed;
}

}  // namespace

LateBound::LateBound(ComPtr<IDispatch> object, std::shared_ptr<const controls::Life> life)
    : object_(std::move(object)), scripted_(object_.As<IDispatchEx>()), life_(std::move(life)) {
  if (scripted_) caller_ = NewCaller();
}

HRESULT LateBound::Find(std::wstring_view name, DISPID& id) {
  if (const auto known = ids_.find(name); known != ids_.end()) {
    id = known->second;
    return S_OK;
  }
  std::wstring text(name);
  wchar_t* names = text.data();
  HRESULT result = E_NOTIMPL;
  if (scripted_)
    result = scripted_->GetDispID(Bstr(name).Get(), fdexNameCaseInsensitive, &id);
  else
    result = object_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id);
  if (SUCCEEDED(result)) ids_.emplace(name, id);
  return result;
}

DISPID LateBound::Need(std::wstring_view name) {
  DISPID id = DISPID_UNKNOWN;
  Check(Find(name, id));
  return id;
}

bool LateBound::Has(std::wstring_view name) {
  DISPID id = DISPID_UNKNOWN;
  return object_ && SUCCEEDED(Find(name, id));
}

void LateBound::Invoke(std::wstring_view name, WORD flags, DISPPARAMS& arguments, VARIANT* result) {
  const std::shared_ptr<const controls::Life> life = life_;
  if (life) life->Check();
  const DISPID id = Need(name);
  EXCEPINFO info{};
  // The object may let go of us while it works.
  const ComPtr<IDispatch> object = object_;
  const ComPtr<IDispatchEx> scripted = scripted_;
  const ComPtr<IServiceProvider> caller = caller_;
  const HRESULT answer =
      scripted ? scripted->InvokeEx(id, LOCALE_USER_DEFAULT, flags, &arguments, result, &info, caller.Get())
               : object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &arguments, result, &info, nullptr);
  if (SUCCEEDED(answer)) {
    if (life) life->Check();
    return;
  }
  const host::Error failure = ErrorOf(answer, &info);
  // A host that fails after it let go has nobody to fail to.
  if (life) life->Check();
  throw host::Error(failure);
}

Variant LateBound::Get(std::wstring_view name, std::span<const Variant> arguments) {
  std::vector<VARIANT> reversed = Reversed(arguments);
  DISPPARAMS parameters{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
  Variant result;
  Invoke(name, DISPATCH_METHOD | DISPATCH_PROPERTYGET, parameters, result.Put());
  return result;
}

void LateBound::Put(std::wstring_view name, const Variant& value, std::span<const Variant> indexes) {
  std::vector<VARIANT> reversed = Reversed(indexes);
  reversed.insert(reversed.begin(), value.Raw());
  DISPID valueIsNamed = DISPID_PROPERTYPUT;
  DISPPARAMS parameters{reversed.data(), &valueIsNamed, static_cast<UINT>(reversed.size()), 1};
  Invoke(name, DISPATCH_PROPERTYPUT, parameters, nullptr);
}

void LateBound::Call(std::wstring_view name, std::span<const Variant> arguments) {
  std::vector<VARIANT> reversed = Reversed(arguments);
  DISPPARAMS parameters{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
  Invoke(name, DISPATCH_METHOD, parameters, nullptr);
}

void LateBound::CallByRef(std::wstring_view name, ComPtr<IDispatch>& object) {
  // A script hands back in a variant alone; what was compiled wants the type that its argument has.
  Variant value(object.Get());
  VARIANT reference{};
  if (scripted_) {
    reference.vt = VT_BYREF | VT_VARIANT;
    reference.pvarVal = &value.Raw();
  } else {
    reference.vt = VT_BYREF | VT_DISPATCH;
    reference.ppdispVal = &value.Raw().pdispVal;
  }
  DISPPARAMS parameters{&reference, nullptr, 1, 0};
  Invoke(name, DISPATCH_METHOD, parameters, nullptr);
  object = As<ComPtr<IDispatch>>(value);
}

}  // namespace brivane::component

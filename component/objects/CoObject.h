#pragma once

#include <memory>
#include <optional>

#include "component/automation/Dispatching.h"
#include "component/idl/Interfaces.h"
#include "component/objects/Companion.h"
#include "component/objects/HostClasses.h"
#include "component/objects/Identity.h"
#include <brivane/controls/Binding.h>

namespace brivane::component {

/// Gives a by-reference argument back as True where the check refused; otherwise it stays what it is.
void StoreCancel(VARIANT* argument, bool before, bool after);

/// What the library's three classes have in common: their identity, late binding, error records and class information,
/// the toolkit and the host's objects of each, and the companion that goes with it.
///
/// `Outgoing` is the interface of its events, or GUID_NULL.
template <class Interface>
class CoObject : public Dispatching<Interface>, public IProvideClassInfo2, public Identity, private Accompanied {
 public:
  CoObject(IUnknown* outer, const CLSID& classId, const IID& outgoing)
      : Identity(outer), classId_(classId), outgoing_(outgoing) {
    toolkit_->Desktop().texts = &RegisteredTexts(classId_);
  }
  ~CoObject() override { session_->LetGo(); }

  BRIVANE_IDENTITY()

  STDMETHODIMP GetClassInfo(ITypeInfo** info) override {
    if (!info) return E_POINTER;
    *info = nullptr;
    return Answering<IProvideClassInfo2>(
        [&] { (void)module::TypeInfo(module::kOwnTypeLibrary, classId_).CopyTo(info); });
  }
  STDMETHODIMP GetGUID(DWORD kind, GUID* id) override {
    if (!id) return E_POINTER;
    *id = GUID_NULL;
    if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID || outgoing_ == GUID_NULL) return E_INVALIDARG;
    *id = outgoing_;
    return S_OK;
  }

 protected:
  [[nodiscard]] IUnknown* Find(REFIID iid) override {
    if (IUnknown* const own = this->Own(iid)) return own;
    if (iid == IID_IProvideClassInfo || iid == IID_IProvideClassInfo2) return static_cast<IProvideClassInfo2*>(this);
    return companion_->Find(iid);
  }

  /// Runs a method's body: no exception crosses, and the object stays until it is done. A body that is abandoned ends
  /// quietly.
  template <class Body> [[nodiscard]] HRESULT Doing(Body&& body) {
    const Busy busy(*this);
    return Answering<Interface>([&] { (void)controls::Life::Run(toolkit_->Life(), body); });
  }
  /// The same for a method that hands out a value; after an abandoned body it is the empty one.
  template <class Value, class Body> [[nodiscard]] HRESULT Giving(Value* place, Body&& body) {
    const Busy busy(*this);
    return Handing<Interface>(place, [&] {
      Value value{};
      (void)controls::Life::Run(toolkit_->Life(), [&] { value = body(); });
      return value;
    });
  }

  /// A binding of a control: S_FALSE where it failed, or where something that is being typed does not pass, in which
  /// case the control stays bound as it was. Bound to nothing it lets go of everything of the host's, whatever comes of
  /// the body, and what was going on ends.
  template <class Body>
  [[nodiscard]] HRESULT Binding(controls::Binding& binding, host::Surface& surface, IDispatch* application,
                                Body&& body) {
    if (!application) return Unbinding(binding, surface, std::forward<Body>(body));
    const Busy busy(*this);
    HRESULT result = S_OK;
    const HRESULT answer = Answering<Interface>([&] {
      (void)controls::Life::Run(toolkit_->Life(), [&] {
        const bool refused = !toolkit_->CommitPending(surface);
        CheckGoingOn();
        if (refused || binding.Bind(body) != controls::BindingResult::Bound) result = S_FALSE;
      });
    });
    return FAILED(answer) ? answer : result;
  }

  /// A host's check of a control. What is being typed is handed over first; refused there is refused here. A control
  /// that stands for nothing has nothing to check.
  template <class Body>
  [[nodiscard]] HRESULT Validating(const controls::Binding& binding, host::Surface& surface, VARIANT* argument,
                                   Body&& body) {
    if (!argument) return E_POINTER;
    return Doing([&] {
      const bool before = As<bool>(*argument);
      bool cancel = before;
      if (binding.IsVoid() && !companion_->ActsBehindTheVeil()) return;
      if (!cancel && !toolkit_->CommitPending(surface)) cancel = true;
      CheckGoingOn();
      body(cancel);
      CheckGoingOn();
      StoreCancel(argument, before, cancel);
    });
  }

  /// What is going on ends: a form and message boxes go, and the procedures that are running are abandoned.
  void Abandon() { toolkit_->Life()->Abandon(); }
  /// Where the host has just had its turn: it may have ended what is running.
  void CheckGoingOn() const { toolkit_->Life()->Check(); }

  [[nodiscard]] component::Toolkit& TheToolkit() override { return *toolkit_; }
  [[nodiscard]] HostSession& Session() override { return *session_; }
  [[nodiscard]] const HostClasses& Classes() const { return classes_; }
  /// From the next use on.
  void SetClasses(HostClasses classes) {
    classes_ = std::move(classes);
    session_->RenewMade();
  }
  /// The form that the object shows next.
  void Opening(const brivane::frmScenario& form) { companion_->Opening(form); }
  [[nodiscard]] host::HostFactories Factories() { return FactoriesFor(*session_, classes_, *companion_); }
  [[nodiscard]] const CLSID& OwnClass() const { return classId_; }

 private:
  template <class Body>
  [[nodiscard]] HRESULT Unbinding(controls::Binding& binding, host::Surface& surface, Body&& body) {
    const Busy busy(*this);
    Abandon();
    const HRESULT unbound = Answering<Interface>([&] {
      (void)controls::Life::Run(toolkit_->Life(), [&] {
        toolkit_->LeavePending(surface);
        CheckGoingOn();
        binding.Unbind(body);
      });
    });
    const HRESULT released = Answering<Interface>([&] { session_->LetGo(); });
    return FAILED(unbound) ? unbound : released;
  }

  IUnknown& Object() override { return Controlling(); }
  [[nodiscard]] bool IsAtWork() const override { return toolkit_->Life()->Running(); }
  void Abandoned() override {
    const std::shared_ptr<controls::Life> life = toolkit_->Life();
    life->End(std::shared_ptr<void>(this, [](void* object) { static_cast<CoObject*>(object)->Rested(); }));
    session_->LetGo();
  }

  const CLSID& classId_;
  const IID& outgoing_;
  std::unique_ptr<component::Toolkit> toolkit_ = MakeToolkit();
  std::shared_ptr<HostSession> session_ = std::make_shared<HostSession>(toolkit_->Life());
  HostClasses classes_ = RegisteredHostClasses(classId_);
  std::unique_ptr<Companion> companion_ = Companions::Used().Of(*this);
};

/// What a control stands for, as hosts are told it.
[[nodiscard]] inline Bindingstoestand ToestandOf(const controls::Binding& binding) {
  switch (binding.State()) {
    case controls::BindingState::Never: return BindingNogNiet;
    case controls::BindingState::Bound: return BindingGelukt;
    case controls::BindingState::Failed: return BindingMislukt;
    case controls::BindingState::Unbound: break;
  }
  return BindingLosgelaten;
}

/// A colour in the type that containers and tools know colours by.
[[nodiscard]] inline OLE_COLOR OleColor(host::Color color) { return static_cast<OLE_COLOR>(color.value); }
[[nodiscard]] inline host::Color ColorOf(OLE_COLOR color) { return {static_cast<std::int32_t>(color)}; }

}  // namespace brivane::component

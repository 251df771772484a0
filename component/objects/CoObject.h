#pragma once

#include <memory>
#include <optional>

#include "component/automation/Dispatching.h"
#include "component/idl/Interfaces.h"
#include "component/objects/Companion.h"
#include "component/objects/HostClasses.h"
#include "component/objects/Identity.h"

namespace brivane::component {

/// What the library's three classes have in common: their identity, late binding, error records and class information,
/// the toolkit and the host's objects of each, and the companion that goes with it.
///
/// `Outgoing` is the interface of its events, or GUID_NULL.
template <class Interface>
class CoObject : public Dispatching<Interface>,
                 public IProvideClassInfo2,
                 public Identity,
                 private Accompanied,
                 private controls::ActionListener {
 public:
  CoObject(IUnknown* outer, const CLSID& classId, const IID& outgoing)
      : Identity(outer), classId_(classId), outgoing_(outgoing) {
    toolkit_->AddListener(*this);
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

  /// Runs a method's body: no exception crosses, and the object stays until it is done.
  template <class Body> [[nodiscard]] HRESULT Doing(Body&& body) {
    const Busy busy(*this);
    return Answering<Interface>(std::forward<Body>(body));
  }
  /// The same for a binding. Bound to nothing, it lets go of everything of the host's, whatever came of the body.
  template <class Body> [[nodiscard]] HRESULT Binding(IDispatch* application, Body&& body) {
    const Busy busy(*this);
    const HRESULT bound = Answering<Interface>(std::forward<Body>(body));
    if (application) return bound;
    const HRESULT released = Answering<Interface>([&] { session_->LetGo(); });
    return FAILED(bound) ? bound : released;
  }
  /// The same for a method that hands out a value.
  template <class Value, class Body> [[nodiscard]] HRESULT Giving(Value* place, Body&& body) {
    const Busy busy(*this);
    return Handing<Interface>(place, std::forward<Body>(body));
  }

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
  IUnknown& Object() override { return Controlling(); }
  void Before(controls::AnyControl&, const controls::Action&) override { Enter(); }
  void After(controls::AnyControl&, const controls::Action&, std::optional<controls::Outcome>) override { Leave(); }

  const CLSID& classId_;
  const IID& outgoing_;
  std::unique_ptr<component::Toolkit> toolkit_ = MakeToolkit();
  std::shared_ptr<HostSession> session_ = std::make_shared<HostSession>();
  HostClasses classes_ = RegisteredHostClasses(classId_);
  std::unique_ptr<Companion> companion_ = Companions::Used().Of(*this);
};

/// A colour in the type that containers and tools know colours by.
[[nodiscard]] inline OLE_COLOR OleColor(host::Color color) { return static_cast<OLE_COLOR>(color.value); }
[[nodiscard]] inline host::Color ColorOf(OLE_COLOR color) { return {static_cast<std::int32_t>(color)}; }

/// Gives a by-reference argument back as True where the check refused; otherwise it stays what it is.
void StoreCancel(VARIANT* argument, bool before, bool after);

}  // namespace brivane::component

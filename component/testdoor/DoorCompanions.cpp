#include "component/testdoor/DoorCompanions.h"

#include "component/automation/Counted.h"
#include "component/automation/RecordAdapter.h"
#include "component/objects/Identity.h"
#include "component/testdoor/Preparation.h"
#include "component/testdoor/TestDoor.h"
#include <brivane/vrijekolom/VrijeKolom.h>

namespace brivane::component {

namespace {

/// What an editor's door tells of it beside its controls.
std::optional<Variant> EditorAspect(brivane::VrijeKolom* editor, std::string_view aspect) {
  if (editor == nullptr) return std::nullopt;
  if (aspect == "filling") return Variant(editor->Filling());
  if (aspect == "changed") return Variant(editor->Gewijzigd());
  if (aspect == "record") return HandedBack<RecordAdapter>(editor->Item());
  return std::nullopt;
}

class DoorCompanion final : public Companion, public ITestDoorHolder {
 public:
  explicit DoorCompanion(Accompanied& object) : object_(object), hooks_(object.TheToolkit(), object.Session()) {}

  IUnknown* Find(REFIID iid) override {
    return iid == __uuidof(ITestDoorHolder) ? static_cast<ITestDoorHolder*>(this) : nullptr;
  }
  ComPtr<IDispatch> TraceFor(std::string_view control) override {
    return hooks_.MadeByCallback(L"MakeProcedureTrace", control);
  }
  ComPtr<IDispatch> CheckFor(std::string_view control) override {
    return hooks_.MadeByCallback(L"MakeDossierControle", control);
  }
  bool ActsBehindTheVeil() const override { return true; }
  void Opening(const brivane::frmScenario& form) override { hooks_.Opening(form); }

  BRIVANE_IDENTITY()

  STDMETHODIMP TestDoor(ITestDoor** door) override {
    if (!door) return E_POINTER;
    return Answering<ITestDoorHolder>([&] {
      *door = NewTestDoor(Controlling(), object_.Shown(), hooks_,
                          [this](std::string_view aspect) { return EditorAspect(object_.Editor(), aspect); });
    });
  }

 private:
  [[nodiscard]] IUnknown& Controlling() const { return object_.Object(); }

  Accompanied& object_;
  Hooks hooks_;
};

/// What a class object answers with where it is asked for its door; another identity of the same object.
class ClassDoorHolder final : public Counted<ITestDoorHolder> {
 public:
  explicit ClassDoorHolder(IUnknown& classObject) : classObject_(&classObject) {}

  STDMETHODIMP QueryInterface(REFIID iid, void** out) override {
    if (!out) return E_POINTER;
    if (iid != __uuidof(ITestDoorHolder)) return classObject_->QueryInterface(iid, out);
    *out = this;
    AddRef();
    return S_OK;
  }
  STDMETHODIMP TestDoor(ITestDoor** door) override {
    if (!door) return E_POINTER;
    return Answering<ITestDoorHolder>([&] { *door = NewClassDoor(); });
  }

 private:
  ComPtr<IUnknown> classObject_;
};

class WithDoors final : public Companions {
 public:
  std::unique_ptr<Companion> Of(Accompanied& object) override { return std::make_unique<DoorCompanion>(object); }
  HRESULT Query(IUnknown& classObject, REFIID iid, void** out) override {
    *out = nullptr;
    if (iid != __uuidof(ITestDoorHolder)) return E_NOINTERFACE;
    return Answering<ITestDoorHolder>([&] { *out = static_cast<ITestDoorHolder*>(new ClassDoorHolder(classObject)); });
  }
};

WithDoors doors_;

}  // namespace

Companions& DoorCompanions() { return doors_; }

}  // namespace brivane::component

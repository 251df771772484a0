#include "component/objects/ClassFactory.h"

#include "component/automation/Counted.h"
#include "component/automation/Errors.h"
#include "component/objects/Companion.h"
#include "component/objects/Identity.h"

namespace brivane::component {

namespace {

class ClassFactory final : public Counted<IClassFactory> {
 public:
  explicit ClassFactory(const LibraryClass& entry) : class_(entry) {}

  STDMETHODIMP QueryInterface(REFIID iid, void** out) override {
    if (!out) return E_POINTER;
    if (iid != IID_IUnknown && iid != IID_IClassFactory) return Companions::Used().Query(*this, iid, out);
    *out = static_cast<IClassFactory*>(this);
    AddRef();
    return S_OK;
  }

  STDMETHODIMP CreateInstance(IUnknown* outer, REFIID iid, void** out) override {
    if (!out) return E_POINTER;
    *out = nullptr;
    // Who makes the object a part of his own must keep hold of its inner identity.
    if (outer && iid != IID_IUnknown) return CLASS_E_NOAGGREGATION;
    Identity* object = nullptr;
    const HRESULT made = Answering<IClassFactory>([&] { object = class_.make(outer); });
    if (FAILED(made)) return made;
    const HRESULT found = object->Inner().QueryInterface(iid, out);
    object->Inner().Release();
    return found;
  }
  STDMETHODIMP LockServer(BOOL lock) override {
    if (lock)
      module::Keep();
    else
      module::LetGo();
    return S_OK;
  }

 private:
  const LibraryClass& class_;
};

}  // namespace

IClassFactory* NewClassFactory(const LibraryClass& entry) { return new ClassFactory(entry); }

}  // namespace brivane::component

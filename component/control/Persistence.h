#pragma once

#include "component/idl/Windows.h"

#include "component/control/Boundary.h"
#include "component/control/Delegating.h"
#include "component/control/Properties.h"

namespace brivane::component {

/// Writes and reads what is kept of a control: 20 bytes, little-endian.
HRESULT WriteKept(IStream& stream, const Kept& kept);
/// STG_E_INVALIDHEADER for what is not of a control, STG_E_READFAULT for what ends too early.
HRESULT ReadKept(IStream& stream, Kept& kept);

/// What the ways of keeping have in common.
template <class Interface> class Persistence : public Delegating<Interface> {
 public:
  Persistence(Subject& subject, Properties& properties) : Delegating<Interface>(subject), properties_(properties) {}

  STDMETHODIMP GetClassID(CLSID* id) final {
    if (!id) return E_POINTER;
    *id = this->TheSubject().ClassId();
    return S_OK;
  }

 protected:
  ~Persistence() = default;
  [[nodiscard]] Properties& TheProperties() const { return properties_; }
  [[nodiscard]] HRESULT Dirty() const { return properties_.IsDirty() ? S_OK : S_FALSE; }
  HRESULT Renew() {
    return Answer([&] {
      properties_.Renew();
      return S_OK;
    });
  }

 private:
  Properties& properties_;
};

/// A container that keeps its controls one after the other in a stream.
class StreamPersistence final : public Persistence<IPersistStreamInit> {
 public:
  using Persistence::Persistence;

  STDMETHODIMP IsDirty() override { return Dirty(); }
  STDMETHODIMP Load(IStream* stream) override;
  STDMETHODIMP Save(IStream* stream, BOOL clearDirty) override;
  STDMETHODIMP GetSizeMax(ULARGE_INTEGER* size) override;
  STDMETHODIMP InitNew() override { return Renew(); }
};

/// A container that keeps properties as text: `BackColor`, `_ExtentX` and `_ExtentY` (himetric).
class BagPersistence final : public Persistence<IPersistPropertyBag> {
 public:
  using Persistence::Persistence;

  STDMETHODIMP InitNew() override { return Renew(); }
  STDMETHODIMP Load(IPropertyBag* bag, IErrorLog* log) override;
  STDMETHODIMP Save(IPropertyBag* bag, BOOL clearDirty, BOOL allProperties) override;
};

/// A container that keeps each control as an embedded object, in a storage of its own.
class StoragePersistence final : public Persistence<IPersistStorage> {
 public:
  using Persistence::Persistence;

  STDMETHODIMP IsDirty() override { return Dirty(); }
  STDMETHODIMP InitNew(IStorage*) override { return Renew(); }
  STDMETHODIMP Load(IStorage* storage) override;
  STDMETHODIMP Save(IStorage* storage, BOOL sameAsLoad) override;
  STDMETHODIMP SaveCompleted(IStorage* storage) override;
  STDMETHODIMP HandsOffStorage() override;
};

}  // namespace brivane::component

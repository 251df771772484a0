#include "component/objects/Identity.h"

#include "component/objects/Later.h"

namespace brivane::component {

namespace {

/// Destruction hands the object around once more; the count must not come to nothing a second time.
constexpr ULONG kBeingDestroyed = 0x40000000;

}  // namespace

STDMETHODIMP Identity::InnerUnknown::QueryInterface(REFIID iid, void** out) {
  if (!out) return E_POINTER;
  IUnknown* const found = iid == IID_IUnknown ? this : object_.Find(iid);
  *out = found;
  if (!found) return E_NOINTERFACE;
  found->AddRef();
  return S_OK;
}

STDMETHODIMP_(ULONG) Identity::InnerUnknown::Release() {
  const ULONG left = --object_.count_;
  if (left == 0 && object_.busy_ == 0) object_.Destroy();
  return left;
}

void Identity::Leave() {
  // What has just been left may have callers that still use the object.
  if (--busy_ == 0 && count_ == 0) {
    count_ = kBeingDestroyed;
    DoLater([this] { delete this; });
  }
}

void Identity::Return() {
  if (--busy_ == 0 && count_ == 0) Destroy();
}

void Identity::Destroy() {
  count_ = kBeingDestroyed;
  delete this;
}

}  // namespace brivane::component

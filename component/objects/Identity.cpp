#include "component/objects/Identity.h"

#include <utility>

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
  if (left == 0) object_.Unreferenced();
  return left;
}

void Identity::Unreferenced() {
  if (busy_ == 0 && !IsAtWork()) return Destroy();
  if (!std::exchange(abandoned_, true)) Abandoned();
}

void Identity::Rested() {
  if (busy_ != 0 || count_ != 0) return;
  // What has just ended may have callers that still use the object.
  count_ = kBeingDestroyed;
  DoLater([this] { delete this; });
}

void Identity::Return() {
  if (--busy_ == 0 && count_ == 0 && !IsAtWork()) Destroy();
}

void Identity::Destroy() {
  count_ = kBeingDestroyed;
  delete this;
}

}  // namespace brivane::component

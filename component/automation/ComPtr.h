#pragma once

#include "component/idl/Windows.h"

#include <utility>

namespace brivane::component {

/// A counted reference to a component's interface.
///
///     ComPtr<IOleControlSite> site = client.As<IOleControlSite>();
///     if (site) site->OnFocus(TRUE);
template <class Interface> class ComPtr {
 public:
  ComPtr() = default;
  ComPtr(Interface* pointer) : pointer_(pointer) {  // NOLINT: counts one more reference
    if (pointer_) pointer_->AddRef();
  }
  ComPtr(const ComPtr& other) : ComPtr(other.pointer_) {}
  ComPtr(ComPtr&& other) noexcept : pointer_(std::exchange(other.pointer_, nullptr)) {}
  ComPtr& operator=(ComPtr other) noexcept {
    std::swap(pointer_, other.pointer_);
    return *this;
  }
  ~ComPtr() { Reset(); }

  void Reset() {
    if (Interface* old = std::exchange(pointer_, nullptr)) old->Release();
  }
  [[nodiscard]] Interface* Get() const { return pointer_; }
  Interface* operator->() const { return pointer_; }
  explicit operator bool() const { return pointer_ != nullptr; }

  /// The place for a call to put a counted reference in.
  [[nodiscard]] Interface** Put() {
    Reset();
    return &pointer_;
  }
  /// Another interface of the object; nothing where it has none.
  template <class Other> [[nodiscard]] ComPtr<Other> As() const {
    ComPtr<Other> other;
    if (pointer_) pointer_->QueryInterface(__uuidof(Other), reinterpret_cast<void**>(other.Put()));
    return other;
  }
  /// Whether both are the same object, whatever the interfaces.
  template <class Other> [[nodiscard]] bool IsSameObject(const ComPtr<Other>& other) const {
    return As<IUnknown>().Get() == other.template As<IUnknown>().Get();
  }
  /// Takes over a reference that is counted already.
  [[nodiscard]] static ComPtr Attach(Interface* counted) {
    ComPtr pointer;
    pointer.pointer_ = counted;
    return pointer;
  }
  /// Hands a counted reference out.
  HRESULT CopyTo(Interface** out) const {
    if (!out) return E_POINTER;
    *out = pointer_;
    if (pointer_) pointer_->AddRef();
    return S_OK;
  }

 private:
  Interface* pointer_ = nullptr;
};

}  // namespace brivane::component

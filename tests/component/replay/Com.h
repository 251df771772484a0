#pragma once

#include "component/idl/Windows.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

/// What the programs of these tests need of COM, written apart from the component's own boundary so that a mistake
/// there is not made here as well.
namespace brivane::latebound {

/// A counted reference.
template <class T> class Ptr {
 public:
  Ptr() = default;
  Ptr(std::nullptr_t) {}
  explicit Ptr(T* object) : object_(object) {
    if (object_ != nullptr) object_->AddRef();
  }
  Ptr(const Ptr& other) : Ptr(other.object_) {}
  Ptr(Ptr&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  Ptr& operator=(Ptr other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~Ptr() {
    if (object_ != nullptr) object_->Release();
  }
  /// Takes over a reference that is counted already.
  [[nodiscard]] static Ptr Adopt(T* object) {
    Ptr adopted;
    adopted.object_ = object;
    return adopted;
  }

  [[nodiscard]] T* get() const { return object_; }
  T* operator->() const { return object_; }
  explicit operator bool() const { return object_ != nullptr; }
  /// For a call that answers a new reference; only on an empty one.
  [[nodiscard]] T** Out() { return &object_; }
  [[nodiscard]] void** OutVoid() { return reinterpret_cast<void**>(&object_); }

 private:
  T* object_ = nullptr;
};

/// A VARIANT that frees what it holds.
class Variant {
 public:
  Variant() { VariantInit(&held_); }
  explicit Variant(const VARIANT& other) : Variant() { VariantCopyInd(&held_, const_cast<VARIANT*>(&other)); }
  Variant(const Variant& other) : Variant() { VariantCopy(&held_, const_cast<VARIANT*>(&other.held_)); }
  Variant(Variant&& other) noexcept : Variant() { std::swap(held_, other.held_); }
  Variant& operator=(Variant other) noexcept {
    std::swap(held_, other.held_);
    return *this;
  }
  ~Variant() { VariantClear(&held_); }

  [[nodiscard]] const VARIANT& get() const { return held_; }
  [[nodiscard]] VARIANT& get() { return held_; }
  [[nodiscard]] VARTYPE Type() const { return held_.vt; }
  /// Hands the value over to a VARIANT that holds nothing.
  void MoveTo(VARIANT& to) { to = std::exchange(held_, VARIANT{}); }

 private:
  VARIANT held_;
};

[[nodiscard]] std::wstring ToWide(std::string_view utf8);
[[nodiscard]] std::string ToUtf8(std::wstring_view wide);
/// A null BSTR is the empty text.
[[nodiscard]] std::string ToUtf8(BSTR text);
/// The caller frees it.
[[nodiscard]] BSTR ToBstr(std::string_view utf8);

/// Whether two references are the same object.
[[nodiscard]] bool SameObject(IUnknown* one, IUnknown* other);

}  // namespace brivane::latebound

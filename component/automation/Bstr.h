#pragma once

#include "component/idl/Windows.h"

#include <new>
#include <string_view>
#include <utility>

namespace brivane::component {

/// A string of Automation with its own lifetime.
///
///     Bstr name;
///     Check(info->GetDocumentation(id, name.Put(), nullptr, nullptr, nullptr));
class Bstr {
 public:
  Bstr() = default;
  explicit Bstr(std::wstring_view text) : text_(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {
    if (!text_) throw std::bad_alloc();
  }
  Bstr(Bstr&& other) noexcept : text_(std::exchange(other.text_, nullptr)) {}
  Bstr& operator=(Bstr other) noexcept {
    std::swap(text_, other.text_);
    return *this;
  }
  ~Bstr() { SysFreeString(text_); }

  /// Takes a string over, which may be nothing.
  [[nodiscard]] static Bstr Take(BSTR& text) {
    Bstr taken;
    taken.text_ = std::exchange(text, nullptr);
    return taken;
  }

  [[nodiscard]] BSTR Get() const { return text_; }
  [[nodiscard]] std::wstring_view View() const { return {text_ ? text_ : L"", SysStringLen(text_)}; }
  /// The place for a call to put a string in.
  [[nodiscard]] BSTR* Put() {
    SysFreeString(std::exchange(text_, nullptr));
    return &text_;
  }
  /// Hands the string over to a caller.
  [[nodiscard]] BSTR Release() { return std::exchange(text_, nullptr); }

 private:
  BSTR text_ = nullptr;
};

}  // namespace brivane::component

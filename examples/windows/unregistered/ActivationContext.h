#pragma once

#include <windows.h>

#include <string>

namespace example {

/// What a manifest says of a library's classes, for a program that does not register them.
///
///     const ActivationContext context(L"C:\\host\\Brivane.VrijeKolom.manifest");
///     const ActivationContext::Active known(context);
///     ::CoCreateInstance(CLSID_VrijeKolom, ...);
///
/// What was created stays usable after the context, and keeps the library loaded.
class ActivationContext {
 public:
  /// The library lies beside the manifest, whose path must be a full one.
  explicit ActivationContext(const std::wstring& manifest) {
    ACTCTXW description{};
    description.cbSize = sizeof description;
    description.lpSource = manifest.c_str();
    context_ = ::CreateActCtxW(&description);
  }
  ActivationContext(const ActivationContext&) = delete;
  ActivationContext& operator=(const ActivationContext&) = delete;
  ~ActivationContext() {
    if (IsValid()) ::ReleaseActCtx(context_);
  }

  /// False where the manifest is not there or is none; GetLastError tells more.
  [[nodiscard]] bool IsValid() const { return context_ != INVALID_HANDLE_VALUE; }

  /// While one stands, this thread knows the classes.
  class Active {
   public:
    explicit Active(const ActivationContext& context)
        : active_(context.IsValid() && ::ActivateActCtx(context.context_, &cookie_)) {}
    Active(const Active&) = delete;
    Active& operator=(const Active&) = delete;
    ~Active() {
      if (active_) ::DeactivateActCtx(0, cookie_);
    }

   private:
    ULONG_PTR cookie_ = 0;
    bool active_;
  };

 private:
  HANDLE context_;
};

/// The path of a file that lies beside the program.
[[nodiscard]] inline std::wstring BesideThisProgram(const wchar_t* file) {
  std::wstring path(MAX_PATH, L'\0');
  path.resize(::GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
  return path.substr(0, path.find_last_of(L'\\') + 1) + file;
}

}  // namespace example

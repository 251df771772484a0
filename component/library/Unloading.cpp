// What the compiler's own libraries keep for a thread, handles of the system's among it, goes when the thread ends. A
// library that is unloaded before that would leave it behind, once for each time that it is loaded. So they are told
// that the unloading thread ends, before they learn that the library does: then they forget what they kept.
//
// What is made at its first use and lives as long as the library would have them keep two more handles, which they
// never give back: such things are made when the library is loaded.
//
// They learn both by the functions of the library's thread-local storage, which the system calls in the order of the
// sections that name them; this one's stands before theirs.

#include "component/idl/Windows.h"

extern "C" const IMAGE_TLS_DIRECTORY _tls_used;

namespace {

/// Then the system takes everything back by itself, and other threads may have been stopped anywhere.
bool ProcessEnds() {
  using Asked = BOOLEAN NTAPI();
  const FARPROC found = ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "RtlDllShutdownInProgress");
  return found != nullptr && reinterpret_cast<Asked*>(reinterpret_cast<void*>(found))() != FALSE;
}

void NTAPI OnUnloading(PVOID library, DWORD reason, PVOID) {
  if (reason != DLL_PROCESS_DETACH || ProcessEnds()) return;
  const auto* callback = reinterpret_cast<const PIMAGE_TLS_CALLBACK*>(_tls_used.AddressOfCallBacks);
  for (; *callback != nullptr; ++callback)
    if (*callback != &OnUnloading) (*callback)(library, DLL_THREAD_DETACH, nullptr);
}

}  // namespace

extern "C" __attribute__((section(".CRT$XLB"), used)) const PIMAGE_TLS_CALLBACK brivane_on_unloading = &OnUnloading;

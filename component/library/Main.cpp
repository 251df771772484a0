// The library that hosts register, as the system loads it.

#include "component/automation/Module.h"

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
  if (reason == DLL_PROCESS_ATTACH) brivane::component::module::Attach(instance);
  return TRUE;
}

// The library with the door for tests, as the system loads it.

#include "component/automation/Module.h"
#include "component/testdoor/DoorCompanions.h"

namespace component = brivane::component;

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
  if (reason == DLL_PROCESS_ATTACH) {
    component::module::Attach(instance);
    component::Companions::Use(component::DoorCompanions());
  }
  return TRUE;
}

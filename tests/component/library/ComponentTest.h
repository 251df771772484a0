#pragma once

#include <gtest/gtest.h>

#include "component/automation/Text.h"
#include "component/idl/Interfaces.h"
#include "component/testdoor/Interfaces.h"
#include "tests/component/library/FakeHost.h"

namespace brivane::component {

inline constexpr const wchar_t* kLibrary = L"BrivaneVrijeKolomTest.dll";

/// Tests of the registered library with the door, as a compiled host reaches it. After each the library must be out of
/// memory.
class ComponentTest : public testing::Test {
 protected:
  ComponentTest() { OleInitialize(nullptr); }
  ~ComponentTest() override {
    Unload();
    EXPECT_FALSE(IsLoaded()) << "something of the library is still alive";
    OleUninitialize();
  }

  static bool IsLoaded() { return GetModuleHandleW(kLibrary) != nullptr; }
  /// Takes the messages that wait, and lets go of libraries that are not in use.
  static void Unload() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
    CoFreeUnusedLibrariesEx(0, 0);
  }
  template <class Interface> static ComPtr<Interface> Create(const CLSID& id) {
    ComPtr<Interface> object;
    EXPECT_EQ(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(object.Put())), S_OK);
    return object;
  }
  template <class Interface> static ComPtr<ITestDoor> DoorOf(const ComPtr<Interface>& object) {
    ComPtr<ITestDoor> door;
    object.template As<ITestDoorHolder>()->TestDoor(door.Put());
    return door;
  }
  static SHORT Perform(const ComPtr<ITestDoor>& door, const wchar_t* element, const wchar_t* action, Variant value) {
    SHORT outcome = -1;
    const BSTR name = SysAllocString(element);
    const BSTR verb = SysAllocString(action);
    EXPECT_EQ(door->Perform(name, verb, value.Raw(), &outcome), S_OK);
    SysFreeString(name);
    SysFreeString(verb);
    return outcome;
  }
};

}  // namespace brivane::component

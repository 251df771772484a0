// What keeps the library in memory, and that nothing does when its objects are gone.

#include <gtest/gtest.h>

#include "component/automation/ComPtr.h"
#include "component/idl/Interfaces.h"

namespace brivane::component {
namespace {

bool IsLoaded() { return GetModuleHandleW(L"BrivaneVrijeKolom.dll") != nullptr; }

HRESULT CanUnloadNow() {
  using Function = HRESULT(WINAPI*)();
  const auto function = reinterpret_cast<Function>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"BrivaneVrijeKolom.dll"), "DllCanUnloadNow")));
  return function ? function() : E_FAIL;
}

class LifetimeTest : public testing::Test {
 protected:
  LifetimeTest() { OleInitialize(nullptr); }
  ~LifetimeTest() override { OleUninitialize(); }

  static ComPtr<IUnknown> Create(const CLSID& id) {
    ComPtr<IUnknown> object;
    EXPECT_EQ(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(object.Put())), S_OK);
    return object;
  }
  static void FreeUnused() { CoFreeUnusedLibrariesEx(0, 0); }
};

TEST_F(LifetimeTest, EachClassKeepsTheLibraryAndLetsItGo) {
  for (const CLSID& id : {CLSID_VrijeKolom, CLSID_Toelichting, CLSID_frmScenario}) {
    ComPtr<IUnknown> object = Create(id);
    FreeUnused();
    ASSERT_TRUE(IsLoaded());
    EXPECT_EQ(CanUnloadNow(), S_FALSE);
    object.Reset();
    EXPECT_EQ(CanUnloadNow(), S_OK);
    FreeUnused();
    EXPECT_FALSE(IsLoaded());
  }
}

TEST_F(LifetimeTest, AnObjectThatDescribedItselfLetsGoToo) {
  {
    const auto object = Create(CLSID_VrijeKolom).As<IDispatch>();
    wchar_t text[] = L"BackColor";
    wchar_t* name = text;
    DISPID id = 0;
    EXPECT_EQ(object->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id), S_OK);
    EXPECT_EQ(id, DISPID_BACKCOLOR);
  }
  EXPECT_EQ(CanUnloadNow(), S_OK);
  FreeUnused();
  EXPECT_FALSE(IsLoaded());
}

}  // namespace
}  // namespace brivane::component

#include <brivane/toolkits/win32/window/WindowsApi.h>

#include <oleacc.h>

#include "tests/toolkits/win32/SurfaceTest.h"

/// What a screen reader hears, asked of the standard accessibility proxies of Windows.
namespace brivane::test {
namespace {

class Names : public SurfaceTest {
 protected:
  Names() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
  ~Names() override { CoUninitialize(); }

  [[nodiscard]] static std::string NameOf(HWND window) {
    IAccessible* object = nullptr;
    const HRESULT found = AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                                                     reinterpret_cast<void**>(&object));
    if (FAILED(found)) return "no object: " + std::to_string(found);
    VARIANT self{};
    self.vt = VT_I4;
    self.lVal = CHILDID_SELF;
    BSTR name = nullptr;
    object->get_accName(self, &name);
    object->Release();
    std::string text = name != nullptr ? win32::Narrow(name) : "no name";
    SysFreeString(name);
    return text;
  }
};

TEST_F(Names, ABoxIsCalledByTheTextThatStandsBeforeIt) {
  EXPECT_EQ(NameOf(WindowOf("txtNaam")), "Naam");
  EXPECT_EQ(NameOf(WindowOf("txtDatum")), "Datum");
  EXPECT_EQ(NameOf(WindowOf("txtTotaal")), "Totaal");
}

TEST_F(Names, ABoxIsCalledAsTheCodeNamedItLast) {
  Control("txtBedrag").Host().SetAccessibleName("Bedrag jaar 7");
  EXPECT_EQ(NameOf(WindowOf("txtBedrag")), "Bedrag jaar 7");
}

TEST_F(Names, TheTextBeforeEachListIsItsName) {
  for (const char* name : {"cboTermijn", "cboLeeg", "lvwLijst"}) {
    const HWND before = GetWindow(WindowOf(name), GW_HWNDPREV);
    wchar_t className[16] = {};
    GetClassNameW(before, className, 16);
    EXPECT_STREQ(className, L"Static") << name;
    EXPECT_EQ(win32::Narrow(win32::TextOf(before)), Control(name).Row().label) << name;
    RECT place{};
    GetClientRect(before, &place);
    EXPECT_EQ(place.right, 0) << name;
  }
}

TEST_F(Names, WhatIsAButtonOfWindowsIsCalledByItsText) {
  EXPECT_EQ(win32::Narrow(win32::TextOf(WindowOf("jnDiep"))), "Diep");
  EXPECT_EQ(win32::Narrow(win32::TextOf(WindowOf("hntDiep"))), "Help: Zo diep als het kan.");
  EXPECT_EQ(win32::Narrow(win32::TextOf(WindowOf("chkVinkje"))), "Vinkje");
  EXPECT_EQ(win32::Narrow(win32::TextOf(WindowOf("optSoort", 2))), "Twee");
}

}  // namespace
}  // namespace brivane::test

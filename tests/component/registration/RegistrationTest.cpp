// Where the keys go. The key of all users stands on one of the test's own, which can be taken the rights of.

#include "component/idl/Windows.h"

#include <gtest/gtest.h>
#include <sddl.h>

#include "component/automation/Module.h"
#include "component/registration/Keys.h"
#include "component/registration/Registration.h"

namespace brivane::component {
namespace {

constexpr const wchar_t* kPath = L"C:\\dir\\BrivaneVrijeKolom.dll";
constexpr const wchar_t* kPlace = L"Software\\BrivaneTest";
constexpr const wchar_t* kProgId = L"Software\\Classes\\BrivaneVrijeKolom.VrijeKolom";

bool Has(HKEY root, const std::wstring& key) {
  HKEY opened = nullptr;
  const bool there = RegOpenKeyExW(root, key.c_str(), 0, KEY_READ, &opened) == ERROR_SUCCESS;
  if (there) RegCloseKey(opened);
  return there;
}

class RegistrationTest : public testing::Test {
 protected:
  RegistrationTest() {
    module::Attach(GetModuleHandleW(nullptr));
    RegCreateKeyExW(HKEY_CURRENT_USER, kPlace, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &place_, nullptr);
    RegOverridePredefKey(HKEY_LOCAL_MACHINE, place_);
  }
  ~RegistrationTest() override {
    RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
    RegCloseKey(place_);
    RegDeleteTreeW(HKEY_CURRENT_USER, kPlace);
  }

  HKEY place_ = nullptr;
};

TEST_F(RegistrationTest, GoesToAllUsersWithTheRightsForIt) {
  EXPECT_EQ(Register(kPath), S_OK);
  EXPECT_TRUE(Has(place_, kProgId));
  EXPECT_FALSE(Has(HKEY_CURRENT_USER, kProgId));
  EXPECT_EQ(Unregister(), S_OK);
  EXPECT_FALSE(Has(place_, kProgId));
}

TEST_F(RegistrationTest, GoesToTheCurrentUserAloneWithoutTheRights) {
  const std::wstring first = L"Software\\Classes\\" + ValuesFor(kPath).front().key;
  const auto protect = [](HKEY key, const wchar_t* rights) {
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    ConvertStringSecurityDescriptorToSecurityDescriptorW(rights, SDDL_REVISION_1, &descriptor, nullptr);
    EXPECT_EQ(RegSetKeySecurity(key, DACL_SECURITY_INFORMATION, descriptor), ERROR_SUCCESS);
    LocalFree(descriptor);
  };
  HKEY key = nullptr;
  RegCreateKeyExW(place_, first.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr);
  protect(key, L"D:(D;;GA;;;WD)");

  EXPECT_EQ(Register(Scope::AllUsers, kPath), E_ACCESSDENIED);
  EXPECT_EQ(Register(kPath), S_OK);
  EXPECT_TRUE(Has(HKEY_CURRENT_USER, kProgId));
  EXPECT_FALSE(Has(place_, kProgId));

  protect(key, L"D:(A;;GA;;;WD)");
  RegCloseKey(key);
  EXPECT_EQ(Unregister(), S_OK);
  EXPECT_FALSE(Has(HKEY_CURRENT_USER, kProgId));
}

TEST_F(RegistrationTest, TheOtherMachinesTypeLibraryKeepsWhatTheyShare) {
  EXPECT_EQ(Register(Scope::AllUsers, kPath), S_OK);
  const std::wstring own = L"Software\\Classes\\" + PlatformKey();
  const std::wstring other = own.substr(0, own.find_last_of(L'\\')) + L"\\win32";
  HKEY key = nullptr;
  RegCreateKeyExW(place_, other.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr);
  RegCloseKey(key);
  EXPECT_EQ(Unregister(Scope::AllUsers), S_OK);
  EXPECT_FALSE(Has(place_, own));
  EXPECT_FALSE(Has(place_, kProgId));
  EXPECT_TRUE(Has(place_, other));
  EXPECT_TRUE(Has(place_, L"Software\\Classes\\Interface\\{BC77270D-3D67-481D-ABF4-3DC2F2366DB0}"));
  // When the other one goes, so does everything.
  RegDeleteTreeW(place_, other.c_str());
  EXPECT_EQ(Unregister(Scope::AllUsers), S_OK);
  EXPECT_FALSE(Has(place_, L"Software\\Classes\\" + TypeLibraryKey()));
  EXPECT_FALSE(Has(place_, L"Software\\Classes\\Interface\\{BC77270D-3D67-481D-ABF4-3DC2F2366DB0}"));
}

}  // namespace
}  // namespace brivane::component

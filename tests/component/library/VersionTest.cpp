// What the library says of itself where Windows shows a file's properties.

#include "component/idl/Windows.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brivane::component {
namespace {

class VersionTest : public testing::Test {
 protected:
  VersionTest() {
    DWORD ignored = 0;
    bytes_.resize(GetFileVersionInfoSizeW(kFile, &ignored));
    EXPECT_TRUE(GetFileVersionInfoW(kFile, 0, static_cast<DWORD>(bytes_.size()), bytes_.data()));
  }

  /// A text by its name; in the one language that there is, Dutch.
  [[nodiscard]] std::wstring Text(const std::wstring& name) {
    wchar_t* text = nullptr;
    UINT length = 0;
    const std::wstring place = L"\\StringFileInfo\\041304B0\\" + name;
    if (!VerQueryValueW(bytes_.data(), place.c_str(), reinterpret_cast<void**>(&text), &length)) return L"(none)";
    return text;
  }
  [[nodiscard]] const VS_FIXEDFILEINFO& Numbers() {
    void* numbers = nullptr;
    UINT length = 0;
    EXPECT_TRUE(VerQueryValueW(bytes_.data(), L"\\", &numbers, &length));
    return *static_cast<const VS_FIXEDFILEINFO*>(numbers);
  }

 private:
  static constexpr const wchar_t* kFile = L"BrivaneVrijeKolom.dll";
  std::vector<char> bytes_;
};

TEST_F(VersionTest, IsThatOfTheProject) {
  EXPECT_EQ(Text(L"FileVersion"), BRIVANE_VERSION);
  EXPECT_EQ(Text(L"ProductVersion"), BRIVANE_VERSION);
  const VS_FIXEDFILEINFO& numbers = Numbers();
  const std::wstring inNumbers = std::to_wstring(HIWORD(numbers.dwFileVersionMS)) + L'.' +
                                 std::to_wstring(LOWORD(numbers.dwFileVersionMS)) + L'.' +
                                 std::to_wstring(HIWORD(numbers.dwFileVersionLS));
  EXPECT_EQ(inNumbers, BRIVANE_VERSION);
  EXPECT_EQ(LOWORD(numbers.dwFileVersionLS), 0);
  EXPECT_EQ(numbers.dwProductVersionMS, numbers.dwFileVersionMS);
  EXPECT_EQ(numbers.dwProductVersionLS, numbers.dwFileVersionLS);
  EXPECT_EQ(numbers.dwFileType, static_cast<DWORD>(VFT_DLL));
}

TEST_F(VersionTest, NamesTheCompanyAndTheRights) {
  EXPECT_EQ(Text(L"CompanyName"), L"Brivane");
  EXPECT_EQ(Text(L"LegalCopyright"), L"Copyright 2026 the owners of BrivaneVrijeKolom. No licence has been chosen.");
  EXPECT_EQ(Text(L"ProductName"), L"Brivane vrije kolom");
  EXPECT_EQ(Text(L"OriginalFilename"), L"BrivaneVrijeKolom.dll");
}

}  // namespace
}  // namespace brivane::component

// What lies in the library that hosts register. What must not lie there is looked for in the library with the door in
// the same way, where it must be found.

#include "component/idl/Windows.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "TestDoor_idl.h"
#include "component/automation/ComPtr.h"
#include "component/idl/Interfaces.h"

namespace brivane::component {
namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAre;

std::string InLowerCase(std::string text) {
  for (char& character : text) character = static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
  return text;
}

/// A library that lies beside this program: its bytes, and what the system makes of it.
class LibraryFile {
 public:
  explicit LibraryFile(const wchar_t* name) : module_(LoadLibraryW(name)) {
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetModuleFileNameW(module_, path.data(), MAX_PATH));
    std::ifstream file(std::filesystem::path(path), std::ios::binary);
    bytes_.assign(std::istreambuf_iterator<char>(file), {});
    lower_ = InLowerCase(bytes_);
  }
  LibraryFile(const LibraryFile&) = delete;
  LibraryFile& operator=(const LibraryFile&) = delete;
  ~LibraryFile() { FreeLibrary(module_); }

  [[nodiscard]] std::size_t Size() const { return bytes_.size(); }
  /// In letters of one byte or of two, whatever their case.
  [[nodiscard]] bool Holds(const std::string& word) const {
    const std::string narrow = InLowerCase(word);
    std::string wide;
    for (const char character : narrow) wide += {character, '\0'};
    return lower_.find(narrow) != std::string::npos || lower_.find(wide) != std::string::npos;
  }
  [[nodiscard]] bool Holds(const GUID& id) const {
    return bytes_.find(std::string_view(reinterpret_cast<const char*>(&id), sizeof id)) != std::string::npos;
  }
  /// The numbers of the embedded type libraries.
  [[nodiscard]] std::vector<int> TypeLibraries() const {
    std::vector<int> numbers;
    EnumResourceNamesW(
        module_, L"TYPELIB",
        [](HMODULE, const wchar_t*, wchar_t* name, LONG_PTR to) -> BOOL {
          reinterpret_cast<std::vector<int>*>(to)->push_back(
              static_cast<int>(IS_INTRESOURCE(name) ? reinterpret_cast<ULONG_PTR>(name) : 0));
          return TRUE;
        },
        reinterpret_cast<LONG_PTR>(&numbers));
    return numbers;
  }
  [[nodiscard]] DWORD LinkTime() const { return Headers().FileHeader.TimeDateStamp; }
  [[nodiscard]] std::vector<std::string> Exports() const {
    const auto* const base = reinterpret_cast<const char*>(module_);
    const auto& place = Headers().OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT];
    const auto& directory = *reinterpret_cast<const IMAGE_EXPORT_DIRECTORY*>(base + place.VirtualAddress);
    // What is exported without a name would be more than there are names.
    EXPECT_EQ(directory.NumberOfFunctions, directory.NumberOfNames);
    const auto* const names = reinterpret_cast<const DWORD*>(base + directory.AddressOfNames);
    std::vector<std::string> exports;
    for (DWORD i = 0; i < directory.NumberOfNames; ++i) exports.emplace_back(base + names[i]);
    return exports;
  }
  [[nodiscard]] ComPtr<IClassFactory> Factory() const {
    using Function = HRESULT(WINAPI*)(REFCLSID, REFIID, void**);
    const auto get = reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module_, "DllGetClassObject")));
    ComPtr<IClassFactory> factory;
    EXPECT_EQ(get(CLSID_VrijeKolom, IID_PPV_ARGS(factory.Put())), S_OK);
    return factory;
  }

 private:
  [[nodiscard]] const IMAGE_NT_HEADERS& Headers() const {
    const auto* const base = reinterpret_cast<const char*>(module_);
    return *reinterpret_cast<const IMAGE_NT_HEADERS*>(base + reinterpret_cast<const IMAGE_DOS_HEADER*>(base)->e_lfanew);
  }

  HMODULE module_;
  std::string bytes_;
  std::string lower_;
};

class ShippedTest : public testing::Test {
 protected:
  ShippedTest() { OleInitialize(nullptr); }
  ~ShippedTest() override { OleUninitialize(); }

  static inline const LibraryFile shipped_{L"BrivaneVrijeKolom.dll"};
  static inline const LibraryFile withDoor_{L"BrivaneVrijeKolomTest.dll"};
};

TEST_F(ShippedTest, DescribesThePublicInterfacesAlone) {
  EXPECT_THAT(shipped_.TypeLibraries(), ElementsAre(1));
  EXPECT_THAT(withDoor_.TypeLibraries(), ElementsAre(1, 2));
}

TEST_F(ShippedTest, HoldsNoWordOfTheDoor) {
  for (const char* word : {"TestDoor", "DoorCompanion", "MakeProcedureTrace", "MakeDossierControle"}) {
    EXPECT_FALSE(shipped_.Holds(word)) << word;
    EXPECT_TRUE(withDoor_.Holds(word)) << word;
  }
  EXPECT_TRUE(shipped_.Holds("IVrijeKolom")) << "words of the public interfaces are found";
}

TEST_F(ShippedTest, HoldsNoIdentityOfTheDoor) {
  for (const GUID& id : {LIBID_BrivaneTestDoor, IID_ITestDoor, IID_ITestDoorHolder}) {
    EXPECT_FALSE(shipped_.Holds(id));
    EXPECT_TRUE(withDoor_.Holds(id));
  }
  EXPECT_TRUE(shipped_.Holds(IID_IVrijeKolom)) << "identities of the public interfaces are found";
}

TEST_F(ShippedTest, ItsObjectsAndClassesHaveNoDoor) {
  const auto answers = [](const LibraryFile& library) {
    const ComPtr<IClassFactory> factory = library.Factory();
    ComPtr<IUnknown> editor;
    EXPECT_EQ(factory->CreateInstance(nullptr, IID_PPV_ARGS(editor.Put())), S_OK);
    ComPtr<ITestDoorHolder> ofClass;
    ComPtr<ITestDoorHolder> ofObject;
    return std::vector<HRESULT>{factory->QueryInterface(IID_ITestDoorHolder, reinterpret_cast<void**>(ofClass.Put())),
                                editor->QueryInterface(IID_ITestDoorHolder, reinterpret_cast<void**>(ofObject.Put()))};
  };
  EXPECT_THAT(answers(shipped_), ElementsAre(E_NOINTERFACE, E_NOINTERFACE));
  EXPECT_THAT(answers(withDoor_), ElementsAre(S_OK, S_OK));
}

TEST_F(ShippedTest, ExportsWhatTheSystemCallsAlone) {
  EXPECT_THAT(shipped_.Exports(), UnorderedElementsAre("DllCanUnloadNow", "DllGetClassObject", "DllInstall",
                                                       "DllRegisterServer", "DllUnregisterServer"));
}

TEST_F(ShippedTest, DoesNotTellWhenItWasLinked) { EXPECT_EQ(shipped_.LinkTime(), 0U); }

TEST_F(ShippedTest, IsSmallerThanTheLibraryWithTheDoor) { EXPECT_LT(shipped_.Size(), withDoor_.Size()); }

}  // namespace
}  // namespace brivane::component

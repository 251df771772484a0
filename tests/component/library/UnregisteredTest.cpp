// The library's classes where nothing is registered: an activation context of the manifest that lies beside it.

#include "component/idl/Windows.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>

#include "component/automation/ComPtr.h"
#include "component/idl/Interfaces.h"
#include "examples/windows/unregistered/ActivationContext.h"

namespace brivane::component {
namespace {

using example::ActivationContext;
using example::BesideThisProgram;

struct NamedClass {
  const wchar_t* progId;
  CLSID id;
  const wchar_t* interfaceName;
};
const NamedClass kClasses[]{{L"BrivaneVrijeKolom.VrijeKolom", CLSID_VrijeKolom, L"IVrijeKolom"},
                            {L"BrivaneVrijeKolom.VrijeKolom.1", CLSID_VrijeKolom, L"IVrijeKolom"},
                            {L"BrivaneVrijeKolom.Toelichting", CLSID_Toelichting, L"IToelichting"},
                            {L"BrivaneVrijeKolom.Toelichting.1", CLSID_Toelichting, L"IToelichting"},
                            {L"BrivaneVrijeKolom.frmScenario", CLSID_frmScenario, L"IfrmScenario"},
                            {L"BrivaneVrijeKolom.frmScenario.1", CLSID_frmScenario, L"IfrmScenario"}};

std::wstring InterfaceOf(const ComPtr<IDispatch>& object) {
  ComPtr<ITypeInfo> description;
  BSTR name = nullptr;
  if (!object || FAILED(object->GetTypeInfo(0, LOCALE_USER_DEFAULT, description.Put()))) return {};
  description->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr);
  const std::wstring text = name ? name : L"";
  ::SysFreeString(name);
  return text;
}

HRESULT Create(const CLSID& id, ComPtr<IDispatch>& object) {
  return CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(object.Put()));
}

class UnregisteredTest : public testing::Test {
 protected:
  UnregisteredTest() {
    OleInitialize(nullptr);
    EXPECT_TRUE(context_.IsValid());
  }
  ~UnregisteredTest() override {
    // Wine registers a type library of a context when it carries a call to another apartment.
    UnRegisterTypeLib(LIBID_BrivaneVrijeKolom, 1, 0, 0, sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32);
    OleUninitialize();
  }

  const ActivationContext context_{BesideThisProgram(L"Brivane.VrijeKolom.manifest")};
};

TEST_F(UnregisteredTest, NothingIsKnownWithoutTheContext) {
  for (const NamedClass& entry : kClasses) {
    CLSID id{};
    EXPECT_EQ(CLSIDFromProgID(entry.progId, &id), CO_E_CLASSSTRING) << entry.progId;
    ComPtr<IDispatch> object;
    EXPECT_EQ(Create(entry.id, object), REGDB_E_CLASSNOTREG) << entry.progId;
  }
}

TEST_F(UnregisteredTest, EveryClassIsFoundByBothItsNamesAndCreated) {
  const ActivationContext::Active known(context_);
  for (const NamedClass& entry : kClasses) {
    // A name stands for an identity that the context makes, and that its classes are created by just as well.
    CLSID named{};
    EXPECT_EQ(CLSIDFromProgID(entry.progId, &named), S_OK) << entry.progId;
    for (const CLSID& id : {entry.id, named}) {
      ComPtr<IDispatch> object;
      EXPECT_EQ(Create(id, object), S_OK) << entry.progId;
      EXPECT_EQ(InterfaceOf(object), entry.interfaceName) << entry.progId;
    }
  }
}

TEST_F(UnregisteredTest, AnObjectWorksOnWithoutTheContext) {
  ComPtr<IDispatch> object;
  {
    const ActivationContext::Active known(context_);
    ASSERT_EQ(Create(CLSID_VrijeKolom, object), S_OK);
  }
  const auto editor = object.As<IVrijeKolom>();
  EXPECT_EQ(editor->put_BackColor(0x00112233), S_OK);
  OLE_COLOR color = 0;
  EXPECT_EQ(editor->get_BackColor(&color), S_OK);
  EXPECT_EQ(color, 0x00112233U);
  // What it needs of its own description lies in the library.
  EXPECT_EQ(InterfaceOf(object), L"IVrijeKolom");
}

TEST_F(UnregisteredTest, TheTypeLibraryIsFoundInTheContextAlone) {
  ComPtr<ITypeLib> library;
  EXPECT_EQ(LoadRegTypeLib(LIBID_BrivaneVrijeKolom, 1, 0, 0, library.Put()), TYPE_E_LIBNOTREGISTERED);
  const ActivationContext::Active known(context_);
  ASSERT_EQ(LoadRegTypeLib(LIBID_BrivaneVrijeKolom, 1, 0, 0, library.Put()), S_OK);
  ComPtr<ITypeInfo> editor;
  EXPECT_EQ(library->GetTypeInfoOfGuid(IID_IVrijeKolom, editor.Put()), S_OK);
}

TEST_F(UnregisteredTest, AnotherApartmentIsHandedTheEditor) {
  const ActivationContext::Active known(context_);
  ComPtr<IDispatch> object;
  ASSERT_EQ(Create(CLSID_VrijeKolom, object), S_OK);
  ASSERT_EQ(object.As<IVrijeKolom>()->put_BackColor(0x00445566), S_OK);
  ComPtr<IStream> stream;
  ASSERT_EQ(CoMarshalInterThreadInterfaceInStream(IID_IVrijeKolom, object.Get(), stream.Put()), S_OK);

  OLE_COLOR color = 0;
  HRESULT handed = E_FAIL;
  HRESULT asked = E_FAIL;
  const DWORD here = GetCurrentThreadId();
  std::thread other([&] {
    CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    {
      const ActivationContext::Active knownThere(context_);
      ComPtr<IVrijeKolom> editor;
      IStream* const taken = stream.Get();
      taken->AddRef();
      handed = CoGetInterfaceAndReleaseStream(taken, IID_PPV_ARGS(editor.Put()));
      if (SUCCEEDED(handed)) asked = editor->get_BackColor(&color);
    }
    CoUninitialize();
    PostThreadMessageW(here, WM_APP, 0, 0);
  });
  for (MSG message{}; GetMessageW(&message, nullptr, 0, 0) > 0 && message.message != WM_APP;)
    DispatchMessageW(&message);
  other.join();
  EXPECT_EQ(handed, S_OK);
  EXPECT_EQ(asked, S_OK);
  EXPECT_EQ(color, 0x00445566U);
}

TEST_F(UnregisteredTest, AManifestThatIsNotThereKnowsNothing) {
  const ActivationContext none(BesideThisProgram(L"None.manifest"));
  EXPECT_FALSE(none.IsValid());
  const ActivationContext::Active active(none);
  CLSID id{};
  EXPECT_EQ(CLSIDFromProgID(L"BrivaneVrijeKolom.VrijeKolom", &id), CO_E_CLASSSTRING);
}

}  // namespace
}  // namespace brivane::component

// The host's tracer and check, made by the names that the host registered or set.

#include <string>

#include "component/automation/LateBound.h"
#include "tests/component/library/ComponentTest.h"

namespace brivane::component {
namespace {

constexpr CLSID kTracer{0x2c1f7a52, 0x6a5e, 0x4b0e, {0x9a, 0x41, 0x77, 0x0d, 0x52, 0x11, 0x5b, 0x01}};
constexpr CLSID kCheck{0x2c1f7a52, 0x6a5e, 0x4b0e, {0x9a, 0x41, 0x77, 0x0d, 0x52, 0x11, 0x5b, 0x02}};

/// Makes fake objects of a host class, each as it is prepared.
class HostClass final : public IClassFactory {
 public:
  HostClass(const CLSID& id, const wchar_t* idText, const wchar_t* progId, std::function<void(FakeObject&)> prepare)
      : progId_(std::wstring(L"Software\\Classes\\") + progId), prepare_(std::move(prepare)) {
    Write(progId_ + L"\\CLSID", nullptr, idText);
    EXPECT_EQ(CoRegisterClassObject(id, this, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &cookie_), S_OK);
  }
  ~HostClass() {
    CoRevokeClassObject(cookie_);
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, progId_.c_str());
  }

  std::vector<ComPtr<FakeObject>> made;

  static void Write(const std::wstring& key, const wchar_t* name, const std::wstring& value) {
    RegSetKeyValueW(HKEY_LOCAL_MACHINE, key.c_str(), name, REG_SZ, value.c_str(),
                    static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)));
  }

  STDMETHODIMP QueryInterface(REFIID iid, void** out) override {
    *out = iid == IID_IUnknown || iid == IID_IClassFactory ? this : nullptr;
    return *out ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return 1; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }
  STDMETHODIMP CreateInstance(IUnknown*, REFIID iid, void** out) override {
    made.push_back(FakeObject::Make());
    prepare_(*made.back().Get());
    return made.back()->QueryInterface(iid, out);
  }
  STDMETHODIMP LockServer(BOOL) override { return S_OK; }

 private:
  std::wstring progId_;
  std::function<void(FakeObject&)> prepare_;
  DWORD cookie_ = 0;
};

class HostClassesTest : public ComponentTest {
 protected:
  static void PrepareTracer(FakeObject& tracer) {
    for (const wchar_t* name : {L"EnterProcedure", L"LeaveProcedure", L"ErrorInProcedure"})
      tracer.Answers(name, Variant());
  }
  /// The procedures that a tracer was told of, those inside others after them.
  static std::string Entered(const FakeObject& tracer) {
    std::string entered;
    for (const Access& access : tracer.accesses)
      if (access.member == L"EnterProcedure") entered += As<std::string>(access.arguments.at(0)) + ";";
    return entered;
  }
  static void SetTracer(const ComPtr<IVrijeKolom>& editor, const wchar_t* progId) {
    const BSTR name = SysAllocString(progId);
    EXPECT_EQ(editor->put_ProcedureTraceKlasse(name), S_OK);
    SysFreeString(name);
  }

  HostClass tracers_{kTracer, L"{2C1F7A52-6A5E-4B0E-9A41-770D52115B01}", L"BrivaneTest.Tracer", PrepareTracer};
  HostClass checks_{kCheck, L"{2C1F7A52-6A5E-4B0E-9A41-770D52115B02}", L"BrivaneTest.Check",
                    [](FakeObject& check) { check.Answers(L"Controleer", Variant()); }};
};

TEST_F(HostClassesTest, TheTracerThatTheHostNamesIsMadeOnceForEachControl) {
  FakeHost host;
  const auto editor = Create<IVrijeKolom>(CLSID_VrijeKolom);
  SetTracer(editor, L"BrivaneTest.Tracer");
  EXPECT_TRUE(tracers_.made.empty()) << "it is made when it is used first";
  editor->SetApplication(host.application.Get(), 0, 1);
  editor->SetApplication(host.application.Get(), 0, 1);
  ASSERT_EQ(tracers_.made.size(), 2U) << "of the editor, and of the explanation in it";
  const std::string binding = "SetApplication;Fill_Controls;Check_FraFiscaal;Fill_fraAlgemeen;Fill_Product;";
  EXPECT_EQ(Entered(*tracers_.made[0].Get()), binding + binding);
}

TEST_F(HostClassesTest, ANameThatIsTakenAwayLeavesTheLibrarysOwn) {
  FakeHost host;
  const auto editor = Create<IVrijeKolom>(CLSID_VrijeKolom);
  SetTracer(editor, L"BrivaneTest.Tracer");
  editor->SetApplication(host.application.Get(), 0, 1);
  const std::size_t told = tracers_.made.at(0)->accesses.size();
  SetTracer(editor, L"");
  editor->SetApplication(host.application.Get(), 0, 1);
  EXPECT_EQ(tracers_.made.at(0)->accesses.size(), told);
  EXPECT_EQ(host.reports, 0);
}

TEST_F(HostClassesTest, TheCheckThatTheHostNamesIsCalledByACompleteValidation) {
  FakeHost host;
  const auto editor = Create<IVrijeKolom>(CLSID_VrijeKolom);
  const BSTR name = SysAllocString(L"BrivaneTest.Check");
  EXPECT_EQ(editor->put_DossierControleKlasse(name), S_OK);
  SysFreeString(name);
  editor->SetApplication(host.application.Get(), 0, 1);
  EXPECT_EQ(Perform(DoorOf(editor), L"TxtDtAanvang", L"enter", Variant(host::Date(47939))), 0);
  Variant cancel(false);
  EXPECT_EQ(editor->Validation(&cancel.Raw(), 0), S_OK);
  EXPECT_FALSE(As<bool>(cancel));
  ASSERT_EQ(checks_.made.size(), 1U);
  ASSERT_EQ(checks_.made[0]->accesses.size(), 1U);
  EXPECT_EQ(As<ComPtr<IDispatch>>(checks_.made[0]->accesses[0].arguments.at(0)).Get(), host.application.Get());
}

TEST_F(HostClassesTest, ANameThatIsRegisteredServesTheCreationToo) {
  const std::wstring key = L"Software\\Classes\\CLSID\\{9E623786-EB13-493A-A455-FD19036B8E3E}\\HostClasses";
  HostClass::Write(key, L"ProcedureTrace", L"BrivaneTest.Tracer");
  {
    const auto editor = Create<IVrijeKolom>(CLSID_VrijeKolom);
    ASSERT_EQ(tracers_.made.size(), 1U);
    EXPECT_EQ(Entered(*tracers_.made[0].Get()), "Fill_Listview;");
    BSTR name = nullptr;
    EXPECT_EQ(editor->get_ProcedureTraceKlasse(&name), S_OK);
    EXPECT_EQ(FromBstr(name), "BrivaneTest.Tracer");
    SysFreeString(name);
  }
  // A class that cannot be made fails the creation, which leaves nothing behind.
  HostClass::Write(key, L"ProcedureTrace", L"BrivaneTest.DoesNotExist");
  ComPtr<IVrijeKolom> none;
  EXPECT_EQ(CoCreateInstance(CLSID_VrijeKolom, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(none.Put())),
            static_cast<HRESULT>(0x800A0000 + 429));
  EXPECT_FALSE(none);
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, key.c_str());
}

}  // namespace
}  // namespace brivane::component

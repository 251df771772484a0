// The interfaces as a compiled host sees them.

#include <string>
#include <tuple>
#include <vector>

#include "component/automation/LateBound.h"
#include "tests/component/library/ComponentTest.h"

namespace brivane::component {
namespace {

using InterfacesTest = ComponentTest;
using Members = std::vector<std::tuple<std::string, DISPID, INVOKEKIND>>;

/// The members of an interface in their order, those of IDispatch left out.
Members MembersOf(ITypeInfo& info) {
  Members members;
  TYPEATTR* attributes = nullptr;
  info.GetTypeAttr(&attributes);
  for (UINT i = 0; i < attributes->cFuncs; ++i) {
    FUNCDESC* function = nullptr;
    info.GetFuncDesc(i, &function);
    BSTR name = nullptr;
    UINT count = 0;
    info.GetNames(function->memid, &name, 1, &count);
    if (!(function->wFuncFlags & FUNCFLAG_FRESTRICTED))
      members.emplace_back(FromBstr(name), function->memid, function->invkind);
    SysFreeString(name);
    info.ReleaseFuncDesc(function);
  }
  info.ReleaseTypeAttr(attributes);
  return members;
}

Members RegisteredMembers(const IID& iid) {
  ComPtr<ITypeLib> library;
  ComPtr<ITypeInfo> info;
  if (FAILED(LoadRegTypeLib(LIBID_BrivaneVrijeKolom, 1, 0, LOCALE_NEUTRAL, library.Put()))) return {};
  if (FAILED(library->GetTypeInfoOfGuid(iid, info.Put()))) return {};
  return MembersOf(*info.Get());
}

TEST_F(InterfacesTest, TheEditorHasItsMembersInTheirOrder) {
  EXPECT_EQ(RegisteredMembers(IID_IVrijeKolom), (Members{{"SetApplication", 1, INVOKE_FUNC},
                                                         {"Validation", 2, INVOKE_FUNC},
                                                         {"BackColor", -501, INVOKE_PROPERTYGET},
                                                         {"BackColor", -501, INVOKE_PROPERTYPUT},
                                                         {"BeeindigenZichtbaar", 3, INVOKE_PROPERTYGET},
                                                         {"BeeindigenZichtbaar", 3, INVOKE_PROPERTYPUT},
                                                         {"Toelichting", 4, INVOKE_PROPERTYGET},
                                                         {"ProcedureTraceKlasse", 5, INVOKE_PROPERTYGET},
                                                         {"ProcedureTraceKlasse", 5, INVOKE_PROPERTYPUT},
                                                         {"DossierControleKlasse", 6, INVOKE_PROPERTYGET},
                                                         {"DossierControleKlasse", 6, INVOKE_PROPERTYPUT}}));
}

TEST_F(InterfacesTest, TheExplanationHasItsMembersInTheirOrder) {
  EXPECT_EQ(RegisteredMembers(IID_IToelichting), (Members{{"SetApplication", 1, INVOKE_FUNC},
                                                          {"Validation", 2, INVOKE_FUNC},
                                                          {"BackColor", -501, INVOKE_PROPERTYGET},
                                                          {"BackColor", -501, INVOKE_PROPERTYPUT},
                                                          {"ProcedureTraceKlasse", 3, INVOKE_PROPERTYGET},
                                                          {"ProcedureTraceKlasse", 3, INVOKE_PROPERTYPUT}}));
}

TEST_F(InterfacesTest, TheFormHasItsMembersInTheirOrder) {
  EXPECT_EQ(RegisteredMembers(IID_IfrmScenario), (Members{{"Invoeren", 1, INVOKE_FUNC},
                                                          {"DisableJaar", 2, INVOKE_PROPERTYPUT},
                                                          {"SoortScenario", 3, INVOKE_PROPERTYGET},
                                                          {"SoortScenario", 3, INVOKE_PROPERTYPUT},
                                                          {"BackColor", -501, INVOKE_PROPERTYGET},
                                                          {"BackColor", -501, INVOKE_PROPERTYPUT},
                                                          {"Tonen", 4, INVOKE_FUNC}}));
}

TEST_F(InterfacesTest, TheEventsAreInTheirOrder) {
  EXPECT_EQ(RegisteredMembers(DIID_DVrijeKolomEvents),
            (Members{{"RefreshTopDisplay", 1, INVOKE_FUNC}, {"HeightChanged", 2, INVOKE_FUNC}}));
  EXPECT_EQ(RegisteredMembers(DIID_DToelichtingEvents), (Members{{"Changed", 1, INVOKE_FUNC}}));
}

TEST_F(InterfacesTest, EachClassTellsItsClassAndItsEvents) {
  const auto editor = Create<IProvideClassInfo2>(CLSID_VrijeKolom);
  ComPtr<ITypeInfo> info;
  TYPEATTR* attributes = nullptr;
  ASSERT_EQ(editor->GetClassInfo(info.Put()), S_OK);
  info->GetTypeAttr(&attributes);
  EXPECT_EQ(attributes->guid, CLSID_VrijeKolom);
  info->ReleaseTypeAttr(attributes);
  GUID events{};
  EXPECT_EQ(editor->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events), S_OK);
  EXPECT_EQ(events, DIID_DVrijeKolomEvents);

  EXPECT_EQ(Create<IProvideClassInfo2>(CLSID_Toelichting)->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events), S_OK);
  EXPECT_EQ(events, DIID_DToelichtingEvents);
  EXPECT_TRUE(FAILED(Create<IProvideClassInfo2>(CLSID_frmScenario)->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events)));
}

TEST_F(InterfacesTest, AClassThatTheLibraryDoesNotHaveIsRefused) {
  ComPtr<IClassFactory> factory;
  ASSERT_EQ(CoGetClassObject(CLSID_VrijeKolom, CLSCTX_INPROC_SERVER, nullptr, IID_PPV_ARGS(factory.Put())), S_OK);
  using Function = HRESULT(WINAPI*)(REFCLSID, REFIID, void**);
  const auto get = reinterpret_cast<Function>(reinterpret_cast<void*>(
      GetProcAddress(GetModuleHandleW(L"BrivaneVrijeKolom.dll"), "DllGetClassObject")));
  void* out = factory.Get();
  EXPECT_EQ(get(CLSID_StdGlobalInterfaceTable, IID_IClassFactory, &out), CLASS_E_CLASSNOTAVAILABLE);
  EXPECT_EQ(out, nullptr);
}

TEST_F(InterfacesTest, AnErrorRecordIsLeftForACompiledHost) {
  const auto form = Create<IfrmScenario>(CLSID_frmScenario);
  EXPECT_EQ(form.As<ISupportErrorInfo>()->InterfaceSupportsErrorInfo(IID_IfrmScenario), S_OK);
  EXPECT_EQ(form.As<ISupportErrorInfo>()->InterfaceSupportsErrorInfo(IID_IVrijeKolom), S_FALSE);
  EXPECT_EQ(form->put_DisableJaar(51, VARIANT_TRUE), static_cast<HRESULT>(0x800A0009));
  ComPtr<IErrorInfo> record;
  ASSERT_EQ(GetErrorInfo(0, record.Put()), S_OK);
  BSTR text = nullptr;
  record->GetDescription(&text);
  EXPECT_EQ(FromBstr(text), "Subscript out of range");
  SysFreeString(text);
}

TEST_F(InterfacesTest, AFailureOfTheHostReachesItsReportWhole) {
  FakeHost host;
  std::string report;
  host.application->members[L"ReportError"] = [&](const std::vector<Variant>& arguments) {
    LateBound trace(As<ComPtr<IDispatch>>(arguments.at(0)));
    for (const wchar_t* name : {L"ObjectName", L"ObjectDescription", L"Caption", L"Message", L"ErrorNumber",
                                L"ErrorDescription", L"ErrorSource"})
      report += As<std::string>(trace.Get(name)) + "|";
    return Variant();
  };
  const auto editor = Create<IVrijeKolom>(CLSID_VrijeKolom);
  ASSERT_EQ(editor->SetApplication(host.application.Get(), 0, 1), S_OK);
  host.kolom->failure = [](EXCEPINFO& info) {
    info.scode = static_cast<SCODE>(0x800A0000 + 3021);
    info.bstrDescription = SysAllocString(L"De regel is vergrendeld");
    info.bstrSource = SysAllocString(L"Kwandero.Opslag");
    return DISP_E_EXCEPTION;
  };
  EXPECT_EQ(Perform(DoorOf(editor), L"TxtOm", L"enter", Variant("x")), 0);
  EXPECT_EQ(report,
            "VrijeKolom|Vrije kolom|Kwandero|Er is een fout opgetreden.|3021|De regel is vergrendeld|Kwandero.Opslag|");
}

TEST_F(InterfacesTest, CancelComesBackInWhateverWayItIsReferredTo) {
  FakeHost host;
  host.dossier->Answers(L"VerwijderUitVoorstel", Variant());
  const auto editor = Create<IVrijeKolom>(CLSID_VrijeKolom);
  editor->SetApplication(host.application.Get(), 0, 1);
  const auto door = DoorOf(editor);
  const auto answerer = FakeObject::Make();
  answerer->Answers(L"Message", Variant());
  door->put_Callback(answerer.Get());

  VARIANT_BOOL typed = VARIANT_FALSE;
  VARIANT reference{};
  reference.vt = VT_BYREF | VT_BOOL;
  reference.pboolVal = &typed;
  EXPECT_EQ(editor->Validation(&reference, 1), S_OK);
  EXPECT_EQ(typed, VARIANT_TRUE);

  Variant loose(std::int16_t{0});
  reference.vt = VT_BYREF | VT_VARIANT;
  reference.pvarVal = &loose.Raw();
  EXPECT_EQ(editor->Validation(&reference, 1), S_OK);
  EXPECT_EQ(loose.Type(), VT_BOOL);
  EXPECT_TRUE(As<bool>(loose));

  Variant untouched(std::int16_t{0});
  EXPECT_EQ(editor->Validation(&untouched.Raw(), 2), S_OK);
  EXPECT_EQ(untouched.Type(), VT_I2) << "a check that passes leaves its argument alone";
  EXPECT_EQ(answerer->accesses.size(), 2U);
}

TEST_F(InterfacesTest, AnObjectCanBePartOfAnother) {
  class Outer final : public IUnknown {
   public:
    ComPtr<IUnknown> inner;
    int references = 1;
    STDMETHODIMP QueryInterface(REFIID iid, void** out) override {
      if (iid == IID_IUnknown) {
        *out = this;
        AddRef();
        return S_OK;
      }
      return inner->QueryInterface(iid, out);
    }
    STDMETHODIMP_(ULONG) AddRef() override { return static_cast<ULONG>(++references); }
    STDMETHODIMP_(ULONG) Release() override { return static_cast<ULONG>(--references); }
  } outer;
  ComPtr<IVrijeKolom> refused;
  EXPECT_EQ(CoCreateInstance(CLSID_VrijeKolom, &outer, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(refused.Put())),
            CLASS_E_NOAGGREGATION);
  ASSERT_EQ(CoCreateInstance(CLSID_VrijeKolom, &outer, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(outer.inner.Put())), S_OK);
  {
    const auto editor = ComPtr<IUnknown>(&outer).As<IVrijeKolom>();
    EXPECT_EQ(editor.As<IUnknown>().Get(), &outer);
    EXPECT_EQ(editor.As<IConnectionPointContainer>().As<IUnknown>().Get(), &outer);
    EXPECT_GT(outer.references, 1);
  }
  EXPECT_EQ(outer.references, 1);
  outer.inner.Reset();
}

TEST_F(InterfacesTest, ListenersAreFoundCountedAndLetGo) {
  const auto editor = Create<IVrijeKolom>(CLSID_VrijeKolom);
  const auto container = editor.As<IConnectionPointContainer>();
  ComPtr<IConnectionPoint> point;
  EXPECT_EQ(container->FindConnectionPoint(DIID_DToelichtingEvents, point.Put()), CONNECT_E_NOCONNECTION);
  ASSERT_EQ(container->FindConnectionPoint(DIID_DVrijeKolomEvents, point.Put()), S_OK);
  IID iid{};
  EXPECT_EQ(point->GetConnectionInterface(&iid), S_OK);
  EXPECT_EQ(iid, DIID_DVrijeKolomEvents);

  const int alive = FakeObject::alive;
  DWORD first = 0;
  DWORD second = 0;
  EXPECT_EQ(point->Advise(FakeObject::Make().Get(), &first), S_OK);
  EXPECT_EQ(point->Advise(FakeObject::Make().Get(), &second), S_OK);
  EXPECT_NE(first, second);
  ComPtr<IEnumConnections> walk;
  ASSERT_EQ(point->EnumConnections(walk.Put()), S_OK);
  CONNECTDATA data[3]{};
  ULONG fetched = 0;
  EXPECT_EQ(walk->Next(3, data, &fetched), S_FALSE);
  EXPECT_EQ(fetched, 2U);
  for (ULONG i = 0; i < fetched; ++i) data[i].pUnk->Release();
  walk.Reset();
  EXPECT_EQ(point->Unadvise(first), S_OK);
  EXPECT_EQ(point->Unadvise(first), CONNECT_E_NOCONNECTION);
  EXPECT_EQ(FakeObject::alive, alive + 1);
  EXPECT_EQ(point->Unadvise(second), S_OK);
  EXPECT_EQ(FakeObject::alive, alive);

  ComPtr<IEnumConnectionPoints> points;
  ASSERT_EQ(container->EnumConnectionPoints(points.Put()), S_OK);
  ComPtr<IConnectionPoint> one;
  EXPECT_EQ(points->Next(1, one.Put(), nullptr), S_OK);
  EXPECT_EQ(one.Get(), point.Get());
}

TEST_F(InterfacesTest, AListenerThatFailsDisturbsNobody) {
  FakeHost host;
  const auto editor = Create<IVrijeKolom>(CLSID_VrijeKolom);
  ComPtr<IConnectionPoint> point;
  editor.As<IConnectionPointContainer>()->FindConnectionPoint(DIID_DVrijeKolomEvents, point.Put());
  const auto failing = FakeObject::Make();
  int told = 0;
  failing->raw = [&](DISPPARAMS&) { ++told; };
  failing->failure = [](EXCEPINFO&) { return E_FAIL; };
  DWORD cookie = 0;
  point->Advise(failing.Get(), &cookie);
  EXPECT_EQ(editor->SetApplication(host.application.Get(), 0, 1), S_OK);
  EXPECT_EQ(told, 1);
  EXPECT_EQ(host.reports, 0);
}

TEST_F(InterfacesTest, TheHostsClassesAreMadeByTheirNames) {
  FakeHost host;
  host.application->members[L"ReportError"] = [](const auto&) { return Variant(); };
  const auto editor = Create<IVrijeKolom>(CLSID_VrijeKolom);
  BSTR name = SysAllocString(L"Brivane.BestaatNiet");
  EXPECT_EQ(editor->put_ProcedureTraceKlasse(name), S_OK);
  SysFreeString(name);
  EXPECT_EQ(editor->get_ProcedureTraceKlasse(&name), S_OK);
  EXPECT_EQ(FromBstr(name), "Brivane.BestaatNiet");
  SysFreeString(name);
  // A tracer that cannot be made fails the procedure that needs it.
  EXPECT_EQ(editor->SetApplication(host.application.Get(), 0, 1), static_cast<HRESULT>(0x800A0000 + 429));
  EXPECT_EQ(editor->put_ProcedureTraceKlasse(nullptr), S_OK);
  EXPECT_EQ(editor->SetApplication(host.application.Get(), 0, 1), S_OK);
}

}  // namespace
}  // namespace brivane::component

// The interfaces as a compiled host sees them.

#include <array>
#include <string>
#include <vector>

#include "component/automation/LateBound.h"
#include "tests/component/library/ComponentTest.h"

namespace brivane::component {
namespace {

using InterfacesTest = ComponentTest;
using Texts = std::vector<std::string>;

std::string NameOf(ITypeInfo& info, MEMBERID member) {
  BSTR name = nullptr;
  info.GetDocumentation(member, &name, nullptr, nullptr, nullptr);
  std::string text = FromBstr(name);
  SysFreeString(name);
  return text;
}

std::string TypeOf(ITypeInfo& info, const TYPEDESC& type) {
  switch (type.vt) {
    case VT_VOID: return "void";
    case VT_HRESULT: return "HRESULT";
    case VT_I2: return "short";
    case VT_I4: return "long";
    case VT_R8: return "double";
    case VT_BOOL: return "VARIANT_BOOL";
    case VT_BSTR: return "BSTR";
    case VT_VARIANT: return "VARIANT";
    case VT_DISPATCH: return "IDispatch*";
    case VT_PTR: return TypeOf(info, *type.lptdesc) + "*";
    case VT_USERDEFINED: {
      ComPtr<ITypeInfo> meant;
      info.GetRefTypeInfo(type.hreftype, meant.Put());
      return NameOf(*meant.Get(), MEMBERID_NIL);
    }
    default: return "type " + std::to_string(type.vt);
  }
}

std::string FlagsOf(const PARAMDESC& parameter) {
  std::string flags;
  const auto add = [&](USHORT flag, const std::string& word) {
    if (parameter.wParamFlags & flag) flags += (flags.empty() ? "" : " ") + word;
  };
  add(PARAMFLAG_FIN, "in");
  add(PARAMFLAG_FOUT, "out");
  add(PARAMFLAG_FRETVAL, "retval");
  add(PARAMFLAG_FOPT, "optional");
  if (parameter.wParamFlags & PARAMFLAG_FHASDEFAULT)
    add(PARAMFLAG_FHASDEFAULT, "= " + std::to_string(As<std::int32_t>(parameter.pparamdescex->varDefaultValue)));
  return flags;
}

/// A member as its declaration reads: "1 Name([in] short Len_Id)", with its identity and the way it is called.
std::string Declaration(ITypeInfo& info, const FUNCDESC& function) {
  std::array<BSTR, 16> names{};
  UINT count = 0;
  info.GetNames(function.memid, names.data(), static_cast<UINT>(names.size()), &count);
  std::string text = std::to_string(function.memid) + " ";
  if (function.invkind == INVOKE_PROPERTYGET) text += "get ";
  if (function.invkind == INVOKE_PROPERTYPUT) text += "put ";
  text += FromBstr(names[0]) + "(";
  for (SHORT i = 0; i < function.cParams; ++i) {
    const ELEMDESC& parameter = function.lprgelemdescParam[i];
    text += (i ? ", [" : "[") + FlagsOf(parameter.paramdesc) + "] " + TypeOf(info, parameter.tdesc);
  }
  for (const BSTR name : names) SysFreeString(name);
  return text + ")";
}

/// The members of an interface in their order. Those of a dual interface are its methods in memory, one behind the
/// other after the seven of IDispatch.
Texts Declarations(const IID& iid) {
  ComPtr<ITypeLib> library;
  ComPtr<ITypeInfo> info;
  if (FAILED(LoadRegTypeLib(LIBID_BrivaneVrijeKolom, 1, 0, LOCALE_NEUTRAL, library.Put()))) return {};
  if (FAILED(library->GetTypeInfoOfGuid(iid, info.Put()))) return {};
  HREFTYPE methods = 0;
  const bool isDual = info->GetRefTypeOfImplType(static_cast<UINT>(-1), &methods) == S_OK;
  if (isDual) {
    ComPtr<ITypeInfo> table;
    info->GetRefTypeInfo(methods, table.Put());
    info = table;
  }
  TYPEATTR* attributes = nullptr;
  info->GetTypeAttr(&attributes);
  Texts texts;
  for (UINT i = 0; i < attributes->cFuncs; ++i) {
    FUNCDESC* function = nullptr;
    info->GetFuncDesc(i, &function);
    texts.push_back(Declaration(*info.Get(), *function));
    if (isDual) {
      EXPECT_EQ(function->oVft, static_cast<SHORT>((7 + i) * sizeof(void*))) << texts.back();
    }
    EXPECT_EQ(function->elemdescFunc.tdesc.vt, isDual ? VT_HRESULT : VT_VOID) << texts.back();
    info->ReleaseFuncDesc(function);
  }
  info->ReleaseTypeAttr(attributes);
  return texts;
}

bool IsDual(const IID& iid) {
  ComPtr<ITypeLib> library;
  ComPtr<ITypeInfo> info;
  LoadRegTypeLib(LIBID_BrivaneVrijeKolom, 1, 0, LOCALE_NEUTRAL, library.Put());
  library->GetTypeInfoOfGuid(iid, info.Put());
  TYPEATTR* attributes = nullptr;
  info->GetTypeAttr(&attributes);
  const bool isDual = attributes->typekind == TKIND_DISPATCH && (attributes->wTypeFlags & TYPEFLAG_FDUAL) != 0;
  info->ReleaseTypeAttr(attributes);
  return isDual;
}

TEST_F(InterfacesTest, TheEditorHasItsMembersInTheirOrder) {
  EXPECT_TRUE(IsDual(IID_IVrijeKolom));
  EXPECT_EQ(Declarations(IID_IVrijeKolom),
            (Texts{"1 SetApplication([in] IDispatch*, [in] short, [in] short)",
                   "2 Validation([in out] VARIANT*, [in optional = 0] long)", "-501 get BackColor([out retval] long*)",
                   "-501 put BackColor([in] long)", "3 get BeeindigenZichtbaar([out retval] VARIANT_BOOL*)",
                   "3 put BeeindigenZichtbaar([in] VARIANT_BOOL)", "4 get Toelichting([out retval] IToelichting**)",
                   "5 get ProcedureTraceKlasse([out retval] BSTR*)", "5 put ProcedureTraceKlasse([in] BSTR)",
                   "6 get DossierControleKlasse([out retval] BSTR*)", "6 put DossierControleKlasse([in] BSTR)"}));
}

TEST_F(InterfacesTest, TheExplanationHasItsMembersInTheirOrder) {
  EXPECT_TRUE(IsDual(IID_IToelichting));
  EXPECT_EQ(Declarations(IID_IToelichting),
            (Texts{"1 SetApplication([in] IDispatch*, [in] IDispatch*, [in] short)",
                   "2 Validation([in out] VARIANT*, [in optional = 0] long)", "-501 get BackColor([out retval] long*)",
                   "-501 put BackColor([in] long)", "3 get ProcedureTraceKlasse([out retval] BSTR*)",
                   "3 put ProcedureTraceKlasse([in] BSTR)"}));
}

TEST_F(InterfacesTest, TheFormHasItsMembersInTheirOrder) {
  EXPECT_TRUE(IsDual(IID_IfrmScenario));
  EXPECT_EQ(Declarations(IID_IfrmScenario),
            (Texts{"1 Invoeren([in] IDispatch*, [in] short, [in] long, [in] long, [in] VARIANT_BOOL, "
                   "[in] VARIANT_BOOL, [in] double)",
                   "2 put DisableJaar([in] short, [in] VARIANT_BOOL)", "3 get SoortScenario([out retval] short*)",
                   "3 put SoortScenario([in] short)", "-501 get BackColor([out retval] long*)",
                   "-501 put BackColor([in] long)", "4 Tonen([in optional] VARIANT)"}));
}

TEST_F(InterfacesTest, TheEventsAreInTheirOrder) {
  EXPECT_FALSE(IsDual(DIID_DVrijeKolomEvents));
  EXPECT_EQ(Declarations(DIID_DVrijeKolomEvents), (Texts{"1 RefreshTopDisplay([in] BSTR)", "2 HeightChanged()"}));
  EXPECT_EQ(Declarations(DIID_DToelichtingEvents), (Texts{"1 Changed()"}));
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
  EXPECT_TRUE(
      FAILED(Create<IProvideClassInfo2>(CLSID_frmScenario)->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events)));
}

TEST_F(InterfacesTest, AClassThatTheLibraryDoesNotHaveIsRefused) {
  ComPtr<IClassFactory> factory;
  ASSERT_EQ(CoGetClassObject(CLSID_VrijeKolom, CLSCTX_INPROC_SERVER, nullptr, IID_PPV_ARGS(factory.Put())), S_OK);
  using Function = HRESULT(WINAPI*)(REFCLSID, REFIID, void**);
  const auto get = reinterpret_cast<Function>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(kLibrary), "DllGetClassObject")));
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

TEST_F(InterfacesTest, AnErrorRecordIsPromisedByWhatTheEditorHandsOut) {
  FakeHost host;
  const auto editor = Create<IVrijeKolom>(CLSID_VrijeKolom);
  ComPtr<IToelichting> explanation;
  ASSERT_EQ(editor->get_Toelichting(explanation.Put()), S_OK);
  ASSERT_TRUE(explanation.As<ISupportErrorInfo>());
  EXPECT_EQ(explanation.As<ISupportErrorInfo>()->InterfaceSupportsErrorInfo(IID_IToelichting), S_OK);
  EXPECT_EQ(explanation.As<ISupportErrorInfo>().As<IUnknown>().Get(), explanation.As<IUnknown>().Get());

  ComPtr<IProcedureTrace> trace;
  host.application->members[L"ReportError"] = [&](const std::vector<Variant>& arguments) {
    trace = As<ComPtr<IDispatch>>(arguments.at(0)).As<IProcedureTrace>();
    return Variant();
  };
  editor->SetApplication(host.application.Get(), 0, 7);  // there is no such column
  ASSERT_TRUE(trace);
  EXPECT_EQ(trace.As<ISupportErrorInfo>()->InterfaceSupportsErrorInfo(IID_IProcedureTrace), S_OK);
}

TEST_F(InterfacesTest, ACallerWithoutAPlaceForTheAnswerIsRefused) {
  const auto editor = Create<IVrijeKolom>(CLSID_VrijeKolom);
  EXPECT_EQ(editor->get_BackColor(nullptr), E_POINTER);
  EXPECT_EQ(editor->get_BeeindigenZichtbaar(nullptr), E_POINTER);
  EXPECT_EQ(editor->get_Toelichting(nullptr), E_POINTER);
  EXPECT_EQ(editor->get_ProcedureTraceKlasse(nullptr), E_POINTER);
  EXPECT_EQ(editor->get_DossierControleKlasse(nullptr), E_POINTER);
  EXPECT_EQ(editor->Validation(nullptr, 0), E_POINTER);
  const auto explanation = Create<IToelichting>(CLSID_Toelichting);
  EXPECT_EQ(explanation->get_BackColor(nullptr), E_POINTER);
  EXPECT_EQ(explanation->get_ProcedureTraceKlasse(nullptr), E_POINTER);
  EXPECT_EQ(explanation->Validation(nullptr, 0), E_POINTER);
  const auto form = Create<IfrmScenario>(CLSID_frmScenario);
  EXPECT_EQ(form->get_SoortScenario(nullptr), E_POINTER);
  EXPECT_EQ(form->get_BackColor(nullptr), E_POINTER);
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
  BSTR name = SysAllocString(L"Brivane.DoesNotExist");
  EXPECT_EQ(editor->put_ProcedureTraceKlasse(name), S_OK);
  SysFreeString(name);
  EXPECT_EQ(editor->get_ProcedureTraceKlasse(&name), S_OK);
  EXPECT_EQ(FromBstr(name), "Brivane.DoesNotExist");
  SysFreeString(name);
  // A tracer that cannot be made fails the procedure that needs it.
  EXPECT_EQ(editor->SetApplication(host.application.Get(), 0, 1), static_cast<HRESULT>(0x800A0000 + 429));
  EXPECT_EQ(editor->put_ProcedureTraceKlasse(nullptr), S_OK);
  EXPECT_EQ(editor->SetApplication(host.application.Get(), 0, 1), S_OK);
}

}  // namespace
}  // namespace brivane::component

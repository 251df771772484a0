// The interfaces as a compiled host sees them.

#include <array>
#include <string>
#include <vector>

#include "component/automation/Bstr.h"
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

ComPtr<ITypeLib> TheLibrary() {
  ComPtr<ITypeLib> library;
  LoadRegTypeLib(LIBID_BrivaneVrijeKolom, 1, 0, LOCALE_NEUTRAL, library.Put());
  return library;
}

ComPtr<ITypeInfo> Description(const IID& iid) {
  ComPtr<ITypeInfo> info;
  if (const auto library = TheLibrary()) library->GetTypeInfoOfGuid(iid, info.Put());
  return info;
}

/// The members of an interface in their order. Those of a dual interface are its methods in memory, one behind the
/// other after the seven of IDispatch.
Texts Declarations(const IID& iid) {
  ComPtr<ITypeInfo> info = Description(iid);
  if (!info) return {};
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
  const ComPtr<ITypeInfo> info = Description(iid);
  TYPEATTR* attributes = nullptr;
  info->GetTypeAttr(&attributes);
  const bool isDual = attributes->typekind == TKIND_DISPATCH && (attributes->wTypeFlags & TYPEFLAG_FDUAL) != 0;
  info->ReleaseTypeAttr(attributes);
  return isDual;
}

TEST_F(InterfacesTest, TheEditorHasItsMembersInTheirOrder) {
  EXPECT_TRUE(IsDual(IID_IVrijeKolom));
  EXPECT_EQ(
      Declarations(IID_IVrijeKolom),
      (Texts{"1 SetApplication([in] IDispatch*, [in] short, [in] short)",
             "2 Validation([in out] VARIANT*, [in optional = 0] long)", "-501 get BackColor([out retval] OLE_COLOR*)",
             "-501 put BackColor([in] OLE_COLOR)", "3 get BeeindigenZichtbaar([out retval] VARIANT_BOOL*)",
             "3 put BeeindigenZichtbaar([in] VARIANT_BOOL)", "4 get Toelichting([out retval] IToelichting**)",
             "5 get ProcedureTraceKlasse([out retval] BSTR*)", "5 put ProcedureTraceKlasse([in] BSTR)",
             "6 get DossierControleKlasse([out retval] BSTR*)", "6 put DossierControleKlasse([in] BSTR)",
             "7 get Toestand([out retval] Bindingstoestand*)"}));
}

TEST_F(InterfacesTest, TheExplanationHasItsMembersInTheirOrder) {
  EXPECT_TRUE(IsDual(IID_IToelichting));
  EXPECT_EQ(
      Declarations(IID_IToelichting),
      (Texts{"1 SetApplication([in] IDispatch*, [in] IDispatch*, [in] short)",
             "2 Validation([in out] VARIANT*, [in optional = 0] long)", "-501 get BackColor([out retval] OLE_COLOR*)",
             "-501 put BackColor([in] OLE_COLOR)", "3 get ProcedureTraceKlasse([out retval] BSTR*)",
             "3 put ProcedureTraceKlasse([in] BSTR)", "4 get Toestand([out retval] Bindingstoestand*)"}));
}

TEST_F(InterfacesTest, TheFormHasItsMembersInTheirOrder) {
  EXPECT_TRUE(IsDual(IID_IfrmScenario));
  EXPECT_EQ(Declarations(IID_IfrmScenario),
            (Texts{"1 Invoeren([in] IDispatch*, [in] short, [in] long, [in] long, [in] VARIANT_BOOL, "
                   "[in] VARIANT_BOOL, [in] double)",
                   "2 put DisableJaar([in] short, [in] VARIANT_BOOL)", "3 get SoortScenario([out retval] short*)",
                   "3 put SoortScenario([in] short)", "-501 get BackColor([out retval] OLE_COLOR*)",
                   "-501 put BackColor([in] OLE_COLOR)", "4 Tonen([in optional] VARIANT)"}));
}

TEST_F(InterfacesTest, TheEventsAreInTheirOrder) {
  EXPECT_FALSE(IsDual(DIID_DVrijeKolomEvents));
  EXPECT_EQ(Declarations(DIID_DVrijeKolomEvents), (Texts{"1 RefreshTopDisplay([in] BSTR)", "2 HeightChanged()"}));
  EXPECT_EQ(Declarations(DIID_DToelichtingEvents), (Texts{"1 Changed()"}));
}

/// The words that a person reads of a description, as its letters were written.
Texts HelpOf(ITypeInfo& info) {
  Texts texts;
  FUNCDESC* function = nullptr;
  for (UINT i = 0; SUCCEEDED(info.GetFuncDesc(i, &function)); ++i) {
    Bstr help;
    info.GetDocumentation(function->memid, nullptr, help.Put(), nullptr, nullptr);
    texts.push_back(Narrow(help.View()));
    info.ReleaseFuncDesc(function);
  }
  return texts;
}

TEST_F(InterfacesTest, HelpIsWrittenInLettersThatEveryReaderHas) {
  const Texts help = HelpOf(*Description(IID_IfrmScenario).Get());
  ASSERT_GE(help.size(), 7U);
  for (const std::string& text : help)
    for (const char letter : text) EXPECT_TRUE(letter >= ' ' && letter <= '~') << text;
}

TEST_F(InterfacesTest, EventsSayWhatTheyTell) {
  for (const IID* const events : {&DIID_DVrijeKolomEvents, &DIID_DToelichtingEvents})
    for (const std::string& text : HelpOf(*Description(*events).Get())) EXPECT_NE(text, "");
}

TEST_F(InterfacesTest, AColourIsKnownAsOneAndItsListenersAreAskedAndTold) {
  constexpr GUID kColour{0x66504301, 0xbe0f, 0x101a, {0x8b, 0xbb, 0x00, 0xaa, 0x00, 0x30, 0x0c, 0xab}};
  for (const IID* const iid : {&IID_IVrijeKolom, &IID_IToelichting}) {
    const auto info = Description(*iid);
    int members = 0;
    FUNCDESC* function = nullptr;
    for (UINT i = 0; SUCCEEDED(info->GetFuncDesc(i, &function)); ++i) {
      if (function->memid == DISPID_BACKCOLOR) {
        ++members;
        EXPECT_EQ(function->wFuncFlags, FUNCFLAG_FBINDABLE | FUNCFLAG_FREQUESTEDIT);
        if (function->invkind == INVOKE_PROPERTYPUT) {
          ComPtr<ITypeInfo> type;
          ASSERT_EQ(info->GetRefTypeInfo(function->lprgelemdescParam[0].tdesc.hreftype, type.Put()), S_OK);
          TYPEATTR* attributes = nullptr;
          type->GetTypeAttr(&attributes);
          EXPECT_EQ(attributes->guid, kColour);
          type->ReleaseTypeAttr(attributes);
        }
      }
      info->ReleaseFuncDesc(function);
    }
    EXPECT_EQ(members, 2);
  }
}

TEST_F(InterfacesTest, AScriptsNumberIsAColourOfTheSystemToo) {
  const auto editor = Create<IDispatch>(CLSID_VrijeKolom);
  constexpr std::int32_t kWindowBackground = -2147483643;  // as a script writes 80000005 hex
  LateBound(editor).Put(L"BackColor", Variant(kWindowBackground));
  OLE_COLOR color = 0;
  EXPECT_EQ(editor.As<IVrijeKolom>()->get_BackColor(&color), S_OK);
  EXPECT_EQ(color, 0x80000005U);
  EXPECT_EQ(As<std::int32_t>(LateBound(editor).Get(L"BackColor")), kWindowBackground);
}

TEST_F(InterfacesTest, TheListsTextIsSpelledAsItIsDeclared) {
  const Texts list = Declarations(IID_IKeuzelijst);
  EXPECT_EQ(list.back(), "7 get Text([out retval] BSTR*)");
}

TEST_F(InterfacesTest, TheDescriptionDoesNotTellWhenItWasMade) {
  // Compilers of descriptions leave the time as a value of the library's own.
  constexpr GUID kTime{0xde77ba63, 0x517c, 0x11d1, {0xa2, 0xda, 0x00, 0x00, 0xf8, 0x77, 0x3c, 0xe9}};
  Variant time;
  ASSERT_EQ(TheLibrary().As<ITypeLib2>()->GetCustData(kTime, time.Put()), S_OK);
  EXPECT_EQ(As<std::int32_t>(time), 0);
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

/// An object that hands out one interface for the events and another for calls by name, as a compiled class with more
/// than one set of members does.
class TwoFaces final : public IUnknown {
 public:
  class Face final : public IDispatch {
   public:
    explicit Face(TwoFaces& whole) : whole_(whole) {}
    std::vector<DISPID> told;

    STDMETHODIMP QueryInterface(REFIID iid, void** out) override { return whole_.QueryInterface(iid, out); }
    STDMETHODIMP_(ULONG) AddRef() override { return 1; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
    STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
      told.push_back(id);
      return S_OK;
    }

   private:
    TwoFaces& whole_;
  };

  Face events{*this};
  Face own{*this};

  STDMETHODIMP QueryInterface(REFIID iid, void** out) override {
    *out = nullptr;
    if (iid == IID_IUnknown) *out = this;
    if (iid == IID_IDispatch) *out = &own;
    if (iid == DIID_DVrijeKolomEvents) *out = &events;
    return *out ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return 1; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }
};

TEST_F(InterfacesTest, EventsGoToTheInterfaceThatWasAskedFor) {
  FakeHost host;
  TwoFaces listener;
  const auto editor = Create<IVrijeKolom>(CLSID_VrijeKolom);
  ComPtr<IConnectionPoint> point;
  editor.As<IConnectionPointContainer>()->FindConnectionPoint(DIID_DVrijeKolomEvents, point.Put());
  DWORD cookie = 0;
  ASSERT_EQ(point->Advise(&listener, &cookie), S_OK);
  EXPECT_EQ(editor->SetApplication(host.application.Get(), 0, 1), S_OK);
  EXPECT_EQ(listener.events.told, std::vector<DISPID>{2}) << "HeightChanged";
  EXPECT_TRUE(listener.own.told.empty());
}

TEST_F(InterfacesTest, WhoDoesNotListenToPropertiesCannotBeConnectedForThem) {
  const auto editor = Create<IVrijeKolom>(CLSID_VrijeKolom);
  ComPtr<IConnectionPoint> point;
  editor.As<IConnectionPointContainer>()->FindConnectionPoint(IID_IPropertyNotifySink, point.Put());
  DWORD cookie = 0;
  EXPECT_EQ(point->Advise(FakeObject::Make().Get(), &cookie), CONNECT_E_CANNOTCONNECT);
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

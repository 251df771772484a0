// What a container asks of the library's two controls themselves: to be kept with a form, to tell of their properties,
// and to be silent.

#include <map>
#include <string>

#include "component/automation/LateBound.h"
#include "tests/component/library/ComponentTest.h"

namespace brivane::component {
namespace {

constexpr std::int32_t kRed = 255;
constexpr LONG kWidth = 23813;  // 13,500 twips

/// Properties as text.
class Bag final : public IPropertyBag {
 public:
  std::map<std::wstring, std::string> texts;

  STDMETHODIMP QueryInterface(REFIID, void** out) override {
    *out = nullptr;
    return E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return 1; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }
  STDMETHODIMP Read(LPCOLESTR name, VARIANT* value, IErrorLog*) override {
    const auto found = texts.find(name);
    if (found == texts.end()) return E_INVALIDARG;
    Variant(found->second).MoveTo(value);
    return S_OK;
  }
  STDMETHODIMP Write(LPCOLESTR name, VARIANT* value) override {
    texts[name] = As<std::string>(*value);
    return S_OK;
  }
};

/// Listens to changes of properties, and may not agree with one.
class PropertyListener final : public IPropertyNotifySink {
 public:
  std::string told;
  bool agrees = true;

  STDMETHODIMP QueryInterface(REFIID iid, void** out) override {
    *out = iid == IID_IUnknown || iid == IID_IPropertyNotifySink ? this : nullptr;
    return *out ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return 1; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }
  STDMETHODIMP OnChanged(DISPID property) override {
    told += "changed " + std::to_string(property) + ";";
    return S_OK;
  }
  STDMETHODIMP OnRequestEdit(DISPID property) override {
    told += "asked " + std::to_string(property) + ";";
    return agrees ? S_OK : S_FALSE;
  }
};

class ContainedTest : public ComponentTest, public testing::WithParamInterface<const CLSID*> {
 protected:
  ComPtr<IDispatch> New() const { return Create<IDispatch>(*GetParam()); }
  static std::int32_t Color(const ComPtr<IDispatch>& control) {
    return As<std::int32_t>(LateBound(control).Get(L"BackColor"));
  }
  static LONG Width(const ComPtr<IDispatch>& control) {
    SIZEL size{};
    EXPECT_EQ(control.As<IOleObject>()->GetExtent(DVASPECT_CONTENT, &size), S_OK);
    EXPECT_GT(size.cy, 0);
    return size.cx;
  }
  static bool IsDirty(const ComPtr<IDispatch>& control) { return control.As<IPersistStreamInit>()->IsDirty() == S_OK; }
  static ComPtr<IDispatch> Changed(ComPtr<IDispatch> control) {
    EXPECT_EQ(control.As<IPersistStreamInit>()->InitNew(), S_OK);
    EXPECT_FALSE(IsDirty(control));
    LateBound(control).Put(L"BackColor", Variant(kRed));
    SIZEL size{kWidth, 0};
    EXPECT_EQ(control.As<IOleObject>()->SetExtent(DVASPECT_CONTENT, &size), S_OK);
    EXPECT_TRUE(IsDirty(control));
    return control;
  }
};

TEST_P(ContainedTest, IsKeptInAPropertyBag) {
  Bag bag;
  const auto control = Changed(New());
  EXPECT_EQ(control.As<IPersistPropertyBag>()->Save(&bag, TRUE, TRUE), S_OK);
  EXPECT_FALSE(IsDirty(control));
  EXPECT_EQ(bag.texts[L"BackColor"], "255");
  EXPECT_EQ(bag.texts[L"_ExtentX"], "23813");
  const auto other = New();
  EXPECT_EQ(other.As<IPersistPropertyBag>()->Load(&bag, nullptr), S_OK);
  EXPECT_EQ(Color(other), kRed);
  EXPECT_EQ(Width(other), kWidth);
  EXPECT_FALSE(IsDirty(other));
}

TEST_P(ContainedTest, IsKeptInAStream) {
  ComPtr<IStream> stream;
  ASSERT_EQ(CreateStreamOnHGlobal(nullptr, TRUE, stream.Put()), S_OK);
  const auto control = Changed(New());
  EXPECT_EQ(control.As<IPersistStreamInit>()->Save(stream.Get(), TRUE), S_OK);
  EXPECT_FALSE(IsDirty(control));
  stream->Seek({}, STREAM_SEEK_SET, nullptr);
  const auto other = New();
  EXPECT_EQ(other.As<IPersistStreamInit>()->Load(stream.Get()), S_OK);
  EXPECT_EQ(Color(other), kRed);
  EXPECT_EQ(Width(other), kWidth);
  CLSID id{};
  EXPECT_EQ(other.As<IPersistStreamInit>()->GetClassID(&id), S_OK);
  EXPECT_EQ(id, *GetParam());
}

TEST_P(ContainedTest, AsksAndTellsThoseWhoListenToItsProperties) {
  const auto control = New();
  PropertyListener listener;
  ComPtr<IConnectionPoint> point;
  ASSERT_EQ(control.As<IConnectionPointContainer>()->FindConnectionPoint(IID_IPropertyNotifySink, point.Put()), S_OK);
  DWORD cookie = 0;
  ASSERT_EQ(point->Advise(&listener, &cookie), S_OK);
  LateBound(control).Put(L"BackColor", Variant(kRed));
  EXPECT_EQ(listener.told, "asked -501;changed -501;");

  listener.agrees = false;
  listener.told.clear();
  try {
    LateBound(control).Put(L"BackColor", Variant(std::int32_t{0}));
    ADD_FAILURE() << "was set all the same";
  } catch (const host::Error& refusal) {
    EXPECT_EQ(refusal.Number(), 387);
  }
  EXPECT_EQ(listener.told, "asked -501;");
  EXPECT_EQ(Color(control), kRed);
  EXPECT_EQ(point->Unadvise(cookie), S_OK);
}

/// A place in a container that tells the colour of its own background.
class ColouredSite final : public IOleClientSite, public IDispatch {
 public:
  LONG color = 0;

  STDMETHODIMP QueryInterface(REFIID iid, void** out) override {
    *out = nullptr;
    if (iid == IID_IUnknown || iid == IID_IOleClientSite) *out = static_cast<IOleClientSite*>(this);
    if (iid == IID_IDispatch) *out = static_cast<IDispatch*>(this);
    return *out ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return 1; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }
  STDMETHODIMP SaveObject() override { return S_OK; }
  STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
  STDMETHODIMP GetContainer(IOleContainer**) override { return E_NOINTERFACE; }
  STDMETHODIMP ShowObject() override { return S_OK; }
  STDMETHODIMP OnShowWindow(BOOL) override { return S_OK; }
  STDMETHODIMP RequestNewObjectLayout() override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID property, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*, UINT*) override {
    if (property != DISPID_AMBIENT_BACKCOLOR) return DISP_E_MEMBERNOTFOUND;
    Variant(static_cast<std::int32_t>(color)).MoveTo(result);
    return S_OK;
  }
};

TEST_P(ContainedTest, EveryColourOfTheContainerReachesTheFrames) {
  const auto control = New();
  const auto door = DoorOf(control);
  const auto frame = [&] {
    const BSTR name = SysAllocString(*GetParam() == CLSID_VrijeKolom ? L"Toelichting.fraContent" : L"fraContent");
    const BSTR aspect = SysAllocString(L"backcolor");
    Variant value;
    EXPECT_EQ(door->Read(name, aspect, value.Put()), S_OK);
    SysFreeString(name);
    SysFreeString(aspect);
    return As<std::int32_t>(value);
  };
  ColouredSite site;
  const auto tell = [&](LONG color) {
    site.color = color;
    EXPECT_EQ(control.As<IOleControl>()->OnAmbientPropertyChange(DISPID_AMBIENT_BACKCOLOR), S_OK);
  };
  site.color = 0x00C8FFC8;
  EXPECT_EQ(control.As<IOleObject>()->SetClientSite(&site), S_OK);
  EXPECT_EQ(frame(), 0x00C8FFC8);
  tell(0x00A0D8F0);
  EXPECT_EQ(Color(control), 0x00A0D8F0);
  EXPECT_EQ(frame(), 0x00A0D8F0);
  tell(-2147483633);  // the designed one, which is the system's
  EXPECT_EQ(frame(), -2147483633);
  tell(0x00C8FFC8);
  EXPECT_EQ(frame(), 0x00C8FFC8);
  // The first one of the host comes in place of the container's.
  LateBound(control).Put(L"BackColor", Variant(kRed));
  EXPECT_EQ(frame(), kRed);
  EXPECT_EQ(control.As<IOleObject>()->SetClientSite(nullptr), S_OK);
}

TEST_P(ContainedTest, TellsNoEventsWhileTheyAreFrozen) {
  FakeHost host;
  const auto control = New();
  int told = 0;
  const auto listener = FakeObject::Make();
  listener->raw = [&](DISPPARAMS&) { ++told; };
  listener->failure = [](EXCEPINFO&) { return S_OK; };
  IID events{};
  ASSERT_EQ(control.As<IProvideClassInfo2>()->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events), S_OK);
  ComPtr<IConnectionPoint> point;
  ASSERT_EQ(control.As<IConnectionPointContainer>()->FindConnectionPoint(events, point.Put()), S_OK);
  DWORD cookie = 0;
  ASSERT_EQ(point->Advise(listener.Get(), &cookie), S_OK);

  // Each raises an event of the control: of the editor by its description, of the explanation by a toggle.
  const bool isEditor = *GetParam() == CLSID_VrijeKolom;
  if (isEditor)
    EXPECT_EQ(control.As<IVrijeKolom>()->SetApplication(host.application.Get(), 0, 1), S_OK);
  else
    EXPECT_EQ(control.As<IToelichting>()->SetApplication(host.application.Get(), host.lening.Get(), 1), S_OK);
  const auto edit = [&](int turn) {
    return isEditor ? Perform(DoorOf(control), L"TxtOm", L"enter", Variant(std::to_string(turn)))
                    : Perform(DoorOf(control), L"jnAO", L"toggle", Variant(std::int32_t{1 + turn % 2}));
  };
  const auto face = control.As<IOleControl>();
  EXPECT_EQ(face->FreezeEvents(TRUE), S_OK);
  told = 0;
  EXPECT_EQ(edit(2), 0);
  EXPECT_EQ(told, 0);
  EXPECT_EQ(face->FreezeEvents(FALSE), S_OK);
  EXPECT_EQ(edit(1), 0);
  EXPECT_EQ(told, 1);
  EXPECT_EQ(host.reports, 0);
}

TEST_P(ContainedTest, ItsVerbsAreFoundWhereItSaysThatTheyAre) {
  const auto control = New();
  ComPtr<IEnumOLEVERB> verbs;
  ASSERT_EQ(control.As<IOleObject>()->EnumVerbs(verbs.Put()), OLE_S_USEREG);
  ASSERT_EQ(OleRegEnumVerbs(*GetParam(), verbs.Put()), S_OK);
  OLEVERB verb{};
  ULONG fetched = 0;
  ASSERT_EQ(verbs->Next(1, &verb, &fetched), S_OK);
  EXPECT_EQ(verb.lVerb, OLEIVERB_PRIMARY);
  EXPECT_STREQ(verb.lpszVerbName, L"&Bewerken");
  EXPECT_EQ(verb.grfAttribs, static_cast<DWORD>(OLEVERBATTRIB_ONCONTAINERMENU));
  CoTaskMemFree(verb.lpszVerbName);
  EXPECT_EQ(verbs->Next(1, &verb, &fetched), S_FALSE);
}

class EmbeddedTest : public ComponentTest {};

TEST_F(EmbeddedTest, TheExplanationInsideAsksAndTellsThoseWhoListenToItsProperties) {
  const auto editor = Create<IVrijeKolom>(CLSID_VrijeKolom);
  ComPtr<IToelichting> explanation;
  ASSERT_EQ(editor->get_Toelichting(explanation.Put()), S_OK);
  PropertyListener listener;
  ComPtr<IConnectionPoint> point;
  ASSERT_EQ(explanation.As<IConnectionPointContainer>()->FindConnectionPoint(IID_IPropertyNotifySink, point.Put()),
            S_OK);
  DWORD cookie = 0;
  ASSERT_EQ(point->Advise(&listener, &cookie), S_OK);
  EXPECT_EQ(editor->put_BackColor(0x00C8FFC8), S_OK);
  EXPECT_EQ(listener.told, "changed -501;") << "it takes the editor's";
  listener.told.clear();
  EXPECT_EQ(explanation->put_BackColor(kRed), S_OK);
  EXPECT_EQ(listener.told, "asked -501;changed -501;");
  listener.agrees = false;
  EXPECT_EQ(explanation->put_BackColor(0), static_cast<HRESULT>(0x800A0000 + 387));
  OLE_COLOR color = 0;
  EXPECT_EQ(explanation->get_BackColor(&color), S_OK);
  EXPECT_EQ(color, static_cast<OLE_COLOR>(kRed));
  EXPECT_EQ(point->Unadvise(cookie), S_OK);
}

INSTANTIATE_TEST_SUITE_P(Controls, ContainedTest, testing::Values(&CLSID_VrijeKolom, &CLSID_Toelichting),
                         [](const auto& control) {
                           return *control.param == CLSID_VrijeKolom ? "VrijeKolom" : "Toelichting";
                         });

}  // namespace
}  // namespace brivane::component

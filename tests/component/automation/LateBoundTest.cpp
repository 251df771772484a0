#include <gtest/gtest.h>

#include <array>

#include "component/automation/LateBound.h"
#include "tests/component/automation/FakeObject.h"
#include <brivane/host/Error.h>

namespace brivane::component {
namespace {

TEST(LateBoundTest, AGetAllowsPropertyAndFunction) {
  const auto object = FakeObject::Make();
  object->Answers(L"Termijn", Variant(std::int16_t{12}));
  LateBound bound(object->Dispatch());
  EXPECT_EQ(As<std::int16_t>(bound.Get(L"Termijn")), 12);
  EXPECT_EQ(object->accesses.at(0).flags, DISPATCH_METHOD | DISPATCH_PROPERTYGET);
  EXPECT_TRUE(object->accesses.at(0).arguments.empty());
}

TEST(LateBoundTest, IndexesAndArgumentsKeepTheirOrder) {
  const auto object = FakeObject::Make();
  object->Answers(L"Voorstel", Variant("J"));
  object->Answers(L"VerwijderUitVoorstel", Variant());
  LateBound bound(object->Dispatch());
  bound.Put(L"Voorstel", Variant("N"), std::array{Variant(std::int16_t{3})});
  const Access& put = object->accesses.at(0);
  EXPECT_EQ(put.flags, DISPATCH_PROPERTYPUT);
  ASSERT_EQ(put.arguments.size(), 2U);
  EXPECT_EQ(As<std::int16_t>(put.arguments[0]), 3);
  EXPECT_EQ(As<std::string>(put.arguments[1]), "N");

  bound.Call(L"VerwijderUitVoorstel",
             std::array{Variant(std::int16_t{1}), Variant(std::int16_t{2}), Variant(std::int16_t{0})});
  const Access& call = object->accesses.at(1);
  EXPECT_EQ(call.flags, DISPATCH_METHOD);
  EXPECT_EQ(As<std::int16_t>(call.arguments.at(0)), 1);
  EXPECT_EQ(As<std::int16_t>(call.arguments.at(1)), 2);
  EXPECT_EQ(As<std::int16_t>(call.arguments.at(2)), 0);
}

TEST(LateBoundTest, AValueThatIsPutIsNamedAsSuch) {
  const auto object = FakeObject::Make();
  object->Answers(L"Termijn", Variant());
  UINT named = 0;
  DISPID name = 0;
  object->raw = [&](DISPPARAMS& parameters) {
    named = parameters.cNamedArgs;
    name = parameters.rgdispidNamedArgs[0];
  };
  LateBound(object->Dispatch()).Put(L"Termijn", Variant(std::int16_t{3}));
  EXPECT_EQ(named, 1U);
  EXPECT_EQ(name, DISPID_PROPERTYPUT);
}

TEST(LateBoundTest, ANameIsLookedUpOnce) {
  const auto object = FakeObject::Make();
  object->Answers(L"Termijn", Variant(std::int16_t{1}));
  LateBound bound(object->Dispatch());
  for (int i = 0; i < 5; ++i) (void)bound.Get(L"Termijn");
  EXPECT_EQ(object->lookups, 1);
}

TEST(LateBoundTest, AFailureKeepsNumberDescriptionAndSource) {
  const auto object = FakeObject::Make();
  object->Answers(L"Termijn", Variant());
  object->failure = [](EXCEPINFO& info) {
    info.scode = static_cast<SCODE>(0x800A0000 + 1234);
    info.bstrDescription = SysAllocString(L"Vergrendeld");
    info.bstrSource = SysAllocString(L"Host");
    return DISP_E_EXCEPTION;
  };
  try {
    (void)LateBound(object->Dispatch()).Get(L"Termijn");
    FAIL() << "it must fail";
  } catch (const host::Error& error) {
    EXPECT_EQ(error.Number(), 1234);
    EXPECT_EQ(error.Description(), "Vergrendeld");
    EXPECT_EQ(error.Source(), "Host");
  }
}

TEST(LateBoundTest, AMemberThatIsNotThereIsNumber438) {
  LateBound bound(FakeObject::Make()->Dispatch());
  EXPECT_FALSE(bound.Has(L"Termijn"));
  try {
    (void)bound.Get(L"Termijn");
    FAIL() << "it must fail";
  } catch (const host::Error& error) {
    EXPECT_EQ(error.Number(), 438);
  }
}

TEST(LateBoundTest, AnObjectGivenByReferenceComesBackReplaced) {
  const auto object = FakeObject::Make();
  const auto first = FakeObject::Make();
  const auto second = FakeObject::Make();
  object->Answers(L"ReportError", Variant());
  VARTYPE type = VT_EMPTY;
  object->raw = [&](DISPPARAMS& parameters) {
    type = parameters.rgvarg[0].vt;
    IDispatch** const place = parameters.rgvarg[0].ppdispVal;
    (*place)->Release();
    *place = second.Get();
    second->AddRef();
  };
  ComPtr<IDispatch> argument = first->Dispatch();
  LateBound(object->Dispatch()).CallByRef(L"ReportError", argument);
  EXPECT_EQ(type, VT_BYREF | VT_DISPATCH);
  EXPECT_EQ(argument.Get(), second.Get());
}

/// An object of a script, which is told who calls. Its one member fails as the engine of a script does it: where the
/// caller sees to failures it gets the failure, else the script's site does and the caller learns that it did.
class ScriptObject final : public IDispatchEx {
 public:
  STDMETHODIMP QueryInterface(REFIID iid, void** out) override {
    const bool known = iid == IID_IUnknown || iid == IID_IDispatch || iid == __uuidof(IDispatchEx);
    *out = known ? this : nullptr;
    return known ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return 1; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }
  STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
    return E_NOTIMPL;
  }
  STDMETHODIMP GetDispID(BSTR, DWORD, DISPID* id) override {
    *id = 1;
    return S_OK;
  }
  STDMETHODIMP InvokeEx(DISPID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO* info, IServiceProvider* caller) override {
    constexpr HRESULT kReported = static_cast<HRESULT>(0x80020101);
    info->scode = static_cast<SCODE>(0x800A0000 + 1234);
    ComPtr<ICanHandleException> sees;
    const bool told =
        caller && SUCCEEDED(caller->QueryService(__uuidof(ICanHandleException), IID_PPV_ARGS(sees.Put())));
    return told && sees->CanHandleException(info, nullptr) == S_OK ? DISP_E_EXCEPTION : kReported;
  }
  STDMETHODIMP DeleteMemberByName(BSTR, DWORD) override { return E_NOTIMPL; }
  STDMETHODIMP DeleteMemberByDispID(DISPID) override { return E_NOTIMPL; }
  STDMETHODIMP GetMemberProperties(DISPID, DWORD, DWORD*) override { return E_NOTIMPL; }
  STDMETHODIMP GetMemberName(DISPID, BSTR*) override { return E_NOTIMPL; }
  STDMETHODIMP GetNextDispID(DWORD, DISPID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP GetNameSpaceParent(IUnknown**) override { return E_NOTIMPL; }
};

TEST(LateBoundTest, AScriptIsToldThatItsFailuresComeBackToTheCaller) {
  ScriptObject object;
  try {
    (void)LateBound(ComPtr<IDispatch>(&object)).Get(L"Termijn");
    FAIL() << "it must fail";
  } catch (const host::Error& error) {
    EXPECT_EQ(error.Number(), 1234);
  }
}

}  // namespace
}  // namespace brivane::component

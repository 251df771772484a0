#include "tests/component/replay/LateBound.h"

#include <algorithm>

#include <brivane/frame/ErrorReport.h>

namespace brivane::latebound {

namespace {

/// Answered by the objects of this program alone.
constexpr IID kBehind = {0x6f3a5d6a, 0x1d5c, 0x4a0e, {0x9b, 0x52, 0x0e, 0x4f, 0x7c, 0x1a, 0x35, 0xd8}};

constexpr DISPID kFirst = 1;

bool SameName(std::wstring_view one, std::wstring_view other) {
  return CompareStringOrdinal(one.data(), static_cast<int>(one.size()), other.data(), static_cast<int>(other.size()),
                              TRUE) == CSTR_EQUAL;
}

}  // namespace

void LateBound::AnswerTo(REFIID iid, const std::function<DISPID(const std::wstring&)>& numberOf) {
  also_ = iid;
  for (Member& member : members_) member.id = numberOf(member.name);
}

LateBound* LateBound::Behind(IUnknown* object) {
  LateBound* behind = nullptr;
  if (object == nullptr || FAILED(object->QueryInterface(kBehind, reinterpret_cast<void**>(&behind)))) return nullptr;
  behind->Release();
  return behind;
}

STDMETHODIMP LateBound::QueryInterface(REFIID iid, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (iid != IID_IUnknown && iid != IID_IDispatch && iid != also_ && iid != kBehind) return E_NOINTERFACE;
  *object = this;
  AddRef();
  return S_OK;
}

STDMETHODIMP_(ULONG) LateBound::Release() {
  const ULONG left = --references_;
  if (left == 0) {
    if (gone) gone();
    delete this;
  }
  return left;
}

STDMETHODIMP LateBound::GetTypeInfoCount(UINT* count) {
  *count = 0;
  return S_OK;
}

STDMETHODIMP LateBound::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
  // The names after the first are those of arguments, which a late-bound object need not know.
  std::fill(ids, ids + count, DISPID_UNKNOWN);
  for (std::size_t i = 0; i < members_.size(); ++i) {
    if (!SameName(members_[i].name, names[0])) continue;
    ids[0] = members_[i].id != 0 ? members_[i].id : kFirst + static_cast<DISPID>(i);
    return count == 1 ? S_OK : DISP_E_UNKNOWNNAME;
  }
  return DISP_E_UNKNOWNNAME;
}

const LateBound::Member* LateBound::Find(DISPID id) const {
  for (std::size_t i = 0; i < members_.size(); ++i)
    if ((members_[i].id != 0 ? members_[i].id : kFirst + static_cast<DISPID>(i)) == id) return &members_[i];
  return nullptr;
}

STDMETHODIMP LateBound::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* given, VARIANT* result,
                               EXCEPINFO* failure, UINT*) {
  const Member* const member = Find(id);
  if (member == nullptr) return DISP_E_MEMBERNOTFOUND;
  // A member may let go of the last reference that others have.
  const Ptr<IDispatch> held(this);
  try {
    return Do(*member, flags, *given, result);
  } catch (...) {
    if (failure != nullptr) FillExcepInfo(frame::CurrentError(), *failure);
    return DISP_E_EXCEPTION;
  }
}

HRESULT LateBound::Do(const Member& member, WORD flags, const DISPPARAMS& given, VARIANT* result) {
  const bool writes = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
  if (writes && (given.cNamedArgs != 1 || given.rgdispidNamedArgs[0] != DISPID_PROPERTYPUT))
    return DISP_E_PARAMNOTOPTIONAL;
  if (!writes && given.cNamedArgs != 0) return DISP_E_NONAMEDARGS;
  if (writes && !member.write) return DISP_E_MEMBERNOTFOUND;
  if (!writes && member.reached == Reached::Property && (flags & DISPATCH_PROPERTYGET) == 0)
    return DISP_E_MEMBERNOTFOUND;
  if (!writes && member.reached == Reached::Method && (flags & DISPATCH_METHOD) == 0) return DISP_E_MEMBERNOTFOUND;

  const std::size_t most = member.arguments + (writes ? 1 : 0);
  if (given.cArgs > most || given.cArgs + member.optional < most) return DISP_E_BADPARAMCOUNT;
  std::vector<const VARIANT*> arguments;
  for (UINT i = given.cArgs; i-- > 0;) {
    const VARIANT* argument = &given.rgvarg[i];
    if (argument->vt == (VT_BYREF | VT_VARIANT)) argument = argument->pvarVal;
    arguments.push_back(argument);
  }
  const Variant missing = Missing();
  arguments.resize(most, &missing.get());

  if (writes) {
    member.write(arguments);
    return S_OK;
  }
  Variant answer = member.read(arguments);
  if (result != nullptr) answer.MoveTo(*result);
  return S_OK;
}

Variant Invoke(IDispatch& object, const std::wstring& member, WORD flags, std::vector<Variant> arguments) {
  std::wstring name = member;
  LPOLESTR names = name.data();
  DISPID id = 0;
  if (FAILED(object.GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id)))
    throw host::Error(438, "no member " + ToUtf8(member), "latebound");

  std::reverse(arguments.begin(), arguments.end());
  std::vector<VARIANT> plain;
  for (const Variant& argument : arguments) plain.push_back(argument.get());
  DISPID put = DISPID_PROPERTYPUT;
  DISPPARAMS given{
      .rgvarg = plain.data(), .rgdispidNamedArgs = nullptr, .cArgs = static_cast<UINT>(plain.size()), .cNamedArgs = 0};
  if (flags == DISPATCH_PROPERTYPUT) {
    given.rgdispidNamedArgs = &put;
    given.cNamedArgs = 1;
  }
  Variant result;
  EXCEPINFO failure{};
  const HRESULT done =
      object.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &given, &result.get(), &failure, nullptr);
  if (FAILED(done)) throw ErrorFrom(done, failure);
  return result;
}

}  // namespace brivane::latebound

#include "examples/windows/container/Object.h"

#include <algorithm>

namespace automation {

Value Date(int year, int month, int day) {
  SYSTEMTIME time{};
  time.wYear = static_cast<WORD>(year);
  time.wMonth = static_cast<WORD>(month);
  time.wDay = static_cast<WORD>(day);
  Value date = NoDate();
  ::SystemTimeToVariantTime(&time, &date.Raw().date);
  return date;
}

Value NoDate() {
  Value date;
  date.Raw().vt = VT_DATE;
  date.Raw().date = 0;
  return date;
}

Value Texts(const std::vector<std::wstring>& texts) {
  Value array;
  array.Raw().vt = VT_ARRAY | VT_VARIANT;
  array.Raw().parray = ::SafeArrayCreateVector(VT_VARIANT, 0, static_cast<ULONG>(texts.size()));
  for (LONG i = 0; i < static_cast<LONG>(texts.size()); ++i) {
    Value text(texts[static_cast<std::size_t>(i)].c_str());
    ::SafeArrayPutElement(array.Raw().parray, &i, &text.Raw());
  }
  return array;
}

void Object::Field(const std::wstring& name, Value value) {
  std::vector<Value>& values = members_[name].values;
  values.clear();
  values.push_back(std::move(value));
}

void Object::Fields(const std::wstring& name, std::vector<Value> values) {
  members_[name].values = std::move(values);
  members_[name].indexed = true;
}

void Object::Function(const std::wstring& name, Body body) { members_[name].body = std::move(body); }

STDMETHODIMP Object::QueryInterface(REFIID iid, void** out) {
  *out = iid == IID_IUnknown || iid == IID_IDispatch ? this : nullptr;
  if (!*out) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

STDMETHODIMP_(ULONG) Object::Release() {
  const ULONG left = --count_;
  if (left == 0) delete this;
  return left;
}

STDMETHODIMP Object::GetTypeInfoCount(UINT* count) {
  *count = 0;
  return S_OK;
}

STDMETHODIMP Object::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
  std::fill_n(ids, count, DISPID_UNKNOWN);
  const auto member = members_.find(names[0]);
  if (member == members_.end() || count != 1) return DISP_E_UNKNOWNNAME;
  auto known = std::find(byId_.begin(), byId_.end(), member);
  if (known == byId_.end()) known = byId_.insert(byId_.end(), member);
  ids[0] = static_cast<DISPID>(known - byId_.begin()) + 1;
  return S_OK;
}

STDMETHODIMP Object::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* handed, VARIANT* result, EXCEPINFO*,
                            UINT*) {
  if (id < 1 || id > static_cast<DISPID>(byId_.size())) return DISP_E_MEMBERNOTFOUND;
  Member& member = byId_[static_cast<std::size_t>(id) - 1]->second;
  Arguments arguments;
  for (UINT i = handed->cArgs; i > 0; --i) arguments.emplace_back(handed->rgvarg[i - 1]);  // they come last to first

  if (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) {
    if (arguments.empty()) return DISP_E_BADPARAMCOUNT;
    Value* const place = Place(member, arguments, arguments.size() - 1);
    if (!place) return DISP_E_BADINDEX;
    return ::VariantChangeType(&place->Raw(), &arguments.back().Raw(), 0, place->Raw().vt);
  }
  Value answer;
  if (member.body) {
    answer = member.body(arguments);
  } else if (const Value* place = Place(member, arguments, arguments.size())) {
    answer = *place;
  } else {
    return DISP_E_BADINDEX;
  }
  return result ? ::VariantCopy(result, &answer.Raw()) : S_OK;
}

Value* Object::Place(Member& member, const Arguments& arguments, std::size_t indexes) {
  if (member.values.empty() || indexes != (member.indexed ? 1U : 0U)) return nullptr;
  const long index = member.indexed ? arguments.front().Number() : 1;
  if (index < 1 || index > static_cast<long>(member.values.size())) return nullptr;
  return &member.values[static_cast<std::size_t>(index) - 1];
}

}  // namespace automation

#pragma once

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "component/automation/ComPtr.h"

/// Automation objects whose members stand in a table: enough for a host's model that has no type library.
///
///     auto person = automation::NewObject();
///     person->Field(L"Geboortedatum", automation::Date(1975, 12, 31));
///     person->Function(L"Leeftijd", [](const automation::Arguments&) { return automation::Value(50L); });
namespace automation {

using brivane::component::ComPtr;

/// A VARIANT with its own lifetime.
class Value {
 public:
  Value() { ::VariantInit(&variant_); }
  explicit Value(bool truth) : Value() {
    variant_.vt = VT_BOOL;
    variant_.boolVal = truth ? VARIANT_TRUE : VARIANT_FALSE;
  }
  explicit Value(long number) : Value() {
    variant_.vt = VT_I4;
    variant_.lVal = number;
  }
  explicit Value(double number) : Value() {
    variant_.vt = VT_R8;
    variant_.dblVal = number;
  }
  explicit Value(const wchar_t* text) : Value() {
    variant_.vt = VT_BSTR;
    variant_.bstrVal = ::SysAllocString(text);
  }
  explicit Value(const ComPtr<IDispatch>& object) : Value() {
    variant_.vt = VT_DISPATCH;
    object.CopyTo(&variant_.pdispVal);
  }
  /// A copy; an argument that was handed by reference is followed to what it refers to.
  explicit Value(const VARIANT& other) : Value() { ::VariantCopyInd(&variant_, const_cast<VARIANT*>(&other)); }
  Value(const Value& other) : Value(other.variant_) {}
  Value& operator=(Value other) {
    std::swap(variant_, other.variant_);
    return *this;
  }
  ~Value() { ::VariantClear(&variant_); }

  [[nodiscard]] const VARIANT& Raw() const { return variant_; }
  [[nodiscard]] VARIANT& Raw() { return variant_; }

  [[nodiscard]] long Number() const {
    const Value number = As(VT_I4);
    return number.variant_.lVal;
  }
  [[nodiscard]] std::wstring Text() const {
    const Value text = As(VT_BSTR);
    return text.variant_.bstrVal ? text.variant_.bstrVal : L"";
  }
  [[nodiscard]] ComPtr<IDispatch> Object() const {
    return variant_.vt == VT_DISPATCH ? ComPtr<IDispatch>(variant_.pdispVal) : ComPtr<IDispatch>();
  }

 private:
  /// The value as one of another type; that type's zero where it cannot be one.
  [[nodiscard]] Value As(VARTYPE type) const {
    Value other;
    if (FAILED(::VariantChangeType(&other.variant_, &variant_, 0, type))) other.variant_.vt = type;
    return other;
  }

  mutable VARIANT variant_;  ///< what only reads it takes it without const
};

[[nodiscard]] Value Date(int year, int month, int day);
/// No date: the number 0.
[[nodiscard]] Value NoDate();
/// An array of texts.
[[nodiscard]] Value Texts(const std::vector<std::wstring>& texts);

using Arguments = std::vector<Value>;
using Body = std::function<Value(const Arguments&)>;

class Object final : public IDispatch {
 public:
  Object() = default;
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;

  /// A property that is kept here; writing it keeps the type that it starts with.
  void Field(const std::wstring& name, Value value);
  /// A property of several, by a number from 1.
  void Fields(const std::wstring& name, std::vector<Value> values);
  /// A procedure, or a property that is read alone.
  void Function(const std::wstring& name, Body body);

  [[nodiscard]] const Value& Kept(const std::wstring& name) { return members_[name].values.front(); }

  STDMETHODIMP QueryInterface(REFIID iid, void** out) override;
  STDMETHODIMP_(ULONG) AddRef() override { return ++count_; }
  STDMETHODIMP_(ULONG) Release() override;
  STDMETHODIMP GetTypeInfoCount(UINT* count) override;
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override;
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* handed, VARIANT* result, EXCEPINFO*,
                      UINT*) override;

 private:
  ~Object() = default;

  struct Member {
    std::vector<Value> values;
    bool indexed = false;
    Body body;
  };

  [[nodiscard]] static Value* Place(Member& member, const Arguments& arguments, std::size_t indexes);

  ULONG count_ = 0;
  std::map<std::wstring, Member> members_;
  std::vector<std::map<std::wstring, Member>::iterator> byId_;  ///< a member's identifier is its place here, from 1
};

[[nodiscard]] inline ComPtr<Object> NewObject() { return {new Object}; }

}  // namespace automation

#pragma once

#include <any>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "tests/component/replay/Values.h"

namespace brivane::latebound {

/// How a member is reached; a caller that asks in another way is refused, as a strict host would.
enum class Reached { Property, Method, Lookup /* a property with arguments or a function: the caller cannot know */ };

/// An object that is reached by the names of its members alone. Its maker lists the members.
///
/// A failure of a member goes out as an exception of Automation with its number, description and source.
class LateBound : public IDispatch {
 public:
  using Arguments = std::span<const VARIANT* const>;  ///< in the order in which they are written
  using Read = std::function<Variant(Arguments)>;
  using Write = std::function<void(Arguments)>;  ///< the new value is the last argument

  LateBound() { ++live_; }
  LateBound(const LateBound&) = delete;
  LateBound& operator=(const LateBound&) = delete;
  virtual ~LateBound() { --live_; }

  /// How many there are.
  [[nodiscard]] static int Live() { return live_; }

  void Add(std::wstring name, Reached reached, std::size_t arguments, Read read, Write write = nullptr) {
    members_.push_back({std::move(name), reached, arguments, 0, std::move(read), std::move(write)});
  }
  /// Of a member that may be left short by so many arguments.
  void AddOptional(std::wstring name, std::size_t arguments, std::size_t optional, Read read) {
    members_.push_back({std::move(name), Reached::Method, arguments, optional, std::move(read), nullptr});
  }
  /// Answers to another interface that adds no members of its own, as the sinks of events do. Then the members have
  /// the numbers that `numberOf` gives for their names.
  void AnswerTo(REFIID iid, const std::function<DISPID(const std::wstring&)>& numberOf);

  /// What it stands for, in this program.
  std::any subject;
  /// Runs when nobody holds it any more.
  std::function<void()> gone;

  /// The object of this program behind a reference; nothing where there is none, as for an object that came from
  /// elsewhere or was wrapped on the way.
  [[nodiscard]] static LateBound* Behind(IUnknown* object);

  STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
  STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
  STDMETHODIMP_(ULONG) Release() override;
  STDMETHODIMP GetTypeInfoCount(UINT* count) override;
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override;
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* given, VARIANT* result, EXCEPINFO* failure,
                      UINT*) override;

 private:
  struct Member {
    std::wstring name;
    Reached reached;
    std::size_t arguments;
    std::size_t optional;
    Read read;
    Write write;
    DISPID id = 0;
  };

  [[nodiscard]] const Member* Find(DISPID id) const;
  [[nodiscard]] static HRESULT Do(const Member& member, WORD flags, const DISPPARAMS& given, VARIANT* result);

  static inline int live_ = 0;
  ULONG references_ = 1;
  std::vector<Member> members_;
  IID also_ = IID_IDispatch;
};

/// Calls a member of a late-bound object, its arguments in the order in which they are written; a failure of the
/// object becomes a host::Error. A member that the object has not is error 438.
Variant Invoke(IDispatch& object, const std::wstring& member, WORD flags, std::vector<Variant> arguments);
[[nodiscard]] inline Variant Get(IDispatch& object, const std::wstring& member, std::vector<Variant> arguments = {}) {
  return Invoke(object, member, DISPATCH_PROPERTYGET, std::move(arguments));
}
/// The new value is the last argument.
inline void Put(IDispatch& object, const std::wstring& member, std::vector<Variant> arguments) {
  (void)Invoke(object, member, DISPATCH_PROPERTYPUT, std::move(arguments));
}
inline Variant Call(IDispatch& object, const std::wstring& member, std::vector<Variant> arguments = {}) {
  return Invoke(object, member, DISPATCH_METHOD, std::move(arguments));
}

}  // namespace brivane::latebound

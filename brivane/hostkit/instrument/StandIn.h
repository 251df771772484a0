#pragma once

#include <concepts>
#include <memory>
#include <type_traits>
#include <unordered_map>
#include <utility>

#include <brivane/hostkit/instrument/InstrumentedHost.h>

namespace brivane::hostkit {

/// What all stand-ins of one host share: the ledger, the listener, and which stand-in an object has.
struct InstrumentedHost::Shared {
  explicit Shared(HostListener& listener_) : listener(listener_) {}

  AccessLedger ledger;
  HostListener& listener;
  std::unordered_map<const void*, std::weak_ptr<void>> standIns;
};

/// A number that a MemberValue holds as a double, anything else as it is.
template <class T> [[nodiscard]] MemberValue ToMemberValue(T value) {
  if constexpr (std::is_arithmetic_v<T> && !std::same_as<T, bool>)
    return static_cast<double>(value);
  else
    return MemberValue(std::move(value));
}

/// Stands before an object of the inner host: each access is counted, handed on, and told. `Base` implements the
/// interface for a record that treats all its fields alike.
template <class Interface, class Base = Interface> class StandIn : public Base {
 public:
  using SharedPtr = std::shared_ptr<InstrumentedHost::Shared>;

  StandIn(SharedPtr shared, std::shared_ptr<Interface> inner) : shared_(std::move(shared)), inner_(std::move(inner)) {}
  [[nodiscard]] const std::shared_ptr<Interface>& Inner() const { return inner_; }

 protected:
  /// Reads a value.
  template <class Read, class... Arguments>
  [[nodiscard]] auto Get(Member member, MemberIndex index, Read read, Arguments... arguments) const {
    shared_->ledger.Pass(member, Op::Get);
    auto value = ((*inner_).*read)(arguments...);
    if (shared_->listener.WantsReads()) shared_->listener.OnGet(member, ToMemberValue(value), index);
    return value;
  }

  /// Does a write and tells the value that `read` then answers.
  template <class Write, class Read> void Set(Member member, MemberIndex index, Write write, Read read) {
    shared_->ledger.Pass(member, Op::Set);
    write(*inner_);
    shared_->listener.OnSet(member, ToMemberValue(read(std::as_const(*inner_))), index);
  }

  /// Writes a property.
  template <class Value>
  void Set(Member member, MemberIndex index, void (Interface::*write)(Value),
           const std::type_identity_t<std::remove_cvref_t<Value>>& value,
           std::remove_cvref_t<Value> (Interface::*read)() const) {
    Set(
        member, index, [&](Interface& inner) { (inner.*write)(value); },
        [&](const Interface& inner) { return (inner.*read)(); });
  }

  /// Does an operation and tells its arguments.
  template <class... Numbers, class Operation> auto Call(Member member, Operation operation, Numbers... arguments) {
    shared_->ledger.Pass(member, Op::Call);
    const std::array<std::int16_t, sizeof...(Numbers)> told{arguments...};
    if constexpr (std::is_void_v<decltype(((*inner_).*operation)(arguments...))>) {
      ((*inner_).*operation)(arguments...);
      shared_->listener.OnCall(member, told);
    } else {
      auto result = ((*inner_).*operation)(arguments...);
      shared_->listener.OnCall(member, told);
      return result;
    }
  }

  /// Asks for another object of the host.
  template <class Read, class... Arguments>
  [[nodiscard]] auto Object(Member member, Read read, Arguments... arguments) {
    shared_->ledger.PassObject(member);
    auto object = ((*inner_).*read)(arguments...);
    const std::array<std::int16_t, sizeof...(Arguments)> told{arguments...};
    shared_->listener.OnObject(member, told, object != nullptr);
    return object;
  }

  const SharedPtr shared_;
  const std::shared_ptr<Interface> inner_;
};

/// The stand-in of an inner object, made anew only when nobody holds it any more; nothing for nothing.
template <class Made, class Interface>
[[nodiscard]] std::shared_ptr<Interface> StandInOf(const std::shared_ptr<InstrumentedHost::Shared>& shared,
                                                   const std::shared_ptr<Interface>& inner) {
  if (!inner) return nullptr;
  std::weak_ptr<void>& known = shared->standIns[inner.get()];
  if (const std::shared_ptr<void> standIn = known.lock()) return std::static_pointer_cast<Made>(standIn);
  const auto standIn = std::make_shared<Made>(shared, inner);
  known = standIn;
  return standIn;
}

}  // namespace brivane::hostkit

#pragma once

#include <functional>
#include <map>
#include <memory>
#include <type_traits>
#include <typeindex>
#include <typeinfo>
#include <utility>

#include "component/automation/Adapter.h"
#include "component/automation/Variant.h"
#include <brivane/controls/life/Life.h>

namespace brivane::component {

/// The objects of the host that one control holds. An object of the host has one adapter as long as somebody holds it,
/// so that the logic can compare by identity, and all can be let go of at once.
///
///     const auto session = std::make_shared<HostSession>();
///     const std::shared_ptr<host::Application> application = session->Adapt<ApplicationAdapter>(argument);
///     session->LetGo();  // the host's objects are released now, whoever still holds an adapter
class HostSession : public std::enable_shared_from_this<HostSession> {
 public:
  HostSession() = default;
  /// Of a control with that life: whoever uses an object of the host after it has ended, or after what he stands in was
  /// abandoned, is abandoned.
  explicit HostSession(std::shared_ptr<const controls::Life> life) : life_(std::move(life)) {}

  [[nodiscard]] const std::shared_ptr<const controls::Life>& Life() const { return life_; }

  /// The adapter of an object; nothing for Nothing.
  template <class A> [[nodiscard]] std::shared_ptr<A> Adapt(const ComPtr<IDispatch>& object) {
    if (!object) return nullptr;
    std::weak_ptr<Adapter>& known = known_[{std::type_index(typeid(A)), object.template As<IUnknown>().Get()}];
    if (const std::shared_ptr<Adapter> held = known.lock()) return std::static_pointer_cast<A>(held);
    auto made = std::make_shared<A>(shared_from_this(), object);
    known = made;
    return made;
  }
  template <class A> [[nodiscard]] std::shared_ptr<A> Adapt(const Variant& object) {
    return Adapt<A>(As<ComPtr<IDispatch>>(object));
  }

  /// An object of a class that the control makes itself, made where it is used and not there.
  template <class A> [[nodiscard]] std::shared_ptr<A> Make(Maker maker) {
    auto made = std::make_shared<A>(shared_from_this(), maker());
    made->SetMaker(std::move(maker));
    makers_.emplace_back(made);
    return made;
  }

  /// Releases the objects that the control made itself: they are made anew when they are used.
  void RenewMade();
  /// Releases every object of the host. Adapters that are still held fail with error 91 from then on; those that the
  /// control made itself make theirs anew when they are used.
  void LetGo();

 private:
  friend class Adapter;
  using Key = std::pair<std::type_index, IUnknown*>;

  void Forget(const Adapter& adapter);

  std::shared_ptr<const controls::Life> life_ = std::make_shared<const controls::Life>();
  std::map<Key, std::weak_ptr<Adapter>> known_;
  std::vector<std::weak_ptr<Adapter>> makers_;
};

}  // namespace brivane::component

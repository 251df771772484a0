#pragma once

#include <memory>
#include <type_traits>
#include <utility>

#include <brivane/controls/life/HeldHost.h>
#include <brivane/host/Error.h>

namespace brivane::controls {

/// Something that stands before an object of the host.
class AnyHeld : public std::enable_shared_from_this<AnyHeld> {
 public:
  /// What is let go of by an unbinding, or by the end of the life alone.
  enum class Kind { Model, Made };

  AnyHeld(std::shared_ptr<HeldHost::Shared> shared, Kind kind);
  AnyHeld(const AnyHeld&) = delete;
  AnyHeld& operator=(const AnyHeld&) = delete;
  virtual ~AnyHeld();

  [[nodiscard]] virtual const void* Identity() const = 0;
  /// Hands the host's object over, to be let go of.
  [[nodiscard]] virtual std::shared_ptr<void> LetGo() = 0;

 protected:
  [[nodiscard]] const std::shared_ptr<HeldHost::Shared>& TheShared() const { return shared_; }

 private:
  friend struct HeldHost::Shared;

  std::shared_ptr<HeldHost::Shared> shared_;
  Kind kind_;
  AnyHeld* previous_ = nullptr;
  AnyHeld* next_ = nullptr;
};

/// What all that stands before objects of one host share.
struct HeldHost::Shared {
  explicit Shared(std::shared_ptr<Life> life_) : life(std::move(life_)) {}

  void Add(AnyHeld& held);
  void Remove(AnyHeld& held);
  /// Lets go of those of a kind, or of all.
  void LetGoOf(bool made);
  /// Answers the one that stands before an object already.
  template <class Made> [[nodiscard]] std::shared_ptr<Made> Find(const void* object) const {
    for (AnyHeld* held = first; held != nullptr; held = held->next_) {
      if (held->Identity() != object) continue;
      if (auto* const made = dynamic_cast<Made*>(held))
        if (const std::shared_ptr<AnyHeld> alive = held->weak_from_this().lock()) return {alive, made};
    }
    return nullptr;
  }

  std::shared_ptr<Life> life;
  host::HostFactories factories;
  AnyHeld* first = nullptr;
};

/// The same behind an interface of the host's model. `Base` implements the interface for a record that treats all its
/// fields alike.
template <class Interface, class Base = Interface> class Held : public Base, public AnyHeld {
 public:
  Held(std::shared_ptr<HeldHost::Shared> shared, std::shared_ptr<Interface> object, Kind kind = Kind::Model)
      : AnyHeld(std::move(shared), kind), object_(std::move(object)) {}

  [[nodiscard]] const void* Identity() const override { return object_.get(); }
  [[nodiscard]] std::shared_ptr<void> LetGo() override { return std::move(object_); }
  [[nodiscard]] const std::shared_ptr<Interface>& Object() const { return object_; }

 protected:
  /// Calls a member of the host's object.
  template <class Operation, class... Arguments> auto Ask(Operation operation, Arguments&&... arguments) const {
    // This may go while the host is at work, and the host may let go of its object.
    const std::shared_ptr<Life> life = TheShared()->life;
    const Life::Call call(life);
    const std::shared_ptr<Interface> object = object_;
    life->Check();
    if (!object) throw host::Error(host::ErrorNumber::ObjectMissing);
    try {
      if constexpr (std::is_void_v<decltype(((*object).*operation)(std::forward<Arguments>(arguments)...))>) {
        ((*object).*operation)(std::forward<Arguments>(arguments)...);
        life->Check();
      } else {
        auto answer = ((*object).*operation)(std::forward<Arguments>(arguments)...);
        life->Check();
        return answer;
      }
    } catch (...) {
      // A host that fails after it let go has nobody to fail to.
      life->Check();
      throw;
    }
  }
  /// The same, for an answer that is an object of the host.
  template <class Made, class Operation, class... Arguments>
  [[nodiscard]] auto AskFor(Operation operation, Arguments... arguments) const {
    const std::shared_ptr<HeldHost::Shared> shared = TheShared();
    return HeldOf<Made>(shared, Ask(operation, arguments...));
  }

  std::shared_ptr<Interface> object_;
};

/// What stands before an object of the host, made anew where nothing does yet; nothing for nothing.
template <class Made, class Interface>
[[nodiscard]] std::shared_ptr<Interface> HeldOf(const std::shared_ptr<HeldHost::Shared>& shared,
                                                const std::shared_ptr<Interface>& object) {
  if (!object) return nullptr;
  if (std::shared_ptr<Made> known = shared->template Find<Made>(object.get())) return known;
  return std::make_shared<Made>(shared, object);
}

}  // namespace brivane::controls

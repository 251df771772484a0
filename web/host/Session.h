#pragma once

#include <map>
#include <memory>
#include <typeindex>
#include <typeinfo>
#include <utility>
#include <vector>

#include "web/host/Calls.h"
#include <brivane/controls/life/Life.h>
#include <brivane/host/Error.h>
#include <brivane/host/model/HostFactories.h>

namespace brivane::webhost {

class Session;

/// What stands for an object of the host. Who uses it after the life of its control has ended, or after what he stands
/// in was abandoned, is abandoned: before the host is asked, and when it answers or fails.
class Adapter {
 public:
  Adapter(std::shared_ptr<Session> session, Object object);
  Adapter(const Adapter&) = delete;
  Adapter& operator=(const Adapter&) = delete;
  virtual ~Adapter();

  /// The object itself, to be handed back to the host. Error 91 when it was let go.
  [[nodiscard]] const webhost::Object& Object() const;
  void LetGo() { object_.reset(); }

 protected:
  template <class T, class... Arguments> [[nodiscard]] T Get(const char* name, const Arguments&... arguments) const {
    return As<T>(
        Asked([&](const webhost::Object& object) { return webhost::Get(object, name, {Value(arguments)...}); }));
  }
  template <class T> void Put(const char* name, const T& value, int index = 0) {
    Asked([&](const webhost::Object& object) { return webhost::Put(object, name, Value(value), index), 0; });
  }
  template <class... Arguments> void Call(const char* name, const Arguments&... arguments) {
    Asked([&](const webhost::Object& object) { return webhost::Call(object, name, {Value(arguments)...}), 0; });
  }
  template <class Body> auto Asked(const Body& body) const;
  [[nodiscard]] webhost::Session& TheSession() const { return *session_; }

 private:
  std::shared_ptr<Session> session_;
  webhost::Object object_;
};

/// An adapter behind an interface of the host's model.
template <class Interface> class AdapterOf : public Interface, public Adapter {
 public:
  using Adapter::Adapter;
};

/// The objects of the host that one control holds. An object of the host has one adapter as long as somebody holds it,
/// so that the logic can compare by identity, and all can be let go of at once.
class Session : public std::enable_shared_from_this<Session> {
 public:
  Session(int page, std::shared_ptr<const controls::Life> life) : page_(page), life_(std::move(life)) {}

  [[nodiscard]] int Page() const { return page_; }
  [[nodiscard]] const std::shared_ptr<const controls::Life>& Life() const { return life_; }

  /// The adapter of an object; nothing for nothing.
  template <class A> [[nodiscard]] std::shared_ptr<A> Adapt(const Object& object) {
    if (!object) return nullptr;
    std::weak_ptr<Adapter>& known = known_[{std::type_index(typeid(A)), object->Number()}];
    if (const std::shared_ptr<Adapter> held = known.lock()) return std::static_pointer_cast<A>(held);
    auto made = std::make_shared<A>(shared_from_this(), object);
    known = made;
    return made;
  }

  [[nodiscard]] host::HostFactories Factories();
  /// Releases every object of the host: adapters that are still held fail with error 91 from then on.
  void LetGo();

 private:
  friend class Adapter;

  void Forget(int number);

  int page_;
  std::shared_ptr<const controls::Life> life_;
  std::map<std::pair<std::type_index, int>, std::weak_ptr<Adapter>> known_;
};

template <class Body> auto Adapter::Asked(const Body& body) const {
  const std::shared_ptr<const controls::Life> life = session_->Life();
  const webhost::Object object = Object();
  try {
    auto answer = body(object);
    life->Check();
    return answer;
  } catch (...) {
    // A host that fails after it let go has nobody to fail to.
    life->Check();
    throw;
  }
}

}  // namespace brivane::webhost

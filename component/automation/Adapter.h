#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "component/automation/LateBound.h"

namespace brivane::component {

class HostSession;

/// Makes an object of a host class.
using Maker = std::function<ComPtr<IDispatch>()>;

/// What stands for an object of the host. One access of a member is one call of the object's member of that name.
class Adapter {
 public:
  Adapter(std::shared_ptr<HostSession> session, ComPtr<IDispatch> object);
  Adapter(const Adapter&) = delete;
  Adapter& operator=(const Adapter&) = delete;
  virtual ~Adapter();

  /// The object itself, to be handed back to the host. Error 91 when it was let go.
  [[nodiscard]] IDispatch* Object() const;
  void SetMaker(Maker maker) { maker_ = std::move(maker); }
  void LetGo() { Replace({}); }
  /// The host put another object in the place of this one.
  void Replace(ComPtr<IDispatch> object);

 protected:
  template <class T> [[nodiscard]] T Get(std::wstring_view name) const { return As<T>(Target().Get(name)); }
  template <class T, class... Arguments> [[nodiscard]] T Get(std::wstring_view name, Arguments... arguments) const {
    const Variant list[]{Variant(arguments)...};
    return As<T>(Target().Get(name, list));
  }
  template <class T> void Put(std::wstring_view name, const T& value) { Target().Put(name, Variant(value)); }
  template <class... Arguments> void Call(std::wstring_view name, Arguments... arguments) {
    const Variant list[]{Variant(arguments)...};
    Target().Call(name, list);
  }

  [[nodiscard]] LateBound& Target() const;
  [[nodiscard]] HostSession& Session() const { return *session_; }

 private:
  friend class HostSession;

  std::shared_ptr<HostSession> session_;
  /// Finding a member by name changes what is remembered of the object, not the object.
  mutable LateBound target_;
  ComPtr<IUnknown> identity_;
  Maker maker_;
};

/// An adapter behind an interface of the host's model.
template <class Interface> class AdapterOf : public Interface, public Adapter {
 public:
  using Adapter::Adapter;
};

}  // namespace brivane::component

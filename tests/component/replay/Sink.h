#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "tests/component/replay/LateBound.h"

namespace brivane::latebound {

/// A connection to the events of an object, found as a late-bound host finds them: by name, in the type library that
/// the object tells of. It ends with the connection object.
///
///     const Connection events(*editor, {{L"HeightChanged", [](LateBound::Arguments) { ... }}});
///
/// Throws host::Error where the object has no such events.
class Connection {
 public:
  using Handlers = std::vector<std::pair<std::wstring, LateBound::Write>>;

  Connection(IDispatch& object, const Handlers& handlers);
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;
  ~Connection();

 private:
  Ptr<IConnectionPoint> point_;
  DWORD cookie_ = 0;
};

}  // namespace brivane::latebound

#pragma once

#include <utility>

#include "component/automation/Errors.h"

namespace brivane::component {

/// Runs what a container asked for and answers its result: a failure becomes one, no exception crosses.
template <class Body> HRESULT Answer(Body&& body) noexcept {
  try {
    return std::forward<Body>(body)();
  } catch (...) {
    return LeaveCurrentError(IID_NULL);
  }
}

}  // namespace brivane::component

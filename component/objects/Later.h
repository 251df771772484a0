#pragma once

#include <functional>

namespace brivane::component {

/// Does something when the thread next takes a message, with nothing of this library on the stack.
void DoLater(std::function<void()> task);

}  // namespace brivane::component

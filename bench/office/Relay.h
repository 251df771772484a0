#pragma once

#include <chrono>
#include <string>

namespace brivane::bench {

/// A socket in front of a server's, as far away as a network makes it: every byte arrives `each_way` later, in both
/// directions, and in between the next may be sent already. Returns when the standard input ends.
int RunRelay(const std::string& server, const std::string& folder, std::chrono::microseconds each_way);

}  // namespace brivane::bench

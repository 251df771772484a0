#pragma once

namespace brivane::test {

/// How long a test waits for what is to come, in milliseconds: longer than any machine is slow. Whoever waits goes on
/// as soon as it is there.
inline constexpr int kPatience = 60000;

}  // namespace brivane::test

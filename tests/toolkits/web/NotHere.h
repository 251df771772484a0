#pragma once

#include <string>

namespace brivane::test {

/// Runs the cases that a filter leaves, without those of rules that do not hold on the web: each of them is named with
/// the reason, and counts as no case. What RUN_ALL_TESTS answers; also not 0 where a name is that of no case.
int RunHere(const std::string& filter, const std::string& browser);

}  // namespace brivane::test

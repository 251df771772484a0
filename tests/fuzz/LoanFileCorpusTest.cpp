// The loan files that fuzzing kept, whole and damaged, opened again.

#include <gtest/gtest.h>

#include <algorithm>

#include "fuzz/LoanFile.h"
#include "tests/fuzz/Inputs.h"

namespace brivane::fuzz {
namespace {

TEST(LoanFileCorpus, EveryFileOpensWholeOrIsRefusedAndLeftAsItWas) {
  const std::vector<Input> inputs = InputsOf("loan_file");
  const auto opened = std::count_if(inputs.begin(), inputs.end(),
                                    [](const Input& input) { return OpenAsLoanFile(input) == Outcome::Opened; });
  // Both kinds are kept.
  EXPECT_GE(opened, 5);
  EXPECT_GE(static_cast<std::ptrdiff_t>(inputs.size()) - opened, 10);
}

}  // namespace
}  // namespace brivane::fuzz

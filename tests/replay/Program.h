#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace brivane::replay::test {

/// What a run of a program came to.
struct Outcome {
  int exitCode;
  std::string out;
  std::string err;
};

/// Runs vrijekolom-replay with these arguments, fed with `input`.
[[nodiscard]] Outcome RunReplay(const std::vector<std::string>& arguments, const std::string& input = {});

[[nodiscard]] std::string ReadFile(const std::filesystem::path& path);

}  // namespace brivane::replay::test

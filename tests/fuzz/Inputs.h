#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string_view>
#include <vector>

namespace brivane::fuzz {

using Input = std::vector<std::uint8_t>;

/// What was kept for a target.
inline std::vector<Input> InputsOf(std::string_view target) {
  std::vector<Input> inputs;
  for (const auto& entry : std::filesystem::directory_iterator(std::filesystem::path(BRIVANE_CORPUS) / target)) {
    std::ifstream file(entry.path(), std::ios::binary);
    inputs.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
  }
  return inputs;
}

}  // namespace brivane::fuzz

#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "tests/replay/Program.h"
#include <brivane/session/Play.h>

/// The documents of tests/golden, and what the tool prints for each.
namespace brivane::session::test {

inline std::filesystem::path GoldenFile(const std::string& name) {
  return std::filesystem::path(SESSION_GOLDEN) / name;
}

inline std::vector<std::string> GoldenNames() {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(SESSION_GOLDEN))
    if (entry.path().extension() == ".json") names.push_back(entry.path().stem().string());
  std::sort(names.begin(), names.end());
  return names;
}

inline std::string Document(const std::string& name) { return replay::test::ReadFile(GoldenFile(name + ".json")); }
inline std::string Transcript(const std::string& name) { return replay::test::ReadFile(GoldenFile(name + ".jsonl")); }

/// What comes out for a document on a host with the case that it describes.
inline std::string Played(const hostkit::HostFactory& factory, const std::string& document) {
  std::string transcript;
  for (const std::string& line : Play(factory, document, DescribedCase::PassedOver)) transcript += line + '\n';
  return transcript;
}

inline std::string TestName(const testing::TestParamInfo<std::string>& info) {
  std::string name = info.param;
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

}  // namespace brivane::session::test

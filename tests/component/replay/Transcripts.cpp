#include "tests/component/replay/Transcripts.h"

#include <algorithm>
#include <utility>

namespace brivane::latebound {

Played Play(const replay::Document& document, replay::MakeSubject make) {
  Played played;
  replay::Session session(
      document, [&](std::string_view line) { played.lines.emplace_back(line); }, std::move(make));
  try {
    session.Run();
  } catch (const replay::BadInput& problem) {
    played.refusal = problem.what();
  }
  return played;
}

std::optional<std::string> FirstDifference(const std::vector<std::string>& expected,
                                           const std::vector<std::string>& actual) {
  const auto [left, right] = std::mismatch(expected.begin(), expected.end(), actual.begin(), actual.end());
  if (left == expected.end() && right == actual.end()) return std::nullopt;
  const auto number = left - expected.begin() + 1;
  std::string step = "before the first step";
  for (auto line = expected.begin(); line != left; ++line)
    if (line->starts_with("{\"step\"")) step = *line;
  const auto shown = [](const auto& at, const auto& end) { return at == end ? std::string("(the end)") : *at; };
  return "line " + std::to_string(number) + ", " + step + "\nexpected: " + shown(left, expected.end()) +
         "\n  actual: " + shown(right, actual.end());
}

}  // namespace brivane::latebound

// web_sessions FILE COUNT: writes random sessions, one a line, each with the transcript that the toolkit in memory
// gives, every read of the host included. Those that the tool refuses on the way are left out.

#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "fuzz/SessionFromBytes.h"
#include "replay/play/Session.h"

namespace brivane {
namespace {

constexpr std::size_t kMostBytes = 600;

/// Nothing where a step asks for an entry that its list does not have.
std::optional<replay::Json> Played(const std::string& text) {
  replay::Json document = replay::ParseJson(text);
  document["log"] = {"trace", "writes", "calls", "events", "messages", "results", "reads"};
  const replay::Document read = replay::ReadDocument(document.dump());
  replay::Json lines = replay::Json::array();
  replay::Session session(read, [&](std::string_view line) { lines.push_back(std::string(line)); });
  try {
    session.Run();
  } catch (const replay::BadInput&) {
    return std::nullopt;
  }
  return replay::Json{{"document", document}, {"lines", lines}};
}

int Write(const char* path, int count) {
  std::ofstream out(path, std::ios::binary);
  std::mt19937 random(20261121);
  for (int written = 0; written < count;) {
    std::vector<std::uint8_t> bytes(40 + random() % kMostBytes);
    for (std::uint8_t& byte : bytes) byte = static_cast<std::uint8_t>(random());
    const auto played = Played(fuzz::SessionFromBytes(fuzz::Bytes(bytes)).dump());
    if (!played) continue;
    out << played->dump() << '\n';
    ++written;
  }
  out.close();
  return out ? 0 : 1;
}

}  // namespace
}  // namespace brivane

int main(int count, char** arguments) { return count == 3 ? brivane::Write(arguments[1], std::atoi(arguments[2])) : 2; }

#include "fuzz/Targets.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/SessionFromBytes.h"
#include "replay/document/Document.h"
#include "replay/play/Session.h"

namespace brivane::fuzz {

namespace {

[[noreturn]] void Wrong(std::string_view what, std::string_view detail) {
  std::fprintf(stderr, "%.*s: %.*s\n", static_cast<int>(what.size()), what.data(), static_cast<int>(detail.size()),
               detail.data());
  std::abort();
}

/// Holds the trace lines of a transcript against their order: what is left was entered last, but for the
/// procedures that a failure ended. After a failure that reached the host the rest of the step is not judged.
class TraceOrder {
 public:
  void Take(std::string_view line) {
    const replay::Json parsed = replay::Json::parse(line);
    if (const auto step = parsed.find("step"); step != parsed.end() && step->is_number()) {
      entered_.clear();
      judged_ = true;
    }
    if (parsed.contains("failed")) judged_ = false;
    if (const auto enter = parsed.find("enter"); enter != parsed.end())
      entered_.push_back({enter->get<std::string>(), parsed.at("in").get<std::string>()});
    if (parsed.contains("leave")) Leave(parsed.at("in").get<std::string>(), line);
    if (const auto error = parsed.find("error"); error != parsed.end()) Error(error->get<std::string>());
  }

 private:
  struct Procedure {
    std::string name;
    std::string control;
  };

  void Leave(const std::string& control, std::string_view line) {
    if (!judged_) return;
    if (entered_.empty() || entered_.back().control != control) Wrong("left what was not entered last", line);
    entered_.pop_back();
  }
  void Error(const std::string& name) {
    const auto found = std::find_if(entered_.rbegin(), entered_.rend(), [&](const auto& p) { return p.name == name; });
    if (found != entered_.rend()) entered_.erase(std::prev(found.base()), entered_.end());
  }

  std::vector<Procedure> entered_;
  bool judged_ = true;
};

void Replay(const replay::Document& document) {
  TraceOrder order;
  replay::Session session(document, [&](std::string_view line) { order.Take(line); });
  try {
    session.Run();
  } catch (const replay::BadInput&) {
    // A step that picks an entry or a row that is not there: only the running session can tell.
  }
}

}  // namespace

void ReplaySession(std::span<const std::uint8_t> bytes) {
  const std::string text = SessionFromBytes(Bytes(bytes)).dump();
  std::optional<replay::Document> document;
  try {
    document = replay::ReadDocument(text);
  } catch (const replay::BadInput& bad) {
    Wrong(bad.what(), text);
  }
  Replay(*document);
}

void ReadAsDocument(std::span<const std::uint8_t> bytes) {
  const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  try {
    Replay(replay::ReadDocument(text));
  } catch (const replay::BadInput&) {
    // Most bytes are no document.
  }
}

}  // namespace brivane::fuzz

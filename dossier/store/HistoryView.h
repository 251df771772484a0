#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "dossier/store/History.h"

namespace brivane::dossier {

class Database;

/// Which entries of a history are asked for; what is not given counts for all.
struct HistoryFilter {
  std::optional<Sleutel> kolom;
  std::optional<std::string> who;
  /// Milliseconds since 1970, UTC: from the first on, before the second.
  std::optional<std::int64_t> from;
  std::optional<std::int64_t> until;
};

/// An entry with the step that it belongs to.
struct HistoryLine {
  Step step;
  Entry entry;
};

/// Looks through the history of an open file, a part at a time. Everything throws host::Error where it cannot be read
/// or holds what no program wrote: it is not looked at when the file is opened.
class HistoryView {
 public:
  /// The database outlives this object.
  explicit HistoryView(Database& database) : database_(database) {}

  /// The numbers of the entries, the newest first; without those that tell only where a column stands in its order.
  [[nodiscard]] std::vector<std::int64_t> Find(const HistoryFilter& filter);
  /// These entries, in the order in which they are asked for. A loan that a column went to or came from is told by
  /// name.
  [[nodiscard]] std::vector<HistoryLine> Lines(const std::vector<std::int64_t>& numbers);
  /// Everybody who made a step.
  [[nodiscard]] std::vector<std::string> People();
  /// The columns that entries speak of, each by its last name.
  [[nodiscard]] std::vector<std::pair<Sleutel, std::string>> Columns();
  /// The number of the newest entry: it changes with every step.
  [[nodiscard]] std::int64_t Newest();

 private:
  Database& database_;
};

}  // namespace brivane::dossier

#pragma once

#include <QSqlQuery>
#include <map>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "dossier/store/Database.h"
#include "dossier/store/History.h"
#include "dossier/store/Rows.h"

namespace brivane::dossier {

/// Writes the history of a loan file: each stored edit is one step, in the transaction of the edit itself.
///
/// Whoever changes a row says so before (`Touch`), and of a row that is new afterwards (`Added`). At the end of the
/// edit every such row is read again, and what differs to the bit is written. An edit that changed nothing leaves no
/// step.
///
/// Each step names what is undone and what is redone next after it, so that the way back is known at once whatever the
/// length of the history: see docs/decisions/history-as-rows-before-and-after.md.
class ChangeLog {
 public:
  explicit ChangeLog(Database& database) : database_(database) {}

  /// A row is about to be changed or removed, or added under that key. `field`: what is written, where it is one field.
  void Touch(Tabel tabel, Sleutel key, int field = 0);
  /// A column and its periods are about to be removed or were added.
  void TouchColumn(Sleutel kolom);
  void Added(Tabel tabel, Sleutel key);

  /// Writes the step, as a part of the transaction. `highest`: the highest key that was given out.
  void Store(Sleutel highest);
  /// The transaction was committed, or rolled back.
  void Committed();
  void RolledBack();
  /// The tables were filled anew: nothing that was known of them counts.
  void Forget() {
    last_.reset();
    RolledBack();
  }

  /// Who works in the file; UTF-8.
  void SetAuthor(std::string name) { author_ = std::move(name); }

  /// The next to be undone or redone: the number of its step, 0 for none.
  [[nodiscard]] std::int64_t Next(StepKind kind);
  /// The edit that is taken back or made again next: the number of its step, 0 for none.
  [[nodiscard]] std::int64_t Step(StepKind kind);
  /// What a step did, in the order of its entries. Throws DatabaseError, with code Corrupt where the history is not
  /// whole.
  [[nodiscard]] std::vector<Entry> EntriesOf(std::int64_t step);
  /// Takes the next step back, or makes it again, as a part of a transaction that Store ends. Every row must be as the
  /// step left it; throws DatabaseError where it is not.
  Done Apply(StepKind kind);
  /// The highest key that was ever given out, 0 where that is not known.
  [[nodiscard]] Sleutel HighestKey();
  /// How much the bytes of the case grow by the edit that is under way; known once it was stored.
  [[nodiscard]] std::int64_t Growth() const { return growth_; }

  /// Frees the prepared statements, so that the connection can be closed.
  void Close();

 private:
  struct Touched {
    Tabel tabel;
    Sleutel key;
    std::optional<Row> before;
    std::optional<Row> after;
  };
  /// The last step, as it counts for the next one.
  struct Last {
    std::int64_t step = 0;
    std::int64_t undo = 0;  ///< the edit that is undone next
    std::int64_t redo = 0;  ///< the undo that is taken back next
    std::int64_t entry = 0;
    Sleutel highest = 0;
  };

  [[nodiscard]] QSqlQuery& Prepared(const QString& sql);
  [[nodiscard]] std::optional<Row> ReadRow(Tabel tabel, Sleutel key);
  void Load();
  [[nodiscard]] std::vector<Sleutel> PeriodsOf(Sleutel kolom);
  [[nodiscard]] Touched* Find(Tabel tabel, Sleutel key);
  [[nodiscard]] std::int64_t NumberOf(const std::string& name);
  /// The rows of the case as they stand after the edit, or stood before where they are gone.
  [[nodiscard]] Row Known(Tabel tabel, Sleutel key);
  [[nodiscard]] std::vector<Entry> Differences();
  void Describe(Entry& entry, const Row& row);
  void Write(const std::vector<Entry>& entries, Sleutel highest);
  void Insert(Tabel tabel, const Row& row);
  void Remove(Tabel tabel, Sleutel key);
  void Update(const Entry& entry, const Stored& from, const Stored& to);

  Database& database_;
  std::map<QString, QSqlQuery> statements_;
  std::map<Tabel, Rows> rows_;  ///< one row of each table, by its key
  std::vector<Touched> touched_;
  std::map<std::pair<Tabel, Sleutel>, std::size_t> places_;
  /// What the edit wrote first: the reason of all the rest.
  std::optional<std::pair<std::pair<Tabel, Sleutel>, int>> first_;
  std::unordered_map<std::string, std::int64_t> names_;
  std::optional<Last> last_;
  std::optional<Last> pending_;
  /// Set while a step is being undone or redone.
  StepKind kind_ = StepKind::Edit;
  std::int64_t of_ = 0;
  std::int64_t growth_ = 0;
  std::string author_;
};

/// An entry as the columns of kEntryColumns hold it. Throws DatabaseError, with code Corrupt where no program wrote it.
[[nodiscard]] Entry TakeEntry(const QSqlQuery& query);
/// The columns of the table of entries, and the names from theirs.
inline constexpr char kEntryColumns[] =
    "wijziging.nummer, stap, tabel, sleutel, lening, (SELECT CAST(tekst AS BLOB) FROM naam WHERE nummer = "
    "lening_naam), "
    "kolom, (SELECT CAST(tekst AS BLOB) FROM naam WHERE nummer = kolom_naam), veld, oud IS NULL, nieuw IS NULL, oud, "
    "nieuw";

}  // namespace brivane::dossier

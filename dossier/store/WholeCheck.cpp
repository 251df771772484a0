#include "dossier/store/WholeCheck.h"

#include <sqlite3.h>

#include <QRegularExpression>
#include <chrono>

#include "dossier/store/OpeningError.h"
#include "dossier/store/Rows.h"
#include "dossier/store/Schema.h"

namespace brivane::dossier {
namespace {

/// A history of so many entries is checked with the file; opening does not wait for a longer one.
constexpr std::int64_t kShortHistory = 2000;

/// What SQLite's check finds is damage, unless the disk or the memory kept it from looking. `what`: a number of
/// findings for the whole file, or the name of a table.
void CheckWith(const Database& database, const char* what, const QString& pad) {
  Rows findings(database, QStringLiteral("PRAGMA integrity_check(%1)").arg(QLatin1String(what)));
  const std::string_view first = findings.Next() ? findings.Bytes(0) : std::string_view();
  if (first == "ok") return;
  static const QRegularExpression code(QStringLiteral("error code[ =](\\d+)"));
  const QString found = QString::fromUtf8(first.data(), static_cast<qsizetype>(first.size()));
  if (const QRegularExpressionMatch match = code.match(found); match.hasMatch()) {
    const DatabaseError error(static_cast<SqliteCode>(match.captured(1).toInt() & 0xff), "The check was broken off");
    if (!error.IsDamage()) throw DatabaseError(error);
  }
  throw OpeningError(OpeningProblem::Damaged, pad);
}

bool HasLongHistory(const Database& database, int version) {
  if (version < kVersionWithHistory) return false;
  Rows highest(database, QStringLiteral("SELECT max(nummer) FROM wijziging"));
  return highest.Next() && highest.Whole(0) > kShortHistory;
}

}  // namespace

void CheckWhole(const Database& database, int version, const QString& pad) {
  if (!HasLongHistory(database, version)) return CheckWith(database, "1", pad);
  for (const char* table : {"sqlite_schema", "dossier", "persoon", "maatschappij_type", "lening", "vrijekolom",
                            "periode", "voorstel", "stand"}) {
    CheckWith(database, table, pad);
  }
}

CheckBeside::CheckBeside(const QString& pad, int version)
    : file_(pad, Access::Immutable),
      // Where the system gives no thread, the check runs when its verdict is asked.
      check_(std::async(std::launch::async | std::launch::deferred,
                        [this, pad, version] { CheckWhole(file_, version, pad); })) {}

CheckBeside::~CheckBeside() {
  if (!check_.valid()) return;
  // Once is not enough: between two statements it is forgotten.
  do sqlite3_interrupt(file_.Handle());
  while (check_.wait_for(std::chrono::milliseconds(1)) == std::future_status::timeout);
}

void CheckBeside::Verdict() { check_.get(); }

}  // namespace brivane::dossier

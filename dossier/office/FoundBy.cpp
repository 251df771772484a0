#include "dossier/office/FoundBy.h"

#include <QDate>
#include <QRegularExpression>
#include <algorithm>

#include "dossier/office/RowsJson.h"
#include "dossier/store/Database.h"
#include "dossier/store/Rows.h"

namespace brivane::dossier {
namespace {

/// Texts whose words are known, at most.
constexpr std::size_t kMostTexts = 1000;

/// The day that days are counted from.
const QDate kDayZero(1899, 12, 30);

QString Folded(const QString& text) {
  QString folded = text.toCaseFolded().normalized(QString::NormalizationForm_D);
  folded.removeIf([](QChar c) { return c.category() == QChar::Mark_NonSpacing; });
  return folded;
}

/// The words of a text: what stands between letters and digits separates them, but not inside a date.
QStringList WordsOf(const QString& text) {
  static const QRegularExpression separators(QStringLiteral("[^\\p{L}\\p{N}]+"));
  return Folded(text).split(separators, Qt::SkipEmptyParts);
}

QString DateWord(const QDate& date) { return date.toString(QStringLiteral("ddMMyyyy")); }

}  // namespace

const QStringList& FindingWords::WordsOf(std::string_view text) {
  std::string known(text);
  if (const auto found = words_.find(known); found != words_.end()) return found->second;
  if (words_.size() >= kMostTexts) words_.clear();
  QStringList words = dossier::WordsOf(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
  return words_.emplace(std::move(known), std::move(words)).first->second;
}

FoundBy FindingWords::Of(Database& tables) {
  FoundBy found;
  QStringList words;
  Rows& persons = tables.RowsAgain(QStringLiteral(
      "SELECT geboortedatum, CAST(naam_1 AS BLOB), CAST(naam_2 AS BLOB), CAST(naam_3 AS BLOB) FROM persoon ORDER BY "
      "nummer"));
  persons.Start({});
  while (persons.Next()) {
    const std::int64_t days = persons.Whole(0);
    QStringList parts;
    for (int part = 1; part <= 3; ++part) {
      const std::string_view text = persons.Bytes(part);
      if (!text.empty()) parts << QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
      words << WordsOf(text);
    }
    if (days != 0) words << DateWord(kDayZero.addDays(days));
    if (!found.naam.isEmpty()) continue;
    found.naam = parts.join(u' ');
    found.geboortedatum = days;
  }
  persons.Stop();
  Rows& columns = tables.RowsAgain(QStringLiteral(
      "SELECT CAST(omschrijving AS BLOB), CAST(maatschappij_naam AS BLOB), CAST(productnaam AS BLOB), "
      "CAST(productsoort_omschrijving AS BLOB), CAST((SELECT tekst FROM maatschappij_type WHERE code = maatschappij "
      "AND code <> '' ORDER BY volgorde LIMIT 1) AS BLOB) FROM vrijekolom"));
  columns.Start({});
  while (columns.Next()) {
    for (int part = 0; part < 5; ++part) {
      if (const std::string_view text = columns.Bytes(part); !text.empty()) words << WordsOf(text);
    }
  }
  columns.Stop();
  words.sort();
  words.erase(std::unique(words.begin(), words.end()), words.end());
  found.woorden = words.isEmpty() ? QString() : u' ' + words.join(u' ');
  return found;
}

std::string JsonOf(const FoundBy& found) {
  return "{\"naam\":" + JsonText(found.naam.toStdString()) +
         ",\"geboortedatum\":" + std::to_string(found.geboortedatum) +
         ",\"tekst\":" + JsonText(found.woorden.toStdString()) + '}';
}

QStringList WordsTyped(const QString& typed) {
  static const QRegularExpression date(QStringLiteral("\\b(\\d{1,2})[-/.](\\d{1,2})[-/.](\\d{4})\\b"));
  QString text = typed;
  QStringList words;
  for (QRegularExpressionMatch match = date.match(text); match.hasMatch(); match = date.match(text)) {
    const QDate day(match.captured(3).toInt(), match.captured(2).toInt(), match.captured(1).toInt());
    words << (day.isValid() ? DateWord(day) : match.captured(1) + match.captured(2) + match.captured(3));
    text.replace(match.capturedStart(), match.capturedLength(), QStringLiteral(" "));
  }
  return words + WordsOf(text);
}

}  // namespace brivane::dossier

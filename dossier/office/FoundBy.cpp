#include "dossier/office/FoundBy.h"

#include <QDate>
#include <QRegularExpression>
#include <algorithm>
#include <set>

#include "dossier/office/RowsJson.h"
#include "dossier/office/TypedDate.h"
#include "dossier/store/Database.h"
#include "dossier/store/Rows.h"

namespace brivane::dossier {
namespace {

/// Above that many texts their words are forgotten.
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

}  // namespace

const QStringList& FindingWords::WordsOf(std::string_view text) {
  std::string known(text);
  if (const auto found = words_.find(known); found != words_.end()) return found->second;
  QStringList words = dossier::WordsOf(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
  return words_.emplace(std::move(known), std::move(words)).first->second;
}

FoundBy FindingWords::Of(Database& tables) {
  if (words_.size() > kMostTexts) words_.clear();
  FoundBy found;
  QStringList words;
  // A text is that of many columns.
  std::set<const QStringList*> met;
  const auto add = [&](std::string_view text) {
    if (text.empty()) return;
    if (const QStringList& its = WordsOf(text); met.insert(&its).second) words << its;
  };
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
      add(text);
    }
    if (days != 0) words << DayWords(kDayZero.addDays(days));
    if (!found.naam.isEmpty()) continue;
    found.naam = parts.join(u' ');
    found.geboortedatum = days;
  }
  persons.Stop();
  std::set<std::string, std::less<>> companies;
  Rows& columns = tables.RowsAgain(
      QStringLiteral("SELECT CAST(omschrijving AS BLOB), CAST(maatschappij_naam AS BLOB), CAST(productnaam AS BLOB), "
                     "CAST(productsoort_omschrijving AS BLOB), CAST(maatschappij AS BLOB) FROM vrijekolom"));
  columns.Start({});
  while (columns.Next()) {
    for (int part = 0; part < 4; ++part) add(columns.Bytes(part));
    if (const std::string_view code = columns.Bytes(4); !code.empty() && !companies.contains(code))
      companies.emplace(code);
  }
  columns.Stop();
  if (!companies.empty()) {
    // Of companies with the same code the first counts.
    Rows& names = tables.RowsAgain(
        QStringLiteral("SELECT CAST(code AS BLOB), CAST(tekst AS BLOB) FROM maatschappij_type ORDER BY volgorde"));
    names.Start({});
    while (names.Next()) {
      if (const auto company = companies.find(names.Bytes(0)); company != companies.end()) {
        add(names.Bytes(1));
        companies.erase(company);
      }
    }
    names.Stop();
  }
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
  QString text = typed;
  const QStringList days = TakeDays(text);
  return days + WordsOf(text);
}

}  // namespace brivane::dossier

#include "dossier/office/FoundBy.h"

#include <QDate>
#include <QRegularExpression>
#include <QSet>
#include <QSqlQuery>

#include "dossier/office/RowsJson.h"
#include "dossier/store/Database.h"

namespace brivane::dossier {
namespace {

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

QString TextAt(const QSqlQuery& query, int place) { return QString::fromUtf8(query.value(place).toByteArray()); }

template <class Function> void ForEachRow(Database& tables, const char* sql, Function&& function) {
  QSqlQuery query = tables.Prepare(QLatin1String(sql));
  Database::Run(query);
  while (query.next()) function(query);
}

}  // namespace

FoundBy FoundByOf(Database& tables) {
  FoundBy found;
  QSet<QString> words;
  const auto add = [&](const QString& text) {
    for (const QString& word : WordsOf(text)) words.insert(word);
  };
  ForEachRow(
      tables,
      "SELECT geboortedatum, CAST(naam_1 AS BLOB), CAST(naam_2 AS BLOB), CAST(naam_3 AS BLOB) FROM persoon ORDER BY "
      "nummer",
      [&](const QSqlQuery& row) {
        const qint64 days = row.value(0).toLongLong();
        QStringList parts;
        for (int part = 1; part <= 3; ++part) {
          const QString text = TextAt(row, part);
          if (!text.isEmpty()) parts << text;
          add(text);
        }
        if (days != 0) words.insert(DateWord(kDayZero.addDays(days)));
        if (!found.naam.isEmpty()) return;
        found.naam = parts.join(u' ');
        found.geboortedatum = days;
      });
  ForEachRow(
      tables,
      "SELECT DISTINCT CAST(omschrijving AS BLOB), CAST(maatschappij_naam AS BLOB), CAST(productnaam AS BLOB), "
      "CAST(productsoort_omschrijving AS BLOB), CAST((SELECT tekst FROM maatschappij_type WHERE code = maatschappij "
      "AND code <> '' ORDER BY volgorde LIMIT 1) AS BLOB) FROM vrijekolom",
      [&](const QSqlQuery& row) {
        for (int part = 0; part < 5; ++part) add(TextAt(row, part));
      });
  QStringList sorted(words.cbegin(), words.cend());
  sorted.sort();
  found.woorden = sorted.isEmpty() ? QString() : u' ' + sorted.join(u' ');
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

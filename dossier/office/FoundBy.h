#pragma once

#include <QString>
#include <QStringList>
#include <string>
#include <unordered_map>

/// What a client of an office is found by while somebody types.
namespace brivane::dossier {

class Database;

/// What a list shows of a client, and the words that it is found by: names, date of birth, the texts of columns and
/// companies. Each word stands behind a space, in small letters and without accents.
struct FoundBy {
  QString naam;
  qint64 geboortedatum = 0;
  QString woorden;
};

/// Finds that in the tables of a case, time and again: the words of a text are known once it was met.
class FindingWords {
 public:
  [[nodiscard]] FoundBy Of(Database& tables);

 private:
  [[nodiscard]] const QStringList& WordsOf(std::string_view text);

  std::unordered_map<std::string, QStringList> words_;
};

/// Of the tables of a case.
[[nodiscard]] inline FoundBy FoundByOf(Database& tables) { return FindingWords().Of(tables); }

/// The same as an object for the server's functions.
[[nodiscard]] std::string JsonOf(const FoundBy& found);

/// The words of what was typed, as they are compared; a date in any way of writing it is one word.
[[nodiscard]] QStringList WordsTyped(const QString& typed);

}  // namespace brivane::dossier

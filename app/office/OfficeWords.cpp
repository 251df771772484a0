#include "app/office/OfficeWords.h"

#include "dossier/office/ConnectionWords.h"

namespace brivane::app {
namespace {

bool IsName(const QString& text) {
  for (const QChar one : text) {
    if (one.isSpace() || one == u';' || one == u'\'' || one == u'\\' || one == u'/') return false;
  }
  return true;
}

/// None where they cannot be read.
dossier::ConnectionWords WordsIn(const QString& text) {
  return dossier::ReadConnectionWords(text).value_or(dossier::ConnectionWords());
}

}  // namespace

WordsFault FaultOf(const QString& words) {
  const QString text = words.trimmed();
  if (text.isEmpty()) return WordsFault::Empty;
  // Also in what cannot be read otherwise.
  if (dossier::HoldsPassword(text)) return WordsFault::Secret;
  const bool good = text.contains(u'=') ? dossier::ReadConnectionWords(text).has_value() : IsName(text);
  return good && !dossier::IsAddress(text) ? WordsFault::None : WordsFault::Unclear;
}

QString FaultText(WordsFault fault) {
  switch (fault) {
    case WordsFault::None: break;
    case WordsFault::Empty: return QStringLiteral("Vul in welk kantoor u wilt openen.");
    case WordsFault::Unclear:
      return QStringLiteral(
          "Dit is geen kantoor. Vul de naam van een service in, of woorden als: host=kantoor dbname=kantoor");
    case WordsFault::Secret:
      return QStringLiteral(
          "Hier hoort geen wachtwoord: wat hier staat wordt onthouden. Laat het weg; zo nodig wordt erom gevraagd.");
  }
  return {};
}

QString FaultLine(WordsFault fault) {
  switch (fault) {
    case WordsFault::None: break;
    case WordsFault::Empty: return QStringLiteral("the office is empty");
    case WordsFault::Unclear: return QStringLiteral("an office is a service name or connection words");
    case WordsFault::Secret:
      return QStringLiteral("a password does not belong in an argument: leave it out, and it is asked for");
  }
  return {};
}

QString OfficeTitle(const QString& words) {
  QString text = words.trimmed();
  if (!text.contains(u'=')) return text;
  dossier::ConnectionWords read = WordsIn(text);
  if (QString service = read[QStringLiteral("service")]; !service.isEmpty()) return service;
  const QString database = read[QStringLiteral("dbname")];
  const QString host = read[QStringLiteral("host")];
  QString name = database.isEmpty() ? QStringLiteral("kantoor") : database;
  // A folder is a socket on this machine.
  if (host.isEmpty() || host.startsWith(u'/')) return name;
  return QStringLiteral("%1 op %2").arg(name, host);
}

QString OfficeAccount(const QString& words) {
  return words.contains(u'=') ? WordsIn(words.trimmed())[QStringLiteral("user")] : QString();
}

}  // namespace brivane::app

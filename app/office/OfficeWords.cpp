#include "app/office/OfficeWords.h"

#include <algorithm>
#include <map>
#include <optional>

namespace brivane::app {
namespace {

using Words = std::map<QString, QString>;

bool IsKeyword(const QString& text) {
  return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar one) {
    return one == u'_' || (one.unicode() < 0x80 && one.isLetterOrNumber());
  });
}

/// Reads keyword = value pairs as libpq does, a value in quotes too; nothing where they cannot be read so. The driver
/// takes a semicolon for a space, wherever it stands.
std::optional<Words> Read(QString text) {
  text.replace(u';', u' ');
  Words words;
  qsizetype at = 0;
  const auto skip = [&] {
    while (at < text.size() && text[at].isSpace()) ++at;
  };
  for (skip(); at < text.size(); skip()) {
    const qsizetype from = at;
    while (at < text.size() && text[at] != u'=' && !text[at].isSpace()) ++at;
    const QString keyword = text.mid(from, at - from).toLower();
    skip();
    if (!IsKeyword(keyword) || at == text.size() || text[at] != u'=') return std::nullopt;
    ++at;
    skip();
    const bool quoted = at < text.size() && text[at] == u'\'';
    if (quoted) ++at;
    QString value;
    while (at < text.size() && (quoted ? text[at] != u'\'' : !text[at].isSpace())) {
      if (text[at] == u'\\' && at + 1 < text.size()) ++at;
      value += text[at++];
    }
    if (quoted && at++ == text.size()) return std::nullopt;
    words[keyword] = value;
  }
  return words;
}

/// Whether an address has a password after the name before its host, or among what follows it.
bool HoldsSecret(const QString& address) {
  const QString after = address.mid(address.indexOf(QLatin1String("://")) + 3);
  return after.left(qMax(after.lastIndexOf(u'@'), qsizetype{0})).contains(u':') ||
         after.contains(QLatin1String("password="), Qt::CaseInsensitive);
}

bool IsName(const QString& text) {
  for (const QChar one : text) {
    if (one.isSpace() || one == u';' || one == u'\'' || one == u'\\' || one == u'/') return false;
  }
  return true;
}

}  // namespace

WordsFault FaultOf(const QString& words) {
  const QString text = words.trimmed();
  if (text.isEmpty()) return WordsFault::Empty;
  // An address may hold a password, and is not what the driver is handed.
  if (text.contains(QLatin1String("://"))) return HoldsSecret(text) ? WordsFault::Secret : WordsFault::Unclear;
  if (!text.contains(u'=')) return IsName(text) ? WordsFault::None : WordsFault::Unclear;
  const std::optional<Words> read = Read(text);
  // Also in what cannot be read otherwise.
  if (text.contains(QLatin1String("password"), Qt::CaseInsensitive) &&
      (!read || read->contains(QStringLiteral("password")) || read->contains(QStringLiteral("sslpassword"))))
    return WordsFault::Secret;
  return read ? WordsFault::None : WordsFault::Unclear;
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
  Words read = Read(text).value_or(Words());
  if (QString service = read[QStringLiteral("service")]; !service.isEmpty()) return service;
  const QString database = read[QStringLiteral("dbname")];
  const QString host = read[QStringLiteral("host")];
  QString name = database.isEmpty() ? QStringLiteral("kantoor") : database;
  // A folder is a socket on this machine.
  if (host.isEmpty() || host.startsWith(u'/')) return name;
  return QStringLiteral("%1 op %2").arg(name, host);
}

QString OfficeAccount(const QString& words) {
  return words.contains(u'=') ? Read(words.trimmed()).value_or(Words())[QStringLiteral("user")] : QString();
}

}  // namespace brivane::app

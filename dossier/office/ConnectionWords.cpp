#include "dossier/office/ConnectionWords.h"

#include <algorithm>

namespace brivane::dossier {
namespace {

constexpr QLatin1String kBeforeHost("://");

bool IsKeyword(const QString& text) {
  return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar one) {
    return one == u'_' || (one.unicode() < 0x80 && one.isLetterOrNumber());
  });
}

/// Whether an address has a password after the name before its host, or among what follows it.
bool AddressHoldsPassword(const QString& address) {
  const QString after = address.mid(address.indexOf(kBeforeHost) + kBeforeHost.size());
  return after.left(qMax(after.lastIndexOf(u'@'), qsizetype{0})).contains(u':') ||
         after.contains(QLatin1String("password="), Qt::CaseInsensitive);
}

}  // namespace

std::optional<ConnectionWords> ReadConnectionWords(QString text) {
  text.replace(u';', u' ');
  ConnectionWords words;
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

bool IsAddress(const QString& text) { return text.contains(kBeforeHost); }

bool HoldsPassword(const QString& text) {
  if (IsAddress(text)) return AddressHoldsPassword(text);
  // A name has none.
  if (!text.contains(u'=') || !text.contains(QLatin1String("password"), Qt::CaseInsensitive)) return false;
  const std::optional<ConnectionWords> words = ReadConnectionWords(text);
  return !words || words->contains(QStringLiteral("password")) || words->contains(QStringLiteral("sslpassword"));
}

}  // namespace brivane::dossier

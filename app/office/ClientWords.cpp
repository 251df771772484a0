#include "app/office/ClientWords.h"

#include <QDate>
#include <QLocale>
#include <QStringList>

namespace brivane::app {

QString BirthText(qint64 days) {
  return days == 0 ? QString() : QDate(1899, 12, 30).addDays(days).toString(QStringLiteral("d-M-yyyy"));
}

QString MomentText(const QDateTime& moment, const QDateTime& now) {
  const QDateTime here = moment.toLocalTime();
  const QDate today = now.toLocalTime().date();
  const char* const form = here.date() == today                 ? "HH:mm"
                           : here.date().year() == today.year() ? "d MMMM HH:mm"
                                                                : "d MMMM yyyy HH:mm";
  return QLocale(QLocale::Dutch, QLocale::Netherlands).toString(here, QLatin1String(form));
}

QString EditorText(const dossier::ClientLine& line, const QDateTime& now) {
  if (line.bewerker.isEmpty()) return {};
  return QStringLiteral("%1, sinds %2").arg(line.bewerker, MomentText(line.bewerkt_sinds, now));
}

QString ChangeText(const dossier::ClientLine& line, const QDateTime& now) {
  if (!line.gewijzigd.isValid()) return {};
  const QString moment = MomentText(line.gewijzigd, now);
  if (line.eigen) return QStringLiteral("%1 door uzelf").arg(moment);
  return line.gewijzigd_door.isEmpty() ? moment : QStringLiteral("%1 door %2").arg(moment, line.gewijzigd_door);
}

QString LineText(const dossier::ClientLine& line, const QDateTime& now) {
  QStringList parts{line.naam};
  if (const QString birth = BirthText(line.geboortedatum); !birth.isEmpty())
    parts << QStringLiteral("geboren %1").arg(birth);
  parts << QStringLiteral("team %1").arg(line.team);
  if (const QString editor = EditorText(line, now); !editor.isEmpty())
    parts << QStringLiteral("in bewerking bij %1").arg(editor);
  if (const QString change = ChangeText(line, now); !change.isEmpty())
    parts << QStringLiteral("gewijzigd %1").arg(change);
  return parts.join(QStringLiteral(", "));
}

}  // namespace brivane::app

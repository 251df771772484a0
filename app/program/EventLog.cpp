#include "app/program/EventLog.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

namespace brivane::dossier {

Logboek::Logboek(const QString& map, Grenzen grenzen) : map_(map), grenzen_(grenzen) {
  QDir().mkpath(map_);
  Open();
}

void Logboek::Schrijf(const QString& regel) {
  const QByteArray bytes =
      (QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz  ")) + regel + u'\n').toUtf8();
  if (bestand_.size() > 0 && bestand_.size() + bytes.size() > grenzen_.bytesPerBestand) Draai();
  if (!bestand_.isOpen()) return;
  bestand_.write(bytes);
  // What was written before a crash is what the log is for.
  bestand_.flush();
}

QString Logboek::Lees() const {
  QByteArray alles;
  for (int nummer = grenzen_.bestanden - 1; nummer >= 0; --nummer) {
    QFile bestand(Naam(nummer));
    if (bestand.open(QIODevice::ReadOnly)) alles += bestand.readAll();
  }
  return QString::fromUtf8(alles);
}

QString Logboek::Naam(int nummer) const {
  return nummer == 0 ? QDir(map_).filePath(QStringLiteral("logboek.txt"))
                     : QDir(map_).filePath(QStringLiteral("logboek.%1.txt").arg(nummer));
}

void Logboek::Open() {
  bestand_.setFileName(Naam(0));
  bestand_.open(QIODevice::WriteOnly | QIODevice::Append);
}

void Logboek::Draai() {
  const qint64 vol = bestand_.size();
  bestand_.close();
  // Another window may have made room already: then the file under that name is no longer the full one.
  if (QFileInfo(Naam(0)).size() == vol) {
    QFile::remove(Naam(grenzen_.bestanden - 1));
    for (int nummer = grenzen_.bestanden - 1; nummer > 0; --nummer) QFile::rename(Naam(nummer - 1), Naam(nummer));
  }
  Open();
}

}  // namespace brivane::dossier

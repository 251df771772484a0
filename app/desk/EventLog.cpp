#include "app/desk/EventLog.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

namespace brivane::app {

EventLog::EventLog(const QString& folder, Limits limits) : folder_(folder), limits_(limits) {
  QDir().mkpath(folder_);
  Open();
}

void EventLog::Write(const QString& line) {
  const QByteArray bytes =
      (QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz  ")) + line + u'\n').toUtf8();
  if (file_.size() > 0 && file_.size() + bytes.size() > limits_.bytesPerFile) Rotate();
  if (!file_.isOpen()) return;
  file_.write(bytes);
  // What was written before a crash is what the log is for.
  file_.flush();
}

QString EventLog::Read() const {
  QByteArray everything;
  for (int number = limits_.files - 1; number >= 0; --number) {
    QFile file(FileName(number));
    if (file.open(QIODevice::ReadOnly)) everything += file.readAll();
  }
  return QString::fromUtf8(everything);
}

QString EventLog::FileName(int number) const {
  return number == 0 ? QDir(folder_).filePath(QStringLiteral("logboek.txt"))
                     : QDir(folder_).filePath(QStringLiteral("logboek.%1.txt").arg(number));
}

void EventLog::Open() {
  file_.setFileName(FileName(0));
  file_.open(QIODevice::WriteOnly | QIODevice::Append);
}

void EventLog::Rotate() {
  const qint64 full = file_.size();
  file_.close();
  // Another window may have made room already: then the file under that name is no longer the full one.
  if (QFileInfo(FileName(0)).size() == full) {
    QFile::remove(FileName(limits_.files - 1));
    for (int number = limits_.files - 1; number > 0; --number) QFile::rename(FileName(number - 1), FileName(number));
  }
  Open();
}

}  // namespace brivane::app

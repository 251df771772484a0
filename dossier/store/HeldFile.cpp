#include "dossier/store/HeldFile.h"

#include <QFile>
#include <QFileInfo>

namespace brivane::dossier {

QString LogOf(const QString& path) { return path + QStringLiteral("-wal"); }
QString RollbackJournalOf(const QString& path) { return path + QStringLiteral("-journal"); }

HeldFile::HeldFile(const QString& path) : path_(path), log_name_(LogOf(path)), file_(path, LockKind::Exclusive) {
  if (QFileInfo::exists(log_name_)) HoldLog();
  // Between the look at the name and the lock another file may have come there; a lock on that one is not this one.
  if (!InPlace()) throw LockError(LockError::Cause::InUse);
}

void HeldFile::HoldLog() {
  if (log_ && log_->Holds(log_name_)) return;
  log_.emplace(log_name_, LockKind::Exclusive);
}

bool HeldFile::InPlace() const { return file_.Holds(path_) && (!log_ || log_->Holds(log_name_)); }

qint64 HeldFile::LogSize() const { return QFileInfo(log_name_).size(); }

void HeldFile::RemoveEmptyLog() {
  if (log_ && log_->Holds(log_name_) && LogSize() == 0) QFile::remove(log_name_);
}

}  // namespace brivane::dossier

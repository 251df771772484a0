#pragma once

#include <QFile>
#include <QString>

namespace brivane::app {

/// The trace and error log of the component: text files in one folder, the newest first to be read.
///
/// `logboek.txt` is written; once it is full it becomes `logboek.1.txt`, that one `logboek.2.txt`, and the
/// oldest is deleted. Procedures and errors stand in it, never what was typed. A folder that cannot be
/// written costs the log, not the work.
class EventLog {
 public:
  struct Limits {
    qint64 bytesPerFile = 1 << 20;
    int files = 3;
  };

  explicit EventLog(const QString& folder) : EventLog(folder, Limits()) {}
  EventLog(const QString& folder, Limits limits);
  EventLog(const EventLog&) = delete;
  EventLog& operator=(const EventLog&) = delete;

  /// Appends a line with the time before it.
  void Write(const QString& line);
  /// Everything that is kept, oldest first.
  [[nodiscard]] QString Read() const;
  [[nodiscard]] QString Folder() const { return folder_; }

 private:
  [[nodiscard]] QString FileName(int number) const;
  void Open();
  void Rotate();

  QString folder_;
  Limits limits_;
  QFile file_;
};

}  // namespace brivane::app

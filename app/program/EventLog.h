#pragma once

#include <QFile>
#include <QString>

namespace brivane::dossier {

/// The trace and error log of the component: text files in one folder, the newest first to be read.
///
/// `logboek.txt` is written; once it is full it becomes `logboek.1.txt`, that one `logboek.2.txt`, and the
/// oldest is deleted. Procedures and errors stand in it, never what was typed. A folder that cannot be
/// written costs the log, not the work.
class Logboek {
 public:
  struct Grenzen {
    qint64 bytesPerBestand = 1 << 20;
    int bestanden = 3;
  };

  explicit Logboek(const QString& map) : Logboek(map, Grenzen()) {}
  Logboek(const QString& map, Grenzen grenzen);
  Logboek(const Logboek&) = delete;
  Logboek& operator=(const Logboek&) = delete;

  /// Appends a line with the time before it.
  void Schrijf(const QString& regel);
  /// Everything that is kept, oldest first.
  [[nodiscard]] QString Lees() const;
  [[nodiscard]] QString Map() const { return map_; }

 private:
  [[nodiscard]] QString Naam(int nummer) const;
  void Open();
  void Draai();

  QString map_;
  Grenzen grenzen_;
  QFile bestand_;
};

}  // namespace brivane::dossier

#pragma once

#include <QString>
#include <QStringList>
#include <memory>

#include "dossier/store/DossierStore.h"
#include "dossier/store/OpeningError.h"

class QTimer;

namespace brivane::dossier {

class Database;
class FileJournal;

/// An open loan file (`.dossier`) with its case in memory. While it is open nobody else can open it, in this
/// process or another. Every change of the case is stored before the procedure that made it returns: in the log beside
/// the file, and within a second in the file itself, where the program has an event loop. Closed in order, the file
/// stands alone.
///
///     auto bestand = DossierFile::Open(pad);   // OpeningError: show its Melding()
/// What follows is in DossierStore.h.
class DossierFile final : public DossierStore {
 public:
  /// Opens a loan file. One that is read-only, or in a folder that is, opens to be read: nothing is written to it or
  /// beside it, every change fails, and others may read it too. Throws OpeningError, and leaves the file as it was.
  [[nodiscard]] static std::unique_ptr<DossierFile> Open(const QString& pad);
  /// Whether what stands under the name begins as a loan file does, whole or not.
  [[nodiscard]] static bool StandsAt(const QString& pad);
  /// Makes a loan file with these contents, complete or not at all. Throws OpeningError; never replaces a file.
  static void Maak(const QString& pad, const DossierGegevens& gegevens);
  /// Makes one of open tables with their history, as they stand. Throws OpeningError; never replaces a file.
  static void Maak(const QString& pad, Database& tables);

  ~DossierFile() override;

  /// Where it stands.
  [[nodiscard]] const QString& Pad() const { return pad_; }
  [[nodiscard]] QString Naam() const override;
  [[nodiscard]] const std::shared_ptr<dossier::Dossier>& Dossier() const override { return dossier_; }
  [[nodiscard]] std::shared_ptr<Edits> GedeeldeBewerkingen() override;
  /// The file was opened to be read.
  [[nodiscard]] bool IsReadOnly() const override { return read_only_; }
  /// The file stands where it was opened: it was not moved, replaced or deleted.
  [[nodiscard]] bool InPlace() const override;
  void SetAuthor(const std::string& name) override;
  [[nodiscard]] std::vector<Entry> Next(StepKind kind) const override;
  std::optional<Done> Take(StepKind kind) override;
  [[nodiscard]] std::unique_ptr<HistoryView> Geschiedenis() const override;
  /// Works the log off now, where no edit is under way and the disk lets it: the file alone holds everything.
  void WorkOff() noexcept override;
  /// Also where this file was moved or deleted.
  void Kopieer(const QString& pad) const override;
  /// The open tables, for what takes them over whole; they stay as they are.
  [[nodiscard]] Database& Tabellen() const;
  /// A full check of the file: what is wrong with it, in SQLite's words; nothing when it is whole.
  [[nodiscard]] QStringList ControleerHeelheid();

 private:
  explicit DossierFile(const QString& pad);
  /// Takes the copy of an earlier version away once a change is stored.
  void ForgetAtFirstEdit(const QString& copy);
  /// Has the log worked off soon after each edit.
  void ComeToRest();

  QString pad_;
  bool read_only_;
  std::shared_ptr<FileJournal> journal_;
  std::shared_ptr<dossier::Dossier> dossier_;
  std::unique_ptr<QTimer> rest_;
  host::Subscription in_log_;
  host::Subscription first_edit_;
};

}  // namespace brivane::dossier

#pragma once

#include <QString>
#include <QStringList>
#include <cstddef>
#include <memory>
#include <string_view>

#include "dossier/model/Dossier.h"
#include "dossier/store/Edits.h"
#include "dossier/store/OpeningError.h"
#include "dossier/store/StoreTrace.h"

class QTimer;

namespace brivane::dossier {

class FileJournal;

/// An open loan file (`.dossier`) with its case in memory. While it is open nobody else can open it, in this
/// process or another. Every change of the case is stored before the procedure that made it returns: in the log beside
/// the file, and within a second in the file itself, where the program has an event loop. Closed in order, the file
/// stands alone.
///
///     auto bestand = DossierFile::Open(pad);   // OpeningError: show its Melding()
///     auto application = std::make_shared<Application>(bestand->Dossier(), hoofdvenster);
///     factories.MaakProcedureTrace = [&](std::string_view control) { return bestand->MakeTrace(control); };
///     ScenarioTransaction scenario(editor, bestand->Bewerkingen());
///     const auto failed = bestand->Bewerkingen().Failed.Connect([&](const StoreFailure& failure) { /* rebind, later */
///     });
///
/// The objects of the case may outlive it; a change then fails.
class DossierFile {
 public:
  /// Opens a loan file. One that is read-only, or in a folder that is, opens to be read: nothing is written to it or
  /// beside it, every change fails, and others may read it too. Throws OpeningError, and leaves the file as it was.
  [[nodiscard]] static std::unique_ptr<DossierFile> Open(const QString& pad);
  /// Whether what stands under the name begins as a loan file does, whole or not.
  [[nodiscard]] static bool StandsAt(const QString& pad);
  /// Makes a loan file with these contents, complete or not at all. Throws OpeningError; never replaces a file.
  static void Maak(const QString& pad, const DossierGegevens& gegevens);

  DossierFile(const DossierFile&) = delete;
  DossierFile& operator=(const DossierFile&) = delete;
  ~DossierFile();

  [[nodiscard]] const QString& Pad() const { return pad_; }
  [[nodiscard]] const std::shared_ptr<dossier::Dossier>& Dossier() const { return dossier_; }
  /// What is stored together, and what could not be stored.
  [[nodiscard]] Edits& Bewerkingen();
  [[nodiscard]] std::shared_ptr<Edits> GedeeldeBewerkingen();
  /// A tracer for one control, bound to this file's edits.
  [[nodiscard]] std::shared_ptr<StoreTrace> MakeTrace(std::string_view control,
                                                      std::shared_ptr<TraceListener> listener = nullptr);
  /// The file was opened to be read.
  [[nodiscard]] bool IsReadOnly() const { return read_only_; }
  /// The file stands where it was opened: it was not moved, replaced or deleted. Where it was, every change fails, and
  /// what is stored can be kept by making another file with Dossier()->Gegevens().
  [[nodiscard]] bool InPlace() const;
  /// Works the log off now, where no edit is under way and the disk lets it: the file alone holds everything.
  void WorkOff() noexcept;
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

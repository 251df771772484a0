#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string_view>

#include "dossier/model/Journal.h"
#include "dossier/store/ChangeLog.h"
#include "dossier/store/Database.h"
#include "dossier/store/EditKeeper.h"
#include "dossier/store/Edits.h"
#include "dossier/store/HeldFile.h"
#include "dossier/store/Reader.h"
#include "dossier/store/Rows.h"
#include "dossier/store/StateChain.h"
#include "dossier/store/StoreErrors.h"
#include "dossier/store/Writer.h"

namespace brivane::dossier {

/// Keeps every change of a case in its loan file. A change that cannot be kept fails with a host error
/// from kStoreError on and a Dutch description; so does every change once the file was closed.
class FileJournal : public Journal, private Edits::Transactions {
 public:
  /// `adopt` loads the memory anew with what the file holds; it may fail, and then nothing more is written. `stored` is
  /// what the file holds now. `held` is the file that the connection works in, or nothing where that is not watched.
  /// `keeper`: nothing where the file itself is what keeps the edits.
  FileJournal(std::unique_ptr<Database> database, const StoredDossier& stored,
              std::function<void(DossierGegevens)> adopt, std::unique_ptr<HeldFile> held = nullptr,
              std::shared_ptr<EditKeeper> keeper = nullptr);
  ~FileJournal() override;

  void SetField(Sleutel kolom, KolomVeld veld, const Waarde& waarde) override;
  Sleutel AddPeriod(Sleutel kolom) override;
  void SetField(Sleutel periode, PeriodeVeld veld, const Waarde& waarde) override;
  void RemovePeriod(Sleutel periode) override;
  void AddColumn(Sleutel lening, KolomGegevens& kolom) override;
  void RemoveColumn(Sleutel kolom) override;
  void MoveColumn(Sleutel kolom, Sleutel lening, std::int16_t Id) override;
  void AddLoan(LeningGegevens& lening) override;
  void RenameLoan(Sleutel lening, const std::string& naam) override;
  void RemoveLoan(Sleutel lening) override;
  void SetPersons(const std::vector<PersoonGegevens>& personen) override;
  void SetAgeLimit(std::int16_t leeftijd) override;
  void SetProposal(std::int16_t voorstel, std::int16_t Vrij_Id, Membership lidmaatschap) override;
  void InOneEdit(const std::function<void()>& body) override { edits_.InOneEdit(body); }

  /// The number of the step that stands to be undone, or of the undo that stands to be taken back; 0 for none. Throws
  /// as a change does.
  [[nodiscard]] std::int64_t NextStep(StepKind kind);
  /// What would be undone or redone next: the entries of that step; none where there is nothing. Throws as a change
  /// does.
  [[nodiscard]] std::vector<Entry> Next(StepKind kind);
  /// Undoes or redoes the next step: an edit of its own. The memory follows. Throws as a change does; nothing is done
  /// where there is no step.
  std::optional<Done> Take(StepKind kind);
  /// The tables were filled anew, outside of any edit: the memory follows. Throws DatabaseError where they cannot be
  /// read.
  void Refilled();
  /// Who works in the file; UTF-8.
  void SetAuthor(std::string name) { log_.SetAuthor(std::move(name)); }

  [[nodiscard]] Edits& Bewerkingen() { return edits_; }
  /// The open file, or nothing once it was closed.
  [[nodiscard]] Database* Bestand() { return database_.get(); }
  /// Works the log off, so that the file alone holds everything; tries, and leaves it for the next time where that
  /// cannot be: an edit is under way, or the disk is full.
  void WorkOff() noexcept;
  /// The file alone holds everything.
  [[nodiscard]] bool AtRest() const { return edits_in_log_ == 0; }
  /// An edit was stored that stands in the log alone.
  host::Event<> InLog;
  /// The file stands where it stood, or is not watched.
  [[nodiscard]] bool InPlace() const { return !held_ || held_->InPlace(); }
  /// Writes nothing more. The objects of the case may live on.
  void Sluit();

 private:
  void Begin() override;
  void Commit() override;
  void Rollback() noexcept override;
  void Reload() noexcept override;

  /// The open file; throws when it was closed or could not be read again after a failure.
  [[nodiscard]] Database& Open();
  /// An UPDATE of one field, prepared once; the value's kind goes with the field.
  [[nodiscard]] Rows& Prepared(std::optional<Rows>& rows, const char* tabel, std::string_view veld,
                               const Waarde& waarde);
  /// Runs a statement that is to change exactly one row.
  static void RunForOne(Rows& rows, const Row& values);
  template <class Change> void Write(Change&& change);
  [[nodiscard]] FileStandsIn FileBefore() const;
  /// What is told of a failure to store.
  [[nodiscard]] host::Error StoringFailed(const DatabaseError& error);

  std::unique_ptr<HeldFile> held_;
  std::shared_ptr<EditKeeper> keeper_;
  std::unique_ptr<Database> database_;
  ChangeLog log_;
  Writer writer_;
  std::function<void(DossierGegevens)> adopt_;
  /// What the case weighs: CaseWeight.h.
  std::int64_t weight_;
  bool unreadable_ = false;
  /// Edits since the log was last worked off; what a killed program left counts as one.
  int edits_in_log_ = 1;
  /// Working off was tried since the newest edit, here or by a program that was killed.
  bool newest_may_be_in_file_ = true;
  /// By the name of the field.
  std::map<std::string_view, std::optional<Rows>> kolomvelden_;
  std::map<std::string_view, std::optional<Rows>> periodevelden_;
  Edits edits_{*this};
};

}  // namespace brivane::dossier

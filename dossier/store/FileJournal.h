#pragma once

#include <QSqlQuery>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string_view>

#include "dossier/model/Journal.h"
#include "dossier/store/Database.h"
#include "dossier/store/Edits.h"
#include "dossier/store/Writer.h"

namespace brivane::dossier {

/// Number of the first host failure of the store: SQLite's result code is added to it.
inline constexpr std::int32_t kStoreError = 1000;

/// Keeps every change of a case in its loan file. A change that cannot be kept fails with a host error
/// from kStoreError on and a Dutch description; so does every change once the file was closed.
class FileJournal : public Journal, private Edits::Transactions {
 public:
  /// `reload` loads the memory anew from the file; it may fail, and then nothing more is written. New keys are given
  /// out from `eerste` on.
  FileJournal(std::unique_ptr<Database> database, Sleutel eerste, std::function<void(Database&)> reload);
  ~FileJournal() override;

  void SetField(Sleutel kolom, KolomVeld veld, const Waarde& waarde) override;
  Sleutel AddPeriod(Sleutel kolom) override;
  void SetField(Sleutel periode, PeriodeVeld veld, const Waarde& waarde) override;
  void RemovePeriod(Sleutel periode) override;
  void AddColumn(Sleutel lening, KolomGegevens& kolom) override;
  void RemoveColumn(Sleutel kolom) override;
  void MoveColumn(Sleutel kolom, Sleutel lening, std::int16_t Id) override;
  void AddLoan(LeningGegevens& lening) override;
  void SetPersons(const std::vector<PersoonGegevens>& personen) override;
  void SetAgeLimit(std::int16_t leeftijd) override;
  void SetProposal(std::int16_t voorstel, std::int16_t Vrij_Id, Membership lidmaatschap) override;
  void InOneEdit(const std::function<void()>& body) override { edits_.InOneEdit(body); }

  [[nodiscard]] Edits& Bewerkingen() { return edits_; }
  /// The open file, or nothing once it was closed.
  [[nodiscard]] Database* Bestand() { return database_.get(); }
  /// Writes nothing more. The objects of the case may live on.
  void Sluit();

 private:
  void Begin() override;
  void Commit() override;
  void Rollback() noexcept override;
  void Reload() noexcept override;

  /// The open file; throws when it was closed or could not be read again after a failure.
  [[nodiscard]] Database& Open();
  [[nodiscard]] QSqlQuery& Prepared(std::optional<QSqlQuery>& query, const QString& sql);
  /// Runs a statement that is to change exactly one row.
  static void RunForOne(QSqlQuery& query);
  template <class Change> void Write(Change&& change);

  std::unique_ptr<Database> database_;
  Writer writer_;
  std::function<void(Database&)> reload_;
  bool unreadable_ = false;
  std::optional<QSqlQuery> begin_;
  std::optional<QSqlQuery> commit_;
  /// By the name of the field.
  std::map<std::string_view, std::optional<QSqlQuery>> kolomvelden_;
  std::map<std::string_view, std::optional<QSqlQuery>> periodevelden_;
  std::optional<QSqlQuery> verwijder_periode_;
  Edits edits_{*this};
};

}  // namespace brivane::dossier

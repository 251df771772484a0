#pragma once

#include <QSplitter>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "app/program/TraceLog.h"
#include "app/screen/KolomScreen.h"
#include "app/screen/KolommenTree.h"
#include "dossier/model/DossierControle.h"
#include "dossier/store/DossierFile.h"
#include "dossier/store/ScenarioTransaction.h"

namespace brivane::dossier {

class Opname;

/// An open loan file on the screen: its loans and columns on the left, the column on the right.
///
/// A column is left only when its editor lets go. Every operation that leaves one asks first and answers
/// whether it was done.
class Dossierscherm final : public QSplitter {
  Q_OBJECT

 public:
  /// `hoofdvenster` owns the editor's modal forms; `logboek` and `opname` outlive the screen.
  Dossierscherm(std::unique_ptr<DossierBestand> bestand, std::shared_ptr<host::Hoofdvenster> hoofdvenster,
                Logboek& logboek, Opname& opname, QWidget* parent = nullptr);
  ~Dossierscherm() override;

  [[nodiscard]] const DossierBestand& Bestand() const { return *bestand_; }
  [[nodiscard]] Dossier& Gegevens() { return *bestand_->Dossier(); }
  [[nodiscard]] Kolomscherm& Kolom() { return *kolom_; }
  [[nodiscard]] Kolommenboom& Boom() { return *boom_; }
  [[nodiscard]] Scenarioopslag& Scenario() { return *scenarioopslag_; }
  /// What is on the screen: a loan, or a column of it.
  [[nodiscard]] const Plek& Getoond() const { return kolom_->Getoond(); }

  bool MagVerlaten();
  bool GaNaar(const Plek& plek);
  /// To the next (1) or previous (-1) column, past the end of a loan too.
  bool GaVerder(int stap);
  /// Puts the focus in the tree, or in the column when it is in the tree.
  void WisselFocus();

  /// A new column in the loan that is shown, its description ready to be typed.
  bool VoegToe();
  bool Dupliceer();
  bool Verplaats(const Plek& kolom, std::int16_t naarLen_Id);
  /// A version of the column on the screen for a loan of the new situation.
  bool MaakAfwijking(std::int16_t Len_Id);
  /// Asks first. What is being typed in the column goes with it.
  bool Verwijder();
  bool NieuweLening(const QString& naam);
  bool SetClient(const std::vector<PersoonGegevens>& personen, std::int16_t leeftijd);
  /// The complete check of every column, after the box that is being edited was handed over; nothing where
  /// that was refused.
  [[nodiscard]] std::optional<std::vector<Bevinding>> Controleer();

 signals:
  /// Another loan or column is shown, or there are others than before.
  void plekGewijzigd();
  /// A change is in the file.
  void opgeslagen();
  /// The host's check after a column was left: how many things there are to look at.
  void aandachtspunten(std::size_t aantal);

 private:
  host::HostFactories Fabrieken();
  void Verbind(Opname& opname);
  void Toon(const Plek& plek);
  void Vernieuw();
  /// Runs a change of the case; a failure is told. Answers whether it was done.
  bool Probeer(const std::function<void()>& wijziging);
  void MeldFout(const host::ErrorRecord& fout);
  void PlanHerbinden();
  void Herbind();

  Logboek& logboek_;
  std::shared_ptr<Traceerlog> traceerlog_;
  std::unique_ptr<DossierBestand> bestand_;
  std::shared_ptr<Application> application_;
  Kolommenboom* boom_;
  Kolomscherm* kolom_;
  std::unique_ptr<Scenarioopslag> scenarioopslag_;
  bool verlaat_ = false;    ///< a column is being left: what the tree selects meanwhile is not followed
  bool herbinden_ = false;  ///< memory was loaded anew; the editor is to be bound anew
};

}  // namespace brivane::dossier

#pragma once

#include <QSplitter>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "app/desk/Messages.h"
#include "app/desk/TraceLog.h"
#include "app/screen/KolomScreen.h"
#include "app/screen/ListPanel.h"
#include "dossier/model/Application.h"
#include "dossier/model/DossierControle.h"
#include "dossier/store/DossierFile.h"
#include "dossier/store/ScenarioTransaction.h"

namespace brivane::app {

class Recording;

/// An open case on the screen: its loans and columns on the left, the column on the right.
///
/// A column is left only when its editor lets go. Every operation that leaves one asks first and answers
/// whether it was done.
class DossierScreen final : public QSplitter {
  Q_OBJECT

 public:
  /// `hoofdvenster` owns the editor's modal forms; `eventLog` and `recording` outlive the screen. `instrument` may be
  /// nothing.
  DossierScreen(std::unique_ptr<dossier::DossierStore> store, std::shared_ptr<host::Hoofdvenster> hoofdvenster,
                EventLog& eventLog, Recording& recording, const Instrument& instrument = nullptr,
                QWidget* parent = nullptr);
  ~DossierScreen() override;

  [[nodiscard]] dossier::DossierStore& Store() { return *store_; }
  [[nodiscard]] const dossier::DossierStore& Store() const { return *store_; }
  /// Where the open loan file stands; empty where it is no file.
  [[nodiscard]] QString Path() const;
  [[nodiscard]] dossier::Dossier& Dossier() { return *store_->Dossier(); }
  [[nodiscard]] KolomScreen& Kolom() { return *kolom_; }
  [[nodiscard]] KolommenTree& Tree() { return *tree_; }
  [[nodiscard]] dossier::ScenarioTransaction& Scenario() { return *scenario_; }
  /// What is on the screen: a loan, or a column of it.
  [[nodiscard]] const Place& Shown() const { return kolom_->Shown(); }

  /// Also where it could not be left and was removed instead: its loan is shown then.
  bool MayLeave();
  bool GoTo(const Place& place);
  /// To the next (1) or previous (-1) column, past the end of a loan too.
  bool GoOn(int step);
  /// Puts the focus in the tree, or in the column when it is in the tree.
  void SwitchFocus();
  /// Puts the focus in the box that filters the list.
  void EnterFilter() { list_->EnterFilter(); }
  /// How wide a person wants the list; it may be narrower where the editor needs the room.
  [[nodiscard]] int WantedListWidth() const { return wantedWidth_; }
  void SetWantedListWidth(int pixels);

  /// A new column in the loan that is shown, its description ready to be typed.
  bool AddKolom(dossier::Invoer invoer = dossier::Invoer::Bedragen);
  /// A copy of the column on the screen in a loan, its own or another.
  bool DuplicateKolom(std::int16_t toLen_Id);
  bool MoveKolom(const Place& kolom, std::int16_t toLen_Id);
  /// A version of the column on the screen for a loan of the new situation.
  bool MakeAfwijking(std::int16_t Len_Id);
  /// What is being typed in the column goes with it. It can be undone, so nothing is asked.
  bool RemoveKolom();
  /// Renames or removes the loan that is shown, or that the column shown belongs to; not that of the current situation.
  bool RenameLening(const QString& name);
  bool RemoveLening();

  /// What Undo (or Redo) would take back (or do again), in words; empty where there is nothing. Where that cannot be
  /// read it says so, and Take tells why.
  [[nodiscard]] QString NextStep(dossier::StepKind kind);
  /// Undoes or redoes one step, and shows the column concerned with the focus where the change was. A text that is
  /// being typed is handed over before; another column is left as ever. Not done where that is refused.
  bool Take(dossier::StepKind kind);
  bool AddLening(const QString& name);
  bool SetClient(const std::vector<dossier::PersoonGegevens>& personen, std::int16_t leeftijd);
  /// Who works in the file from now on.
  void SetAuthor(const QString& name) { store_->SetAuthor(name.toStdString()); }
  /// Has the file alone hold everything now, and not within a second.
  void WorkOff() { store_->WorkOff(); }
  /// Others stored something, and the memory has it: shows that, with the place, the focus and what is being typed
  /// kept.
  void Reread();
  /// It may be edited now, or may no longer be.
  void FollowRights();
  /// The complete check of every column, after the box that is being edited was handed over; nothing where
  /// that was refused.
  [[nodiscard]] std::optional<std::vector<dossier::Finding>> Check();

 signals:
  /// Another loan or column is shown, or there are others than before.
  void placeChanged();
  /// A change is in the file.
  void stored();
  /// What others stored stands on the screen.
  void reread();
  /// The host's check after a column was left: how many things there are to look at.
  void findingsCounted(std::size_t count);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  EditorHost MakeEditorHost(const Instrument& instrument);
  host::HostFactories Factories();
  void Connect(Recording& recording);
  void Show(const Place& place);
  void Refresh();
  /// Whether there is such a loan or column.
  [[nodiscard]] bool Exists(const Place& place);
  /// Removes the column that is shown and shows another place.
  bool Remove(const Place& next);
  /// Runs a change of the case; a failure is told. Answers whether it was done.
  bool Try(const std::function<void()>& change);
  /// Divides the width between the list and the editor.
  void GiveWay();
  void TellFailure(const host::ErrorRecord& error, Consequence ofReloading = Consequence::Reloaded);
  void PlanRebind();
  /// Where a step of the history shows: the column or loan that it is about, if that is there now.
  [[nodiscard]] std::optional<Place> PlaceOf(const dossier::Entry& entry);
  [[nodiscard]] std::vector<dossier::Entry> Next(dossier::StepKind kind);
  void ShowStep(const dossier::Done& done);
  void Rebind();

  EventLog& eventLog_;
  Recording& recording_;
  std::shared_ptr<TraceLog> traceLog_;
  host::Subscriptions subscriptions_;
  std::unique_ptr<dossier::DossierStore> store_;
  std::shared_ptr<dossier::Application> application_;
  ListPanel* list_;
  KolommenTree* tree_;
  KolomScreen* kolom_;
  std::unique_ptr<dossier::ScenarioTransaction> scenario_;
  bool leaving_ = false;  ///< a column is being left: what the tree selects meanwhile is not followed
  int wantedWidth_;
  bool rebind_ = false;  ///< memory was loaded anew; the editor is to be bound anew
};

}  // namespace brivane::app

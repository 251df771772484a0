#pragma once

#include <QString>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "dossier/model/Dossier.h"
#include "dossier/store/Edits.h"
#include "dossier/store/HistoryView.h"
#include "dossier/store/StoreTrace.h"

namespace brivane::dossier {

/// A case that is open, with what keeps it: a loan file, or a client of an office. Every change of the case is stored
/// before the procedure that made it returns, and whatever stores it, the edits, the way back and the history are the
/// same.
///
///     auto application = std::make_shared<Application>(store->Dossier(), hoofdvenster);
///     factories.MaakProcedureTrace = [&](std::string_view control) { return store->MakeTrace(control); };
///     ScenarioTransaction scenario(editor, store->Bewerkingen());
///     const auto failed = store->Bewerkingen().Failed.Connect([&](const StoreFailure& failure) { /* rebind, later */
///     });
///
/// The objects of the case may outlive it; a change then fails.
class DossierStore {
 public:
  DossierStore() = default;
  DossierStore(const DossierStore&) = delete;
  DossierStore& operator=(const DossierStore&) = delete;
  virtual ~DossierStore() = default;

  /// What a person calls it: the name of the file without its ending, or of the client.
  [[nodiscard]] virtual QString Naam() const = 0;
  [[nodiscard]] virtual const std::shared_ptr<dossier::Dossier>& Dossier() const = 0;
  /// What is stored together, and what could not be stored.
  [[nodiscard]] virtual std::shared_ptr<Edits> GedeeldeBewerkingen() = 0;
  [[nodiscard]] Edits& Bewerkingen() { return *GedeeldeBewerkingen(); }
  /// A tracer for one control, bound to these edits.
  [[nodiscard]] std::shared_ptr<StoreTrace> MakeTrace(std::string_view control,
                                                      std::shared_ptr<TraceListener> listener = nullptr) {
    return std::make_shared<StoreTrace>(control, GedeeldeBewerkingen(), std::move(listener));
  }

  /// It is there to be read: every change fails.
  [[nodiscard]] virtual bool IsReadOnly() const = 0;
  /// What keeps it is there where it was when it was opened. Where it is not, every change fails, and what is stored
  /// can be kept by making a file with Dossier()->Gegevens().
  [[nodiscard]] virtual bool InPlace() const = 0;
  /// Who works in it, as its history names them; an office knows that itself.
  virtual void SetAuthor(const std::string& name) = 0;
  /// What would be undone (Undo) or redone (Redo) next: the entries of that step, the reason of all the rest first.
  /// None where there is nothing, or where it is only read. Throws host::Error.
  [[nodiscard]] virtual std::vector<Entry> Next(StepKind kind) const = 0;
  /// Undoes or redoes that step, where it is kept and in memory: objects of what came back are new. Nothing where there
  /// is no step. Throws host::Error, and then nothing has changed.
  virtual std::optional<Done> Take(StepKind kind) = 0;
  /// The history to be looked through; it goes before this object.
  [[nodiscard]] virtual std::unique_ptr<HistoryView> Geschiedenis() const = 0;
  /// Has what is stored stand in its last place now and not soon, where there is a difference.
  virtual void WorkOff() noexcept = 0;
  /// Makes a loan file of it, with its history, complete or not at all. Throws OpeningError; never replaces a file.
  virtual void Kopieer(const QString& pad) const = 0;
};

}  // namespace brivane::dossier

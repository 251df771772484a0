#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "app/recording/Recorder.h"
#include "dossier/model/Application.h"
#include "replay/instrument/InstrumentedHost.h"
#include "replay/play/Transcript.h"
#include "scenario/frmScenario.h"
#include "toolkits/memory/Toolkit.h"
#include "vrijekolom/VrijeKolom.h"

namespace brivane::dossier {

/// A long session of an adviser on the reference host's sample case, recorded, with everything that happens to the
/// host and every event logged live. On which toolkit, a subclass says.
class Opnamesessie {
 public:
  virtual ~Opnamesessie() = default;

  /// Works through every control of the editor, its explanation and the year-by-year form.
  void Speel();

  /// What was logged live, one line each.
  std::vector<std::string> live;
  /// The controls that took an action: "TxtBd", "optLast(2)", on the form "frmScenario.cmdOK".
  std::set<std::string> bediend;
  int acties = 0;

  [[nodiscard]] Opnemer& Opname() { return *opnemer_; }
  [[nodiscard]] dossier::Dossier& Dossier() { return *dossier_; }

  void Bind(std::int16_t Len_Id, std::int16_t Vrij_Id);
  /// Acts on a control of the editor; answers message boxes in turn.
  controls::Outcome Doe(const std::string& naam, const controls::Action& actie, int index = frame::kNoIndex,
                        std::deque<host::MessageAnswer> antwoorden = {});

 protected:
  Opnamesessie();

  /// Begins the recording. Before the editor is made.
  void NeemOp(controls::Surface& vlak);
  /// Ends the recorder, which must go before the surface that it follows.
  void LaatLos() { opnemer_.reset(); }
  /// Follows the events of the editor.
  void Volg(brivane::VrijeKolom& editor);
  [[nodiscard]] host::MessageAnswer Antwoord(const std::string& titel, const std::string& tekst,
                                             host::MessageStyle stijl);

  /// Does something while the next step lets waiting events run.
  virtual void LaatWachten(std::function<void()> daad) = 0;
  /// Does something while the next form is open.
  virtual void OpFormulier(std::function<void(controls::Surface&)> werk) = 0;

  std::shared_ptr<dossier::Dossier> dossier_;
  replay::Transcript transcript_;
  replay::InstrumentedHost host_;
  brivane::VrijeKolom* editor_ = nullptr;
  host::Subscriptions subscriptions_;

 private:
  controls::Outcome Doe(controls::Surface& vlak, const std::string& naam, const controls::Action& actie, int index);
  bool Verlaat(std::deque<host::MessageAnswer> antwoorden = {});

  void Keuzes();
  void Looptijd();
  void Product();
  void Toelichting();
  void Formulier();

  controls::Surface* vlak_ = nullptr;
  std::unique_ptr<Opnemer> opnemer_;
  std::deque<host::MessageAnswer> antwoorden_;
  host::Subscription gesloten_;  ///< to the form that was opened last
};

/// Replays a document and answers its lines, without those that mark the steps.
[[nodiscard]] std::vector<std::string> Regels(const replay::Document& document);

}  // namespace brivane::dossier

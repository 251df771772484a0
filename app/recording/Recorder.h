#pragma once

#include <functional>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "controls/Action.h"
#include "dossier/model/Dossier.h"
#include "replay/document/Document.h"

namespace brivane::dossier {

/// What the host itself does to the editor.
using Hostdaad = std::variant<replay::BindStep, replay::ValidationStep, replay::BackColorStep, replay::BeeindigenStep>;

/// Records what an adviser and the host do to one editor as a replay document, which starts from the case as it
/// is now.
///
///     auto surface = toolkit.MakeSurface(vrijekolom::kOntwerp);
///     Opnemer opnemer(dossier, controls::Surface::Of(*surface), "nl_NL");
///     VrijeKolom editor(*surface, toolkit, factories);
///     opnemer.Doe(replay::BindStep{0, 1}, [&] { editor.SetApplication(application, 0, 1); });
///     ...
///     const std::string text = replay::WriteDocument(opnemer.Document());
///
/// A replay begins with a new editor, so record one from its making. Actions and sizes are seen at the surface;
/// the host passes everything else through Doe and Beantwoord. Whatever changes the case between two steps cannot be
/// replayed, and ends the recording before the second of them.
///
/// The surface outlives this object, which is not destroyed during a step.
class Opnemer final : public controls::ActionListener {
 public:
  /// `taal` is the locale of the messages, such as "nl_NL".
  Opnemer(std::shared_ptr<const Dossier> dossier, controls::Surface& editor, std::string taal);
  ~Opnemer() override;
  Opnemer(const Opnemer&) = delete;
  Opnemer& operator=(const Opnemer&) = delete;

  /// Runs `uitvoering`, which does `daad`, as one step.
  void Doe(Hostdaad daad, const std::function<void()>& uitvoering);
  /// A message box of the editor was answered.
  void Beantwoord(host::MessageAnswer antwoord);
  /// Ends the recording, before the step that is running, if any.
  void Stop();
  /// The same because what goes on cannot be replayed, and tells so.
  void Breek();

  [[nodiscard]] bool Loopt() const { return loopt_; }
  [[nodiscard]] const replay::Document& Document() const { return document_; }

  /// The recording was ended by something that is no step. Called from within a step, at times.
  std::function<void()> gebroken;

  void Before(controls::AnyControl& control, const controls::Action& action) override;
  void After(controls::AnyControl& control, const controls::Action& action,
             std::optional<controls::Outcome> outcome) override;
  void Sizing(controls::Surface& surface, host::Twips width, host::Twips height) override;

 private:
  using Wat = decltype(replay::Step::what);

  /// A step that is running, and the surface or form that it acts on.
  struct Lopend {
    std::vector<replay::Step>* lijst;
    const controls::Surface* vlak;
  };

  /// Whether the next outermost step starts from the case as the last one left it.
  [[nodiscard]] bool SluitAan() const;
  /// False where a document has no place for the step; the recording has ended then.
  bool Begin(Wat wat, const controls::Surface& vlak);
  void Eindig();
  [[nodiscard]] replay::Step& Huidige() { return lopend_.back().lijst->back(); }
  /// Records a step of the host; false where the recording does not take it.
  bool BeginHostdaad(Wat wat);

  std::shared_ptr<const Dossier> dossier_;
  controls::Surface& editor_;
  replay::Document document_;
  replay::Json stand_;  ///< the case as the last outermost step left it
  std::vector<Lopend> lopend_;
  bool loopt_ = true;
};

}  // namespace brivane::dossier

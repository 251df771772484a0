#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "dossier/model/Dossier.h"
#include "replay/Document.h"
#include "replay/Transcript.h"
#include "replay/instrument/InstrumentedHost.h"
#include "scenario/frmScenario.h"
#include "toolkits/headless/Toolkit.h"
#include "vrijekolom/VrijeKolom.h"

namespace brivane::replay {

/// A document's session: the real controls on the headless toolkit and a host in memory.
///
///     const Document document = ReadDocument(text);
///     Session session(document, [](std::string_view line) { std::cout << line << '\n'; });
///     session.Run();
///
/// The document must outlive the session.
class Session {
 public:
  Session(const Document& document, LineSink sink);
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;
  ~Session();

  /// Makes the controls and runs the steps, once. Throws BadInput at a step that picks an entry or names a
  /// row that is not there, having passed on no line of it; whatever the logic reports is no failure of Run.
  void Run();

  /// Counts the accesses of the host; more faults can be planned here before Run.
  [[nodiscard]] AccessLedger& Ledger() { return host_.Ledger(); }
  /// The case as the session left it.
  [[nodiscard]] dossier::Dossier& Case() { return *case_; }
  /// The editor; nothing before Run, and when it could not be made.
  [[nodiscard]] VrijeKolom* Editor() { return editor_.get(); }

 private:
  /// A year-by-year form that is open.
  struct OpenForm {
    headless::Form* window;
    frmScenario* form;
  };
  /// A step that is running.
  struct Running {
    const Step* step;
    std::string number;
    OpenForm* on;  ///< the form that the step acts on; nothing for the editor
    std::size_t answers = 0;
    std::size_t pending = 0;
  };

  void Equip();
  void MakeEditor();

  void RunStep(const Step& step, std::string number, OpenForm* on);
  void RunPending(Running& running);
  void RunModal(headless::Form& window);

  void Do(const BindStep& step, const Running& running);
  void Do(const ValidationStep& step, const Running& running);
  void Do(const BackColorStep& step, const Running& running);
  void Do(const BeeindigenStep& step, const Running& running);
  void Do(const ResizeStep& step, const Running& running);
  void Do(const ActStep& step, const Running& running);
  void Do(const ScenarioStep& step, const Running& running);
  void Do(const CloseStep& step, const Running& running);
  void Do(const DumpStep& step, const Running& running);

  [[nodiscard]] headless::Surface& EditorSurface() { return headless::Surface::Of(*surface_); }
  [[nodiscard]] headless::AnyControl& Control(const ActStep& act, const Running& running);
  /// The action of a step, its entry looked up; throws BadInput when the list has no such entry.
  [[nodiscard]] headless::Action Action(const ActStep& act, headless::AnyControl& control, const Running& running);
  /// Throws BadInput when the step cannot run as it is written.
  void CheckStep(const Running& running);
  [[nodiscard]] host::MessageAnswer Answer(const std::string& title, const std::string& text, host::MessageStyle style);

  const Document& document_;
  Transcript transcript_;
  headless::Toolkit toolkit_;
  std::shared_ptr<dossier::Dossier> case_;
  InstrumentedHost host_;
  std::unique_ptr<host::Surface> surface_;
  std::unique_ptr<VrijeKolom> editor_;
  frmScenario* opening_ = nullptr;  ///< the form that is about to be shown
  std::vector<Running*> running_;
  /// Found while the logic was running: kept from its error handlers, and thrown when it is done.
  std::optional<BadInput> problem_;
};

}  // namespace brivane::replay

#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "dossier/model/Application.h"
#include "dossier/model/Dossier.h"
#include <brivane/controls/Dump.h>
#include <brivane/toolkits/memory/Toolkit.h>
#include <brivane/vrijekolom/VrijeKolom.h>

namespace brivane::faults {

/// What the tracers of an editor and its explanation control saw. Needs no memory of its own.
struct Traced {
  std::size_t running = 0;  ///< procedures that were entered and have not ended
  int errors = 0;           ///< error handlers that began
  int reports = 0;          ///< reports that reached the host
  int unbalanced = 0;       ///< exits and failures of what was not running

  static constexpr std::size_t kDeepest = 64;
  std::array<std::string_view, kDeepest> names;
};

/// The real editor on the toolkit in memory and a case in memory, driven through the doors of its controls.
class Workbench {
 public:
  explicit Workbench(std::shared_ptr<dossier::Dossier> dossier);

  void Bind(std::int16_t Len_Id, std::int16_t Vrij_Id) { editor_->SetApplication(application_, Len_Id, Vrij_Id); }
  controls::Outcome Do(std::string_view control, const controls::Action& action, int index = frame::kNoIndex) {
    return Find(control, index).Perform(action);
  }
  [[nodiscard]] controls::AnyControl& Find(std::string_view control, int index = frame::kNoIndex) {
    return *controls::Surface::Of(*surface_).Find(control, index);
  }
  [[nodiscard]] controls::Surface& Surface() { return controls::Surface::Of(*surface_); }
  [[nodiscard]] brivane::VrijeKolom& Editor() { return *editor_; }
  [[nodiscard]] memory::Toolkit& Toolkit() { return toolkit_; }
  [[nodiscard]] dossier::Dossier& Case() { return *application_->Bestand(); }
  [[nodiscard]] Traced& Trace() { return *traced_; }

  /// What a person sees: the state of every control on show.
  [[nodiscard]] std::vector<controls::ControlDump> OnShow();

 private:
  memory::Toolkit toolkit_;
  std::shared_ptr<Traced> traced_ = std::make_shared<Traced>();
  std::shared_ptr<dossier::Application> application_;
  std::unique_ptr<host::Surface> surface_;
  std::unique_ptr<brivane::VrijeKolom> editor_;
  host::Subscription reports_;
};

}  // namespace brivane::faults

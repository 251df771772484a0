#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include <brivane/host/model/DossierControle.h>
#include <brivane/host/model/ProcedureTrace.h>

namespace brivane::host {

/// The two host classes that a control instantiates itself. Each factory is called on first use and
/// is told the name of the asking control ("VrijeKolom" or "Toelichting"); the object is kept for
/// the life of the control. A factory that answers nothing makes the using procedure fail with error 91.
struct HostFactories {
  /// Asked by each of the two controls at the first procedure that it runs, which is while it is made; anew after
  /// Unbind.
  std::function<std::shared_ptr<ProcedureTrace>(std::string_view control)> MaakProcedureTrace;
  /// Asked by the editor at its first complete check; GeenDossierControle is for a host that has none.
  std::function<std::shared_ptr<DossierControle>(std::string_view control)> MaakDossierControle;
};

}  // namespace brivane::host

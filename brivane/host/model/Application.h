#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include <brivane/host/controls/ListBox.h>
#include <brivane/host/model/Codetabellen.h>
#include <brivane/host/model/Dossier.h>
#include <brivane/host/model/Hoofdvenster.h>
#include <brivane/host/model/ProcedureTrace.h>
#include <brivane/host/model/Uitgangspunten.h>

namespace brivane::host {

/// The host application object, the root of the host's model.
class Application {
 public:
  virtual ~Application() = default;

  [[nodiscard]] virtual std::shared_ptr<host::Dossier> Dossier() = 0;
  [[nodiscard]] virtual std::shared_ptr<host::Uitgangspunten> Uitgangspunten() = 0;
  [[nodiscard]] virtual std::shared_ptr<host::Hoofdvenster> Hoofdvenster() = 0;
  [[nodiscard]] virtual std::shared_ptr<host::Codetabellen> Codetabellen() = 0;

  /// Adds the entries of a code table to the list, in table order, and selects the one whose code is
  /// given, if any. Clears nothing. The component passes an empty `leeg` and leaves out `keuze`.
  virtual void VulCombo(const std::shared_ptr<host::Codetabellen>& bron, std::string_view tabel, ListBox& lijst,
                        const std::string& code, const std::string& leeg,
                        std::optional<std::int32_t> keuze = std::nullopt) = 0;
  /// The code of the entry of a code table that shows that text; empty when there is none.
  [[nodiscard]] virtual std::string ZoekCode(const std::shared_ptr<host::Codetabellen>& bron, std::string_view tabel,
                                             const std::string& tekst) = 0;

  /// Shows or logs the error that the tracer's record describes.
  virtual void ReportError(ProcedureTrace& trace) = 0;
};

}  // namespace brivane::host

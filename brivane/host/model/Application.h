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

/// The host application object, the root of the host's model. Each member that answers nothing where the controls need
/// an object ends the procedure that asked with error 91 (ErrorNumber::ObjectMissing).
///
/// What holds for all of it: \ref threads, \ref ownership, \ref callbacks, \ref failures.
class Application {
 public:
  virtual ~Application() = default;

  /// The case that is open. Asked at every binding, of the editor and of the explanation control inside it, and at a
  /// complete check; it may be another object each time. Needed.
  [[nodiscard]] virtual std::shared_ptr<host::Dossier> Dossier() = 0;
  /// The assumptions of the case. Asked by "Scenario invullen" alone, which fails without.
  [[nodiscard]] virtual std::shared_ptr<host::Uitgangspunten> Uitgangspunten() = 0;
  /// The owner of the year-by-year form, for the toolkit in use (qt::Hoofdvenster). Asked by "Scenario invullen";
  /// nothing leaves it to the toolkit, and with Qt it is the active window then.
  [[nodiscard]] virtual std::shared_ptr<host::Hoofdvenster> Hoofdvenster() = 0;
  /// What the two members below are handed as `bron`; nothing where the host has no need of it.
  [[nodiscard]] virtual std::shared_ptr<host::Codetabellen> Codetabellen() = 0;

  /// Adds the entries of a code table to the list, in table order, and selects the one whose code is given, if any.
  /// Clears nothing. The component passes an empty `leeg` and leaves out `keuze`, and the table is always
  /// codes::kMaatschappijTabel. Selecting raises the list's Click, so it is done once, after the last entry. The list
  /// is lent for the time of the call.
  virtual void VulCombo(const std::shared_ptr<host::Codetabellen>& bron, std::string_view tabel, ListBox& lijst,
                        const std::string& code, const std::string& leeg,
                        std::optional<std::int32_t> keuze = std::nullopt) = 0;
  /// The code of the entry of a code table that shows that text; empty when there is none. Asked when the adviser
  /// chooses a company.
  [[nodiscard]] virtual std::string ZoekCode(const std::shared_ptr<host::Codetabellen>& bron, std::string_view tabel,
                                             const std::string& tekst) = 0;

  /// Shows or logs the error that the tracer's record describes; `trace` is what the host's own factory made, lent for
  /// the time of the call. Called once for each procedure of a control that failed. Input that is refused never comes
  /// here. A failure of this call goes to the caller of the procedure.
  virtual void ReportError(ProcedureTrace& trace) = 0;
};

}  // namespace brivane::host

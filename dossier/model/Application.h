#pragma once

#include <memory>
#include <string>
#include <vector>

#include "dossier/model/Dossier.h"
#include "dossier/model/Tracer.h"
#include <brivane/host/Event.h>
#include <brivane/host/model/Application.h>

namespace brivane::dossier {

/// The host's assumptions: the age limit of the case.
class Uitgangspunten : public host::Uitgangspunten {
 public:
  explicit Uitgangspunten(std::shared_ptr<const dossier::Dossier> dossier) : dossier_(std::move(dossier)) {}
  [[nodiscard]] std::int16_t Leeftijd() const override { return dossier_->Leeftijd(); }

 private:
  std::shared_ptr<const dossier::Dossier> dossier_;
};

/// The code tables of a case. Codes and texts compare exactly.
class Codetabellen : public host::Codetabellen {
 public:
  explicit Codetabellen(std::vector<Code> maatschappijType) : maatschappijType_(std::move(maatschappijType)) {}
  /// The entries of a table in their order; none for a table that is unknown.
  [[nodiscard]] const std::vector<Code>& Tabel(std::string_view naam) const;

 private:
  std::vector<Code> maatschappijType_;
};

/// The application object of a case: the root that the controls are bound to.
///
///     auto application = std::make_shared<Application>(dossier);
///     const auto fouten = application->FoutGemeld.Connect([](const host::ErrorRecord& fout) { ... });
///     editor.SetApplication(application, 0, 1);
class Application : public host::Application {
 public:
  /// `hoofdvenster` owns the modal forms; it may be nothing where nothing is shown.
  explicit Application(std::shared_ptr<dossier::Dossier> dossier,
                       std::shared_ptr<host::Hoofdvenster> hoofdvenster = nullptr);

  [[nodiscard]] std::shared_ptr<host::Dossier> Dossier() override { return dossier_; }
  [[nodiscard]] std::shared_ptr<host::Uitgangspunten> Uitgangspunten() override { return uitgangspunten_; }
  [[nodiscard]] std::shared_ptr<host::Hoofdvenster> Hoofdvenster() override { return hoofdvenster_; }
  [[nodiscard]] std::shared_ptr<host::Codetabellen> Codetabellen() override { return codetabellen_; }

  /// A text in `leeg` is shown first, with an empty code. The item data is the entry's place in the table from 1
  /// (0 for the empty one), and `keuze` selects by it where no code is found. Fails with error 91 without a source.
  void VulCombo(const std::shared_ptr<host::Codetabellen>& bron, std::string_view tabel, host::ListBox& lijst,
                const std::string& code, const std::string& leeg, std::optional<std::int32_t> keuze) override;
  /// Fails with error 91 without a source.
  [[nodiscard]] std::string ZoekCode(const std::shared_ptr<host::Codetabellen>& bron, std::string_view tabel,
                                     const std::string& tekst) override;
  /// Raises FoutGemeld with the record of a Tracer.
  void ReportError(host::ProcedureTrace& trace) override;

  /// The case, as the host's own screens know it.
  [[nodiscard]] const std::shared_ptr<dossier::Dossier>& Bestand() const { return dossier_; }

  /// A control reports an unexpected failure.
  host::Event<const host::ErrorRecord&> FoutGemeld;

 private:
  std::shared_ptr<dossier::Dossier> dossier_;
  std::shared_ptr<host::Hoofdvenster> hoofdvenster_;
  std::shared_ptr<dossier::Uitgangspunten> uitgangspunten_;
  std::shared_ptr<dossier::Codetabellen> codetabellen_;
};

}  // namespace brivane::dossier

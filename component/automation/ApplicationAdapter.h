#pragma once

#include "component/automation/HostSession.h"
#include <brivane/host/model/Application.h>
#include <brivane/host/model/DossierControle.h>

namespace brivane::component {

/// The application object of the host.
class ApplicationAdapter final : public AdapterOf<host::Application> {
 public:
  using AdapterOf::AdapterOf;

  std::shared_ptr<host::Dossier> Dossier() override;
  std::shared_ptr<host::Uitgangspunten> Uitgangspunten() override;
  std::shared_ptr<host::Hoofdvenster> Hoofdvenster() override;
  std::shared_ptr<host::Codetabellen> Codetabellen() override;

  /// The host is given the list as an object (IKeuzelijst), and an optional argument that is left out as such.
  void VulCombo(const std::shared_ptr<host::Codetabellen>& bron, std::string_view tabel, host::ListBox& lijst,
                const std::string& code, const std::string& leeg, std::optional<std::int32_t> keuze) override;
  std::string ZoekCode(const std::shared_ptr<host::Codetabellen>& bron, std::string_view tabel,
                       const std::string& tekst) override;

  /// The tracer is handed over by reference: where the host puts another object in its place, that is the control's
  /// tracer from then on, and where it puts Nothing, the control makes a new one.
  void ReportError(host::ProcedureTrace& trace) override;
};

/// The host's check of the loan file.
class ControleAdapter final : public AdapterOf<host::DossierControle> {
 public:
  using AdapterOf::AdapterOf;

  void Controleer(const std::shared_ptr<host::Application>& application, std::int16_t soort) override;
};

}  // namespace brivane::component

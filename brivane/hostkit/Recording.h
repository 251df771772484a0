#pragma once

#include <memory>
#include <string>
#include <vector>

#include <brivane/host/Export.h>
#include <brivane/host/model/Application.h>
#include <brivane/host/model/HostFactories.h>

namespace brivane::hostkit {

/// Stands before any host and writes down what the controls ask of it: each access of a member, in order, as a line.
///
///     hostkit::Recording recording(application, factories);
///     memory::Embedded<VrijeKolom> editor(vrijekolom::kOntwerp, recording.Factories());
///     editor.SetApplication(recording.Application(), 0, 1);
///     for (const std::string& line : recording.Lines()) std::cout << line << '\n';
///
///     get Dossier.Lening(0) = an object
///     get VrijeKolomItem.Termijn = 1
///     set VrijeKolomItem.Omschrijving = "Krant"
///     call Application.VulCombo
///
/// What a set holds is what the record answers after it. An access that failed has no answer behind it. Of a tracer the
/// calls are told, and of what it is written the names; what a report held comes behind the report.
///
/// It outlives the controls that it is given to.
class BRIVANE_API Recording {
 public:
  /// Stands before these, and holds them as long as it lives.
  Recording(std::shared_ptr<host::Application> application, host::HostFactories factories);
  Recording(const Recording&) = delete;
  Recording& operator=(const Recording&) = delete;
  ~Recording();

  /// These are given to the controls in place of the host's own.
  /// @{
  [[nodiscard]] const std::shared_ptr<host::Application>& Application() const;
  [[nodiscard]] const host::HostFactories& Factories() const;
  /// @}

  /// What was asked since the last time.
  [[nodiscard]] std::vector<std::string> Lines();

 private:
  class Body;
  std::unique_ptr<Body> body_;
};

}  // namespace brivane::hostkit

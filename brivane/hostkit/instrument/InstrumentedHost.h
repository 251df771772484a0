#pragma once

#include <memory>

#include <brivane/host/Export.h>
#include <brivane/host/model/Application.h>
#include <brivane/host/model/HostFactories.h>
#include <brivane/hostkit/instrument/AccessLedger.h>
#include <brivane/hostkit/instrument/HostListener.h>

namespace brivane::hostkit {

/// A host that stands before another one: it counts and may fail each access, hands it on, and tells a
/// listener what was done. Works over any implementation of the host interfaces.
///
///     InstrumentedHost host(application, factories, listener);
///     VrijeKolom editor(surface, toolkit, host.Factories());
///     editor.SetApplication(host.Application(), 0, 1);
///
/// An object of the inner host has one stand-in as long as somebody holds it, so that objects can be
/// compared by identity. The listener must outlive everything that the host handed out.
class BRIVANE_API InstrumentedHost {
 public:
  /// Stands before these, and holds them as long as it lives.
  InstrumentedHost(std::shared_ptr<host::Application> application, host::HostFactories factories,
                   HostListener& listener);

  /// These are given to the controls in place of the inner host's own.
  /// @{
  [[nodiscard]] const std::shared_ptr<host::Application>& Application() const { return application_; }
  [[nodiscard]] const host::HostFactories& Factories() const { return factories_; }
  /// @}
  /// What counts the accesses, and makes them fail; it lives as long as anything that the host handed out.
  [[nodiscard]] AccessLedger& Ledger();

  /// The stand-in of an amount object of the inner host. Not counted.
  [[nodiscard]] std::shared_ptr<host::BedragObject> StandInFor(const std::shared_ptr<host::BedragObject>& bedrag);

  struct Shared;

 private:
  std::shared_ptr<Shared> shared_;
  std::shared_ptr<host::Application> application_;
  host::HostFactories factories_;
};

/// What a stand-in stands for: the record of the inner host, and nothing for an object that is no stand-in.
/// For dumps, which must neither count nor print.
/// @{
[[nodiscard]] BRIVANE_API std::shared_ptr<host::VrijeKolomItem> InnerOf(
    const std::shared_ptr<host::VrijeKolomItem>& standIn);
[[nodiscard]] BRIVANE_API std::shared_ptr<host::BedragObject> InnerOf(
    const std::shared_ptr<host::BedragObject>& standIn);
/// @}

}  // namespace brivane::hostkit

#pragma once

#include <memory>

#include <brivane/controls/life/Life.h>
#include <brivane/host/Export.h>
#include <brivane/host/model/Application.h>
#include <brivane/host/model/HostFactories.h>
#include <brivane/host/model/Lening.h>

namespace brivane::controls {

/// The host as a control is given it: behind each of the host's objects stands one that the control holds, and all of
/// them let go of the host at once.
///
/// Once the life has ended, each of them fails with Abandoned instead of going to the host, and so does the one that
/// the host ended it in. An object whose own method is running is let go of when that returns.
///
///     HeldHost host(life);
///     VrijeKolom editor(surface, toolkit, host.Hold(factories));
///     editor.SetApplication(host.Hold(application), 0, 1);
///     host.Rest();
///
/// One object of the host has one that stands for it as long as the control holds it, so that objects can be compared
/// by identity. What the host hands out on being asked stands behind one of these too; the host is given its own back.
class BRIVANE_API HeldHost {
 public:
  /// Lets go of everything when that life ends.
  explicit HeldHost(std::shared_ptr<Life> life);
  HeldHost(const HeldHost&) = delete;
  HeldHost& operator=(const HeldHost&) = delete;
  ~HeldHost();

  /// Factories whose objects stand behind others; a factory that is not there stays so.
  [[nodiscard]] host::HostFactories Hold(host::HostFactories factories);
  /// Nothing for nothing. The application that was given last is known again, also when the control had none meanwhile.
  [[nodiscard]] std::shared_ptr<host::Application> Hold(const std::shared_ptr<host::Application>& application);
  /// Nothing for nothing.
  [[nodiscard]] std::shared_ptr<host::Lening> Hold(const std::shared_ptr<host::Lening>& lening);
  /// After a binding: lets go of an application that the control holds no more.
  void Rest();
  /// Lets go of every object of the host but its tracers and its checks; who asks one of them anything fails with error
  /// 91.
  void LetGo();

  struct Shared;

 private:
  class Application;

  std::shared_ptr<Shared> shared_;
  std::shared_ptr<Application> application_;
  std::unique_ptr<Life::AtEnd> atEnd_;
};

/// The host's own object behind one that a control holds; any other object as it is.
/// @{
[[nodiscard]] BRIVANE_API std::shared_ptr<host::VrijeKolomItem> HostsOwn(
    const std::shared_ptr<host::VrijeKolomItem>& item);
[[nodiscard]] BRIVANE_API std::shared_ptr<host::BedragObject> HostsOwn(
    const std::shared_ptr<host::BedragObject>& bedrag);
/// @}

}  // namespace brivane::controls

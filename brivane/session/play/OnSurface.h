#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <brivane/controls/Form.h>
#include <brivane/controls/ListBox.h>
#include <brivane/controls/life/HeldHost.h>
#include <brivane/scenario/frmScenario.h>
#include <brivane/session/play/Subject.h>

/// Screens of controls that stand in this process, on whatever toolkit.
namespace brivane::session {

/// A screen's part that is the same for the editor and for a form.
template <class Interface> class OnSurface : public Interface {
 public:
  [[nodiscard]] std::optional<ControlState> Find(const std::string& name, std::optional<int> index) override {
    const controls::AnyControl* const control = Control(name, index);
    if (control == nullptr) return std::nullopt;
    return ControlState{control->ControlKind(), control->Reachable()};
  }
  [[nodiscard]] std::vector<std::string> Entries(const std::string& name) override {
    std::vector<std::string> texts;
    for (const auto& entry : static_cast<const controls::ListBox&>(*Control(name, {})).Entries())
      texts.push_back(entry.text);
    return texts;
  }
  controls::Outcome Perform(const std::string& name, std::optional<int> index,
                            const controls::Action& action) override {
    return Control(name, index)->Perform(action);
  }
  [[nodiscard]] std::vector<controls::ControlDump> Dump() override { return controls::DumpAll(Surface()); }

 protected:
  [[nodiscard]] virtual controls::Surface& Surface() = 0;
  [[nodiscard]] controls::AnyControl* Control(const std::string& name, std::optional<int> index) {
    return Surface().Find(name, index.value_or(frame::kNoIndex));
  }
};

/// An open form. It goes before its window and what filled it.
class SurfaceForm final : public OnSurface<FormScreen> {
 public:
  SurfaceForm(controls::Form& window, const frmScenario& form) : window_(window), form_(form) {}

  [[nodiscard]] bool IsClosed() override { return window_.IsUnloaded(); }
  void Close() override { window_.Perform(controls::Close{}); }
  [[nodiscard]] host::Color BackColor() override { return form_.BackColor(); }
  [[nodiscard]] std::int16_t AantalJaar() override { return form_.AantalJaar(); }
  [[nodiscard]] std::shared_ptr<host::BedragObject> Scenario() override { return controls::HostsOwn(form_.Scenario()); }

 protected:
  [[nodiscard]] controls::Surface& Surface() override { return window_; }

 private:
  controls::Form& window_;
  const frmScenario& form_;
};

}  // namespace brivane::session

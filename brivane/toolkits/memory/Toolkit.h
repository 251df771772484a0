#pragma once

#include <functional>

#include <brivane/controls/ToolkitBase.h>
#include <brivane/host/Export.h>
#include <brivane/toolkits/memory/Desktop.h>

namespace brivane::memory {

/// The toolkit without a screen: its controls stand in memory, and its machine answers as it is set.
///
///     memory::Toolkit toolkit;
///     toolkit.Desktop().today = frame::MakeDate({2026, 11, 21});
///     toolkit.Desktop().answer = [](const auto&...) { return host::MessageAnswer::Yes; };
///     toolkit.modal = [](controls::Form& form) { form.Find("cmdOK")->Perform(controls::Press{}); };
class BRIVANE_API Toolkit final : public controls::ToolkitBase {
 public:
  /// The machine; what it answers is set there.
  [[nodiscard]] memory::Desktop& Desktop() override { return desktop_; }

  [[nodiscard]] host::Twips MeasureText(const frame::Design& design, std::string_view text, bool bold) const override;

  /// Runs while a form is shown; a form that it leaves open is closed after it.
  std::function<void(controls::Form&)> modal;

 protected:
  void RunModal(controls::Form& form) override {
    if (modal) modal(form);
  }

 private:
  memory::Desktop desktop_{Life()};
};

}  // namespace brivane::memory

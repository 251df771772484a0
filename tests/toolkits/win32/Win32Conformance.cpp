#include "tests/toolkits/conformance/Conformance.h"
#include "tests/toolkits/win32/Person.h"
#include "toolkits/win32/Dump.h"
#include "toolkits/win32/Toolkit.h"

namespace brivane::test {
namespace {

class Win32UnderTest final : public ToolkitUnderTest {
 public:
  [[nodiscard]] win32::Toolkit& Toolkit() override { return toolkit_; }
  void Settle() override { stage_.Settle(); }
  void Show(controls::Surface& surface) override { stage_.Show(surface.HostSurface()); }
  void Gesture(controls::AnyControl& control, const controls::Action& action) override { Do(control, action); }
  void WhileOpen(std::function<void(controls::Form&)> script) override { toolkit_.modal = std::move(script); }
  [[nodiscard]] std::vector<controls::ControlDump> Shown(const controls::Surface& surface) override {
    return win32::DumpShown(surface, toolkit_);
  }

 private:
  win32::Toolkit toolkit_{GetModuleHandleW(nullptr)};
  Stage stage_{toolkit_};
};

std::unique_ptr<ToolkitUnderTest> MakeWin32() { return std::make_unique<Win32UnderTest>(); }

}  // namespace

std::vector<Subject> Subjects() {
  return {{"Win32Door", &MakeWin32, Way::Door}, {"Win32Gesture", &MakeWin32, Way::Gesture}};
}

}  // namespace brivane::test

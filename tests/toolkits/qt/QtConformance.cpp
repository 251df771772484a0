#include <QApplication>
#include <QTimer>
#include <QVBoxLayout>

#include "tests/toolkits/conformance/Conformance.h"
#include "tests/toolkits/qt/Person.h"
#include "toolkits/qt/Dump.h"
#include "toolkits/qt/Toolkit.h"
#include "toolkits/qt/widgets/FormWindow.h"

namespace brivane::test {
namespace {

class QtUnderTest final : public ToolkitUnderTest {
 public:
  [[nodiscard]] qt::Toolkit& Toolkit() override { return toolkit_; }

  void Settle() override { QApplication::processEvents(); }

  void Show(controls::Surface& surface) override {
    QWidget& area = qt::Toolkit::WidgetOf(surface.HostSurface());
    area.setParent(&window_);
    area.show();
    window_.resize(area.size());
    ShowActive(window_);
  }

  void Gesture(controls::AnyControl& control, const controls::Action& action) override { Do(control, action); }

  void WhileOpen(std::function<void(controls::Form&)> script) override {
    QTimer::singleShot(0, &window_, [script = std::move(script)] {
      auto* const dialog = dynamic_cast<qt::FormWindow::Window*>(QApplication::activeModalWidget());
      if (dialog == nullptr) return;
      script(dialog->Form());
      if (dialog->isVisible()) dialog->done(0);
    });
  }

  [[nodiscard]] std::vector<controls::ControlDump> Shown(const controls::Surface& surface) override {
    return qt::DumpShown(surface, toolkit_);
  }

 private:
  QWidget window_;
  qt::Toolkit toolkit_;
};

std::unique_ptr<ToolkitUnderTest> MakeQt() { return std::make_unique<QtUnderTest>(); }

}  // namespace

std::vector<Subject> Subjects() { return {{"QtDoor", &MakeQt, Way::Door}, {"QtGesture", &MakeQt, Way::Gesture}}; }

}  // namespace brivane::test

#include <QApplication>
#include <QTimer>
#include <memory>

#include "bench/Compare.h"
#include "bench/qt/PlainForm.h"
#include "tests/support/RecordingScenario.h"
#include <brivane/controls/TextBox.h>
#include <brivane/scenario/Ontwerp.h>
#include <brivane/scenario/frmScenario.h>
#include <brivane/toolkits/qt/widgets/FormWindow.h>

namespace bench {
namespace {

using namespace brivane;

std::shared_ptr<tests::RecordingScenario> Scenario() {
  auto scenario = std::make_shared<tests::RecordingScenario>();
  scenario->invoersoort = 3;
  scenario->basis = 1234.56;
  return scenario;
}

/// The form with 80 rows of amounts, percentages and discounts.
std::unique_ptr<frmScenario> MakeForm(qt::Toolkit& toolkit) {
  auto form = std::make_unique<frmScenario>(toolkit);
  form->Invoeren(Scenario(), PlainForm::kRows, 0, 0, false, true);
  return form;
}

/// Lets a window come on the screen and paint, then closes it.
void CloseWhenPainted() {
  QTimer::singleShot(0, [] {
    QApplication::processEvents();
    static_cast<QDialog*>(QApplication::activeModalWidget())->done(0);
  });
}

void CompareOpening(qt::Toolkit& toolkit) {
  auto ours = std::make_shared<std::unique_ptr<frmScenario>>();
  auto plain = std::make_shared<std::unique_ptr<PlainForm>>();
  CompareAndClear(
      "80 rows of kind 3: open and paint", {.measured = "form", .yardstick = "plain widgets", .aim = 0.5},
      [ours, &toolkit] {
        *ours = MakeForm(toolkit);
        CloseWhenPainted();
        (*ours)->ShowModal(nullptr);
      },
      [ours] { ours->reset(); },
      [plain] {
        *plain = std::make_unique<PlainForm>();
        CloseWhenPainted();
        (*plain)->exec();
      },
      [plain] { plain->reset(); });
}

/// An edit of row 1 that grows every later row, and the paint after it.
void CompareGrowth(frmScenario& form, PlainForm& plain) {
  auto& box = dynamic_cast<controls::TextBox&>(*dynamic_cast<controls::Form&>(form.Form()).Find("txtBedrag", 1));
  Compare(
      "80 rows of kind 3: grow and paint", {.measured = "form", .yardstick = "240 setText", .aim = 0.5},
      [&box] {
        box.Perform(controls::Enter{box.Number() == 2000 ? 3000.0 : 2000.0});
        QApplication::processEvents();
      },
      [&plain] {
        plain.Fill();
        QApplication::processEvents();
      });
}

}  // namespace
}  // namespace bench

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setStyle("Fusion");
  brivane::qt::Toolkit toolkit;
  bench::CompareOpening(toolkit);

  const auto form = bench::MakeForm(toolkit);
  bench::PlainForm plain;
  plain.show();
  int answer = 0;
  // The form is worked while it is open, as an adviser does.
  QTimer::singleShot(0, [&] {
    bench::CompareGrowth(*form, plain);
    QApplication::processEvents();
    answer = bench::Run(argc, argv);
    form->Form().Unload();
  });
  form->ShowModal(nullptr);
  return answer;
}

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QScrollArea>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <QTest>

#include "app/program/DarkPalette.h"
#include "app/program/Program.h"
#include "tests/app/access/Pictures.h"
#include "tests/app/access/Scenes.h"
#include "tests/toolkits/qt/Clipping.h"
#include <brivane/controls/Surface.h>
#include <brivane/toolkits/qt/peers/Peers.h>

/// The program's windows on small screens, at the scale that QT_SCALE_FACTOR sets: what is needed for editing can be
/// reached, and no text is cut off.
namespace brivane::app {
namespace {

using testing::IsEmpty;

constexpr QSize kScreens[] = {{1280, 720}, {1366, 768}};

/// What a screen of that many dots has room for.
QSize RoomOn(const QSize& screen) { return screen / qApp->devicePixelRatio(); }

std::vector<const QWidget*> ControlsIn(const controls::Surface& surface) {
  std::vector<const QWidget*> found;
  for (const auto& control : surface.Made()) {
    const auto* const peer = dynamic_cast<const qt::WidgetPeer*>(control->GetPeer());
    if (control->ControlKind() == host::Kind::Surface) {
      for (const QWidget* inner : ControlsIn(static_cast<const controls::Surface&>(*control))) found.push_back(inner);
    } else if (peer != nullptr && peer->Widget()->isVisible()) {
      found.push_back(peer->Widget());
    }
  }
  return found;
}

const QScrollArea* ScrollerAround(const QWidget& widget) {
  for (const QWidget* around = widget.parentWidget(); around != nullptr; around = around->parentWidget())
    if (const auto* const scroller = qobject_cast<const QScrollArea*>(around)) return scroller;
  return nullptr;
}

/// The widgets of which a part lies outside that other one.
std::vector<std::string> Outside(const std::vector<const QWidget*>& widgets, const QWidget& area) {
  std::vector<std::string> outside;
  for (const QWidget* widget : widgets)
    if (!area.rect().contains(QRect(widget->mapTo(&area, QPoint()), widget->size())))
      outside.push_back(widget->objectName().toStdString());
  return outside;
}

/// What a person has to see in the window itself, without scrolling, at its natural size.
void ExpectInView(Stage& stage, const QSize& room) {
  const auto controls = ControlsIn(controls::Surface::Of(stage.Screen().Kolom().Editor().Surface()));
  const QScrollArea* const scroller = ScrollerAround(stage.Screen().Kolom().Editor());
  ASSERT_NE(scroller, nullptr);
  EXPECT_GT(controls.size(), 40U);
  EXPECT_THAT(Outside(controls, *scroller->widget()), IsEmpty()) << "out of the scroller's reach";
  if (room.width() < 1280 || room.height() < 720) return;
  EXPECT_THAT(Outside(controls, *scroller->viewport()), IsEmpty()) << "to be scrolled to";
}

class Reach : public testing::TestWithParam<int> {
 protected:
  [[nodiscard]] const Scene& Shown() const { return AllScenes()[static_cast<std::size_t>(GetParam())]; }
};

TEST_P(Reach, NothingLiesOutsideASmallScreenAndNothingIsCutOff) {
  const QTemporaryDir folder;
  const QPalette before = QApplication::palette();
  Stage stage{QDir(folder.path())};
  Play(Shown(), stage, [&](QWidget* front) {
    ASSERT_NE(front, nullptr) << Shown().name;
    for (const QSize& screen : kScreens) {
      const QSize room = RoomOn(screen);
      const std::string on = std::string(Shown().name) + " on " + std::to_string(screen.width());
      SCOPED_TRACE(on);
      MainWindow& window = stage.Window();
      window.resize(room);
      QApplication::processEvents();
      EXPECT_LE(window.width(), room.width()) << "the window itself is too wide";
      EXPECT_LE(window.height(), room.height()) << "the window itself is too high";
      if (front != &window) {
        front->resize(front->size().boundedTo(room));
        QApplication::processEvents();
        EXPECT_LE(front->width(), room.width()) << "what stands in front is too wide";
        EXPECT_LE(front->height(), room.height()) << "what stands in front is too high";
      }
      if (window.Screen() != nullptr) ExpectInView(stage, window.size());
      EXPECT_THAT(test::CutOffWithin(*front), IsEmpty());
    }
    for (const QPalette& palette : {before, DarkPalette(), ContrastPalette()}) {
      QApplication::setPalette(palette);
      QApplication::processEvents();
      EXPECT_THAT(test::CutOffWithin(*front), IsEmpty());
    }
    QApplication::setPalette(before);
    if (front != &stage.Window()) front->close();
  });
}

TEST(ReachOfTheFocus, WhatIsGivenTheFocusComesIntoView) {
  const QTemporaryDir folder;
  Stage stage{QDir(folder.path())};
  Play(AllScenes()[1], stage, [&](QWidget*) {
    stage.Window().resize(640, 360);
    QApplication::processEvents();
    int given = 0;
    for (const QWidget* control : ControlsIn(controls::Surface::Of(stage.Screen().Kolom().Editor().Surface()))) {
      auto* const widget = const_cast<QWidget*>(control);
      widget->setFocus(Qt::ShortcutFocusReason);
      QApplication::processEvents();
      if (!widget->hasFocus()) continue;
      ++given;
      EXPECT_FALSE(widget->visibleRegion().isEmpty()) << widget->objectName().toStdString();
    }
    EXPECT_GT(given, 10);
  });
}

std::vector<int> Numbers() {
  std::vector<int> numbers(AllScenes().size());
  for (std::size_t i = 0; i < numbers.size(); ++i) numbers[i] = static_cast<int>(i);
  return numbers;
}

INSTANTIATE_TEST_SUITE_P(EveryScene, Reach, testing::ValuesIn(Numbers()), [](const auto& chosen) {
  std::string name = AllScenes()[static_cast<std::size_t>(chosen.param)].name;
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
});

}  // namespace
}  // namespace brivane::app

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  // The person's own settings stay out of it.
  const QTemporaryDir aside;
  for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
    qputenv(name, aside.path().toLocal8Bit());
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication program(argc, argv);
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  brivane::app::SetUpProgram(program);
  return RUN_ALL_TESTS();
}

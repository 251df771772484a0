#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopeGuard>
#include <QScrollArea>
#include <QSpinBox>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>
#include <map>
#include <memory>

#include "tests/support/TestHost.h"
#include "tests/toolkits/qt/Clipping.h"
#include "tests/toolkits/qt/Person.h"
#include <brivane/controls/Surface.h>
#include <brivane/frame/Calendar.h>
#include <brivane/toolkits/qt/VrijeKolomWidget.h>
#include <brivane/toolkits/qt/widgets/HighContrast.h>

/// The editor in hosts that look otherwise than its design: style sheets, fonts, palettes, and from right to left.
namespace brivane::test {
namespace {

using testing::IsEmpty;

/// A host's window, in which the editor shows as much as it can.
class HostLooks : public testing::Test {
 protected:
  HostLooks() {
    TestKolom& kolom = host_.Kolom(1);
    kolom.velden.DatumAanvang = frame::MakeDate({2028, 12, 31});
    kolom.velden.Looptijd = 240;
    kolom.velden.Omschrijving = "Contributie";
    kolom.velden.IsProduct = true;
    kolom.velden.Maatschappij = "ZZ";
    kolom.velden.ScenarioOverlijden = true;
    kolom.velden.PercentageOvergang = 70;
    kolom.velden.EinddatumOvergang = frame::MakeDate({2048, 12, 28});
    kolom.bedrag->bedrag = 123456.78;
  }
  ~HostLooks() override { qApp->setStyleSheet({}); }

  void MakeEditor() {
    around_ = new QGroupBox("Vrije kolom", &window_);
    auto* const layout = new QVBoxLayout(&window_);
    layout->addWidget(around_);
    auto* const inside = new QVBoxLayout(around_);
    editor_ = new qt::VrijeKolomWidget;
    inside->addWidget(editor_);
    inside->addStretch();
    editor_->SetBeeindigenZichtbaar(true);
    editor_->SetHostFactories(host_.Factories());
    editor_->SetApplication(host_.application, 0, 1);
    ShowActive(window_);
    QApplication::processEvents();
  }

  /// The widgets of the surface whose letters are not those of the design.
  [[nodiscard]] std::vector<std::string> InAnotherFont() {
    std::vector<std::string> others;
    const int pixels = editor_->Toolkit().Edge().Font(controls::Surface::Of(editor_->Surface()).Table(), 9).pixelSize();
    for (const QWidget* widget : qt::Toolkit::WidgetOf(editor_->Surface()).findChildren<QWidget*>()) {
      if (widget->isWindow() || widget->window() != &window_) continue;
      const QFont font = widget->font();
      if (font.family() != "Arial" || font.pixelSize() != pixels)
        others.push_back(widget->objectName().toStdString() + ": " + font.toString().toStdString());
    }
    return others;
  }
  void ExpectAsDesigned(const std::string& when) {
    QApplication::processEvents();
    EXPECT_THAT(InAnotherFont(), IsEmpty()) << when;
    EXPECT_THAT(CutOffWithin(*editor_), IsEmpty()) << when;
  }

  TestHost host_;
  QWidget window_;
  QGroupBox* around_ = nullptr;
  qt::VrijeKolomWidget* editor_ = nullptr;
};

constexpr const char* kSheets[] = {
    "QLabel { color: red; }",
    "* { }",
    "* { font-family: \"Liberation Serif\"; }",
    "* { font-size: 14pt; }",
    "QLabel { font-size: 20px; font-weight: bold; }",
    "QWidget { background: #eef; color: navy; }",
    "QGroupBox { font-weight: bold; } QLineEdit { color: navy; font: 16px \"Liberation Mono\"; }",
};

TEST_F(HostLooks, NothingIsCutOffAsDesigned) {
  MakeEditor();
  ExpectAsDesigned("without a style sheet");
}

TEST_F(HostLooks, TheDesignsFontOutlivesEveryStyleSheetOfTheApplication) {
  MakeEditor();
  for (const char* sheet : kSheets) {
    qApp->setStyleSheet(sheet);
    ExpectAsDesigned(sheet);
    qApp->setStyleSheet({});
    ExpectAsDesigned(std::string("after ") + sheet);
  }
}

TEST_F(HostLooks, AnEditorMadeUnderAStyleSheetHasTheDesignsFont) {
  for (const char* sheet : kSheets) {
    qApp->setStyleSheet(sheet);
    MakeEditor();
    ExpectAsDesigned(sheet);
    delete window_.layout();
    delete around_;
  }
}

TEST_F(HostLooks, AStyleSheetAroundTheEditorLeavesItsFont) {
  MakeEditor();
  for (const char* sheet : kSheets) {
    around_->setStyleSheet(sheet);
    ExpectAsDesigned(sheet);
  }
  around_->setStyleSheet({});
  ExpectAsDesigned("without it again");
}

TEST_F(HostLooks, TheRestOfAStyleSheetHolds) {
  qApp->setStyleSheet("QLabel { color: #ff0000; }");
  MakeEditor();
  controls::AnyControl& label = *controls::Surface::Of(editor_->Surface()).Find("lblOm");
  EXPECT_EQ(WidgetFor(label)->palette().color(QPalette::WindowText), QColor("#ff0000"));
}

TEST_F(HostLooks, NothingIsCutOffInALargerFontOfTheHost) {
  const QFont before = QApplication::font();
  const auto putBack = qScopeGuard([&] { QApplication::setFont(before); });
  MakeEditor();
  for (const int pixels : {11, 13, 15, 18, 24}) {
    QFont font = before;
    font.setPixelSize(pixels);
    QApplication::setFont(font);
    ExpectAsDesigned("at " + std::to_string(pixels) + " pixels");
  }
}

TEST_F(HostLooks, ReadsFromLeftToRightInAHostThatDoesNot) {
  MakeEditor();
  const auto places = [&] {
    std::vector<std::string> found;
    for (const QWidget* widget : editor_->findChildren<QWidget*>()) {
      const QPoint at = widget->mapTo(editor_, QPoint());
      if (!widget->isVisible()) continue;
      found.push_back(widget->objectName().toStdString() + " at " + std::to_string(at.x()) + ',' +
                      std::to_string(at.y()) + " of " + std::to_string(widget->width()));
    }
    return found;
  };
  const std::vector<std::string> designed = places();
  const auto pictures = [&] {
    std::map<std::string, QImage> found;
    for (QWidget* widget : editor_->findChildren<QWidget*>()) {
      // The title of a group is moved by a pixel.
      if (widget->isVisible() && widget->findChild<QGroupBox*>() == nullptr &&
          qobject_cast<QGroupBox*>(widget) == nullptr)
        found[widget->objectName().toStdString()] = widget->grab().toImage();
    }
    return found;
  };
  const std::map<std::string, QImage> designedPictures = pictures();
  QApplication::setLayoutDirection(Qt::RightToLeft);
  const auto putBack = qScopeGuard([] { QApplication::setLayoutDirection(Qt::LeftToRight); });
  QApplication::processEvents();
  EXPECT_EQ(window_.layoutDirection(), Qt::RightToLeft);
  EXPECT_THAT(places(), testing::ElementsAreArray(designed));
  for (const auto& [name, picture] : pictures()) EXPECT_TRUE(picture == designedPictures.at(name)) << name;
  ExpectAsDesigned("from right to left");
}

TEST_F(HostLooks, TheCheckFindsWhatIsCutOff) {
  MakeEditor();
  auto& label = static_cast<QLabel&>(*WidgetFor(*controls::Surface::Of(editor_->Surface()).Find("lblDtEind")));
  label.resize(label.width() / 2, label.height());
  EXPECT_EQ(CutOffWithin(*editor_).size(), 1U);
  QFont larger = label.font();
  larger.setPixelSize(40);
  label.setFont(larger);
  EXPECT_EQ(CutOffWithin(*editor_).size(), 2U);
}

TEST(HighContrast, IsAPaletteOfBlackAndWhiteAlone) {
  struct Case {
    QColor back;
    QColor text;
    bool high;
  };
  for (const Case& c :
       {Case{Qt::black, Qt::white, true}, Case{Qt::white, Qt::black, true},
        Case{QColor(8, 8, 8), QColor(247, 247, 247), true}, Case{QColor(239, 239, 239), Qt::black, false},
        Case{QColor(0x3a, 0x3c, 0x40), Qt::white, false}, Case{Qt::black, Qt::gray, false}}) {
    QPalette palette;
    palette.setColor(QPalette::Window, c.back);
    palette.setColor(QPalette::WindowText, c.text);
    EXPECT_EQ(qt::IsHighContrast(palette), c.high) << c.back.name().toStdString() << " " << c.text.name().toStdString();
  }
}

TEST(HighContrast, EveryWindowOfAProgramGetsItsEdges) {
  const QPalette before = QApplication::palette();
  const auto putBack = qScopeGuard([&] { QApplication::setPalette(before); });
  QApplication::setPalette(
      QPalette(Qt::white, Qt::black, Qt::black, Qt::black, Qt::black, Qt::white, Qt::white, Qt::black, Qt::black));
  using Made = std::unique_ptr<QWidget>;
  struct Case {
    const char* name;
    Made (*make)();
    bool edged;
  };
  const Case cases[] = {{"line", []() -> Made { return std::make_unique<QLineEdit>(); }, true},
                        {"line without a frame",
                         []() -> Made {
                           auto line = std::make_unique<QLineEdit>();
                           line->setFrame(false);
                           return line;
                         },
                         false},
                        {"list of choices", []() -> Made { return std::make_unique<QComboBox>(); }, true},
                        {"number", []() -> Made { return std::make_unique<QSpinBox>(); }, true},
                        {"button", []() -> Made { return std::make_unique<QPushButton>(); }, true},
                        {"flat button",
                         []() -> Made {
                           auto button = std::make_unique<QPushButton>();
                           button->setFlat(true);
                           return button;
                         },
                         false},
                        {"button in a bar",
                         []() -> Made {
                           auto button = std::make_unique<QToolButton>();
                           button->setAutoRaise(true);
                           return button;
                         },
                         false},
                        {"tree", []() -> Made { return std::make_unique<QTreeView>(); }, true},
                        {"area without a frame",
                         []() -> Made {
                           auto area = std::make_unique<QScrollArea>();
                           area->setFrameShape(QFrame::NoFrame);
                           return area;
                         },
                         false},
                        {"label", []() -> Made { return std::make_unique<QLabel>(); }, false}};
  const auto edge = [](const Case& c) {
    const Made widget = c.make();
    widget->resize(80, 24);
    const QImage picture = widget->grab().toImage();
    return qGray(picture.pixel(picture.width() / 2, 0));
  };
  for (const Case& c : cases) EXPECT_LT(edge(c), 100) << c.name << ", before anything is outlined";
  QObject program;
  qt::OutlineAllInHighContrast(program);
  for (const Case& c : cases) EXPECT_EQ(edge(c) > 200, c.edged) << c.name;
  QApplication::setPalette(before);
  for (const Case& c : cases) EXPECT_GT(edge(c), 60) << c.name << ", where the palette is another";
}

TEST_F(HostLooks, EdgesCanBeSeenInHighContrast) {
  const QPalette before = QApplication::palette();
  const auto putBack = qScopeGuard([&] { QApplication::setPalette(before); });
  QApplication::setPalette(
      QPalette(Qt::white, Qt::black, Qt::black, Qt::black, Qt::black, Qt::white, Qt::white, Qt::black, Qt::black));
  MakeEditor();
  auto& surface = controls::Surface::Of(editor_->Surface());
  for (const char* name : {"TxtOm", "TxtDtAanvang", "cboTermijn", "cmdScenario"}) {
    const QImage picture = WidgetFor(*surface.Find(name))->grab().toImage();
    const QPoint middle(picture.width() / 2, 0);
    EXPECT_GT(qGray(picture.pixel(middle)), 200) << name;
    EXPECT_GT(qGray(picture.pixel(0, picture.height() / 2)), 200) << name;
  }
  const QImage tick = WidgetFor(*surface.Find("chkProduct"))->grab().toImage();
  EXPECT_GT(qGray(tick.pixel(0, tick.height() / 2)), 200);
}

}  // namespace
}  // namespace brivane::test

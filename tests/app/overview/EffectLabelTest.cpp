#include <QLabel>

#include "tests/app/screen/WindowTest.h"

// The sentence above the editor.
namespace brivane::app {
namespace {

class EffectLabelTest : public WindowTest {
 protected:
  [[nodiscard]] QString Sentence() { return window_->findChild<QLabel*>("effectzin")->text(); }
  [[nodiscard]] bool Becomes(const QString& sentence) {
    return QTest::qWaitFor([&] { return Sentence() == sentence; }, 2000);
  }
};

TEST_F(EffectLabelTest, FollowsTheColumnAndEveryEdit) {
  Open();
  ASSERT_TRUE(Screen().GoTo(Place{1, 7}));
  Screen().Kolom().FocusFirst();
  // It is still to start, whatever day it is.
  Type("1-3-2150");
  PressKey(Qt::Key_Tab);
  EXPECT_TRUE(
      Becomes("Verhoogt de maandlast met € 7,92 vanaf 1 maart 2150 tot 1 maart 2165; verlaagt het belastbaar inkomen "
              "van de aanvrager met € 95,00 per jaar."))
      << qPrintable(Sentence());
  PressKey(Qt::Key_B, Qt::AltModifier);
  Type("120");
  PressKey(Qt::Key_Tab);
  EXPECT_TRUE(
      Becomes("Verhoogt de maandlast met € 10,00 vanaf 1 maart 2150 tot 1 maart 2165; verlaagt het belastbaar inkomen "
              "van de aanvrager met € 120,00 per jaar."))
      << qPrintable(Sentence());
  ASSERT_TRUE(Screen().AddKolom());
  EXPECT_EQ(Sentence(), "Telt nog niet mee: er is geen aanvangsdatum ingevuld.");
}

TEST_F(EffectLabelTest, WrapsWhereTheWindowIsNarrow) {
  Open();
  ASSERT_TRUE(Screen().GoTo(Place{1, 7}));
  const auto* label = window_->findChild<QLabel*>("effectzin");
  QApplication::processEvents();
  const int line = label->fontMetrics().height();
  EXPECT_GE(label->heightForWidth(300), 3 * line);
  EXPECT_GE(label->height(), label->heightForWidth(label->width())) << "nothing is cut off";
}

}  // namespace
}  // namespace brivane::app

#include <QtTest/qtestspontaneevent.h>
#include <gtest/gtest.h>

#include <QCalendarWidget>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QTest>
#include <QWheelEvent>

#include "app/screen/ClientDialog.h"
#include <brivane/frame/Calendar.h>
#include <brivane/toolkits/qt/widgets/DateBox.h>

namespace brivane::app {
namespace {

class ClientDialogTest : public testing::Test {
 protected:
  ClientDialogTest() {
    dialog_.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog_));
  }
  [[nodiscard]] QLineEdit& Field(const QString& name) {
    for (QLineEdit* field : dialog_.findChildren<QLineEdit*>())
      if (field->accessibleName() == name) return *field;
    throw std::logic_error("no such field");
  }
  /// Whether the dialog shows a text.
  [[nodiscard]] bool Says(const QString& text) {
    for (const QLabel* label : dialog_.findChildren<QLabel*>())
      if (label->text() == text) return true;
    return false;
  }

  ClientDialog dialog_{QStringLiteral("Nieuw dossier"), Client(), [](const Client&) { return true; }, nullptr};
};

TEST_F(ClientDialogTest, ARefusalEndsWhenItIsBeingMended) {
  const QString reason = QStringLiteral("Vul de achternaam van de aanvrager in.");
  dialog_.accept();
  EXPECT_TRUE(Says(reason));
  QTest::keyClicks(&Field(QStringLiteral("Aanvrager, Achternaam")), QStringLiteral("J"));
  EXPECT_FALSE(Says(reason));
  dialog_.accept();
  EXPECT_TRUE(Says(QStringLiteral("Vul de geboortedatum van de aanvrager in.")));
  EXPECT_FALSE(Says(reason));
}

TEST_F(ClientDialogTest, ARefusalOfThePartnerEndsWithoutAPartner) {
  Field(QStringLiteral("Aanvrager, Achternaam")).setText(QStringLiteral("Jansen"));
  Field(QStringLiteral("Aanvrager, Geboortedatum")).setText(QStringLiteral("01-02-1980"));
  auto& partner = *dialog_.findChild<QCheckBox*>();
  partner.setChecked(true);
  dialog_.accept();
  EXPECT_TRUE(Says(QStringLiteral("Vul de achternaam van de partner in.")));
  partner.setChecked(false);
  EXPECT_FALSE(Says(QStringLiteral("Vul de achternaam van de partner in.")));
}

TEST_F(ClientDialogTest, ABirthInAYearOfTwoDigitsLiesInThePast) {
  Field(QStringLiteral("Aanvrager, Achternaam")).setText(QStringLiteral("Jansen"));
  QLineEdit& date = Field(QStringLiteral("Aanvrager, Geboortedatum"));
  date.setFocus();
  QTest::keyClicks(&date, QStringLiteral("1-2-50"));
  QTest::keyClick(&date, Qt::Key_Tab);
  EXPECT_EQ(date.text(), "01-02-1950");
  dialog_.accept();
  EXPECT_EQ(dialog_.result(), QDialog::Accepted);
  EXPECT_EQ(dialog_.Contents().personen.front().Geboortedatum, frame::MakeDate({1950, 2, 1}));
}

TEST_F(ClientDialogTest, ItsCalendarOpensAtTheBirthThatIsBeingTyped) {
  QLineEdit& date = Field(QStringLiteral("Aanvrager, Geboortedatum"));
  date.setFocus();
  QTest::keyClicks(&date, QStringLiteral("1-2-50"));
  QTest::keyClick(&date, Qt::Key_F4);
  const QWidget* const popup = dynamic_cast<qt::DateBox&>(date).Calendar();
  ASSERT_NE(popup, nullptr);
  EXPECT_EQ(popup->findChild<QCalendarWidget*>()->selectedDate(), QDate(1950, 2, 1));
}

TEST_F(ClientDialogTest, TheWheelChangesTheAgeLimitOnlyWhereTheFocusIs) {
  auto& age = *dialog_.findChild<QSpinBox*>();
  const int before = age.value();
  const auto turn = [&] {
    QWheelEvent event({5, 5}, age.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(&age, &event);
  };
  turn();
  EXPECT_FALSE(age.hasFocus());
  EXPECT_EQ(age.value(), before);
  age.setFocus();
  turn();
  EXPECT_EQ(age.value(), before - 1);
}

TEST_F(ClientDialogTest, ALetterWithAltIsTypedNowhere) {
  for (const char* name : {"Aanvrager, Achternaam", "Aanvrager, Geboortedatum"}) {
    QLineEdit& field = Field(QLatin1String(name));
    field.setText(QStringLiteral("01-02-1980"));
    field.setFocus();
    field.selectAll();
    QTest::keyClick(&field, Qt::Key_X, Qt::AltModifier);
    EXPECT_EQ(field.text(), "01-02-1980");
  }
  auto& age = *dialog_.findChild<QSpinBox*>();
  const int before = age.value();
  age.setFocus();
  age.selectAll();
  QTest::keyClick(&age, Qt::Key_5, Qt::AltModifier);
  EXPECT_EQ(age.value(), before);
  QTest::keyClick(&age, Qt::Key_5);
  EXPECT_EQ(age.value(), 5);
}

TEST_F(ClientDialogTest, WhatIsRefusedIsSelected) {
  Field(QStringLiteral("Aanvrager, Achternaam")).setText(QStringLiteral("Jansen"));
  QLineEdit& date = Field(QStringLiteral("Aanvrager, Geboortedatum"));
  date.setText(QStringLiteral("01-02-2999"));
  dialog_.accept();
  EXPECT_TRUE(Says(QStringLiteral("De geboortedatum van de aanvrager moet in het verleden liggen.")));
  EXPECT_TRUE(date.hasFocus());
  EXPECT_EQ(date.selectedText(), date.text());
}

TEST_F(ClientDialogTest, ARateOfTaxMayBeLeftOutAndLiesBetweenZeroAndAHundred) {
  Field(QStringLiteral("Aanvrager, Achternaam")).setText(QStringLiteral("Jansen"));
  Field(QStringLiteral("Aanvrager, Geboortedatum")).setText(QStringLiteral("01-02-1980"));
  EXPECT_EQ(dialog_.Contents().personen.front().Belastingtarief, std::nullopt);
  QLineEdit& rate = Field(QStringLiteral("Aanvrager, Marginaal belastingtarief"));
  rate.setFocus();
  QTest::keyClicks(&rate, QStringLiteral("101"));
  dialog_.accept();
  EXPECT_NE(dialog_.result(), QDialog::Accepted);
  rate.selectAll();
  QTest::keyClicks(&rate, QStringLiteral("37,48"));
  dialog_.accept();
  EXPECT_EQ(dialog_.result(), QDialog::Accepted);
  EXPECT_EQ(dialog_.Contents().personen.front().Belastingtarief, 37.48);
}

TEST_F(ClientDialogTest, TwoBoxesThatAreRefusedDoNotFightForTheFocus) {
  QLineEdit& birth = Field(QStringLiteral("Aanvrager, Geboortedatum"));
  QLineEdit& rate = Field(QStringLiteral("Aanvrager, Marginaal belastingtarief"));
  birth.setFocus();
  QTest::keyClicks(&birth, QStringLiteral("x"));
  // Another window had the focus meanwhile: the box was left behind as it was.
  rate.setFocus(Qt::ActiveWindowFocusReason);
  QTest::keyClicks(&rate, QStringLiteral("101"));
  birth.setFocus(Qt::OtherFocusReason);
  EXPECT_TRUE(rate.hasFocus());
  EXPECT_EQ(birth.text(), "x");
}

}  // namespace
}  // namespace brivane::app

#include <QAbstractItemView>

#include "tests/app/screen/WindowTest.h"

// An adviser's work by keyboard alone, in the real window.
namespace brivane::app {
namespace {

class KeyboardTest : public WindowTest {};

TEST_F(KeyboardTest, WhatIsAcceptedIsInTheFileAndWhatIsRefusedIsNot) {
  // Open the file.
  dialogs_.Expect([this](QWidget&) {
    Type(file_.toLocal8Bit().constData());
    PressKey(Qt::Key_Return);
  });
  PressKey(Qt::Key_O, Qt::ControlModifier);
  ASSERT_NE(window_->Screen(), nullptr);

  // Go to the column "Onderhoud zonnepanelen" of the first new loan: a burden.
  PressKey(Qt::Key_F6);
  Type("onderhoud");
  EXPECT_TRUE(Comes(Place{1, 7}));
  PressKey(Qt::Key_F6);
  EXPECT_EQ(Focus(), "Aanvangsdatum");

  Type("1-4-2031");
  TabTo("Looptijd, jaar");
  Type("7");
  PressKey(Qt::Key_Tab);
  Type("6");
  PressKey(Qt::Key_B, Qt::AltModifier);
  EXPECT_EQ(Focus(), "Bedrag");
  Type("1234,56");
  PressKey(Qt::Key_Tab);

  // From the start date two groups back, and one to the left of "Last" is "Bijdrage".
  PressKey(Qt::Key_A, Qt::AltModifier);
  PressKey(Qt::Key_Tab, Qt::ShiftModifier);
  PressKey(Qt::Key_Tab, Qt::ShiftModifier);
  PressKey(Qt::Key_Left);

  TabTo("Overlijden");
  Type("j");
  TabTo("Overgang naar partner, percentage");
  Type("62,5");
  PressKey(Qt::Key_Tab);

  // An end date before the start date keeps the column on the screen.
  PressKey(Qt::Key_E, Qt::AltModifier);
  Type("1-4-2030");
  dialogs_.ExpectMessage("De einddatum dient na de aanvangsdatum te liggen.", Pressing(Qt::Key_Return));
  PressKey(Qt::Key_PageUp, Qt::AltModifier);
  EXPECT_EQ(Screen().Shown(), (Place{1, 7}));
  EXPECT_EQ(Focus(), "Einddatum");
  PressKey(Qt::Key_Escape);
  PressKey(Qt::Key_PageUp, Qt::AltModifier);
  EXPECT_EQ(Screen().Shown(), (Place{1, 1}));

  PressKey(Qt::Key_Q, Qt::ControlModifier);
  EXPECT_FALSE(window_->isVisible());
  EXPECT_EQ(window_->Screen(), nullptr);

  const QJsonObject fields = ReadInSecondProcess(file_);
  EXPECT_EQ(fields["1/7/bedrag"].toDouble(), 1234.56);
  EXPECT_EQ(fields["1/7/datum_aanvang"].toString(), "01-04-2031");
  // Seven and a half years; the refused date would have made it less than nothing.
  EXPECT_EQ(fields["1/7/looptijd"].toInt(), 90);
  EXPECT_EQ(fields["1/7/correctie_last"].toInt(), 2);
  // A contribution is a taxable addition.
  EXPECT_EQ(fields["1/7/correctie_fiscaal"].toInt(), 2);
  EXPECT_TRUE(fields["1/7/scenario_overlijden"].toBool());
  EXPECT_EQ(fields["1/7/percentage_overgang"].toDouble(), 62.5);
}

TEST_F(KeyboardTest, ANewColumnCanBeDescribedAtOnce) {
  Open();
  PressKey(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Focus(), "Omschrijving");
  Type("Fotoclub");
  PressKey(Qt::Key_Tab);
  Type("27,5");
  // Without a start date it is not left.
  dialogs_.ExpectMessage("Voer s.v.p. een aanvangsdatum in.", Pressing(Qt::Key_Return));
  PressKey(Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(Screen().Shown(), (Place{0, 8}));
  EXPECT_EQ(Focus(), "Aanvangsdatum");
  Type("010127");
  PressKey(Qt::Key_PageUp, Qt::AltModifier);
  EXPECT_EQ(Screen().Shown(), (Place{0, 6}));

  const dossier::KolomGegevens kolom = Kolom(0, 8);
  EXPECT_EQ(kolom.Omschrijving, "Fotoclub");
  EXPECT_EQ(kolom.Bedrag.Bedrag, 27.5);
  EXPECT_EQ(kolom.CorrectieLast, 1);
  EXPECT_EQ(kolom.CorrectieFiscaal, 1);
  EXPECT_EQ(kolom.HeffingBij, 1);
}

TEST_F(KeyboardTest, TheWindowDoesNotCloseOverAWrongDate) {
  Open();
  PressKey(Qt::Key_A, Qt::AltModifier);
  // Not a date: the reason stands beside the box, no message box comes.
  Type("31-2-2027");
  PressKey(Qt::Key_Q, Qt::ControlModifier);
  EXPECT_TRUE(window_->isVisible());
  EXPECT_EQ(Focus(), "Aanvangsdatum");
  PressKey(Qt::Key_Escape);
  PressKey(Qt::Key_Q, Qt::ControlModifier);
  EXPECT_FALSE(window_->isVisible());
  EXPECT_EQ(ReadInSecondProcess(file_)["0/1/datum_aanvang"].toString(), "01-09-2024");
}

TEST_F(KeyboardTest, TheMouseDoesNotGetAwayFromAWrongDateEither) {
  Open();
  auto* tree = window_->findChild<QAbstractItemView*>("kolommen");
  ASSERT_NE(tree, nullptr);
  const QModelIndex third = tree->model()->index(2, 0, tree->model()->index(0, 0));
  PressKey(Qt::Key_E, Qt::AltModifier);
  Type("1-9-2024");
  dialogs_.ExpectMessage("De einddatum dient na de aanvangsdatum te liggen.", Pressing(Qt::Key_Return));
  QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, tree->visualRect(third).center());
  QTest::qWait(50);
  EXPECT_EQ(Screen().Shown(), (Place{0, 1}));
  EXPECT_EQ(tree->currentIndex(), tree->model()->index(0, 0, tree->model()->index(0, 0)));
  EXPECT_EQ(Focus(), "Einddatum");
  PressKey(Qt::Key_Escape);
  QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, tree->visualRect(third).center());
  EXPECT_TRUE(Comes(Place{0, 3}));
  EXPECT_TRUE(tree->hasFocus());
}

}  // namespace
}  // namespace brivane::app

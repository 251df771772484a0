#include <QClipboard>
#include <QDate>
#include <QLineEdit>
#include <map>

#include "tests/app/screen/WindowTest.h"
#include <brivane/frame/Calendar.h>

// The year-by-year form by keyboard alone, in the real window.
namespace brivane::app {
namespace {

class ScenarioTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    dossier::DossierGegevens gegevens = dossier::VoorbeeldDossier();
    // 30 rows: until the year in which the applicant, born this year less 38, turns 68.
    gegevens.Leeftijd = 67;
    const int year = QDate::currentDate().year() - 38;
    gegevens.Personen[0].Geboortedatum = frame::MakeDate({.year = year, .month = 6, .day = 15});
    dossier::KolomGegevens kolom;
    kolom.Id = 1;
    kolom.Omschrijving = "Onderhoud";
    kolom.Termijn = 12;
    kolom.DatumAanvang = frame::MakeDate({.year = 2026, .month = 1, .day = 1});
    kolom.Bedrag.Invoersoort = 3;
    kolom.Bedrag.Bedrag = 900;
    kolom.Bedrag.Perioden = {{{.Maand = 1, .Percentage = 1}}};
    gegevens.HuidigeLening.VrijeKolommen = {kolom};
    gegevens.Leningen[0].VrijeKolommen.clear();
    file_ = folder_.filePath("scenario.dossier");
    dossier::DossierFile::Maak(file_, gegevens);
    Open();
  }

  /// Opens the form by its letter and lets the body work in it.
  void InForm(const Dialogs::Handler& work) {
    bool done = false;
    dialogs_.Expect([&](QWidget& form) {
      work(form);
      done = true;
    });
    PressKey(Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return done && !QApplication::activeModalWidget(); }, 10000));
  }

  /// Month and percentage of every stored entry.
  [[nodiscard]] std::map<int, double> Perioden(const QJsonObject& fields) {
    std::map<int, double> perioden;
    for (int number = 1; fields.contains(QStringLiteral("0/1/periode %1/maand").arg(number)); ++number) {
      const QString place = QStringLiteral("0/1/periode %1/").arg(number);
      perioden[fields[place + "maand"].toInt()] = fields[place + "percentage"].toDouble();
    }
    return perioden;
  }
};

TEST_F(ScenarioTest, TellsTheColumnTheYearsAndTheAges) {
  InForm([](QWidget& form) {
    EXPECT_EQ(form.windowTitle(), "Scenario - Onderhoud, per jaar");
    TabTo("Percentage jaar 3");
    const int aanvrager = 2028 - (QDate::currentDate().year() - 38);
    // The partner of the sample was born on 29 February 1980.
    EXPECT_EQ(QApplication::focusWidget()->toolTip(),
              QStringLiteral("2028; aanvrager wordt %1, partner wordt 48").arg(aanvrager));
    PressKey(Qt::Key_PageDown);
    EXPECT_EQ(Focus(), "Percentage jaar 13");
    PressKey(Qt::Key_Escape);
  });
}

TEST_F(ScenarioTest, ThirtyYearsWithAGrowthACorrectionAndAPastedColumnAreInTheFileAfterOk) {
  InForm([](QWidget&) {
    TabTo("Bedrag jaar 1");
    Type("1000");
    TabTo("Vervolgjaren automatisch invullen");
    PressKey(Qt::Key_Space);
    TabTo("Percentage jaar 1");
    Type("2,5");
    PressKey(Qt::Key_Return);
    TabTo("Vervolgjaren automatisch invullen");
    PressKey(Qt::Key_Space);
    // One year grows by another percentage.
    TabTo("Percentage jaar 10");
    Type("4");
    PressKey(Qt::Key_Return);
    // Three rows at once from a spreadsheet.
    TabTo("Percentage jaar 20");
    QApplication::clipboard()->setText("3,25\n1,5\n0\n");
    PressKey(Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(FocusWindow(), Qt::Key_O, Qt::AltModifier);
  });
  const QJsonObject fields = ReadAfterClosing();
  EXPECT_EQ(fields["0/1/bedrag"].toDouble(), 1000);
  // Row n begins at month 12 (n - 1) + 1, and an entry stands where the percentage changes. The last row's
  // leads nowhere, so filling in leaves it as it was.
  const std::map<int, double> expected{{1, 2.5},   {109, 4}, {121, 2.5}, {229, 3.25},
                                       {241, 1.5}, {253, 0}, {265, 2.5}, {349, 1}};
  EXPECT_EQ(Perioden(fields), expected);
}

TEST_F(ScenarioTest, EscapeLeavesThePeriodsAsTheyWere) {
  InForm([this](QWidget&) {
    TabTo("Percentage jaar 5");
    Type("9");
    PressKey(Qt::Key_Return);
    // Rows were changed: they would be lost.
    dialogs_.Expect([](QWidget& question) {
      EXPECT_TRUE(qobject_cast<QMessageBox*>(&question));
      QTest::keyClick(question.windowHandle(), Qt::Key_J, Qt::AltModifier);
    });
    PressKey(Qt::Key_Escape);
  });
  const QJsonObject fields = ReadAfterClosing();
  EXPECT_EQ(fields["0/1/bedrag"].toDouble(), 900);
  EXPECT_EQ(Perioden(fields), (std::map<int, double>{{1, 1}}));
}

TEST_F(ScenarioTest, WhatOkStoredWithAPastedColumnIsOneStepBackAndForth) {
  const auto perioden = [this] { return Kolom(0, 1).Bedrag.Perioden; };
  const auto before = perioden();
  InForm([](QWidget&) {
    TabTo("Percentage jaar 5");
    QApplication::clipboard()->setText("3\n2\n");
    PressKey(Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(FocusWindow(), Qt::Key_O, Qt::AltModifier);
  });
  const auto stored = perioden();
  EXPECT_NE(stored, before);
  PressKey(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(perioden(), before);
  PressKey(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(perioden(), stored);
  EXPECT_EQ(Perioden(ReadAfterClosing()).count(49), 1U);  // the month in which the fifth year begins
}

}  // namespace
}  // namespace brivane::app

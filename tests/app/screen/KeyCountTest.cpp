#include <QDate>
#include <cstdio>
#include <functional>
#include <string>

#include "tests/app/screen/WindowTest.h"
#include <brivane/frame/Calendar.h>

// How many keys the jobs of every day take, pressed in the real window from the list with the file open until
// everything is stored. A key with Control, Shift or Alt is one key, and so is each character that is typed.
namespace brivane::app {
namespace {

class KeyCountTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    Open();
    PressKey(Qt::Key_F6);
    ASSERT_EQ(Focus(), "Leningen en vrije kolommen");
  }

  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    ++keys_;
    PressKey(key, modifiers);
  }
  void Write(const char* text) {
    keys_ += static_cast<int>(std::string(text).size());
    Type(text);
  }
  /// Opens the year form by its letter and lets the body work in it.
  void InForm(const std::function<void()>& work) {
    bool done = false;
    dialogs_.Expect([&](QWidget&) {
      work();
      done = true;
    });
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return done && !QApplication::activeModalWidget(); }, 5000));
  }
  /// What a screen reader reads in a box of the window in front.
  static QString TextOf(const QString& name) {
    TabTo(name);
    QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(QApplication::focusWidget());
    return reader ? reader->text(QAccessible::Value) : QString();
  }
  [[nodiscard]] static QDate Today() { return QDate::currentDate(); }
  [[nodiscard]] static QString Shown(QDate date) { return date.toString(QStringLiteral("dd-MM-yyyy")); }
  void ExpectFewerThan(int limit, const char* job) const {
    std::printf("%s: %d keys (fewer than %d)\n", job, keys_, limit);
    EXPECT_LT(keys_, limit) << job;
  }

 private:
  int keys_ = 0;
};

TEST_F(KeyCountTest, AYearlyMagazineFromTodayForThreeYears) {
  Press(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
  Press(Qt::Key_D, Qt::AltModifier);
  QTest::qWait(200);  // a box that a letter ticks stays down for a moment
  Press(Qt::Key_P, Qt::AltModifier);
  Write("t");
  Press(Qt::Key_A, Qt::AltModifier);
  Write("v");
  Press(Qt::Key_Tab);
  EXPECT_EQ(Focus(), "Contractvervaldatum");
  Write("3j");
  Press(Qt::Key_B, Qt::AltModifier);
  Write("84,50");
  Press(Qt::Key_Tab);
  for (int step = 0; step < 3; ++step) Press(Qt::Key_Down);  // per kwartaal, half jaar, jaar
  Press(Qt::Key_Tab);
  ExpectFewerThan(24, "yearly magazine");

  const QJsonObject fields = ReadAfterClosing();
  EXPECT_TRUE(fields["0/8/is_product"].toBool());
  EXPECT_EQ(fields["0/8/productsoort"].toInt(), 45);
  EXPECT_EQ(fields["0/8/bedrag"].toDouble(), 84.5);
  EXPECT_EQ(fields["0/8/termijn"].toInt(), 12);
  EXPECT_EQ(fields["0/8/datum_aanvang"].toString(), Shown(Today()));
  EXPECT_EQ(fields["0/8/contractvervaldatum"].toString(), Shown(Today().addYears(3)));
  EXPECT_EQ(fields["0/8/correctie_last"].toInt(), 1);
  EXPECT_EQ(fields["0/8/correctie_fiscaal"].toInt(), 3);
}

TEST_F(KeyCountTest, AMonthlyContributionThatGoesOverToThePartner) {
  Press(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
  Press(Qt::Key_L, Qt::AltModifier);
  Press(Qt::Key_Left);
  Press(Qt::Key_A, Qt::AltModifier);
  Write("v");
  Press(Qt::Key_B, Qt::AltModifier);
  Write("350");
  Press(Qt::Key_N, Qt::AltModifier);
  while (Focus() != "Overlijden") Press(Qt::Key_Tab);
  Write("j");
  Press(Qt::Key_Tab);
  Write("60");
  Press(Qt::Key_Tab);
  Press(Qt::Key_Tab);
  Write("67");
  Press(Qt::Key_Tab);
  ExpectFewerThan(26, "monthly contribution");

  const QJsonObject fields = ReadAfterClosing();
  EXPECT_EQ(fields["0/8/bedrag"].toDouble(), 350);
  EXPECT_EQ(fields["0/8/termijn"].toInt(), 1);
  EXPECT_EQ(fields["0/8/correctie_last"].toInt(), 2);
  // A contribution is a taxable addition.
  EXPECT_EQ(fields["0/8/correctie_fiscaal"].toInt(), 2);
  EXPECT_EQ(fields["0/8/datum_aanvang"].toString(), Shown(Today()));
  EXPECT_TRUE(fields["0/8/scenario_overlijden"].toBool());
  EXPECT_EQ(fields["0/8/percentage_overgang"].toDouble(), 60);
  EXPECT_EQ(fields["0/8/eindleeftijd_overgang"].toInt(), 67);
  // The applicant was born on 12 March 1978.
  EXPECT_EQ(fields["0/8/einddatum_overgang"].toString(), "12-03-2045");
}

TEST_F(KeyCountTest, ThirtyYearsWithAGrowthAndACorrection) {
  // The form has 30 years for an applicant who turns 68 in the last of them.
  auto persons = Screen().Dossier().Personen();
  persons.front().Geboortedatum = frame::MakeDate({.year = Today().year() - 38, .month = 6, .day = 15});
  ASSERT_TRUE(Screen().SetClient(persons, 67));
  PressKey(Qt::Key_F6);
  PressKey(Qt::Key_F6);
  ASSERT_EQ(Focus(), "Leningen en vrije kolommen");

  Press(Qt::Key_G, Qt::ControlModifier | Qt::ShiftModifier);
  Press(Qt::Key_A, Qt::AltModifier);
  Write("v");
  Press(Qt::Key_Tab);
  Write("30j");
  Press(Qt::Key_B, Qt::AltModifier);
  Write("100");
  InForm([this] {
    EXPECT_EQ(Focus(), "Bedrag jaar 1");
    for (int step = 0; step < 4; ++step) Press(Qt::Key_Down);
    Press(Qt::Key_Tab);
    EXPECT_EQ(Focus(), "Percentage jaar 5");
    Write("2");
    // The sixth year grows by 4 %, those after it by 2 % again.
    Press(Qt::Key_Down);
    Write("4");
    Press(Qt::Key_Down);
    Write("2");
    Press(Qt::Key_O, Qt::AltModifier);
  });
  ExpectFewerThan(24, "thirty years with growth");

  // 100 in the first five years, 102 in the sixth, 102 x 1,04 = 106,08 in the seventh, and 106,08 x 1,02^23 in the
  // last.
  InForm([this] {
    EXPECT_EQ(TextOf("Bedrag jaar 5"), "100,00");
    EXPECT_EQ(TextOf("Bedrag jaar 6"), "102,00");
    EXPECT_EQ(TextOf("Bedrag jaar 7"), "106,08");
    EXPECT_EQ(TextOf("Bedrag jaar 30"), "167,28");
    PressKey(Qt::Key_Escape);
  });
  const QJsonObject fields = ReadAfterClosing();
  EXPECT_EQ(fields["0/8/invoersoort"].toInt(), 3);
  EXPECT_EQ(fields["0/8/bedrag"].toDouble(), 100);
  EXPECT_EQ(fields["0/8/datum_aanvang"].toString(), Shown(Today()));
  EXPECT_EQ(fields["0/8/looptijd"].toInt(), 360);
  // Year n begins at month 12 (n - 1) + 1; a year without a percentage of its own goes on growing by the last one.
  const double expected[][2] = {{49, 2}, {61, 4}, {73, 2}, {85, 0}};
  for (int number = 1; number <= 4; ++number) {
    const QString place = QStringLiteral("0/8/periode %1/").arg(number);
    EXPECT_EQ(fields[place + "maand"].toDouble(), expected[number - 1][0]);
    EXPECT_EQ(fields[place + "percentage"].toDouble(), expected[number - 1][1]);
  }
  EXPECT_FALSE(fields.contains("0/8/periode 5/maand"));
}

TEST_F(KeyCountTest, DuplicatingAColumnIntoAnotherLoan) {
  ASSERT_TRUE(Screen().GoTo({0, 3}));
  Press(Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier);
  Press(Qt::Key_2);
  ExpectFewerThan(3, "duplicate and move");
  EXPECT_EQ(Screen().Shown(), (Place{2, 8}));
  const QJsonObject fields = ReadAfterClosing();
  EXPECT_EQ(fields["2/8/omschrijving"].toString(), "Muzieklessen aan huis");
  EXPECT_EQ(fields["2/8/bedrag"].toDouble(), 350);
  EXPECT_EQ(fields["0/3/bedrag"].toDouble(), 350);
}

TEST_F(KeyCountTest, FindingOneOfThreeHundred) {
  dossier::DossierGegevens contents = dossier::LeegDossier();
  // Names of three syllables, all different: ba-be-bi, ba-be-bo, and so on.
  const char* const syllables[] = {"ba", "de", "ki", "lo", "mu", "na", "re"};
  for (std::int16_t number = 0; number < 300; ++number) {
    dossier::KolomGegevens& column = contents.HuidigeLening.VrijeKolommen.emplace_back();
    column.Id = static_cast<std::int16_t>(number + 1);
    column.Omschrijving = std::string(syllables[number / 49]) + syllables[number / 7 % 7] + syllables[number % 7];
    column.DatumAanvang = frame::MakeDate({.year = 2026, .month = 1, .day = 1});
  }
  contents.HuidigeLening.VrijeKolommen[217].Omschrijving = "Tuinonderhoud";
  const QString file = folder_.filePath("driehonderd.dossier");
  dossier::DossierFile::Maak(file, contents);
  ASSERT_TRUE(window_->Open(file));
  PressKey(Qt::Key_F6);
  ASSERT_EQ(Focus(), "Leningen en vrije kolommen");

  Press(Qt::Key_F, Qt::ControlModifier);
  Write("tui");
  Press(Qt::Key_Return);
  ExpectFewerThan(6, "find one of 300");
  EXPECT_EQ(Screen().Shown(), (Place{0, 218}));
  // It is at hand to be edited.
  EXPECT_EQ(Focus(), "Aanvangsdatum");
}

}  // namespace
}  // namespace brivane::app

#include <cstdio>
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
  void ExpectFewerThan(int limit, const char* job) const {
    std::printf("%s: %d keys (fewer than %d)\n", job, keys_, limit);
    EXPECT_LT(keys_, limit) << job;
  }

 private:
  int keys_ = 0;
};

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

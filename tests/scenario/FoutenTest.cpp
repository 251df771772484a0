#include "tests/scenario/Formulier.h"

namespace brivane::tests {
namespace {

/// What the adviser sees when the host, a box or the screen fails.
class Fouten : public Formulier {
 protected:
  /// Makes the nth access to the scenario fail, counted from here; answers whether it came that far.
  void FaalBij(int nummer) {
    toegangen = 0;
    scenario->voor = [this, nummer](const std::string& naam) {
      if (++toegangen == nummer) throw host::Error(70, "Geen toegang tot " + naam, "Host");
    };
  }

  int toegangen = 0;
};

TEST_F(Fouten, EveryAccessWhileTheFormFillsIsShownOnceAndGoesToTheCaller) {
  for (const std::int16_t soort : {std::int16_t{1}, std::int16_t{2}, std::int16_t{3}}) {
    int nummer = 0;
    bool gefaald = true;
    while (gefaald) {
      Nieuw();
      scenario = std::make_shared<RecordingScenario>();
      scenario->VoegToe({.maand = 13, .bedrag = 5, .percentage = 1, .korting = 1, .eenmalig = true});
      berichten.clear();
      FaalBij(++nummer);
      gefaald = false;
      try {
        Open(soort, 2, {.korting = true});
      } catch (const host::Error& fout) {
        gefaald = true;
        EXPECT_EQ(fout.Number(), 70);
        ASSERT_EQ(berichten.size(), 1U) << nummer;
        EXPECT_EQ(berichten[0], Foutbericht(70, fout.Description()));
      }
    }
    EXPECT_TRUE(berichten.empty());
    // Name, kind, name, base value, three looks at the list and two or three fields.
    EXPECT_EQ(nummer - 1, soort == 3 ? 8 : 9) << soort;
  }
}

TEST_F(Fouten, EveryAccessOfAnEditIsShownOnceAndLeavesTheFormOpen) {
  const struct {
    std::int16_t soort;
    const char* vak;
    int toegangen;
  } gevallen[] = {
      {1, "txtBedrag", 2}, {3, "txtBedrag", 2}, {2, "txtPercentage", 2}, {3, "txtPercentage", 1}, {2, "txtKorting", 3}};
  for (const auto& geval : gevallen) {
    for (int nummer = 1; nummer <= geval.toegangen; ++nummer) {
      Nieuw();
      scenario = std::make_shared<RecordingScenario>();
      Open(geval.soort, 3, {.korting = true});
      berichten.clear();
      FaalBij(nummer);
      EXPECT_EQ(Typ(geval.vak, 1, 5.0), controls::Outcome::Done);
      EXPECT_EQ(berichten.size(), 1U) << geval.vak << nummer;
      EXPECT_FALSE(form->Gewijzigd());
      EXPECT_FALSE(Venster().IsUnloaded());
      EXPECT_EQ(Vak(geval.vak, 1).Number(), 5);
    }
    toegangen = 0;
    Typ(geval.vak, 1, 6.0);
    EXPECT_EQ(toegangen, geval.toegangen);
  }
}

TEST_F(Fouten, EveryAccessOfOKIsShownOnceAndLeavesTheFormOpen) {
  for (const std::int16_t soort : {std::int16_t{1}, std::int16_t{2}, std::int16_t{3}}) {
    int nummer = 0;
    do {
      Nieuw();
      scenario = std::make_shared<RecordingScenario>();
      scenario->VoegToe({.maand = 13, .bedrag = 5, .percentage = 1, .korting = 1});
      Open(soort, 3, {.korting = true});
      if (soort != 2) Zet("txtBedrag", {1, 2, 3});
      if (soort != 1) Zet("txtPercentage", {1, 2, 3});
      berichten.clear();
      FaalBij(++nummer);
      DrukOK();
      if (toegangen < nummer) break;
      EXPECT_EQ(berichten.size(), 1U) << soort << ", " << nummer;
      EXPECT_FALSE(Venster().IsUnloaded());
      EXPECT_EQ(form->Scenario(), scenario);
      // The cause gone, OK stores after all.
      scenario->voor = nullptr;
      DrukOK();
      EXPECT_TRUE(Venster().IsUnloaded());
      EXPECT_EQ(berichten.size(), 1U);
    } while (nummer < 100);
    EXPECT_TRUE(berichten.empty());
    EXPECT_TRUE(Venster().IsUnloaded());
    EXPECT_GT(nummer, 12);
    EXPECT_LT(nummer, 30);
  }
}

TEST_F(Fouten, TheStoringThatOKBeganEndsAtEveryFailureBeforeItIsShown) {
  for (const std::int16_t soort : {std::int16_t{1}, std::int16_t{2}, std::int16_t{3}}) {
    int begonnen = 0;
    for (int nummer = 1; nummer < 100; ++nummer) {
      Nieuw();
      scenario = std::make_shared<RecordingScenario>();
      scenario->VoegToe({.maand = 13, .bedrag = 5, .percentage = 1, .korting = 1});
      Open(soort, 3, {.korting = true});
      std::string verloop;
      host::Subscriptions luistert;
      luistert += form->OpslagBegint.Connect([&] { verloop += "begint "; });
      luistert += form->OpslagEindigt.Connect([&] { verloop += "eindigt "; });
      luistert += form->Form().Unloaded.Connect([&] { verloop += "gesloten "; });
      toolkit.Desktop().answer = [&](const std::string&, const std::string&, host::MessageStyle) {
        verloop += "melding ";
        return host::MessageAnswer::Ok;
      };
      FaalBij(nummer);
      DrukOK();
      if (toegangen < nummer) {
        EXPECT_EQ(verloop, "begint eindigt gesloten ");
        break;
      }
      // Its kind is asked before it begins.
      EXPECT_EQ(verloop, nummer == 1 ? "melding " : "begint eindigt melding ") << soort << ", " << nummer;
      begonnen += nummer == 1 ? 0 : 1;
    }
    EXPECT_GE(begonnen, 4) << soort;
  }
}

TEST_F(Fouten, ABoxThatCannotBeReadIsATypeMismatch) {
  Open(1, 2);
  Typ("txtBedrag", 1, std::string("tien"));
  EXPECT_EQ(berichten, (std::vector<Bericht>{Foutbericht(13, "Type mismatch")}));
  EXPECT_TRUE(scenario->log.empty());
  EXPECT_FALSE(form->Gewijzigd());
}

TEST_F(Fouten, ABoxThatNobodyReadsMayHoldAnything) {
  Open(1, 2);
  Typ("txtBedrag", 2, std::string("tien"));
  EXPECT_TRUE(berichten.empty());
  EXPECT_TRUE(form->Gewijzigd());
}

TEST_F(Fouten, GrowthKeepsTheRowsBeforeTheOneThatCannotBeRead) {
  Open(3, 4);
  Zet("txtBedrag", {100, 1, 1, 1});
  Zet("txtPercentage", {100, 0, 0, 0});
  Typ("txtPercentage", 3, std::string("?"));
  berichten.clear();
  Typ("txtBedrag", 1, 100.0);
  EXPECT_EQ(Waarden("txtBedrag"), (std::vector<double>{100, 200, 400, 1}));
  EXPECT_EQ(berichten, (std::vector<Bericht>{Foutbericht(13, "Type mismatch")}));
}

TEST_F(Fouten, AnAmountThatGrowsPastADoubleOverflows) {
  Open(3, 4);
  Zet("txtBedrag", {1, 2, 3, 4});
  Zet("txtPercentage", {900, 900, 0, 0});
  Typ("txtBedrag", 1, 1e307);
  EXPECT_EQ(Waarden("txtBedrag"), (std::vector<double>{1e307, 1e307 * 9 + 1e307, 3, 4}));
  EXPECT_EQ(berichten, (std::vector<Bericht>{Foutbericht(6, "Overflow")}));
}

TEST_F(Fouten, ATotalThatNoDoubleHoldsIsNeitherShownNorHeldAgainstTheMaximum) {
  scenario->naam = "Overbruggingskrediet";
  for (const double bedrag : {1e308, -1e308}) {
    Nieuw();
    Open(1, 2, {.maxOpname = 25000});
    Zet("txtBedrag", {bedrag, 0});
    berichten.clear();
    Typ("txtBedrag", 2, bedrag);
    EXPECT_EQ(Vak("txtTotaal").Number(), 0);
    DrukOK();
    EXPECT_EQ(berichten, (std::vector<Bericht>{Foutbericht(6, "Overflow"), Foutbericht(6, "Overflow")}));
    EXPECT_TRUE(scenario->log.empty());
    EXPECT_FALSE(Venster().IsUnloaded());
  }
}

TEST_F(Fouten, ANetPercentageThatNoDoubleHoldsIsNotWritten) {
  Open(2, 2, {.korting = true});
  Typ("txtKorting", 1, -1e308);
  scenario->log.clear();
  berichten.clear();
  Typ("txtPercentage", 1, 1e308);
  EXPECT_EQ(scenario->basis, 1e308);
  EXPECT_EQ(berichten, (std::vector<Bericht>{Foutbericht(6, "Overflow")}));
}

TEST_F(Fouten, AnExceptionOfAnotherKindIsForeign) {
  Open(1, 2);
  scenario->voor = [](const std::string&) { throw std::runtime_error("schijf vol"); };
  Typ("txtBedrag", 1, 5.0);
  EXPECT_EQ(berichten, (std::vector<Bericht>{Foutbericht(440, "schijf vol")}));
}

TEST_F(Fouten, AFormWithoutAScenarioMissesAnObject) {
  try {
    form->Invoeren(nullptr, 3);
    FAIL();
  } catch (const host::Error& fout) {
    EXPECT_EQ(fout.Number(), 91);
  }
  EXPECT_EQ(berichten, (std::vector<Bericht>{Foutbericht(91, "Object missing")}));
}

TEST_F(Fouten, AHostThatAnswersNoNewEntryMissesAnObject) {
  Open(1, 2);
  Zet("txtBedrag", {1, 2});
  scenario->voor = [this](const std::string& naam) {
    // The new entry is gone again before it is asked for.
    if (naam == "Periode" && !scenario->perioden.empty()) scenario->perioden.clear();
  };
  DrukOK();
  EXPECT_EQ(berichten, (std::vector<Bericht>{Foutbericht(91, "Object missing")}));
  EXPECT_FALSE(Venster().IsUnloaded());
}

TEST_F(Fouten, AGridWithoutTheBoxesOfTheKindHasNoSuchElement) {
  Open(1, 2);
  scenario->invoersoort = 2;
  DrukOK();
  EXPECT_EQ(berichten, (std::vector<Bericht>{Foutbericht(340, "No such element of a control array")}));
}

TEST_F(Fouten, ThePublicCheckShowsAFailureOnce) {
  scenario->naam = "Overbruggingskrediet";
  Open(1, 2, {.maxOpname = 5});
  Typ("txtBedrag", 2, std::string("?"));
  berichten.clear();
  bool cancel = false;
  form->Validation(cancel, 1);
  EXPECT_FALSE(cancel);
  EXPECT_EQ(berichten, (std::vector<Bericht>{Foutbericht(13, "Type mismatch")}));
}

}  // namespace
}  // namespace brivane::tests

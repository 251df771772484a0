#include <gtest/gtest.h>

#include <iostream>
#include <random>

#include "tests/scenario/Formulier.h"

namespace brivane::tests {
namespace {

constexpr std::uint32_t kZaad = 20031215;
/// Of each kind.
constexpr int kRoosters = 10000;

/// What was entered, row by row; index 0 is row 1.
struct Ingevuld {
  std::int16_t soort = 1;
  int rijen = 1;
  bool krediet = false;
  bool korting = false;
  std::int16_t soortScenario = 0;
  std::vector<double> bedragen;
  std::vector<double> percentages;
  std::vector<double> kortingen;
  std::vector<bool> kruisen;
};

class Dobbelsteen {
 public:
  explicit Dobbelsteen(std::uint32_t zaad) : bron_(zaad) {}
  int Tot(int grens) { return static_cast<int>(bron_() % static_cast<std::uint32_t>(grens)); }
  bool Munt() { return Tot(2) == 1; }
  /// A number with four decimals, at most `grens` ten-thousandths from zero; often a round one.
  double VierDecimalen(int grens) {
    int tienduizendsten = Tot(2 * grens + 1) - grens;
    if (Tot(4) == 0) tienduizendsten -= tienduizendsten % 2500;
    return tienduizendsten / 10000.0;
  }
  double Bedrag() { return Tot(5) == 0 ? 0 : (Tot(20000000) - 2000000) / 100.0; }

 private:
  std::mt19937 bron_;
};

Ingevuld Werp(Dobbelsteen& steen, std::int16_t soort) {
  Ingevuld rooster;
  rooster.soort = soort;
  rooster.rijen = 1 + steen.Tot(80);
  rooster.krediet = steen.Tot(3) == 0;
  rooster.korting = steen.Munt();
  rooster.soortScenario = static_cast<std::int16_t>(steen.Tot(3));
  // Net percentages keep within 1000 of the first: 400 either way, less a discount of 90 either way.
  for (int rij = 0; rij < rooster.rijen; ++rij) {
    const bool zelfde = rij > 0 && steen.Munt();
    rooster.bedragen.push_back(zelfde ? rooster.bedragen.back() : steen.Bedrag());
    rooster.percentages.push_back(zelfde ? rooster.percentages.back() : steen.VierDecimalen(4000000));
    rooster.kortingen.push_back(zelfde && steen.Munt() ? rooster.kortingen.back() : steen.VierDecimalen(900000));
    rooster.kruisen.push_back(steen.Tot(4) == 0);
  }
  if (steen.Munt()) rooster.kortingen[0] = 0;
  return rooster;
}

/// The growth rule told the other way round: what a row grows by is the nearest positive percentage at or
/// above it, or the first row's own where there is none.
double GroeitMet(const std::vector<double>& percentages, std::size_t rij) {
  for (std::size_t r = rij; r > 0; --r)
    if (percentages[r] > 0) return percentages[r];
  return percentages[0];
}

class Rondgang : public Formulier {
 protected:
  void Maak(const Ingevuld& rooster) {
    Nieuw();
    form->SetSoortScenario(rooster.soortScenario);
    Open(rooster.soort, rooster.rijen, {.korting = rooster.korting});
  }

  void VulIn(const Ingevuld& rooster) {
    if (rooster.soort != 2) Zet("txtBedrag", rooster.bedragen);
    if (rooster.soort != 1) Zet("txtPercentage", rooster.percentages);
    if (rooster.soort != 1 && rooster.korting) Zet("txtKorting", rooster.kortingen);
    std::size_t rij = 0;
    VanElkeRij<host::CheckBox>("chkEenmalig",
                               [&](host::CheckBox& vak) { vak.SetValue(rooster.kruisen[rij++] ? 1 : 0); });
    // The adviser's own edit of row 1 is what hands amounts their base value.
    if (rooster.soort == 1) Typ("txtBedrag", 1, rooster.bedragen[0]);
  }

  void VerwachtBedragen(const Ingevuld& rooster) {
    EXPECT_EQ(Waarden("txtBedrag"), rooster.bedragen);
    if (rooster.krediet) return;
    std::vector<int> kruisen{0};
    for (std::size_t rij = 1; rij < rooster.bedragen.size(); ++rij) {
      // A tick is kept where its row starts something new.
      const bool nieuw =
          rooster.bedragen[rij] != rooster.bedragen[rij - 1] || rooster.kruisen[rij] != rooster.kruisen[rij - 1];
      kruisen.push_back(nieuw && rooster.kruisen[rij] ? 1 : 0);
    }
    EXPECT_EQ(Kruisen(), kruisen);
  }

  void VerwachtGroei(const Ingevuld& rooster) {
    EXPECT_EQ(Waarden("txtPercentage"), rooster.percentages);
    const std::vector<double> bedragen = Waarden("txtBedrag");
    EXPECT_EQ(bedragen[0], rooster.bedragen[0]);
    for (std::size_t rij = 1; rij < bedragen.size(); ++rij) {
      const double deel = static_cast<double>(static_cast<float>(GroeitMet(rooster.percentages, rij - 1))) / 100;
      ASSERT_EQ(bedragen[rij], bedragen[rij - 1] * deel + bedragen[rij - 1]) << "rij " << rij + 1;
    }
    if (rooster.korting) {
      EXPECT_EQ(Waarden("txtKorting"), std::vector<double>(rooster.percentages.size(), 0.0));
    }
  }

  void VerwachtRijen(const Ingevuld& rooster) {
    if (rooster.soort == 1) return VerwachtBedragen(rooster);
    if (rooster.soort == 3) return VerwachtGroei(rooster);
    EXPECT_EQ(Waarden("txtPercentage"), rooster.percentages);
    if (rooster.korting) {
      EXPECT_EQ(Waarden("txtKorting"), rooster.kortingen);
    }
  }
};

class RondgangVanSoort : public Rondgang, public testing::WithParamInterface<int> {};

TEST_P(RondgangVanSoort, StoringAndLoadingGiveTheRowsBack) {
  const std::uint32_t zaad = kZaad + static_cast<std::uint32_t>(GetParam());
  std::cout << "kind " << GetParam() << ", seed " << zaad << ", " << kRoosters << " grids\n";
  Dobbelsteen steen(zaad);
  for (int nummer = 0; nummer < kRoosters; ++nummer) {
    const Ingevuld rooster = Werp(steen, static_cast<std::int16_t>(GetParam()));
    scenario = std::make_shared<RecordingScenario>();
    if (rooster.krediet) scenario->naam = "Overbruggingskrediet";
    Maak(rooster);
    VulIn(rooster);
    DrukOK();
    const std::vector<PeriodeWaarden> lijst = scenario->Inhoud();
    const double basis = scenario->basis;

    Maak(rooster);
    VerwachtRijen(rooster);
    // Storing what was loaded changes nothing, but for the end of a tick, which is loaded as none.
    DrukOK();
    EXPECT_EQ(scenario->basis, basis);
    if (rooster.soort != 1 || rooster.krediet) {
      EXPECT_EQ(scenario->Inhoud(), lijst);
    }
    ASSERT_TRUE(berichten.empty()) << berichten.front().tekst;
    ASSERT_FALSE(HasFailure()) << "grid " << nummer << ": " << rooster.rijen << " rows"
                               << (rooster.krediet ? ", bridging loan" : "") << (rooster.korting ? ", discount" : "");
  }
}

INSTANTIATE_TEST_SUITE_P(Soorten, RondgangVanSoort, testing::Values(1, 2, 3));

TEST_F(Rondgang, AScenarioFromElsewhereKeepsItsNumbersWhenItIsStoredUntouched) {
  // Percentages of any precision, as another program may have left them in the list.
  Dobbelsteen steen(kZaad);
  std::cout << "seed " << kZaad << '\n';
  for (int nummer = 0; nummer < 500; ++nummer) {
    for (const std::int16_t soort : {std::int16_t{2}, std::int16_t{3}}) {
      scenario = std::make_shared<RecordingScenario>();
      scenario->basis = steen.VierDecimalen(50000);
      float vorige = 0;
      for (int rij = 2; rij <= 6; ++rij) {
        const float percentage = static_cast<float>(steen.Tot(1000000) + 1) / 77777.0F;
        if (percentage == vorige) continue;
        vorige = percentage;
        const auto maand = static_cast<std::int16_t>((rij - 1) * 12 + 1);
        scenario->VoegToe({.maand = maand, .percentage = static_cast<double>(percentage)});
      }
      const std::vector<PeriodeWaarden> lijst = scenario->Inhoud();
      Nieuw();
      Open(soort, 6);
      DrukOK();
      EXPECT_EQ(scenario->Inhoud(), lijst) << soort;
    }
  }
}

}  // namespace
}  // namespace brivane::tests

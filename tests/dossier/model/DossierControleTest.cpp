#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "dossier/model/Application.h"
#include "dossier/model/DossierControle.h"
#include "dossier/model/SampleCase.h"
#include <brivane/frame/Calendar.h>
#include <brivane/host/Error.h>

namespace brivane::dossier {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const host::Date kToday = frame::MakeDate({.year = 2026, .month = 11, .day = 21});

std::vector<std::string> Texts(const std::vector<Finding>& findings) {
  std::vector<std::string> texts;
  for (const Finding& finding : findings) texts.push_back(finding.text);
  return texts;
}

/// What is found in a case with one column that is in order but for a change.
std::vector<std::string> Found(const std::function<void(KolomGegevens&)>& change) {
  DossierGegevens gegevens = LeegDossier();
  KolomGegevens kolom;
  kolom.Omschrijving = "Post";
  kolom.Bedrag.Bedrag = 10;
  kolom.DatumAanvang = frame::MakeDate({.year = 2026, .month = 1, .day = 31});
  change(kolom);
  gegevens.HuidigeLening.VrijeKolommen = {kolom};
  Dossier dossier(gegevens, std::make_shared<Environment>());
  return Texts(ControleerDossier(dossier, kToday));
}

void MakeProduct(KolomGegevens& kolom) {
  kolom.IsProduct = true;
  kolom.Maatschappij = "DM";
  kolom.Productsoort = 44;
  kolom.Looptijd = 999;
  kolom.Contractvervaldatum = frame::MakeDate({.year = 2026, .month = 11, .day = 22});
}

TEST(ControleerDossier, FindsNothingInTheSample) {
  Dossier dossier(VoorbeeldDossier(), std::make_shared<Environment>());
  EXPECT_THAT(Texts(ControleerDossier(dossier, kToday)), IsEmpty());
}

TEST(ControleerDossier, FindsWhatAColumnLacks) {
  EXPECT_THAT(Found([](KolomGegevens&) {}), IsEmpty());
  EXPECT_THAT(Found([](KolomGegevens& kolom) { kolom.Omschrijving.clear(); }),
              ElementsAre("Er is geen omschrijving ingevuld."));
  EXPECT_THAT(Found([](KolomGegevens& kolom) { kolom.Bedrag.Bedrag = 0; }), ElementsAre("Er is geen bedrag ingevuld."));
  EXPECT_THAT(Found([](KolomGegevens& kolom) { kolom.Termijn = 2; }), ElementsAre("Er is geen termijn gekozen."));
  EXPECT_THAT(Found([](KolomGegevens& kolom) { kolom.HeffingBij = 2; }),
              ElementsAre("De post staat op naam van een partner die er niet is."));
}

TEST(ControleerDossier, TakesAScenarioForAnAmount) {
  EXPECT_THAT(Found([](KolomGegevens& kolom) {
                kolom.Bedrag.Bedrag = 0;
                kolom.Bedrag.Perioden = {{{.Maand = 12, .Bedrag = 5}}};
              }),
              IsEmpty());
}

TEST(ControleerDossier, FindsADurationThatIsOver) {
  const auto lasting = [](int looptijd) {
    return Found([looptijd](KolomGegevens& kolom) {
      kolom.DatumAanvang = frame::MakeDate({.year = 2026, .month = 1, .day = 21});
      kolom.Looptijd = looptijd;
    });
  };
  // 21 January plus ten months is today.
  EXPECT_THAT(lasting(10), ElementsAre("De looptijd van de post is voorbij."));
  EXPECT_THAT(lasting(11), IsEmpty());
  EXPECT_THAT(lasting(0), IsEmpty());
  EXPECT_THAT(lasting(2147483647), IsEmpty());
}

TEST(ControleerDossier, CountsADurationInWholeMonths) {
  // 22 January plus ten months is tomorrow.
  EXPECT_THAT(Found([](KolomGegevens& kolom) {
                kolom.DatumAanvang = frame::MakeDate({.year = 2026, .month = 1, .day = 22});
                kolom.Looptijd = 10;
              }),
              IsEmpty());
}

TEST(ControleerDossier, FindsWhatAProductLacks) {
  EXPECT_THAT(Found(MakeProduct), IsEmpty());
  EXPECT_THAT(Found([](KolomGegevens& kolom) {
                MakeProduct(kolom);
                kolom.Maatschappij = "dm";
              }),
              ElementsAre("Er is geen maatschappij gekozen."));
  EXPECT_THAT(Found([](KolomGegevens& kolom) {
                MakeProduct(kolom);
                kolom.Maatschappij = "ZZ";
              }),
              ElementsAre("De naam van de andere maatschappij ontbreekt."));
  EXPECT_THAT(Found([](KolomGegevens& kolom) {
                MakeProduct(kolom);
                kolom.Contractvervaldatum = {};
              }),
              ElementsAre("Er is geen contractvervaldatum ingevuld."));
  EXPECT_THAT(Found([](KolomGegevens& kolom) {
                MakeProduct(kolom);
                kolom.Contractvervaldatum = kToday;
              }),
              ElementsAre("Het contract is vervallen."));
  EXPECT_THAT(Found([](KolomGegevens& kolom) {
                MakeProduct(kolom);
                kolom.Productsoort = 99;
                kolom.Looptijd = 1;
              }),
              ElementsAre("De looptijd van de post is voorbij."));
}

TEST(ControleerDossier, FindsAProposalThatEndsWhatTheCurrentSituationHasNot) {
  DossierGegevens gegevens = LeegDossier();
  gegevens.Voorstellen[2] = {5};
  Dossier dossier(gegevens, std::make_shared<Environment>());
  EXPECT_THAT(Texts(ControleerDossier(dossier, kToday)),
              ElementsAre("Voorstel 3 beëindigt een post die niet in de huidige situatie staat."));
}

TEST(ControleerDossier, SaysWhereItFoundSomething) {
  DossierGegevens gegevens = VoorbeeldDossier();
  gegevens.Leningen[0].VrijeKolommen[1].Omschrijving.clear();
  Dossier dossier(gegevens, std::make_shared<Environment>());
  const std::vector<Finding> findings = ControleerDossier(dossier, kToday);
  ASSERT_EQ(findings.size(), 1u);
  EXPECT_EQ(findings[0].Len_Id, 1);
  EXPECT_EQ(findings[0].Vrij_Id, 7);
}

TEST(DossierControle, TellsItsListenerWhatThereIsToLookAt) {
  DossierControle check([] { return kToday; });
  std::vector<std::string> found;
  const host::Subscription listening =
      check.Gecontroleerd.Connect([&](const std::vector<Finding>& findings) { found = Texts(findings); });
  DossierGegevens gegevens = VoorbeeldDossier();
  gegevens.HuidigeLening.VrijeKolommen[0].Omschrijving.clear();
  const auto application =
      std::make_shared<Application>(std::make_shared<Dossier>(gegevens, std::make_shared<Environment>()));
  check.Controleer(application, 1);
  EXPECT_THAT(found, ElementsAre("Er is geen omschrijving ingevuld."));
  EXPECT_THROW(check.Controleer(application, 2), host::Error);
  EXPECT_THROW(check.Controleer(nullptr, 1), host::Error);
}

}  // namespace
}  // namespace brivane::dossier

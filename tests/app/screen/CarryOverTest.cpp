#include <gtest/gtest.h>

#include <functional>

#include "app/screen/CarryOver.h"
#include "dossier/model/SampleCase.h"

namespace brivane::app {
namespace {

dossier::Dossier CaseWith(const std::function<void(dossier::DossierGegevens&)>& change) {
  dossier::DossierGegevens gegevens = dossier::VoorbeeldDossier();
  for (auto& voorstel : gegevens.Voorstellen) voorstel.clear();
  change(gegevens);
  auto omgeving = std::make_shared<dossier::Environment>();
  omgeving->Kopteksten = std::make_shared<dossier::BerekendeKopteksten>();
  return {gegevens, omgeving};
}

TEST(CarryOver, TellsEachVersionThatYesRemoves) {
  const dossier::Dossier one = CaseWith([](auto&) {});
  EXPECT_EQ(RemovedByCarryOver(one, 1),
            "\"Ja\" verwijdert:\n• 1 afwijkende kolom in Nieuwe lening 1: Kinderopvang, € 310,00 per maand");
  const dossier::Dossier two = CaseWith([](dossier::DossierGegevens& gegevens) {
    dossier::KolomGegevens kolom = gegevens.Leningen[0].VrijeKolommen[0];
    kolom.Bedrag.Bedrag = 95.5;
    kolom.Termijn = 12;
    gegevens.Leningen[1].Naam = "Verbouwing";
    gegevens.Leningen[1].VrijeKolommen.push_back(kolom);
  });
  EXPECT_EQ(RemovedByCarryOver(two, 1),
            "\"Ja\" verwijdert:\n• 1 afwijkende kolom in Nieuwe lening 1: Kinderopvang, € 310,00 per maand\n"
            "• 1 afwijkende kolom in Verbouwing: Kinderopvang, € 95,50 per jaar");
}

TEST(CarryOver, TellsTheProposalsThatYesTakesTheItemOutOf) {
  const dossier::Dossier dossier = CaseWith([](dossier::DossierGegevens& gegevens) {
    gegevens.Voorstellen[0] = {1, 2};
    gegevens.Voorstellen[2] = {1};
  });
  EXPECT_EQ(RemovedByCarryOver(dossier, 1),
            "\"Ja\" verwijdert:\n• 1 afwijkende kolom in Nieuwe lening 1: Kinderopvang, € 310,00 per maand\n"
            "• de post in voorstel 1 en 3");
}

TEST(CarryOver, IsNothingForWhatFollowsTheCurrentSituation) {
  EXPECT_EQ(RemovedByCarryOver(CaseWith([](auto&) {}), 2), "");
}

}  // namespace
}  // namespace brivane::app

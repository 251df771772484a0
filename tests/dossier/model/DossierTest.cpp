#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "dossier/model/Dossier.h"
#include "dossier/model/SampleCase.h"
#include <brivane/host/Error.h>

namespace brivane::dossier {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::shared_ptr<Dossier> MakeDossier(DossierGegevens gegevens = VoorbeeldDossier()) {
  return std::make_shared<Dossier>(std::move(gegevens), std::make_shared<Environment>());
}

std::vector<int> Ids(const Lening& lening) {
  std::vector<int> ids;
  for (const auto& kolom : lening.Kolommen()) ids.push_back(kolom->Id());
  return ids;
}
std::vector<int> Ids(const Dossier& dossier, std::int16_t Len_Id) { return Ids(*dossier.FindLening(Len_Id)); }

template <class Function> int ErrorOf(Function&& function) {
  try {
    function();
  } catch (const host::Error& error) {
    return error.Number();
  }
  return 0;
}

TEST(Dossier, AnswersTheCurrentLoanForZeroAndNothingPastTheLast) {
  const auto dossier = MakeDossier();
  EXPECT_EQ(dossier->Lening(0), dossier->HuidigeLening());
  EXPECT_NE(dossier->Lening(1), nullptr);
  EXPECT_NE(dossier->Lening(2), nullptr);
  EXPECT_EQ(dossier->Lening(3), nullptr);
  EXPECT_EQ(dossier->Lening(-1), nullptr);
  EXPECT_EQ(dossier->AantalLeningen(), 2);
}

TEST(Dossier, AnswersTheSameObjectAtEachLookUp) {
  const auto dossier = MakeDossier();
  EXPECT_EQ(dossier->HuidigeLening(), dossier->HuidigeLening());
  EXPECT_EQ(dossier->Lening(1), dossier->Lening(1));
  EXPECT_EQ(dossier->Persoon(1), dossier->Persoon(1));
  const auto lening = dossier->HuidigeLening();
  const auto kolom = lening->VrijeKolommen(1);
  EXPECT_EQ(kolom, lening->VrijeKolom(1));
  EXPECT_EQ(kolom, lening->VrijeKolomOp(1));
  EXPECT_EQ(kolom->Bedrag(), kolom->Bedrag());
  EXPECT_EQ(kolom->Bedrag()->Periode(1), kolom->Bedrag()->Periode(1));
}

TEST(Dossier, HasOneOrTwoPersons) {
  const auto dossier = MakeDossier();
  EXPECT_THAT(dossier->Persoon(1)->Naam(), ElementsAre("M.C.", "van den", "Heuvel"));
  EXPECT_NE(dossier->Persoon(2), nullptr);
  EXPECT_EQ(dossier->Persoon(0), nullptr);
  EXPECT_EQ(dossier->Persoon(3), nullptr);
  EXPECT_EQ(MakeDossier(LeegDossier())->Persoon(2), nullptr);
}

TEST(Dossier, KeepsItsOwnListsOfProposals) {
  const auto dossier = MakeDossier();
  const auto kolom = dossier->FindKolom(0, 3);
  dossier->VoegToeAanVoorstel(2, 3);
  dossier->VoegToeAanVoorstel(2, 3);
  EXPECT_THAT(dossier->Voorstel(2), ElementsAre(3));
  EXPECT_EQ(kolom->Voorstel(2), "");
  dossier->VerwijderUitVoorstel(2, 3, 0);
  dossier->VerwijderUitVoorstel(2, 3, 0);
  EXPECT_THAT(dossier->Voorstel(2), IsEmpty());
  EXPECT_THAT(dossier->Voorstel(1), ElementsAre(6));
  EXPECT_EQ(dossier->FindKolom(0, 6)->Voorstel(1), "J");
}

TEST(Dossier, KnowsThreeProposals) {
  const auto dossier = MakeDossier();
  const auto kolom = dossier->FindKolom(0, 3);
  for (const std::int16_t voorstel : {0, 4, -1}) {
    EXPECT_EQ(ErrorOf([&] { dossier->VoegToeAanVoorstel(voorstel, 3); }), 9);
    EXPECT_EQ(ErrorOf([&] { dossier->VerwijderUitVoorstel(voorstel, 3, 0); }), 9);
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(kolom->Voorstel(voorstel)); }), 9);
    EXPECT_EQ(ErrorOf([&] { kolom->SetVoorstel(voorstel, "J"); }), 9);
  }
}

TEST(Dossier, AddsAColumnWithValidCodesAndAnIdentifierOfItsOwn) {
  const auto dossier = MakeDossier();
  const auto kolom = dossier->NewKolom(1);
  EXPECT_EQ(kolom->Id(), 8);
  EXPECT_EQ(kolom->CorrectieLast(), 1);
  EXPECT_EQ(kolom->CorrectieFiscaal(), 3);
  EXPECT_EQ(kolom->HeffingBij(), 1);
  EXPECT_EQ(kolom->Termijn(), 1);
  EXPECT_EQ(kolom->Bedrag()->Invoersoort(), 1);
  EXPECT_THAT(Ids(*dossier, 1), ElementsAre(1, 7, 8));
  EXPECT_EQ(ErrorOf([&] { dossier->NewKolom(3); }), 91);
}

TEST(Dossier, AddsAColumnOfTheKindOfInputThatIsAsked) {
  const auto dossier = MakeDossier();
  EXPECT_EQ(dossier->NewKolom(0, Invoer::Bedragen)->Bedrag()->Invoersoort(), 1);
  EXPECT_EQ(dossier->NewKolom(0, Invoer::Percentages)->Bedrag()->Invoersoort(), 2);
  EXPECT_EQ(dossier->NewKolom(0, Invoer::BedragenMetGroei)->Bedrag()->Invoersoort(), 3);
}

TEST(Dossier, DuplicatesAColumnIntoAnotherLoan) {
  const auto dossier = MakeDossier();
  const auto copy = dossier->Dupliceer(0, 6, 2);
  EXPECT_EQ(copy->Id(), 8);
  EXPECT_EQ(copy->Omschrijving(), "Tennislidmaatschap");
  EXPECT_THAT(Ids(*dossier, 2), ElementsAre(8));
  EXPECT_EQ(Ids(*dossier, 0).size(), 6U);
  EXPECT_EQ(ErrorOf([&] { dossier->Dupliceer(0, 6, 3); }), 91);
}

TEST(Dossier, GivesNoIdentifierThatAProposalStillNames) {
  const auto dossier = MakeDossier();
  dossier->VoegToeAanVoorstel(1, 20);
  EXPECT_EQ(dossier->NewKolom(0)->Id(), 21);
}

TEST(Dossier, FillsTheGapsWhereTheHighestIdentifierIsTaken) {
  DossierGegevens gegevens = LeegDossier();
  gegevens.HuidigeLening.VrijeKolommen.resize(2);
  gegevens.HuidigeLening.VrijeKolommen[1].Id = 32767;
  const auto dossier = MakeDossier(gegevens);
  EXPECT_EQ(dossier->NewKolom(0)->Id(), 2);
  EXPECT_EQ(dossier->NewKolom(0)->Id(), 3);
}

TEST(Dossier, RefusesAColumnWhereEveryIdentifierIsTaken) {
  DossierGegevens gegevens = LeegDossier();
  for (int id = 1; id <= 32767; ++id) gegevens.Voorstellen[0].insert(static_cast<std::int16_t>(id));
  EXPECT_EQ(ErrorOf([&] { MakeDossier(gegevens)->NewKolom(0); }), 6);
}

TEST(Dossier, DuplicatesAColumnAsAnItemOfItsOwn) {
  const auto dossier = MakeDossier();
  const auto copy = dossier->Dupliceer(0, 6);
  EXPECT_EQ(copy->Id(), 8);
  EXPECT_EQ(copy->Omschrijving(), "Tennislidmaatschap");
  EXPECT_EQ(copy->Voorstel(1), "");
  EXPECT_THAT(dossier->Voorstel(1), ElementsAre(6));
  EXPECT_THAT(Ids(*dossier, 0), ElementsAre(1, 2, 3, 4, 5, 6, 8));
  EXPECT_EQ(ErrorOf([&] { dossier->Dupliceer(0, 99); }), 91);
}

TEST(Dossier, ACopysPeriodsAreItsOwn) {
  const auto dossier = MakeDossier();
  const auto copy = dossier->Dupliceer(0, 1);
  EXPECT_EQ(copy->Gegevens().Bedrag.Perioden.size(), 2u);
  copy->Bedrag()->Periode(1)->SetBedrag(1);
  copy->Bedrag()->VerwijderPeriode(2);
  EXPECT_EQ(dossier->FindKolom(0, 1)->Bedrag()->Periode(1)->Bedrag(), 310);
  EXPECT_NE(dossier->FindKolom(0, 1)->Bedrag()->Periode(2), nullptr);
}

TEST(Dossier, RemovesAnItemFromTheProposalsWhenNoVersionOfItIsLeft) {
  const auto dossier = MakeDossier();
  dossier->MakeAfwijking(6, 2);
  dossier->Verwijder(0, 6);
  EXPECT_THAT(dossier->Voorstel(1), ElementsAre(6));
  dossier->Verwijder(2, 6);
  EXPECT_THAT(dossier->Voorstel(1), IsEmpty());
  EXPECT_EQ(ErrorOf([&] { dossier->Verwijder(2, 6); }), 91);
}

TEST(Dossier, MovesAColumnUnderItsOwnIdentifier) {
  const auto dossier = MakeDossier();
  const auto kolom = dossier->FindKolom(0, 2);
  EXPECT_EQ(dossier->Verplaats(0, 2, 1), 2);
  EXPECT_THAT(Ids(*dossier, 0), ElementsAre(1, 3, 4, 5, 6));
  EXPECT_THAT(Ids(*dossier, 1), ElementsAre(1, 7, 2));
  EXPECT_EQ(dossier->FindKolom(1, 2), kolom);
}

TEST(Dossier, MovesAColumnUnderANewIdentifierWhereItsOwnIsTaken) {
  const auto dossier = MakeDossier();
  EXPECT_EQ(dossier->Verplaats(1, 1, 0), 8);
  EXPECT_THAT(Ids(*dossier, 0), ElementsAre(1, 2, 3, 4, 5, 6, 8));
  EXPECT_EQ(dossier->FindKolom(0, 8)->Bedrag()->Bedrag(), 310);
}

TEST(Dossier, AMoveToTheSameLoanChangesNothing) {
  const auto dossier = MakeDossier();
  EXPECT_EQ(dossier->Verplaats(0, 2, 0), 2);
  EXPECT_THAT(Ids(*dossier, 0), ElementsAre(1, 2, 3, 4, 5, 6));
  EXPECT_EQ(ErrorOf([&] { dossier->Verplaats(0, 99, 0); }), 91);
  EXPECT_EQ(ErrorOf([&] { dossier->Verplaats(0, 2, 9); }), 91);
}

TEST(NieuweSituatie, FollowsTheCurrentOneWhereItHasNoVersionOfItsOwn) {
  const auto dossier = MakeDossier();
  std::vector<int> ids;
  for (const auto& kolom : dossier->VolgtHuidigeSituatie()) ids.push_back(kolom->Id());
  EXPECT_THAT(ids, ElementsAre(2, 3, 4, 5, 6));
  EXPECT_TRUE(dossier->HeeftAfwijking(1));
  EXPECT_FALSE(dossier->HeeftAfwijking(2));
}

TEST(NieuweSituatie, GetsAVersionThatIsEqualAtFirst) {
  const auto dossier = MakeDossier();
  const auto afwijking = dossier->MakeAfwijking(5, 2);
  KolomGegevens kolom = dossier->FindKolom(0, 5)->Gegevens();
  KolomGegevens version = afwijking->Gegevens();
  EXPECT_NE(version.Sleutel, kolom.Sleutel);
  version.Sleutel = kolom.Sleutel;
  version.Bedrag.Perioden[0].Sleutel = kolom.Bedrag.Perioden[0].Sleutel;
  EXPECT_EQ(version, kolom);
  EXPECT_TRUE(dossier->HeeftAfwijking(5));
}

TEST(NieuweSituatie, HasOneVersionOfAnItemInALoan) {
  const auto dossier = MakeDossier();
  const auto existing = dossier->FindKolom(1, 1);
  EXPECT_EQ(dossier->MakeAfwijking(1, 1), existing);
  EXPECT_THAT(Ids(*dossier, 1), ElementsAre(1, 7));
  EXPECT_EQ(ErrorOf([&] { dossier->MakeAfwijking(1, 0); }), 91);
  EXPECT_EQ(ErrorOf([&] { dossier->MakeAfwijking(1, 9); }), 91);
  EXPECT_EQ(ErrorOf([&] { dossier->MakeAfwijking(99, 1); }), 91);
}

TEST(Lening, FindsTheFirstOfTwoColumnsWithOneIdentifier) {
  DossierGegevens gegevens = LeegDossier();
  gegevens.HuidigeLening.VrijeKolommen.resize(2);
  gegevens.HuidigeLening.VrijeKolommen[0].Omschrijving = "eerste";
  gegevens.HuidigeLening.VrijeKolommen[1].Omschrijving = "tweede";
  const auto lening = MakeDossier(gegevens)->HuidigeLening();
  EXPECT_EQ(lening->VrijeKolommen(1)->Omschrijving(), "eerste");
  EXPECT_EQ(lening->VrijeKolomOp(2)->Omschrijving(), "tweede");
}

TEST(Lening, CountsPositionsFromOne) {
  const auto lening = MakeDossier()->HuidigeLening();
  EXPECT_EQ(lening->VrijeKolomOp(0), nullptr);
  EXPECT_EQ(lening->VrijeKolomOp(1)->Id(), 1);
  EXPECT_EQ(lening->VrijeKolomOp(6)->Id(), 6);
  EXPECT_EQ(lening->VrijeKolomOp(7), nullptr);
  EXPECT_EQ(lening->VrijeKolommen(7), nullptr);
  lening->VerwijderVrijeKolom(2);
  EXPECT_EQ(lening->VrijeKolomOp(2)->Id(), 3);
  EXPECT_EQ(ErrorOf([&] { lening->VerwijderVrijeKolom(6); }), 9);
  EXPECT_EQ(ErrorOf([&] { lening->VerwijderVrijeKolom(0); }), 9);
}

TEST(Bedrag, IsOneNumberUnderTwoNames) {
  const auto bedrag = MakeDossier()->FindKolom(0, 1)->Bedrag();
  bedrag->SetBasisbedrag(12.5);
  EXPECT_EQ(bedrag->Bedrag(), 12.5);
  bedrag->SetBedrag(13.5);
  EXPECT_EQ(bedrag->Basisbedrag(), 13.5);
}

TEST(Bedrag, LivesAsLongAsItsColumnIsHeld) {
  auto dossier = MakeDossier();
  const auto bedrag = dossier->FindKolom(0, 1)->Bedrag();
  dossier->Verwijder(0, 1);
  dossier.reset();
  EXPECT_EQ(bedrag->Bedrag(), 485.5);
}

TEST(Bedrag, KeepsItsPeriodsInTheOrderOfAdding) {
  const auto bedrag = MakeDossier()->FindKolom(0, 2)->Bedrag();
  EXPECT_EQ(bedrag->Periode(1), nullptr);
  EXPECT_EQ(bedrag->NieuwePeriode(), 1);
  EXPECT_EQ(bedrag->NieuwePeriode(), 2);
  bedrag->Periode(1)->SetMaand(36);
  bedrag->Periode(2)->SetMaand(12);
  EXPECT_EQ(bedrag->Periode(1)->Maand(), 36);
  bedrag->VerwijderPeriode(1);
  EXPECT_EQ(bedrag->Periode(1)->Maand(), 12);
  EXPECT_EQ(bedrag->Periode(2), nullptr);
  EXPECT_EQ(bedrag->Periode(0), nullptr);
  EXPECT_EQ(ErrorOf([&] { bedrag->VerwijderPeriode(2); }), 9);
}

TEST(Bedrag, ANewPeriodIsEmpty) {
  const auto bedrag = MakeDossier()->FindKolom(0, 2)->Bedrag();
  const auto periode = bedrag->Periode(bedrag->NieuwePeriode());
  EXPECT_EQ(periode->Maand(), 0);
  EXPECT_EQ(periode->Bedrag(), 0);
  EXPECT_EQ(periode->Percentage(), 0);
  EXPECT_EQ(periode->Korting(), 0);
  EXPECT_FALSE(periode->Eenmalig());
}

/// Refuses everything.
class Refuser : public Journal {
 public:
  void SetField(Sleutel, KolomVeld, const Waarde&) override { Refuse(); }
  Sleutel AddPeriod(Sleutel) override { return Refuse(); }
  void SetField(Sleutel, PeriodeVeld, const Waarde&) override { Refuse(); }
  void RemovePeriod(Sleutel) override { Refuse(); }
  void AddColumn(Sleutel, KolomGegevens&) override { Refuse(); }
  void RemoveColumn(Sleutel) override { Refuse(); }
  void MoveColumn(Sleutel, Sleutel, std::int16_t) override { Refuse(); }
  void AddLoan(LeningGegevens&) override { Refuse(); }
  void SetPersons(const std::vector<PersoonGegevens>&) override { Refuse(); }
  void SetAgeLimit(std::int16_t) override { Refuse(); }
  void SetProposal(std::int16_t, std::int16_t, Membership) override { Refuse(); }

 private:
  static Sleutel Refuse() { throw host::Error(1013, "vol", "Dossier"); }
};

TEST(Journal, RefusingAChangeLeavesTheMemoryAsItWas) {
  auto environment = std::make_shared<Environment>();
  environment->Journal = std::make_shared<Refuser>();
  const auto dossier = std::make_shared<Dossier>(VoorbeeldDossier(), environment);
  const auto kolom = dossier->FindKolom(0, 1);
  const auto bedrag = kolom->Bedrag();
  const auto periode = bedrag->Periode(1);
  const DossierGegevens before = dossier->Gegevens();
  const std::vector<std::function<void()>> changes = {
      [&] { kolom->SetCorrectieLast(3); },
      [&] { kolom->SetCorrectieFiscaal(1); },
      [&] { kolom->SetHeffingBij(2); },
      [&] { kolom->SetOmschrijving("x"); },
      [&] { kolom->SetTermijn(99); },
      [&] { kolom->SetInkomenUitArbeid(true); },
      [&] { kolom->SetInDagloon(true); },
      [&] { kolom->SetDatumAanvang(host::Date(1)); },
      [&] { kolom->SetLooptijd(1); },
      [&] { kolom->SetContractvervaldatum(host::Date(1)); },
      [&] { kolom->SetIsProduct(true); },
      [&] { kolom->SetMaatschappij("x"); },
      [&] { kolom->SetMaatschappijNaam("x"); },
      [&] { kolom->SetProductsoort(42); },
      [&] { kolom->SetProductsoortOmschrijving("x"); },
      [&] { kolom->SetProductnaam("x"); },
      [&] { kolom->SetUwBemiddeling(true); },
      [&] { kolom->SetVoorstel(1, "J"); },
      [&] { kolom->SetUitsluitenAO(true); },
      [&] { kolom->SetUitsluitenWW(true); },
      [&] { kolom->SetUitsluitenLangleven(true); },
      [&] { kolom->SetScenarioOverlijden(true); },
      [&] { kolom->SetPercentageOvergang(1); },
      [&] { kolom->SetEinddatumOvergang(host::Date(1)); },
      [&] { kolom->SetEindleeftijdOvergang(1); },
      [&] { bedrag->SetBasisbedrag(1); },
      [&] { bedrag->SetBedrag(1); },
      [&] { bedrag->NieuwePeriode(); },
      [&] { bedrag->VerwijderPeriode(1); },
      [&] { periode->SetMaand(1); },
      [&] { periode->SetBedrag(1); },
      [&] { periode->SetPercentage(1); },
      [&] { periode->SetKorting(1); },
      [&] { periode->SetEenmalig(true); },
      [&] { dossier->VoegToeAanVoorstel(1, 1); },
      [&] { dossier->VerwijderUitVoorstel(1, 6, 0); },
      [&] { dossier->HuidigeLening()->VerwijderVrijeKolom(1); },
      [&] { dossier->NewKolom(0); },
      [&] { dossier->Dupliceer(0, 1); },
      [&] { dossier->Verwijder(0, 1); },
      [&] { dossier->Verplaats(0, 2, 1); },
      [&] { dossier->MakeAfwijking(2, 1); },
      [&] { dossier->NieuweLening("x"); },
      [&] {
        dossier->SetClient({{.Naam = {"a", "b", "c"}, .Geboortedatum = {}}}, 1);
      },
  };
  for (std::size_t number = 0; number < changes.size(); ++number) {
    SCOPED_TRACE(number);
    EXPECT_EQ(ErrorOf(changes[number]), 1013);
    EXPECT_EQ(dossier->Gegevens(), before);
  }
}

TEST(Client, IsOneOrTwoPersons) {
  const auto dossier = MakeDossier();
  EXPECT_EQ(ErrorOf([&] { dossier->SetClient({}, 67); }), 9);
  EXPECT_EQ(ErrorOf([&] { dossier->SetClient(std::vector<PersoonGegevens>(3), 67); }), 9);
  dossier->SetClient({{.Naam = {"A.", "", "Alleen"}, .Geboortedatum = host::Date(30000)}}, 70);
  EXPECT_THAT(dossier->Persoon(1)->Naam(), ElementsAre("A.", "", "Alleen"));
  EXPECT_EQ(dossier->Persoon(2), nullptr);
  EXPECT_EQ(dossier->Leeftijd(), 70);
}

}  // namespace
}  // namespace brivane::dossier

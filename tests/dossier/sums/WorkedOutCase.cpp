#include "tests/dossier/sums/WorkedOutCase.h"

#include "tests/dossier/sums/Kolommen.h"

namespace brivane::sums {
namespace {

using namespace host::codes;

dossier::KolomGegevens Kolom(std::int16_t Id, const char* omschrijving, double bedrag, std::int16_t termijn,
                             std::int16_t last, std::int16_t fiscaal) {
  dossier::KolomGegevens kolom;
  kolom.Id = Id;
  kolom.Omschrijving = omschrijving;
  kolom.Bedrag.Naam = omschrijving;
  kolom.Bedrag.Bedrag = bedrag;
  kolom.Termijn = termijn;
  kolom.CorrectieLast = last;
  kolom.CorrectieFiscaal = fiscaal;
  return kolom;
}

void MaakProduct(dossier::KolomGegevens& kolom, const char* code, const char* maatschappij, std::int16_t soort,
                 host::Date vervalt) {
  kolom.IsProduct = true;
  kolom.Maatschappij = code;
  kolom.MaatschappijNaam = maatschappij;
  kolom.Productsoort = soort;
  kolom.ProductsoortOmschrijving = WordsFor(soort, kProductsoorten);
  kolom.Looptijd = kLooptijdProduct;
  kolom.Contractvervaldatum = vervalt;
}

dossier::KolomGegevens Kinderopvang() {
  dossier::KolomGegevens kolom = Kolom(1, "Kinderopvang", 485.50, 1, kLast, kFiscaalNeutraal);
  kolom.DatumAanvang = Dag(1, 9, 2024);
  kolom.Looptijd = 96;
  kolom.UitsluitenWW = true;
  kolom.Bedrag.Perioden = {Vanaf(36, 310), Vanaf(60, 165)};
  return kolom;
}

dossier::KolomGegevens Krant() {
  dossier::KolomGegevens kolom = Kolom(2, "Weekendabonnement", 32.50, 1, kLast, kFiscaalNeutraal);
  kolom.DatumAanvang = Dag(1, 1, 2026);
  MaakProduct(kolom, "DM", "Dagblad De Maasbode", kKrant, Dag(31, 12, 2027));
  kolom.Productnaam = "De Maasbode op zaterdag";
  kolom.UwBemiddeling = true;
  kolom.UitsluitenLangleven = true;
  return kolom;
}

dossier::KolomGegevens Muzieklessen() {
  dossier::KolomGegevens kolom = Kolom(3, "Muzieklessen aan huis", 350, 1, kBijdrage, kBijtelling);
  kolom.HeffingBij = kPartner;
  kolom.InkomenUitArbeid = true;
  kolom.InDagloon = true;
  kolom.DatumAanvang = Dag(1, 4, 2025);
  kolom.Looptijd = 120;
  kolom.UitsluitenAO = true;
  kolom.UitsluitenWW = true;
  return kolom;
}

dossier::KolomGegevens Lijfrente() {
  dossier::KolomGegevens kolom = Kolom(4, "Lijfrente-uitkering", 6250, 12, kBijdrage, kBijtelling);
  kolom.Bedrag.Invoersoort = 3;
  kolom.Bedrag.Perioden = {Procent(13, 2)};
  kolom.DatumAanvang = Dag(31, 1, 2024);
  kolom.Looptijd = 240;
  kolom.ScenarioOverlijden = true;
  kolom.PercentageOvergang = 70;
  kolom.EinddatumOvergang = Dag(12, 3, 2048);
  kolom.EindleeftijdOvergang = 70;
  return kolom;
}

dossier::KolomGegevens Tennis() {
  dossier::KolomGegevens kolom = Kolom(5, "Tennislidmaatschap", 240, 6, kLast, kFiscaalNeutraal);
  kolom.HeffingBij = kPartner;
  kolom.DatumAanvang = Dag(1, 7, 2023);
  MaakProduct(kolom, "ZZ", "TC De Baseline", kVereniging, Dag(30, 6, 2028));
  kolom.Productnaam = "Seniorlid";
  kolom.Voorstel = {std::string(kInVoorstel), std::string(kUitVoorstel), ""};
  return kolom;
}

dossier::KolomGegevens Gift() {
  dossier::KolomGegevens kolom = Kolom(6, "Gift nieuwbouw kinderhoek", 1500, kEenmalig, kLast, kAftrekpost);
  kolom.DatumAanvang = Dag(15, 12, 2027);
  MaakProduct(kolom, "SK", "Stichting Kinderhoek", kGoedDoel, Dag(31, 12, 2028));
  return kolom;
}

dossier::KolomGegevens Rente() {
  dossier::KolomGegevens kolom = Kolom(7, "Rente familielening", 4, 12, kLastNeutraal, kAftrekpost);
  kolom.Bedrag.Invoersoort = 2;
  kolom.Bedrag.Perioden = {Procent(1, 0, 0.5), Procent(13, 0.25, 0.25)};
  kolom.DatumAanvang = Dag(1, 3, 2026);
  kolom.Looptijd = 60;
  return kolom;
}

dossier::KolomGegevens Premie() {
  dossier::KolomGegevens kolom = Kolom(8, "Premie pensioenaanvulling", 100.05, 3, kLastNeutraal, kAftrekpost);
  kolom.DatumAanvang = Dag(1, 1, 2020);
  kolom.ScenarioOverlijden = true;
  kolom.PercentageOvergang = 60;
  kolom.EindleeftijdOvergang = 50;
  return kolom;
}

dossier::KolomGegevens LagereOpvang() {
  dossier::KolomGegevens kolom = Kinderopvang();
  kolom.Bedrag.Bedrag = 310;
  kolom.Bedrag.Perioden = {Vanaf(36, 1980, true), Vanaf(48, 165)};
  return kolom;
}

dossier::KolomGegevens MeerMuzieklessen() {
  dossier::KolomGegevens kolom = Muzieklessen();
  kolom.Bedrag.Bedrag = 450;
  return kolom;
}

dossier::KolomGegevens Onderhoud() {
  dossier::KolomGegevens kolom = Kolom(9, "Onderhoud zonnepanelen", 95, 12, kLast, kAftrekpost);
  kolom.DatumAanvang = Dag(1, 3, 2027);
  kolom.Looptijd = 180;
  return kolom;
}

dossier::KolomGegevens Vrijwilliger() {
  dossier::KolomGegevens kolom = Kolom(10, "Vergoeding vrijwilliger", 150.50, 3, kLastNeutraal, kBijtelling);
  kolom.HeffingBij = kPartner;
  kolom.DatumAanvang = Dag(1, 1, 2028);
  kolom.Looptijd = 24;
  return kolom;
}

}  // namespace

dossier::DossierGegevens WorkedOutCase() {
  dossier::DossierGegevens dossier;
  dossier.Personen = Paar();
  dossier.HuidigeLening = {
      .Sleutel = 0,
      .Naam = "Huidige lening",
      .VrijeKolommen = {Kinderopvang(), Krant(), Muzieklessen(), Lijfrente(), Tennis(), Gift(), Rente(), Premie()}};
  dossier.Leningen = {
      {.Sleutel = 0, .Naam = "Nieuwe lening 1", .VrijeKolommen = {LagereOpvang(), MeerMuzieklessen(), Onderhoud()}},
      {.Sleutel = 0, .Naam = "Nieuwe lening 2", .VrijeKolommen = {Vrijwilliger()}}};
  dossier.Voorstellen[0] = {5};
  return dossier;
}

}  // namespace brivane::sums

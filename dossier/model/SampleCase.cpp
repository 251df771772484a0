#include "dossier/model/SampleCase.h"

#include <brivane/frame/Calendar.h>
#include <brivane/host/model/Codes.h>

namespace brivane::dossier {
namespace {

using namespace host::codes;

host::Date Datum(int dag, int maand, int jaar) { return frame::MakeDate({.year = jaar, .month = maand, .day = dag}); }

std::vector<Code> Maatschappijen() {
  return {{"AO", "Algemene Onderlinge"},   {"BV", "Bergse Verzekeringen"},
          {"DM", "Dagblad De Maasbode"},   {"HW", "Huis & Wonen Bladen"},
          {"NH", "Noorderhaven Bank"},     {"SK", "Stichting Kinderhoek"},
          {"TZ", "Tennisclub Zuiderpark"}, {std::string(kAndereMaatschappij), "Anders"}};
}

KolomGegevens Kolom(std::int16_t Id, const char* omschrijving, double bedrag) {
  KolomGegevens kolom;
  kolom.Id = Id;
  kolom.Omschrijving = omschrijving;
  kolom.Bedrag.Naam = omschrijving;
  kolom.Bedrag.Bedrag = bedrag;
  return kolom;
}

KolomGegevens Kinderopvang() {
  KolomGegevens kolom = Kolom(1, "Kinderopvang", 485.50);
  kolom.CorrectieFiscaal = kFiscaalNeutraal;
  kolom.DatumAanvang = Datum(1, 9, 2024);
  kolom.Looptijd = 96;
  kolom.Bedrag.Perioden = {{{.Maand = 36, .Bedrag = 310}}, {{.Maand = 60, .Bedrag = 165}}};
  return kolom;
}

KolomGegevens Krant() {
  KolomGegevens kolom = Kolom(2, "Weekendabonnement", 32.50);
  kolom.CorrectieFiscaal = kFiscaalNeutraal;
  kolom.DatumAanvang = Datum(1, 1, 2026);
  kolom.IsProduct = true;
  kolom.Maatschappij = "DM";
  kolom.MaatschappijNaam = "Dagblad De Maasbode";
  kolom.Productsoort = kKrant;
  kolom.ProductsoortOmschrijving = WordsFor(kKrant, kProductsoorten);
  kolom.Productnaam = "De Maasbode op zaterdag";
  kolom.Looptijd = kLooptijdProduct;
  kolom.Contractvervaldatum = Datum(31, 12, 2027);
  kolom.UwBemiddeling = true;
  return kolom;
}

KolomGegevens Bijverdienste() {
  KolomGegevens kolom = Kolom(3, "Muzieklessen aan huis", 350);
  kolom.CorrectieLast = kBijdrage;
  kolom.CorrectieFiscaal = kBijtelling;
  kolom.HeffingBij = kPartner;
  kolom.InkomenUitArbeid = true;
  kolom.DatumAanvang = Datum(1, 4, 2025);
  kolom.Looptijd = 120;
  kolom.UitsluitenAO = true;
  return kolom;
}

KolomGegevens Gift() {
  KolomGegevens kolom = Kolom(4, "Gift nieuwbouw kinderhoek", 1500);
  kolom.Termijn = kEenmalig;
  kolom.DatumAanvang = Datum(15, 12, 2026);
  kolom.IsProduct = true;
  kolom.Maatschappij = "SK";
  kolom.MaatschappijNaam = "Stichting Kinderhoek";
  kolom.Productsoort = kGoedDoel;
  kolom.ProductsoortOmschrijving = WordsFor(kGoedDoel, kProductsoorten);
  kolom.Contractvervaldatum = Datum(31, 12, 2027);
  return kolom;
}

KolomGegevens Lijfrente() {
  KolomGegevens kolom = Kolom(5, "Lijfrente-uitkering", 6250);
  kolom.CorrectieLast = kBijdrage;
  kolom.CorrectieFiscaal = kBijtelling;
  kolom.Termijn = 12;
  kolom.Bedrag.Invoersoort = 3;
  kolom.Bedrag.Perioden = {{{.Maand = 13, .Percentage = 2}}};
  kolom.DatumAanvang = Datum(31, 1, 2028);
  kolom.Looptijd = 240;
  kolom.ScenarioOverlijden = true;
  kolom.PercentageOvergang = 70;
  kolom.EinddatumOvergang = Datum(12, 3, 2048);
  kolom.EindleeftijdOvergang = 70;
  return kolom;
}

KolomGegevens Sport() {
  KolomGegevens kolom = Kolom(6, "Tennislidmaatschap", 240);
  kolom.CorrectieFiscaal = kFiscaalNeutraal;
  kolom.Termijn = 6;
  kolom.HeffingBij = kPartner;
  kolom.DatumAanvang = Datum(1, 7, 2023);
  kolom.IsProduct = true;
  kolom.Maatschappij = kAndereMaatschappij;
  kolom.MaatschappijNaam = "TC De Baseline";
  kolom.Productsoort = kVereniging;
  kolom.ProductsoortOmschrijving = WordsFor(kVereniging, kProductsoorten);
  kolom.Productnaam = "Seniorlid";
  kolom.Looptijd = kLooptijdProduct;
  kolom.Contractvervaldatum = Datum(30, 6, 2028);
  kolom.Voorstel = {std::string(kInVoorstel), std::string(kUitVoorstel), ""};
  return kolom;
}

}  // namespace

DossierGegevens LeegDossier() {
  DossierGegevens dossier;
  dossier.Personen = {{.Naam = {"", "", "Aanvrager"}, .Geboortedatum = Datum(1, 1, 1985)}};
  dossier.MaatschappijType = Maatschappijen();
  dossier.HuidigeLening.Naam = "Huidige lening";
  dossier.Leningen = {{.Sleutel = 0, .Naam = "Nieuwe lening 1", .VrijeKolommen = {}}};
  return dossier;
}

DossierGegevens VoorbeeldDossier() {
  DossierGegevens dossier = LeegDossier();
  dossier.Personen = {{.Naam = {"M.C.", "van den", "Heuvel"}, .Geboortedatum = Datum(12, 3, 1978)},
                      {.Naam = {"S.", "de", "Wit"}, .Geboortedatum = Datum(29, 2, 1980)}};
  dossier.HuidigeLening = {.Sleutel = 0,
                           .Naam = "Huidige lening",
                           .VrijeKolommen = {Kinderopvang(), Krant(), Bijverdienste(), Gift(), Lijfrente(), Sport()}};
  // In the first new loan the childcare is reckoned lower; all else follows the current situation.
  KolomGegevens afwijking = Kinderopvang();
  afwijking.Bedrag.Bedrag = 310;
  afwijking.Bedrag.Perioden = {{{.Maand = 36, .Bedrag = 165}}};
  KolomGegevens onderhoud = Kolom(7, "Onderhoud zonnepanelen", 95);
  onderhoud.Termijn = 12;
  onderhoud.DatumAanvang = Datum(1, 3, 2027);
  onderhoud.Looptijd = 180;
  dossier.Leningen = {{.Sleutel = 0, .Naam = "Nieuwe lening 1", .VrijeKolommen = {afwijking, onderhoud}},
                      {.Sleutel = 0, .Naam = "Nieuwe lening 2", .VrijeKolommen = {}}};
  dossier.Voorstellen[0] = {6};
  return dossier;
}

}  // namespace brivane::dossier

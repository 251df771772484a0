#include "app/screen/HelpTexts.h"

#include <algorithm>
#include <array>

namespace brivane::app {
namespace {

constexpr std::array kKeysEverywhere = std::to_array<HelpKey>({
    {"Ctrl+N, Ctrl+O, Ctrl+W", "nieuw dossier, openen, sluiten"},
    {"Ctrl+Shift+O", "een kantoor openen: de lijst van zijn cliënten"},
    {"Ctrl+Shift+S", "een kopie onder een andere naam, waarin u verdergaat"},
    {"Ctrl+P, Ctrl+Shift+P", "afdrukken, opslaan als PDF"},
    {"Ctrl+Z; Ctrl+Y of Ctrl+Shift+Z", "ongedaan maken; opnieuw"},
    {"Ctrl+Shift+N", "nieuwe kolom met een bedrag per jaar"},
    {"Ctrl+Shift+G", "nieuwe kolom met een bedrag en een groeipercentage"},
    {"Ctrl+Shift+E", "nieuwe kolom met een percentage per jaar"},
    {"Ctrl+D", "kolom dupliceren"},
    {"Ctrl+Shift+D, cijfer", "kolom dupliceren naar een lening"},
    {"Ctrl+Shift+M, cijfer", "kolom verplaatsen naar een andere lening"},
    {"Ctrl+Shift+Delete", "kolom verwijderen"},
    {"Alt+Page Up, Alt+Page Down", "vorige en volgende kolom van de lijst"},
    {"Ctrl+F", "zoeken in de lijst"},
    {"F6", "van de lijst naar de kolom en terug"},
    {"F7", "het hele dossier controleren"},
    {"F8", "wat er is gewijzigd, wanneer en door wie"},
    {"F9, Shift+F9", "wat de kolommen bij elkaar doen: in tabellen, in een beeld van de jaren"},
    {"Ctrl+Shift+C", "cliëntgegevens"},
    {"F1", "deze uitleg; Escape sluit haar"},
});

constexpr std::array kStartKeys = std::to_array<HelpKey>({
    {"Tab, Enter", "naar een knop, en doen wat erop staat"},
    {"Alt+G", "naar de lijst van recente dossiers"},
    {"Enter in de lijst", "het dossier openen"},
    {"Delete in de lijst", "het dossier uit de lijst halen; het bestand blijft"},
});

constexpr std::array kListKeys = std::to_array<HelpKey>({
    {"Pijl omhoog en omlaag", "naar een andere kolom, die meteen wordt getoond"},
    {"Pijl links en rechts", "een lening dicht- en openklappen"},
    {"Een letter", "naar de kolom die zo begint"},
    {"Insert", "nieuwe kolom"},
    {"Delete", "kolom verwijderen"},
    {"Escape", "het filter weg"},
    {"Menutoets", "wat er met de kolom kan"},
});

constexpr std::array kFilterKeys = std::to_array<HelpKey>({
    {"Typen", "toont wat elk getypt woord bevat: tekst, soort, maatschappij, bedrag of datum"},
    {"Pijl omlaag", "naar de lijst"},
    {"Enter", "naar de eerste die is gevonden, om te bewerken"},
    {"Escape", "de hele lijst, en terug naar waar u was"},
});

constexpr std::array kColumnKeys = std::to_array<HelpKey>({
    {"Tab, Shift+Tab", "volgend en vorig vak; wat u typte is dan opgeslagen"},
    {"Escape", "terug naar wat er in het vak stond"},
    {"Alt met een onderstreepte letter", "naar dat vak of die groep"},
    {"Pijlen", "een andere keuze in een groep of lijst"},
    {"j, n", "ja en nee"},
    {"v of t, + en -", "in een datum: vandaag, een dag later of eerder"},
    {"Page Up, Page Down", "in een datum: een maand eerder of later; met Ctrl een jaar"},
    {"3j, 18m", "in een einddatum: zo lang na de aanvangsdatum"},
    {"F4", "in een datum: de kalender"},
    {"10+5, 1200/12", "in een bedrag: de uitkomst"},
});

constexpr std::array kYearFormKeys = std::to_array<HelpKey>({
    {"Tab, Shift+Tab", "volgend en vorig vak"},
    {"Pijl omhoog en omlaag", "vorig en volgend jaar"},
    {"Page Up, Page Down", "zoveel jaren als er onder elkaar staan"},
    {"Enter", "overnemen wat u typte, en naar het volgende jaar"},
    {"Ctrl+V", "een kolom uit een rekenblad plakken"},
    {"Alt+V", "vervolgjaren automatisch invullen, of niet"},
    {"Alt+O", "OK: de jaren opslaan"},
    {"Escape", "sluiten zonder op te slaan; als er iets is gewijzigd na een vraag"},
});

constexpr std::array kFindingsKeys = std::to_array<HelpKey>({
    {"Enter", "naar de kolom"},
    {"Escape", "de lijst weg"},
});

constexpr std::array kDialogKeys = std::to_array<HelpKey>({
    {"Tab, Shift+Tab", "volgend en vorig vak"},
    {"Enter", "OK"},
    {"Escape", "sluiten zonder iets te doen"},
});

constexpr std::array kFieldHelp = std::to_array<FieldHelp>({
    {"optLast", "Correctie last",
     "Wat de post met de maandlast doet: een last verhoogt haar, een bijdrage verlaagt haar, neutraal laat haar zoals "
     "zij "
     "is. Wat niet kan naast de fiscale correctie is grijs."},
    {"optFiscaal", "Correctie fiscaal",
     "Wat de post met het belastbare inkomen doet: een aftrekpost verlaagt het, een bijtelling verhoogt het. Een last "
     "kan "
     "alleen aftrekbaar zijn, een bijdrage alleen een bijtelling; zonder effect op de last is een fiscaal effect "
     "nodig."},
    {"TxtDtAanvang", "Aanvangsdatum",
     "De dag waarop de post begint. Zonder aanvangsdatum wordt een kolom niet verlaten. Typ 1-4-2031, 1-4, v (vandaag) "
     "of kies "
     "uit de "
     "kalender."},
    {"TxtDtEind", "Einddatum",
     "De dag waarop de post eindigt, na de aanvangsdatum. De looptijd ernaast rekent mee; leeg laten kan."},
    {"TxtAnJaar", "Looptijd, jaar", "Hele jaren. De einddatum rekent mee."},
    {"TxtAnMaand", "Looptijd, maanden", "Maanden boven de hele jaren. De einddatum rekent mee."},
    {"txtVervaldatum", "Contractvervaldatum",
     "De dag waarop het contract afloopt. Een vereniging, een goed doel, een krant en een tijdschrift hebben haar in "
     "plaats "
     "van een looptijd."},
    {"TxtOm", "Omschrijving", "Hoe u de post noemt; zo staat hij in de lijst en boven de kolom."},
    {"TxtBd", "Bedrag",
     "Wat de post per termijn is, in euro's met hoogstens twee decimalen. Bij een kolom van percentages is het een "
     "percentage. Bedragen die per jaar verschillen vult u in met Scenario invullen."},
    {"cboTermijn", "Termijn",
     "Hoe vaak het bedrag betaald wordt. Bij een eenmalig bedrag vervallen de bedragen per jaar."},
    {"jnInkUitArbeid", "Inkomen uit arbeid",
     "Of een bijdrage met bijtelling inkomen uit arbeid is. Bij andere correcties is het grijs en nee."},
    {"jnInDagloon", "Onderdeel dagloon",
     "Of inkomen uit arbeid meetelt in het dagloon, waarop uitkeringen gebaseerd zijn."},
    {"cmdScenario", "Scenario invullen",
     "Opent de jaren van de post: per jaar een bedrag, een groeipercentage of een percentage, naar hoe de kolom is "
     "gemaakt."},
    {"ChkVoorstel", "Post beëindigen in",
     "In welk voorstel de cliënt deze post beëindigt. Alleen een post van de huidige situatie kan worden beëindigd."},
    {"optAanvrager", "Heffing bij", "Bij wiens belasting de post telt; bij een product de contractant."},
    {"chkProduct", "Deze post is een product",
     "Een product heeft een maatschappij, een soort en een naam. Haalt u het vinkje weg, dan vervallen die."},
    {"cboMaatschappij", "Maatschappij", "Bij wie het product loopt; met Anders typt u een naam."},
    {"txtMaatschappij", "Maatschappij, anders, namelijk", "De naam van een maatschappij die niet in de lijst staat."},
    {"cboProductsoort", "Soort product",
     "Een vereniging, goed doel, krant of tijdschrift loopt tot een contractvervaldatum in plaats van een looptijd."},
    {"txtProductsoort", "Soort product, anders, namelijk", "Een soort die niet in de lijst staat."},
    {"txtProductnaam", "Productnaam", "Hoe de maatschappij het product noemt."},
    {"jnUwBemiddeling", "Uw bemiddeling", "Of uw kantoor in het product heeft bemiddeld."},
    {"lstToelichting", "Verrekenen",
     "Wat elke combinatie van correcties doet met de maandlast en de inkomstenbelasting. De regel van deze post is "
     "gekozen."},
    {"jnAO", "Arbeidsongeschiktheid", "Of de post meetelt als iemand arbeidsongeschikt wordt."},
    {"jnWW", "Werkloosheid", "Of de post meetelt als iemand werkloos wordt."},
    {"jnLangleven", "Langleven", "Of de post meetelt bij lang leven en pensioen."},
    {"jnOverlijden", "Overlijden",
     "Of een deel van de post na overlijden overgaat op de partner. Daarna vult u in hoeveel, en tot wanneer."},
    {"TxtPcOvergang", "Overgang naar partner", "Het deel dat na overlijden overgaat, boven 0 en hoogstens 100 %."},
    {"txtEinddatum", "Einddatum overgang", "Tot wanneer het overgaat. De eindleeftijd ernaast rekent mee."},
    {"TxtEindjaar", "Eindleeftijd overgang", "Tot welke leeftijd het overgaat. De einddatum rekent mee."},
    {"chkAanvullen", "Vervolgjaren automatisch invullen",
     "Aangevinkt krijgt elk later jaar wat u in een jaar invult. Niet aangevinkt groeit een bedrag met het percentage "
     "ernaast."},
    {"txtBedrag", "Bedrag van het jaar", "Het bedrag per termijn in dit jaar."},
    {"chkEenmalig", "Op jaarbasis", "Aangevinkt telt het bedrag op jaarbasis, anders op maandbasis."},
    {"txtPercentage", "Percentage van het jaar",
     "Bij bedragen met groei: hoeveel het bedrag van dit jaar naar het volgende groeit. Bij percentages: het "
     "percentage van "
     "dit jaar."},
    {"txtKorting", "Korting van het jaar", "In procentpunten; gaat van het percentage af."},
    {"filter", "Filter van de lijst",
     "Elk getypt woord moet in een kolom voorkomen. Achter het vak staat hoeveel er zijn."},
    {"kolommen", "De lijst",
     "De leningen met hun vrije kolommen. Bij de stand betekent = volgt: de nieuwe situatie neemt de kolom over; ≠ "
     "wijkt af: "
     "de nieuwe situatie heeft een eigen versie; + nieuw: de kolom is er in de huidige situatie niet."},
});

struct GreyHelp {
  const char* field;
  const char* why;
};

constexpr std::array kGrey = std::to_array<GreyHelp>({
    {"optFiscaal(1)", "Een bijdrage kan geen aftrekpost zijn."},
    {"optFiscaal(2)", "Een last kan geen bijtelling zijn."},
    {"optFiscaal(3)", "Zonder effect op de last is een fiscaal effect nodig."},
    {"TxtDtEind", "Een einddatum vraagt een aanvangsdatum, en een bedrag dat niet eenmalig is."},
    {"TxtAnJaar", "Een eenmalig bedrag heeft geen looptijd."},
    {"TxtAnMaand", "Een eenmalig bedrag heeft geen looptijd."},
    {"jnInkUitArbeid", "Alleen een bijdrage met bijtelling kan inkomen uit arbeid zijn."},
    {"jnInDagloon", "Alleen inkomen uit arbeid kan onderdeel van het dagloon zijn."},
    {"cmdScenario", "Een eenmalig bedrag heeft geen bedragen per jaar."},
    {"optAanvrager(2)", "Dit dossier heeft geen partner (Dossier > Cliëntgegevens)."},
    {"txtMaatschappij", "Kies eerst de maatschappij Anders."},
    {"txtProductsoort", "Kies eerst het soort product Anders."},
    {"TxtPcOvergang", "Kies eerst Ja bij Overlijden."},
    {"txtEinddatum", "Kies eerst Ja bij Overlijden."},
    {"TxtEindjaar", "Kies eerst Ja bij Overlijden."},
});

/// The name of a field without that of the surface which it stands on inside the editor: "Toelichting.".
QString OnItsSurface(const QString& name) { return name.section(u'.', -1); }

}  // namespace

QString PlaceTitle(HelpPlace place) {
  switch (place) {
    case HelpPlace::Start: return QStringLiteral("Op de startpagina");
    case HelpPlace::List: return QStringLiteral("In de lijst");
    case HelpPlace::Filter: return QStringLiteral("In het filter");
    case HelpPlace::Column: return QStringLiteral("In de kolom");
    case HelpPlace::YearForm: return QStringLiteral("In het jaarformulier");
    case HelpPlace::Findings: return QStringLiteral("In de aandachtspunten");
    case HelpPlace::Dialog: break;
  }
  return QStringLiteral("In dit venster");
}

std::span<const HelpKey> KeysOf(HelpPlace place) {
  switch (place) {
    case HelpPlace::Start: return kStartKeys;
    case HelpPlace::List: return kListKeys;
    case HelpPlace::Filter: return kFilterKeys;
    case HelpPlace::Column: return kColumnKeys;
    case HelpPlace::YearForm: return kYearFormKeys;
    case HelpPlace::Findings: return kFindingsKeys;
    case HelpPlace::Dialog: break;
  }
  return kDialogKeys;
}

std::span<const HelpKey> KeysEverywhere() { return kKeysEverywhere; }

std::span<const FieldHelp> AllFieldHelp() { return kFieldHelp; }

std::optional<FieldHelp> HelpOfField(const QString& name) {
  const QString field = OnItsSurface(name).section(u'(', 0, 0);
  const auto help = std::find_if(kFieldHelp.begin(), kFieldHelp.end(),
                                 [&](const FieldHelp& one) { return field == QLatin1String(one.field); });
  if (help == kFieldHelp.end()) return std::nullopt;
  return *help;
}

QString WhyGrey(const QString& name) {
  const auto grey = std::find_if(kGrey.begin(), kGrey.end(), [field = OnItsSurface(name)](const GreyHelp& one) {
    return field == QLatin1String(one.field);
  });
  return grey == kGrey.end() ? QString() : QString::fromUtf8(grey->why);
}

}  // namespace brivane::app

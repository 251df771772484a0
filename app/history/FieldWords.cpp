#include "app/history/FieldWords.h"

#include <QStringList>
#include <algorithm>
#include <array>

#include <brivane/frame/Dates.h>
#include <brivane/frame/Numbers.h>
#include <brivane/host/model/Codes.h>

namespace brivane::app {
namespace {

using dossier::Entry;
using dossier::Stored;
using dossier::Tabel;
namespace codes = host::codes;

constexpr FieldWords kKolomWords[] = {
    {"lening", "lening"},
    {"volgorde", "plaats in de lijst", ShownAs::Number},
    {"id", "nummer", ShownAs::Number},
    {"correctie_last", "correctie last", ShownAs::Option, "optLast"},
    {"correctie_fiscaal", "correctie fiscaal", ShownAs::Option, "optFiscaal"},
    {"heffing_bij", "heffing bij", ShownAs::Option, "optAanvrager"},
    {"omschrijving", "omschrijving", ShownAs::Text, "TxtOm"},
    {"termijn", "termijn", ShownAs::Option, "cboTermijn"},
    {"inkomen_uit_arbeid", "inkomen uit arbeid", ShownAs::Yes, "jnInkUitArbeid"},
    {"in_dagloon", "onderdeel dagloon", ShownAs::Yes, "jnInDagloon"},
    {"datum_aanvang", "aanvangsdatum", ShownAs::Date, "TxtDtAanvang"},
    {"looptijd", "looptijd", ShownAs::Duration, "TxtAnJaar"},
    {"contractvervaldatum", "contractvervaldatum", ShownAs::Date, "txtVervaldatum"},
    {"is_product", "deze post is een product", ShownAs::Yes, "chkProduct"},
    {"maatschappij", "maatschappij", ShownAs::Text, "cboMaatschappij"},
    {"maatschappij_naam", "naam van de maatschappij", ShownAs::Text, "txtMaatschappij"},
    {"productsoort", "soort product", ShownAs::Option, "cboProductsoort"},
    {"productsoort_omschrijving", "omschrijving van het product", ShownAs::Text, "txtProductsoort"},
    {"productnaam", "productnaam", ShownAs::Text, "txtProductnaam"},
    {"uw_bemiddeling", "uw bemiddeling", ShownAs::Yes, "jnUwBemiddeling"},
    {"voorstel_1", "post beëindigen in voorstel 1", ShownAs::Option, "ChkVoorstel(1)"},
    {"voorstel_2", "post beëindigen in voorstel 2", ShownAs::Option, "ChkVoorstel(2)"},
    {"voorstel_3", "post beëindigen in voorstel 3", ShownAs::Option, "ChkVoorstel(3)"},
    {"uitsluiten_ao", "arbeidsongeschiktheid", ShownAs::No, "jnAO"},
    {"uitsluiten_ww", "werkloosheid", ShownAs::No, "jnWW"},
    {"uitsluiten_langleven", "langleven", ShownAs::No, "jnLangleven"},
    {"scenario_overlijden", "overlijden", ShownAs::Yes, "jnOverlijden"},
    {"percentage_overgang", "overgang naar partner", ShownAs::Percent, "TxtPcOvergang"},
    {"einddatum_overgang", "einddatum overgang", ShownAs::Date, "txtEinddatum"},
    {"eindleeftijd_overgang", "eindleeftijd overgang", ShownAs::Age, "TxtEindjaar"},
    {"bedrag_naam", "naam van het bedrag"},
    {"invoersoort", "soort invoer", ShownAs::Option},
    {"bedrag", "bedrag", ShownAs::Amount, "TxtBd"}};

constexpr FieldWords kPeriodeWords[] = {{"kolom", "kolom", ShownAs::Number},
                                        {"maand", "scenario, na", ShownAs::Months, "cmdScenario"},
                                        {"bedrag", "scenario, bedrag", ShownAs::Amount, "cmdScenario"},
                                        {"percentage", "scenario, percentage", ShownAs::Percent, "cmdScenario"},
                                        {"korting", "scenario, korting", ShownAs::Number, "cmdScenario"},
                                        {"eenmalig", "scenario, eenmalig", ShownAs::Yes, "cmdScenario"}};

constexpr FieldWords kPersoonWords[] = {{"naam_1", "voorletters"},
                                        {"naam_2", "tussenvoegsel"},
                                        {"naam_3", "achternaam"},
                                        {"geboortedatum", "geboortedatum", ShownAs::Date},
                                        {"belastingtarief", "marginaal belastingtarief", ShownAs::Percent}};
constexpr FieldWords kLeningWords[] = {{"nummer", "nummer", ShownAs::Number}, {"naam", "naam"}};
constexpr FieldWords kDossierWords[] = {{"leeftijd", "leeftijdsgrens", ShownAs::Age}};

struct OptionWords {
  std::string_view field;
  std::int16_t code;
  const char* words;
};
constexpr OptionWords kOptions[] = {{"correctie_last", codes::kLast, "Last"},
                                    {"correctie_last", codes::kBijdrage, "Bijdrage"},
                                    {"correctie_last", codes::kLastNeutraal, "Neutraal"},
                                    {"correctie_fiscaal", codes::kAftrekpost, "Aftrekpost"},
                                    {"correctie_fiscaal", codes::kBijtelling, "Bijtelling"},
                                    {"correctie_fiscaal", codes::kFiscaalNeutraal, "Neutraal"},
                                    {"heffing_bij", codes::kAanvrager, "Aanvrager"},
                                    {"heffing_bij", codes::kPartner, "Partner"},
                                    {"invoersoort", 1, "bedragen"},
                                    {"invoersoort", 2, "percentages"},
                                    {"invoersoort", 3, "bedragen met groei"}};

std::span<const FieldWords> Words(Tabel tabel) {
  switch (tabel) {
    case Tabel::Dossier: return kDossierWords;
    case Tabel::Persoon: return kPersoonWords;
    case Tabel::Lening: return kLeningWords;
    case Tabel::Kolom: return kKolomWords;
    case Tabel::Periode: return kPeriodeWords;
    case Tabel::Voorstel: break;
  }
  return {};
}

QString From(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }

QString Plural(std::int64_t count, const char* one, const char* more) {
  return QStringLiteral("%1 %2").arg(count).arg(QLatin1String(count == 1 ? one : more));
}

QString DurationText(std::int64_t months) {
  // What choosing a kind of product stores: the contract expires on a date.
  if (months == codes::kLooptijdProduct) return QStringLiteral("volgens contract");
  if (months < 0) return Plural(months, "maand", "maanden");
  QStringList parts;
  if (months >= 12) parts << QStringLiteral("%1 jaar").arg(months / 12);
  if (months % 12 != 0 || months == 0) parts << Plural(months % 12, "maand", "maanden");
  return parts.join(QStringLiteral(" en "));
}

QString OptionText(std::string_view field, const Stored& value) {
  if (const auto* text = std::get_if<std::string>(&value)) {
    if (*text == codes::kInVoorstel) return QStringLiteral("ja");
    return *text == codes::kUitVoorstel ? QStringLiteral("nee") : From(*text);
  }
  const auto* code = std::get_if<std::int64_t>(&value);
  if (code == nullptr) return {};
  const auto number = static_cast<std::int16_t>(*code);
  if (field == "termijn") return From(codes::WordsFor(number, codes::kTermijnen));
  if (field == "productsoort") return From(codes::WordsFor(number, codes::kProductsoorten));
  for (const OptionWords& option : kOptions) {
    if (option.field == field && option.code == number) return QString::fromUtf8(option.words);
  }
  return QString::number(*code);
}

QString NumberText(const Stored& value) {
  if (const auto* whole = std::get_if<std::int64_t>(&value)) return QString::number(*whole);
  const auto* broken = std::get_if<double>(&value);
  return broken ? QString::fromStdString(frame::ShowNumber(*broken)) : QString();
}

/// A field of a row that came or went.
QString Part(Tabel tabel, const dossier::Row& row, std::string_view field) {
  const int place = dossier::PlaceOf(tabel, field);
  return static_cast<std::size_t>(place) < row.size() ? ValueText(tabel, place, row[static_cast<std::size_t>(place)])
                                                      : QString();
}

/// A row in short.
QString RowText(const Entry& entry, const Stored& value) {
  dossier::Row row;
  const auto* bytes = std::get_if<std::string>(&value);
  if (entry.tabel == Tabel::Voorstel && bytes != nullptr) {
    return QStringLiteral("post %1").arg(dossier::ItemOf(entry.key));
  }
  if (bytes == nullptr || !dossier::Unpack(*bytes, row)) return {};
  const auto part = [&](std::string_view field) { return Part(entry.tabel, row, field); };
  QStringList parts;
  switch (entry.tabel) {
    case Tabel::Kolom: parts << part("omschrijving") << part("bedrag") << part("termijn"); break;
    case Tabel::Periode:
      parts << QStringLiteral("na %1").arg(part("maand")) << part("bedrag") << part("percentage");
      if (part("korting") != QStringLiteral("0")) parts << QStringLiteral("korting %1").arg(part("korting"));
      if (part("eenmalig") == QStringLiteral("ja")) parts << QStringLiteral("eenmalig");
      break;
    case Tabel::Lening: parts << part("naam"); break;
    case Tabel::Persoon: {
      QStringList name = {part("naam_1"), part("naam_2"), part("naam_3")};
      name.removeAll(QString());
      parts << name.join(u' ') << part("geboortedatum");
      break;
    }
    case Tabel::Dossier:
    case Tabel::Voorstel: break;
  }
  parts.removeAll(QString());
  return parts.join(QStringLiteral(", "));
}

const char* PersonText(dossier::Sleutel nummer) { return nummer == 1 ? "de aanvrager" : "de partner"; }

QString NameOf(const Entry& entry) {
  return entry.kolom_naam.empty() ? QStringLiteral("de kolom zonder omschrijving") : From(entry.kolom_naam);
}

QString SideText(const Entry& entry, const Stored& value) {
  if (std::holds_alternative<std::monostate>(value)) return {};
  return entry.field == 0 ? RowText(entry, value) : ValueText(entry.tabel, entry.field, value);
}

}  // namespace

const FieldWords* WordsOf(Tabel tabel, int field) {
  const auto columns = dossier::TableOf(tabel).columns;
  if (field < 0 || static_cast<std::size_t>(field) >= columns.size()) return nullptr;
  const auto words = Words(tabel);
  const auto found = std::find_if(words.begin(), words.end(), [&](const FieldWords& one) {
    return one.field == columns[static_cast<std::size_t>(field)].name;
  });
  return found == words.end() ? nullptr : &*found;
}

QString ValueText(Tabel tabel, int field, const Stored& value) {
  const FieldWords* words = WordsOf(tabel, field);
  if (words == nullptr || std::holds_alternative<std::monostate>(value)) return {};
  const auto* whole = std::get_if<std::int64_t>(&value);
  const auto* broken = std::get_if<double>(&value);
  switch (words->shown) {
    case ShownAs::Amount:
      return broken ? QStringLiteral("€ ") + QString::fromStdString(frame::ShowAmount(*broken)) : QString();
    case ShownAs::Percent: return NumberText(value) + QStringLiteral(" %");
    case ShownAs::Number: return NumberText(value);
    case ShownAs::Date:
      return whole ? QString::fromStdString(frame::ShowDate(host::Date(static_cast<std::int32_t>(*whole)))) : QString();
    case ShownAs::Duration: return whole ? DurationText(*whole) : QString();
    case ShownAs::Months: return whole ? Plural(*whole, "maand", "maanden") : QString();
    case ShownAs::Age: return whole ? QStringLiteral("%1 jaar").arg(*whole) : QString();
    case ShownAs::Yes: return whole && *whole != 0 ? QStringLiteral("ja") : QStringLiteral("nee");
    case ShownAs::No: return whole && *whole != 0 ? QStringLiteral("nee") : QStringLiteral("ja");
    case ShownAs::Option: return OptionText(words->field, value);
    case ShownAs::Text: break;
  }
  const auto* text = std::get_if<std::string>(&value);
  return text ? From(*text) : NumberText(value);
}

QString SubjectText(const Entry& entry) {
  const FieldWords* words = entry.field == 0 ? nullptr : WordsOf(entry.tabel, entry.field);
  QString field = words ? QString::fromUtf8(words->words) : QString();
  switch (entry.tabel) {
    case Tabel::Kolom: return words ? field : QStringLiteral("kolom");
    case Tabel::Periode: return words ? field : QStringLiteral("scenario");
    case Tabel::Lening: return words ? field + QStringLiteral(" van de lening") : QStringLiteral("lening");
    case Tabel::Persoon:
      return words ? QStringLiteral("%1 van %2").arg(field, QLatin1String(PersonText(entry.key)))
                   : QString::fromLatin1(PersonText(entry.key)).mid(3);
    case Tabel::Dossier: return field;
    case Tabel::Voorstel: break;
  }
  return QStringLiteral("voorstel %1").arg(dossier::ProposalOf(entry.key));
}

QString BeforeText(const Entry& entry) { return SideText(entry, entry.before); }
QString AfterText(const Entry& entry) { return SideText(entry, entry.after); }

QString StepText(std::span<const Entry> entries) {
  if (entries.empty()) return {};
  const Entry& reason = entries.front();
  if (reason.kind == dossier::StepKind::CarryOver) {
    return QStringLiteral("overnemen van %1 in de nieuwe situatie").arg(NameOf(reason));
  }
  switch (reason.tabel) {
    case Tabel::Dossier:
    case Tabel::Persoon: return QStringLiteral("cliëntgegevens");
    case Tabel::Lening: {
      const QString name = From(reason.lening_naam);
      if (reason.Added()) return QStringLiteral("toevoegen van %1").arg(name);
      if (reason.Removed()) return QStringLiteral("verwijderen van %1").arg(name);
      return QStringLiteral("naam van %1").arg(name);
    }
    case Tabel::Voorstel: return SubjectText(reason);
    case Tabel::Periode: return QStringLiteral("scenario van %1").arg(NameOf(reason));
    case Tabel::Kolom: break;
  }
  if (reason.Added()) {
    return reason.kolom_naam.empty() ? QStringLiteral("toevoegen van een kolom")
                                     : QStringLiteral("toevoegen van %1").arg(NameOf(reason));
  }
  if (reason.Removed()) return QStringLiteral("verwijderen van %1").arg(NameOf(reason));
  if (reason.field == dossier::PlaceOf(Tabel::Kolom, "lening")) {
    return QStringLiteral("verplaatsen van %1").arg(NameOf(reason));
  }
  return QStringLiteral("%1 van %2").arg(SubjectText(reason), NameOf(reason));
}

QString ControlOf(const Entry& entry, const Stored& now) {
  if (entry.tabel == Tabel::Periode) return QStringLiteral("cmdScenario");
  if (entry.tabel == Tabel::Voorstel) return QStringLiteral("ChkVoorstel(%1)").arg(dossier::ProposalOf(entry.key));
  if (entry.tabel != Tabel::Kolom || entry.field == 0) return {};
  const FieldWords* words = WordsOf(entry.tabel, entry.field);
  if (words == nullptr) return {};
  const QString control = From(words->control);
  // Of options the one that is chosen now.
  const auto* code = std::get_if<std::int64_t>(&now);
  return control.startsWith(QStringLiteral("opt")) && code ? QStringLiteral("%1(%2)").arg(control).arg(*code) : control;
}

}  // namespace brivane::app

#include "dossier/sums/Zin.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <string_view>
#include <vector>

#include "dossier/sums/Kalenderjaren.h"
#include <brivane/frame/Calendar.h>
#include <brivane/frame/Numbers.h>
#include <brivane/host/model/Codes.h>

namespace brivane::sums {
namespace {

constexpr std::array<std::string_view, 12> kMaanden{"januari",   "februari", "maart",    "april",
                                                    "mei",       "juni",     "juli",     "augustus",
                                                    "september", "oktober",  "november", "december"};

std::string Euro(double bedrag) {
  const std::string getal = frame::ShowAmount(std::abs(bedrag));
  return "€ " + (getal.empty() ? "?" : getal);
}

std::string Werkwoord(double effect) { return effect < 0 ? "verlaagt " : "verhoogt "; }

std::string VanWie(std::int16_t persoon, Partner partner) {
  if (partner == Partner::Zonder) return {};
  return persoon == host::codes::kPartner ? " van de partner" : " van de aanvrager";
}

/// Whether a later row that the column still runs in has another amount than the one that holds.
bool VerschiltLater(const dossier::KolomGegevens& kolom, const Looptijd& looptijd, host::Date dag) {
  if (kolom.Bedrag.Perioden.empty()) return false;
  const std::int32_t maand = MaandOp(looptijd.aanvang, dag);
  std::int32_t laatste = maand + kMeesteJaren * 12;
  if (!looptijd.einde.IsNone())
    laatste = std::min(laatste, MaandOp(looptijd.aanvang, host::Date(looptijd.einde.Days() - 1)));
  const std::vector<Jaarbedrag> rijen = Rijen(kolom.Bedrag, RijVan(kolom.Bedrag, laatste));
  const auto nu = rijen.begin() + (RijVan(kolom.Bedrag, maand) - 1);
  return std::any_of(nu, rijen.end(), [&](const Jaarbedrag& rij) { return rij != *nu; });
}

std::string Periode(const Looptijd& looptijd, host::Date dag) {
  std::string tekst;
  if (dag < looptijd.aanvang) tekst += " vanaf " + DatumVoluit(looptijd.aanvang);
  if (!looptijd.einde.IsNone()) return tekst + " tot " + DatumVoluit(looptijd.einde);
  return tekst + " zonder einddatum";
}

/// What the clauses on burden and on tax have in common.
struct Delen {
  std::string last;       ///< what the burden is called
  std::string inJaar;     ///< the year that the tax is of; empty where it is of each year
  std::string bijEerste;  ///< said at the end of the first clause that has an amount
};

std::string Clausules(const Effect& effect, std::int16_t persoon, Partner partner, const Delen& delen) {
  std::string last = "geen invloed op de maandlast";
  if (effect.last != 0) last = Werkwoord(effect.last) + delen.last + " met " + Euro(effect.last) + delen.bijEerste;
  std::string inkomen = "geen invloed op de inkomstenbelasting";
  if (effect.inkomen != 0) {
    inkomen = Werkwoord(effect.inkomen) + (effect.belasting ? "de inkomstenbelasting" : "het belastbaar inkomen") +
              VanWie(persoon, partner) + delen.inJaar + " met " + Euro(effect.belasting.value_or(effect.inkomen));
    if (delen.inJaar.empty()) inkomen += " per jaar";
    if (effect.last == 0) inkomen += delen.bijEerste;
  }
  last.front() = static_cast<char>(last.front() - 'a' + 'A');
  return last + "; " + inkomen + ".";
}

std::string ZinEenmalig(const Post& post, Partner partner) {
  const std::string jaar = std::to_string(frame::Split(post.looptijd.aanvang).year);
  return Clausules(post.effect, post.persoon, partner,
                   {.last = "de lasten eenmalig",
                    .inJaar = " over " + jaar,
                    .bijEerste = " op " + DatumVoluit(post.looptijd.aanvang)});
}

std::string ZinDoorlopend(const dossier::KolomGegevens& kolom, const Post& post, Partner partner, host::Date vandaag) {
  const host::Date dag = std::max(vandaag, post.looptijd.aanvang);
  std::string verschilt;
  if (VerschiltLater(kolom, post.looptijd, dag))
    verschilt = HeeftMaandrijen(kolom.Bedrag) ? " (verschilt per maand)" : " (verschilt per jaar)";
  return Clausules(post.effect, post.persoon, partner,
                   {.last = "de maandlast", .inJaar = {}, .bijEerste = verschilt + Periode(post.looptijd, vandaag)});
}

bool HeeftBedrag(const dossier::KolomGegevens& kolom) {
  return kolom.Bedrag.Bedrag != 0 || !kolom.Bedrag.Perioden.empty();
}

}  // namespace

std::string DatumVoluit(host::Date datum) {
  const frame::YearMonthDay dag = frame::Split(datum);
  return std::to_string(dag.day) + " " + std::string(kMaanden[static_cast<std::size_t>(dag.month - 1)]) + " " +
         std::to_string(dag.year);
}

std::string Zin(const dossier::KolomGegevens& kolom, Partner partner, const Tarieven& tarieven, host::Date dag) {
  const Looptijd looptijd = LooptijdVan(kolom);
  // What is still to start is told as it is on its first day.
  const Post post = PostVan(kolom, host::codes::kHuidigeSituatie, {},
                            {.peildatum = std::max(dag, looptijd.aanvang), .tarieven = tarieven});
  if (post.stand == Stand::GeenAanvang) return "Telt nog niet mee: er is geen aanvangsdatum ingevuld.";
  if (post.stand == Stand::GeenTermijn) return "Telt nog niet mee: er is geen termijn gekozen.";
  if (!looptijd.einde.IsNone() && looptijd.einde <= looptijd.aanvang)
    return "Telt niet mee: het einde ligt niet na de aanvangsdatum.";
  if (post.stand == Stand::Afgelopen)
    return "Telt niet meer mee: " +
           (post.Eenmalig() ? "eenmalig op " + DatumVoluit(looptijd.aanvang)
                            : "liep tot " + DatumVoluit(looptijd.einde)) +
           ".";
  if (post.stand == Stand::Percentage)
    return "Telt niet mee in euro's: het is een percentage, nu " + frame::ShowNumber(post.waarde) + " %.";
  if (!HeeftBedrag(kolom)) return "Telt nog niet mee: er is geen bedrag ingevuld.";
  return post.Eenmalig() ? ZinEenmalig(post, partner) : ZinDoorlopend(kolom, post, partner, dag);
}

}  // namespace brivane::sums

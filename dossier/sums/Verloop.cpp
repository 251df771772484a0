#include "dossier/sums/Verloop.h"

#include <algorithm>

#include "dossier/sums/Centen.h"
#include <brivane/frame/Calendar.h>
#include <brivane/host/model/Codes.h>
#include <brivane/scenario/Maanden.h>

namespace brivane::sums {
namespace {

constexpr double kHeel = 100;

/// The part of a column's time that counts in the scenario.
Looptijd Meetellend(Looptijd looptijd, const Aandeel& aandeel) {
  if (!aandeel.einde.IsNone() && (looptijd.einde.IsNone() || aandeel.einde < looptijd.einde))
    looptijd.einde = aandeel.einde;
  return looptijd;
}

std::int32_t JaarVan(host::Date dag) { return frame::Split(dag).year; }

/// How many of a column's months have begun before a calendar year.
std::int32_t MaandenVoor(host::Date aanvang, std::int32_t jaar) {
  constexpr std::int32_t kMaanden = scenario::kMaandenPerRij;
  const frame::YearMonthDay begin = frame::Split(aanvang);
  return std::max(0, (jaar - begin.year) * kMaanden - (begin.month - 1));
}

/// How many of a column's months begin before its end; those of `jaren` at most.
std::int32_t MaandenTot(const Looptijd& looptijd, const Jaren& jaren) {
  const std::int32_t meeste = MaandenVoor(looptijd.aanvang, jaren.tot + 1);
  if (looptijd.einde.IsNone()) return meeste;
  return std::min(meeste, MaandOp(looptijd.aanvang, host::Date(looptijd.einde.Days() - 1)));
}

void Eenmalig(const dossier::KolomGegevens& kolom, const Looptijd& looptijd, double deel, const Jaren& jaren,
              std::vector<Kolomjaar>& resultaat) {
  const std::int32_t jaar = JaarVan(looptijd.aanvang);
  if (jaar < jaren.van || jaar > jaren.tot || !Loopt(looptijd, looptijd.aanvang)) return;
  resultaat[static_cast<std::size_t>(jaar - jaren.van)].eenmalig = OpCenten(kolom.Bedrag.Bedrag * deel);
}

/// A row counts for as many of its months as begin in the year.
class Rijensom {
 public:
  Rijensom(const dossier::KolomGegevens& kolom, std::int32_t maanden)
      : kolom_(kolom), rijen_(Rijen(kolom.Bedrag, RijVan(kolom.Bedrag, maanden))) {}

  [[nodiscard]] const Jaarbedrag& InMaand(std::int32_t maand) const {
    return rijen_[static_cast<std::size_t>(RijVan(kolom_.Bedrag, maand) - 1)];
  }

  /// Of the months after the first `van` up to and including `tot`.
  [[nodiscard]] double Som(std::int32_t van, std::int32_t tot) const {
    const std::int32_t perRij = HeeftMaandrijen(kolom_.Bedrag) ? 1 : scenario::kMaandenPerRij;
    double som = 0;
    while (van < tot) {
      const std::int32_t eind = std::min(tot, (van / perRij + 1) * perRij);
      const Jaarbedrag& rij = InMaand(van + 1);
      som += perRij == 1 ? rij.waarde : RekenOm(rij, kolom_.Termijn).perJaar * (eind - van) / scenario::kMaandenPerRij;
      van = eind;
    }
    return som;
  }

 private:
  const dossier::KolomGegevens& kolom_;
  std::vector<Jaarbedrag> rijen_;
};

Situatiejaar InSituatie(const dossier::KolomGegevens& kolom, const Kolomjaar& jaar) {
  const auto effect = [&](double bedrag) { return EffectVan(kolom, bedrag, bedrag, kolom.HeffingBij, {}); };
  const Effect doorlopend = effect(jaar.doorlopend);
  const Effect eenmalig = effect(jaar.eenmalig);
  return {doorlopend.last, eenmalig.last, doorlopend.inkomen, eenmalig.inkomen};
}

void TelOp(std::vector<Situatiejaar>& totaal, const std::vector<Situatiejaar>& kolom) {
  for (std::size_t i = 0; i < totaal.size(); ++i) {
    totaal[i].last = OpCenten(totaal[i].last + kolom[i].last);
    totaal[i].lastEenmalig = OpCenten(totaal[i].lastEenmalig + kolom[i].lastEenmalig);
    totaal[i].inkomen = OpCenten(totaal[i].inkomen + kolom[i].inkomen);
    totaal[i].inkomenEenmalig = OpCenten(totaal[i].inkomenEenmalig + kolom[i].inkomenEenmalig);
  }
}

}  // namespace

std::vector<Kolomjaar> KolomInJaren(const dossier::KolomGegevens& kolom,
                                    std::span<const dossier::PersoonGegevens> personen, Levensscenario scenario,
                                    const Jaren& jaren) {
  std::vector<Kolomjaar> resultaat(static_cast<std::size_t>(jaren.Aantal()));
  const Aandeel aandeel = AandeelIn(kolom, scenario, personen);
  const Looptijd looptijd = Meetellend(LooptijdVan(kolom), aandeel);
  const bool leeg = looptijd.aanvang.IsNone() || aandeel.procent == 0 ||
                    host::codes::WordsFor(kolom.Termijn, host::codes::kTermijnen).empty();
  if (leeg || resultaat.empty()) return resultaat;
  const bool procent = EenheidVan(kolom.Bedrag) == Eenheid::Procent;
  const double deel = aandeel.procent / kHeel;
  if (kolom.Termijn == host::codes::kEenmalig) {
    if (!procent) Eenmalig(kolom, looptijd, deel, jaren, resultaat);
    return resultaat;
  }
  const std::int32_t maanden = MaandenTot(looptijd, jaren);
  if (maanden < 1) return resultaat;
  const Rijensom rijen(kolom, maanden);
  for (std::int32_t jaar = jaren.van; jaar <= jaren.tot; ++jaar) {
    const std::int32_t van = std::min(maanden, MaandenVoor(looptijd.aanvang, jaar));
    const std::int32_t tot = std::min(maanden, MaandenVoor(looptijd.aanvang, jaar + 1));
    if (van == tot) continue;
    Kolomjaar& uitkomst = resultaat[static_cast<std::size_t>(jaar - jaren.van)];
    if (procent)
      uitkomst.percentage = rijen.InMaand(van + 1).waarde;
    else
      uitkomst.doorlopend = OpCenten(rijen.Som(van, tot) * deel);
  }
  return resultaat;
}

Verloop::Verloop(const dossier::DossierGegevens& dossier, Levensscenario scenario, const Jaren& jaren)
    : jaren_(static_cast<std::size_t>(jaren.Aantal())) {
  const auto neem = [&](const dossier::LeningGegevens& lening) {
    Lening& nieuw = leningen_.emplace_back();
    for (const dossier::KolomGegevens& kolom : lening.VrijeKolommen) {
      nieuw.nummers.push_back(kolom.Id);
      auto& jaarlijks = nieuw.kolommen.emplace_back();
      jaarlijks.reserve(jaren_);
      for (const Kolomjaar& jaar : KolomInJaren(kolom, dossier.Personen, scenario, jaren))
        jaarlijks.push_back(InSituatie(kolom, jaar));
    }
  };
  neem(dossier.HuidigeLening);
  for (const dossier::LeningGegevens& lening : dossier.Leningen) neem(lening);
}

std::vector<Situatiejaar> Verloop::Situatie(std::int16_t situatie) const {
  const Lening& huidig = leningen_.front();
  const Lening& lening = leningen_.at(static_cast<std::size_t>(situatie));
  std::vector<Situatiejaar> totaal(jaren_);
  const auto plekken =
      situatie == 0 ? HuidigeSituatie(huidig.nummers.size()) : NieuweSituatie(huidig.nummers, lening.nummers);
  for (const Plek& plek : plekken) {
    const bool vanHuidig = plek.herkomst == Herkomst::Huidig || plek.herkomst == Herkomst::Volgt;
    TelOp(totaal, (vanHuidig ? huidig : lening).kolommen[plek.plaats]);
  }
  return totaal;
}

}  // namespace brivane::sums

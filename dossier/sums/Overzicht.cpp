#include "dossier/sums/Overzicht.h"

#include <algorithm>
#include <iterator>

#include "dossier/model/Kopteksten.h"
#include "dossier/sums/Centen.h"
#include <brivane/frame/Calendar.h>
#include <brivane/host/model/Codes.h>
#include <brivane/scenario/Maanden.h>

namespace brivane::sums {
namespace {

namespace codes = host::codes;

Stand StandOp(const Post& post, const Aandeel& aandeel, host::Date dag) {
  if (post.looptijd.aanvang.IsNone()) return Stand::GeenAanvang;
  if (codes::WordsFor(post.termijn, codes::kTermijnen).empty()) return Stand::GeenTermijn;
  if (post.Eenmalig()) {
    const std::int32_t jaren = frame::YearsBetween(dag, post.looptijd.aanvang);
    if (jaren != 0) return jaren > 0 ? Stand::NogNiet : Stand::Afgelopen;
  } else if (!Loopt(post.looptijd, dag)) {
    return dag < post.looptijd.aanvang ? Stand::NogNiet : Stand::Afgelopen;
  }
  if (post.eenheid == Eenheid::Procent) return Stand::Percentage;
  const host::Date telt = post.Eenmalig() ? post.looptijd.aanvang : dag;
  if (aandeel.procent == 0 || (!aandeel.einde.IsNone() && telt >= aandeel.einde)) return Stand::NietInScenario;
  return Stand::Telt;
}

/// What the months of a bridging loan come to: each by itself, and the twelve that the month is among.
Omgerekend Maandrijen(const std::vector<Jaarbedrag>& rijen, std::size_t maand) {
  Omgerekend omgerekend{.perMaand = rijen[maand - 1].waarde, .perJaar = 0};
  const std::size_t eerste = (maand - 1) / scenario::kMaandenPerRij * scenario::kMaandenPerRij;
  for (std::size_t i = eerste; i < std::min(eerste + scenario::kMaandenPerRij, rijen.size()); ++i)
    omgerekend.perJaar += rijen[i].waarde;
  return omgerekend;
}

/// The rows of the form as far as the year that a month is in is worked out.
std::vector<Jaarbedrag> RijenTot(const dossier::BedragGegevens& bedrag, std::int32_t maand) {
  constexpr std::int32_t kJaar = scenario::kMaandenPerRij;
  return Rijen(bedrag, HeeftMaandrijen(bedrag) ? (maand + kJaar - 1) / kJaar * kJaar : RijVan(bedrag, maand));
}

void Reken(Post& post, const dossier::KolomGegevens& kolom, const Aandeel& aandeel, const Uitgangspunt& uitgangspunt) {
  constexpr double kHeel = 100;
  if (post.Eenmalig()) {
    const double bedrag = post.bedrag * aandeel.procent / kHeel;
    post.effect = EffectVan(kolom, bedrag, bedrag, aandeel.persoon, uitgangspunt.tarieven);
    return;
  }
  const std::int32_t maand = MaandOp(post.looptijd.aanvang, uitgangspunt.peildatum);
  const std::vector<Jaarbedrag> rijen = RijenTot(kolom.Bedrag, maand);
  const Jaarbedrag& rij = rijen[static_cast<std::size_t>(RijVan(kolom.Bedrag, maand) - 1)];
  post.waarde = rij.waarde;
  if (post.stand != Stand::Telt) return;
  const Omgerekend heel =
      HeeftMaandrijen(kolom.Bedrag) ? Maandrijen(rijen, static_cast<std::size_t>(maand)) : RekenOm(rij, post.termijn);
  const double deel = aandeel.procent / kHeel;
  post.perMaand = OpCenten(heel.perMaand * deel);
  post.effect = EffectVan(kolom, heel.perMaand * deel, heel.perJaar * deel, aandeel.persoon, uitgangspunt.tarieven);
}

void TelOp(Totaal& totaal, const Post& post) {
  totaal.effect = Som(totaal.effect, post.effect);
  if (post.persoon != codes::kAanvrager && post.persoon != codes::kPartner) return;
  double& inkomen = totaal.inkomen[static_cast<std::size_t>(post.persoon - codes::kAanvrager)];
  inkomen = OpCenten(inkomen + post.effect.inkomen);
}

}  // namespace

Tarieven TarievenVan(std::span<const dossier::PersoonGegevens> personen) {
  Tarieven tarieven;
  for (std::size_t i = 0; i < std::min(tarieven.size(), personen.size()); ++i)
    tarieven[i] = personen[i].Belastingtarief;
  return tarieven;
}

bool Post::Eenmalig() const { return termijn == codes::kEenmalig; }

Post PostVan(const dossier::KolomGegevens& kolom, std::int16_t Len_Id,
             std::span<const dossier::PersoonGegevens> personen, const Uitgangspunt& uitgangspunt) {
  const Aandeel aandeel = AandeelIn(kolom, uitgangspunt.scenario, personen);
  Post post{.Len_Id = Len_Id,
            .Vrij_Id = kolom.Id,
            .naam = dossier::Onderwerp(kolom),
            .bedrag = kolom.Bedrag.Bedrag,
            .eenheid = EenheidVan(kolom.Bedrag),
            .termijn = kolom.Termijn,
            .looptijd = LooptijdVan(kolom),
            .persoon = aandeel.persoon,
            .waarde = kolom.Bedrag.Bedrag};
  post.stand = StandOp(post, aandeel, uitgangspunt.peildatum);
  const bool loopt =
      post.stand == Stand::Telt || post.stand == Stand::Percentage || post.stand == Stand::NietInScenario;
  const bool rekent = post.Eenmalig() ? post.stand == Stand::Telt : loopt;
  if (rekent) Reken(post, kolom, aandeel, uitgangspunt);
  return post;
}

Totaal Verschil(const Totaal& huidig, const Totaal& nieuw) {
  Totaal verschil{.effect = Verschil(huidig.effect, nieuw.effect), .inkomen = {}};
  for (std::size_t i = 0; i < verschil.inkomen.size(); ++i)
    verschil.inkomen[i] = OpCenten(nieuw.inkomen[i] - huidig.inkomen[i]);
  return verschil;
}

Totalen Verschil(const Totalen& huidig, const Totalen& nieuw) {
  return {Verschil(huidig.doorlopend, nieuw.doorlopend), Verschil(huidig.eenmalig, nieuw.eenmalig)};
}

Overzicht::Overzicht(const dossier::DossierGegevens& dossier, const Uitgangspunt& uitgangspunt) {
  const auto neem = [&](const dossier::LeningGegevens& lening) {
    const auto Len_Id = static_cast<std::int16_t>(leningen_.size());
    auto& posten = leningen_.emplace_back();
    auto& nummers = nummers_.emplace_back();
    posten.reserve(lening.VrijeKolommen.size());
    for (const dossier::KolomGegevens& kolom : lening.VrijeKolommen) {
      posten.push_back(PostVan(kolom, Len_Id, dossier.Personen, uitgangspunt));
      nummers.push_back(kolom.Id);
    }
  };
  leningen_.reserve(dossier.Leningen.size() + 1);
  neem(dossier.HuidigeLening);
  for (const dossier::LeningGegevens& lening : dossier.Leningen) neem(lening);
}

std::int16_t Overzicht::NieuweLeningen() const { return static_cast<std::int16_t>(leningen_.size() - 1); }

std::vector<Overzicht::Regel> Overzicht::Regels(std::int16_t situatie) const {
  const auto lening = static_cast<std::size_t>(situatie);
  const std::vector<Plek> plekken =
      lening == 0 ? HuidigeSituatie(nummers_[0].size()) : NieuweSituatie(nummers_[0], nummers_.at(lening));
  std::vector<Regel> regels;
  regels.reserve(plekken.size());
  for (const Plek& plek : plekken) {
    const bool huidig = plek.herkomst == Herkomst::Huidig || plek.herkomst == Herkomst::Volgt;
    regels.push_back({plek.herkomst, &leningen_[huidig ? 0 : lening][plek.plaats]});
  }
  return regels;
}

Totalen Overzicht::TotalenVan(std::int16_t situatie) const {
  Totalen totalen;
  for (const Regel& regel : Regels(situatie))
    TelOp(regel.post->Eenmalig() ? totalen.eenmalig : totalen.doorlopend, *regel.post);
  return totalen;
}

}  // namespace brivane::sums

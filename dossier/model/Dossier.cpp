#include "dossier/model/Dossier.h"

#include <algorithm>
#include <limits>
#include <utility>

#include <brivane/host/Error.h>

namespace brivane::dossier {
namespace {

/// A copy's periods are entries of their own.
KolomGegevens Kopie(const VrijeKolom& kolom, std::int16_t Id) {
  KolomGegevens gegevens = kolom.Gegevens();
  gegevens.Sleutel = 0;
  gegevens.Id = Id;
  for (PeriodeGegevens& periode : gegevens.Bedrag.Perioden) periode.Sleutel = 0;
  return gegevens;
}

}  // namespace

Dossier::Dossier(DossierGegevens gegevens, std::shared_ptr<Environment> omgeving)
    : omgeving_(std::move(omgeving)),
      leeftijd_(gegevens.Leeftijd),
      maatschappijen_(std::move(gegevens.MaatschappijType)),
      huidige_(std::make_shared<dossier::Lening>(omgeving_, std::move(gegevens.HuidigeLening))),
      voorstellen_(std::move(gegevens.Voorstellen)) {
  AdoptPersonen(std::move(gegevens.Personen));
  for (LeningGegevens& lening : gegevens.Leningen) {
    leningen_.push_back(std::make_shared<dossier::Lening>(omgeving_, std::move(lening)));
  }
}

std::shared_ptr<host::Persoon> Dossier::Persoon(std::int16_t nummer) {
  if (nummer < 1 || static_cast<std::size_t>(nummer) > personen_.size()) return nullptr;
  return personen_[static_cast<std::size_t>(nummer - 1)];
}

void Dossier::VoegToeAanVoorstel(std::int16_t voorstel, std::int16_t Vrij_Id) {
  WriteVoorstel(voorstel, Vrij_Id, Membership::Yes);
}

void Dossier::VerwijderUitVoorstel(std::int16_t voorstel, std::int16_t Vrij_Id, std::int16_t) {
  WriteVoorstel(voorstel, Vrij_Id, Membership::No);
}

void Dossier::WriteVoorstel(std::int16_t voorstel, std::int16_t Vrij_Id, Membership lidmaatschap) {
  std::set<std::int16_t>& leden = voorstellen_[Plaats(voorstel)];
  // Registering again, or taking out what is not in, changes nothing and costs no write.
  if (leden.contains(Vrij_Id) == (lidmaatschap == Membership::Yes)) return;
  omgeving_->Journal->SetProposal(voorstel, Vrij_Id, lidmaatschap);
  if (lidmaatschap == Membership::Yes) {
    leden.insert(Vrij_Id);
  } else {
    leden.erase(Vrij_Id);
  }
}

std::shared_ptr<dossier::Lening> Dossier::FindLening(std::int16_t Len_Id) const {
  if (Len_Id == kHuidig) return huidige_;
  if (Len_Id < 0 || static_cast<std::size_t>(Len_Id) > leningen_.size()) return nullptr;
  return leningen_[static_cast<std::size_t>(Len_Id - 1)];
}

std::shared_ptr<dossier::VrijeKolom> Dossier::FindKolom(std::int16_t Len_Id, std::int16_t Vrij_Id) const {
  const auto lening = FindLening(Len_Id);
  return lening ? lening->Zoek(Vrij_Id) : nullptr;
}

const std::set<std::int16_t>& Dossier::Voorstel(std::int16_t voorstel) const { return voorstellen_[Plaats(voorstel)]; }

bool Dossier::HeeftAfwijking(std::int16_t Vrij_Id) const {
  return std::any_of(leningen_.begin(), leningen_.end(), [&](const auto& lening) { return lening->Zoek(Vrij_Id); });
}

std::vector<std::shared_ptr<dossier::VrijeKolom>> Dossier::VolgtHuidigeSituatie() const {
  std::vector<std::shared_ptr<dossier::VrijeKolom>> kolommen;
  std::copy_if(huidige_->Kolommen().begin(), huidige_->Kolommen().end(), std::back_inserter(kolommen),
               [&](const auto& kolom) { return !HeeftAfwijking(kolom->Id()); });
  return kolommen;
}

template <class Function> void Dossier::VoorElkeKolom(Function&& functie) const {
  for (const auto& kolom : huidige_->Kolommen()) functie(*kolom);
  for (const auto& lening : leningen_) {
    for (const auto& kolom : lening->Kolommen()) functie(*kolom);
  }
}

std::int16_t Dossier::VrijId() const {
  // An identifier that a proposal still names is taken too: a new item must not inherit its place there.
  std::set<std::int16_t> bezet;
  VoorElkeKolom([&](const dossier::VrijeKolom& kolom) { bezet.insert(kolom.Id()); });
  for (const auto& leden : voorstellen_) bezet.insert(leden.begin(), leden.end());
  constexpr std::int16_t kHoogste = std::numeric_limits<std::int16_t>::max();
  const std::int16_t hoogste = bezet.empty() ? std::int16_t{0} : std::max(std::int16_t{0}, *bezet.rbegin());
  if (hoogste < kHoogste) return static_cast<std::int16_t>(hoogste + 1);
  for (std::int16_t id = 1; id < kHoogste; ++id) {
    if (!bezet.contains(id)) return id;
  }
  throw host::Error(host::ErrorNumber::Overflow);
}

std::shared_ptr<dossier::VrijeKolom> Dossier::NewKolom(std::int16_t Len_Id, Invoer invoer) {
  dossier::Lening& lening = host::Need(FindLening(Len_Id));
  KolomGegevens gegevens;
  gegevens.Id = VrijId();
  // What an adviser has not looked at yet must not lower or raise a tax.
  gegevens.CorrectieLast = host::codes::kLast;
  gegevens.CorrectieFiscaal = host::codes::kFiscaalNeutraal;
  gegevens.Bedrag.Invoersoort = static_cast<std::int16_t>(invoer);
  std::shared_ptr<dossier::VrijeKolom> kolom;
  omgeving_->Journal->InOneEdit([&] { kolom = lening.VoegToe(std::move(gegevens)); });
  return kolom;
}

std::shared_ptr<dossier::VrijeKolom> Dossier::Dupliceer(std::int16_t Len_Id, std::int16_t Vrij_Id,
                                                        std::int16_t naarLen_Id) {
  const dossier::Lening& van = host::Need(FindLening(Len_Id));
  dossier::Lening& naar = host::Need(FindLening(naarLen_Id));
  KolomGegevens gegevens = Kopie(host::Need(van.Zoek(Vrij_Id)), VrijId());
  gegevens.Voorstel = {};
  std::shared_ptr<dossier::VrijeKolom> kolom;
  omgeving_->Journal->InOneEdit([&] { kolom = naar.VoegToe(std::move(gegevens)); });
  return kolom;
}

void Dossier::Verwijder(std::int16_t Len_Id, std::int16_t Vrij_Id) {
  dossier::Lening& lening = host::Need(FindLening(Len_Id));
  const auto& kolommen = lening.Kolommen();
  const auto plaats = std::find(kolommen.begin(), kolommen.end(), lening.Zoek(Vrij_Id));
  if (plaats == kolommen.end()) throw host::Error(host::ErrorNumber::ObjectMissing);
  omgeving_->Journal->InOneEdit([&] {
    lening.VerwijderVrijeKolom(static_cast<std::int16_t>(plaats - kolommen.begin() + 1));
    LaatVoorstellenLos(Vrij_Id);
  });
}

void Dossier::LaatVoorstellenLos(std::int16_t Vrij_Id) {
  if (huidige_->Zoek(Vrij_Id) || HeeftAfwijking(Vrij_Id)) return;
  for (const std::int16_t voorstel : {1, 2, 3}) VerwijderUitVoorstel(voorstel, Vrij_Id, 0);
}

std::int16_t Dossier::Verplaats(std::int16_t Len_Id, std::int16_t Vrij_Id, std::int16_t naarLen_Id) {
  dossier::Lening& van = host::Need(FindLening(Len_Id));
  dossier::Lening& naar = host::Need(FindLening(naarLen_Id));
  static_cast<void>(host::Need(van.Zoek(Vrij_Id)));
  if (&van == &naar) return Vrij_Id;
  const std::int16_t nieuwId = naar.Zoek(Vrij_Id) ? VrijId() : Vrij_Id;
  omgeving_->Journal->InOneEdit([&] { van.Verplaats(Vrij_Id, naar, nieuwId); });
  return nieuwId;
}

std::shared_ptr<dossier::VrijeKolom> Dossier::MakeAfwijking(std::int16_t Vrij_Id, std::int16_t Len_Id) {
  dossier::Lening& lening = host::Need(Len_Id == kHuidig ? nullptr : FindLening(Len_Id));
  const std::shared_ptr<dossier::VrijeKolom> kolom = huidige_->Zoek(Vrij_Id);
  KolomGegevens gegevens = Kopie(host::Need(kolom), Vrij_Id);
  if (std::shared_ptr<dossier::VrijeKolom> bestaand = lening.Zoek(Vrij_Id)) return bestaand;
  std::shared_ptr<dossier::VrijeKolom> afwijking;
  omgeving_->Journal->InOneEdit([&] { afwijking = lening.VoegToe(std::move(gegevens)); });
  return afwijking;
}

std::vector<PersoonGegevens> Dossier::Personen() const {
  std::vector<PersoonGegevens> personen;
  for (const auto& persoon : personen_) personen.push_back(persoon->Gegevens());
  return personen;
}

std::int16_t Dossier::NieuweLening(std::string naam) {
  if (leningen_.size() == static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max())) {
    throw host::Error(host::ErrorNumber::Overflow);
  }
  LeningGegevens gegevens{.Sleutel = 0, .Naam = std::move(naam), .VrijeKolommen = {}};
  omgeving_->Journal->InOneEdit([&] { omgeving_->Journal->AddLoan(gegevens); });
  leningen_.push_back(std::make_shared<dossier::Lening>(omgeving_, std::move(gegevens)));
  return AantalLeningen();
}

void Dossier::HernoemLening(std::int16_t Len_Id, const std::string& naam) {
  dossier::Lening& lening = host::Need(FindLening(Len_Id));
  omgeving_->Journal->InOneEdit([&] { lening.Hernoem(naam); });
}

void Dossier::VerwijderLening(std::int16_t Len_Id) {
  const auto lening = Len_Id == kHuidig ? nullptr : FindLening(Len_Id);
  const Sleutel sleutel = host::Need(lening).Sleutel();
  omgeving_->Journal->InOneEdit([&] {
    omgeving_->Journal->RemoveLoan(sleutel);
    leningen_.erase(leningen_.begin() + (Len_Id - 1));
    for (const auto& kolom : lening->Kolommen()) LaatVoorstellenLos(kolom->Id());
  });
}

void Dossier::SetClient(std::vector<PersoonGegevens> personen, std::int16_t leeftijd) {
  if (personen.empty() || personen.size() > 2) throw host::Error(host::ErrorNumber::SubscriptOutOfRange);
  omgeving_->Journal->InOneEdit([&] {
    omgeving_->Journal->SetPersons(personen);
    omgeving_->Journal->SetAgeLimit(leeftijd);
  });
  AdoptPersonen(std::move(personen));
  leeftijd_ = leeftijd;
}

void Dossier::AdoptPersonen(std::vector<PersoonGegevens> personen) {
  personen_.clear();
  for (PersoonGegevens& persoon : personen) {
    personen_.push_back(std::make_shared<dossier::Persoon>(std::move(persoon)));
  }
}

DossierGegevens Dossier::Gegevens() const {
  DossierGegevens gegevens;
  gegevens.Personen = Personen();
  gegevens.Leeftijd = leeftijd_;
  gegevens.MaatschappijType = maatschappijen_;
  gegevens.HuidigeLening = huidige_->Gegevens();
  for (const auto& lening : leningen_) gegevens.Leningen.push_back(lening->Gegevens());
  gegevens.Voorstellen = voorstellen_;
  return gegevens;
}

void Dossier::Herlaad(DossierGegevens gegevens) {
  AdoptPersonen(std::move(gegevens.Personen));
  leeftijd_ = gegevens.Leeftijd;
  huidige_->Herlaad(std::move(gegevens.HuidigeLening));
  leningen_.resize(std::min(leningen_.size(), gegevens.Leningen.size()));
  for (std::size_t nummer = 0; nummer < gegevens.Leningen.size(); ++nummer) {
    if (nummer < leningen_.size()) {
      leningen_[nummer]->Herlaad(std::move(gegevens.Leningen[nummer]));
    } else {
      leningen_.push_back(std::make_shared<dossier::Lening>(omgeving_, std::move(gegevens.Leningen[nummer])));
    }
  }
  voorstellen_ = std::move(gegevens.Voorstellen);
}

}  // namespace brivane::dossier

#include "dossier/model/DossierControle.h"

#include <algorithm>

#include "dossier/model/Application.h"
#include <brivane/frame/Calendar.h>
#include <brivane/host/Error.h>
#include <brivane/host/model/Codes.h>

namespace brivane::dossier {
namespace {

/// Collects what is found about one column.
class KolomCheck {
 public:
  KolomCheck(Dossier& dossier, host::Date vandaag, std::vector<Finding>& bevindingen)
      : dossier_(dossier), vandaag_(vandaag), bevindingen_(bevindingen) {}

  void Controleer(std::int16_t Len_Id, const KolomGegevens& kolom) {
    const auto meld = [&](const char* tekst) { bevindingen_.push_back({Len_Id, kolom.Id, tekst}); };
    if (kolom.Omschrijving.empty()) meld("Er is geen omschrijving ingevuld.");
    if (kolom.Bedrag.Bedrag == 0 && kolom.Bedrag.Perioden.empty()) meld("Er is geen bedrag ingevuld.");
    if (host::codes::WordsFor(kolom.Termijn, host::codes::kTermijnen).empty()) meld("Er is geen termijn gekozen.");
    if (!dossier_.Persoon(kolom.HeffingBij)) meld("De post staat op naam van een partner die er niet is.");
    if (kolom.IsProduct) {
      ControleerProduct(kolom, meld);
    } else if (Afgelopen(kolom)) {
      meld("De looptijd van de post is voorbij.");
    }
  }

 private:
  template <class Meld> void ControleerProduct(const KolomGegevens& kolom, Meld& meld) const {
    const auto& codes = dossier_.MaatschappijType();
    const bool bekend =
        std::any_of(codes.begin(), codes.end(), [&](const Code& code) { return code.code == kolom.Maatschappij; });
    if (!bekend) meld("Er is geen maatschappij gekozen.");
    if (kolom.Maatschappij == host::codes::kAndereMaatschappij && kolom.MaatschappijNaam.empty()) {
      meld("De naam van de andere maatschappij ontbreekt.");
    }
    if (!host::codes::IsContractsoort(kolom.Productsoort)) {
      if (Afgelopen(kolom)) meld("De looptijd van de post is voorbij.");
    } else if (kolom.Contractvervaldatum.IsNone()) {
      meld("Er is geen contractvervaldatum ingevuld.");
    } else if (kolom.Contractvervaldatum <= vandaag_) {
      meld("Het contract is vervallen.");
    }
  }

  /// A duration past the years of the calendar has not run out.
  [[nodiscard]] bool Afgelopen(const KolomGegevens& kolom) const {
    if (kolom.DatumAanvang.IsNone() || kolom.Looptijd <= 0) return false;
    return frame::MonthsBetween(kolom.DatumAanvang, vandaag_) >= kolom.Looptijd &&
           frame::AddMonths(kolom.DatumAanvang, kolom.Looptijd) <= vandaag_;
  }

  Dossier& dossier_;
  host::Date vandaag_;
  std::vector<Finding>& bevindingen_;
};

}  // namespace

std::vector<Finding> ControleerDossier(Dossier& dossier, host::Date vandaag) {
  std::vector<Finding> bevindingen;
  KolomCheck controle(dossier, vandaag, bevindingen);
  for (std::int16_t Len_Id = Dossier::kHuidig; Len_Id <= dossier.AantalLeningen(); ++Len_Id) {
    for (const auto& kolom : dossier.FindLening(Len_Id)->Kolommen()) controle.Controleer(Len_Id, kolom->Gegevens());
  }
  for (const std::int16_t voorstel : {1, 2, 3}) {
    for (const std::int16_t Vrij_Id : dossier.Voorstel(voorstel)) {
      if (dossier.FindKolom(Dossier::kHuidig, Vrij_Id)) continue;
      bevindingen.push_back(
          {Dossier::kHuidig, Vrij_Id,
           "Voorstel " + std::to_string(voorstel) + " beëindigt een post die niet in de huidige situatie staat."});
    }
  }
  return bevindingen;
}

void DossierControle::Controleer(const std::shared_ptr<host::Application>& application, std::int16_t soort) {
  if (soort != 1) throw host::Error(host::ErrorNumber::SubscriptOutOfRange);
  const auto eigen = std::dynamic_pointer_cast<Application>(application);
  Gecontroleerd.Raise(ControleerDossier(*host::Need(eigen).Bestand(), vandaag_()));
}

}  // namespace brivane::dossier

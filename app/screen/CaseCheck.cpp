#include "app/screen/CaseCheck.h"

#include <map>
#include <memory>
#include <utility>

#include "dossier/model/Application.h"
#include "dossier/model/Tracer.h"
#include "toolkits/memory/Toolkit.h"
#include "vrijekolom/Ontwerp.h"
#include "vrijekolom/VrijeKolom.h"

namespace brivane::dossier {
namespace {

/// An editor without a screen that tells what its checks say.
class Controleur {
 public:
  Controleur(const std::shared_ptr<Dossier>& dossier, host::Date vandaag)
      : application_(std::make_shared<Application>(dossier)),
        surface_(toolkit_.MakeSurface(vrijekolom::kOntwerp)),
        editor_(
            *surface_, toolkit_,
            {.MaakProcedureTrace = [](std::string_view) { return std::make_shared<Tracer>(); },
             // The host's check runs once over the whole case, not after every column.
             .MaakDossierControle = [](std::string_view) { return std::make_shared<host::GeenDossierControle>(); }}) {
    toolkit_.Desktop().today = vandaag;
    toolkit_.Desktop().answer = [this](const std::string&, const std::string& tekst, host::MessageStyle) {
      meldingen_.push_back(tekst);
      return host::MessageAnswer::Ok;
    };
    application_->FoutGemeld.Connect([this](const host::ErrorRecord& fout) {
      meldingen_.push_back("De post kan niet worden gecontroleerd: " + fout.ErrorDescription + ".");
    });
  }

  std::vector<std::string> Controleer(std::int16_t Len_Id, std::int16_t Vrij_Id) {
    meldingen_.clear();
    editor_.SetApplication(application_, Len_Id, Vrij_Id);
    bool cancel = false;
    editor_.Validation(cancel);
    cancel = false;
    editor_.Toelichting().Validation(cancel);
    return std::move(meldingen_);
  }

 private:
  std::vector<std::string> meldingen_;
  std::shared_ptr<Application> application_;
  memory::Toolkit toolkit_;
  std::unique_ptr<host::Surface> surface_;
  brivane::VrijeKolom editor_;
};

}  // namespace

std::vector<Bevinding> ControleerAlles(const Dossier& dossier, host::Date vandaag) {
  const auto kopie = std::make_shared<Dossier>(dossier.Gegevens(), std::make_shared<Omgeving>());
  std::map<std::pair<std::int16_t, std::int16_t>, std::vector<std::string>> vanDeHost;
  for (Bevinding& bevinding : ControleerDossier(*kopie, vandaag)) {
    vanDeHost[{bevinding.Len_Id, bevinding.Vrij_Id}].push_back(std::move(bevinding.tekst));
  }

  std::vector<Bevinding> bevindingen;
  Controleur controleur(kopie, vandaag);
  for (std::int16_t Len_Id = Dossier::kHuidig; Len_Id <= kopie->AantalLeningen(); ++Len_Id) {
    for (const auto& kolom : kopie->ZoekLening(Len_Id)->Kolommen()) {
      const auto meld = [&](std::vector<std::string> teksten) {
        for (std::string& tekst : teksten) bevindingen.push_back({Len_Id, kolom->Id(), std::move(tekst)});
      };
      meld(controleur.Controleer(Len_Id, kolom->Id()));
      if (auto regels = vanDeHost.extract({Len_Id, kolom->Id()})) meld(std::move(regels.mapped()));
    }
  }
  // What is left is about a column that is not there.
  for (auto& [plek, teksten] : vanDeHost) {
    for (std::string& tekst : teksten) bevindingen.push_back({plek.first, plek.second, std::move(tekst)});
  }
  return bevindingen;
}

}  // namespace brivane::dossier

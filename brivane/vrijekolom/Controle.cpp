// What the host asks before it leaves the column.

#include <string>

#include <brivane/vrijekolom/Ontwerp.h>
#include <brivane/vrijekolom/Teksten.h>
#include <brivane/vrijekolom/VrijeKolom.h>

namespace brivane {

using namespace vrijekolom;

void VrijeKolom::Validation(bool& Cancel, std::int32_t ControleNr) {
  tracing_.Handled("Validation", [&] {
    if (Gewijzigd_ && HuidigeSituatie_ && !Cancel) VraagOvernemen();
    if (!Item_) return;
    if (!Cancel && (ControleNr == kControleVolledig || ControleNr == kControleAanvang)) ControleerAanvang(Cancel);
    if (controls_[TxtDtEind].Enabled() && !Cancel && (ControleNr == kControleVolledig || ControleNr == kControleEinde))
      ControleerEinde(Cancel);
    if (ControleNr == kControleVolledig) WerkVoorstellenBij();
  });
}

void VrijeKolom::VraagOvernemen() {
  if (StaatInNieuweSituatie()) {
    const host::MessageAnswer antwoord = desktop_.MessageBox(std::string(kOvernemenTitel), std::string(kOvernemenVraag),
                                                             host::MessageStyle::YesNoQuestion);
    if (antwoord == host::MessageAnswer::Yes) VerwijderUitNieuweSituatie();
  }
  Gewijzigd_ = false;
}

bool VrijeKolom::StaatInNieuweSituatie() {
  host::Dossier& dossier = host::Need(Dossier_);
  for (std::int16_t len = 1;; ++len) {
    const std::shared_ptr<host::Lening> lening = dossier.Lening(len);
    if (!lening) return false;
    for (std::int16_t positie = 1;; ++positie) {
      const std::shared_ptr<host::VrijeKolomItem> kolom = lening->VrijeKolomOp(positie);
      if (!kolom) break;
      if (kolom->Id() == Vrij_Id_) return true;
    }
  }
}

void VrijeKolom::VerwijderUitNieuweSituatie() {
  host::Dossier& dossier = host::Need(Dossier_);
  for (std::int16_t len = 1;; ++len) {
    const std::shared_ptr<host::Lening> lening = dossier.Lening(len);
    if (!lening) break;
    std::int16_t positie = 1;
    while (const std::shared_ptr<host::VrijeKolomItem> kolom = lening->VrijeKolomOp(positie)) {
      // After a removal the next column has moved up into this position.
      if (kolom->Id() == Vrij_Id_)
        lening->VerwijderVrijeKolom(positie);
      else
        ++positie;
    }
  }
  for (std::int16_t v = 1; v <= kVoorstellen; ++v) dossier.VerwijderUitVoorstel(v, Vrij_Id_, 0);
}

void VrijeKolom::ControleerAanvang(bool& Cancel) {
  if (controls_[TxtDtAanvang].DateValue().IsNone()) Weiger(Cancel, kOntbrekendeInvoer, kAanvangOntbreekt);
}

void VrijeKolom::ControleerEinde(bool& Cancel) {
  // An empty end date is accepted; one equal to the start date is not.
  const host::Date einde = controls_[TxtDtEind].DateValue();
  if (!einde.IsNone() && einde <= controls_[TxtDtAanvang].DateValue())
    Weiger(Cancel, kOnjuisteInvoer, kEindeVoorAanvang);
}

void VrijeKolom::Weiger(bool& Cancel, std::string_view titel, std::string_view melding) {
  Cancel = desktop_.MessageBox(std::string(titel), std::string(melding), host::MessageStyle::OkExclamation) ==
           host::MessageAnswer::Ok;
}

void VrijeKolom::WerkVoorstellenBij() {
  host::Application& application = host::Need(Application_);
  if (Lening_ == host::Need(application.Dossier()).HuidigeLening()) {
    for (std::int16_t v = 1; v <= kVoorstellen; ++v)
      if (Record().Voorstel(v).empty()) host::Need(Dossier_).VerwijderUitVoorstel(v, Vrij_Id_, 0);
  }
  if (!DossierControle_) DossierControle_ = factories_.MaakDossierControle(kNaam);
  // A host may take the check as a reason to unbind the editor.
  const std::shared_ptr<host::DossierControle> controle = DossierControle_;
  host::Need(controle).Controleer(Application_, 1);
}

}  // namespace brivane

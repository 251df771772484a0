// A column that is a product: its company, kind, name and brokerage.

#include <string>

#include <brivane/frame/Conversions.h>
#include <brivane/vrijekolom/Ontwerp.h>
#include <brivane/vrijekolom/VrijeKolom.h>

namespace brivane {

using namespace vrijekolom;

void VrijeKolom::Fill_Product() {
  tracing_.Handled("Fill_Product", [this] {
    if (!Initialised_) {
      controls_[fraProduct].SetVisible(false);
      return;
    }
    controls_[chkProduct].SetValue(Record().IsProduct() ? host::kTicked : host::kUnticked);
    // The frames follow the box even where setting it raised no click.
    chkProduct_Click();
    if (Record().IsProduct()) {
      Fill_cboMaatschappij();
      Fill_cboProductsoort();
      controls_[txtProductnaam].SetText(Record().Productnaam());
      controls_[jnUwBemiddeling].SetValue(Record().UwBemiddeling() ? host::kJa : host::kNee);
    }
    controls_[fraProduct].SetVisible(true);
  });
}

void VrijeKolom::Fill_cboMaatschappij() {
  tracing_.Handled("Fill_cboMaatschappij", [this] {
    host::ListBox& lijst = controls_[cboMaatschappij];
    host::TextBox& naam = controls_[txtMaatschappij];
    lijst.Clear();
    naam.SetText("");
    naam.SetEnabled(false);
    host::Application& application = host::Need(Application_);
    const std::shared_ptr<host::Codetabellen> tabellen = application.Codetabellen();
    application.VulCombo(tabellen, kMaatschappijTabel, lijst, Record().Maatschappij(), "");
    naam.SetEnabled(Record().Maatschappij() == kAndereMaatschappij);
    naam.SetText(Record().MaatschappijNaam());
  });
}

void VrijeKolom::Fill_cboProductsoort() {
  tracing_.Handled("Fill_cboProductsoort", [this] {
    host::ListBox& lijst = controls_[cboProductsoort];
    lijst.Clear();
    for (const frame::ListEntry& soort : kProductsoorten) lijst.Add(std::string(soort.text), soort.itemData);
    // A product without a kind becomes "Anders" as soon as it is shown: the one write of loading.
    if (Record().Productsoort() == kGeenSoort) Record().SetProductsoort(kAndereSoort);
    for (int i = 0; i < lijst.ListCount(); ++i) {
      if (lijst.ItemData(i) != Record().Productsoort()) continue;
      lijst.SetListIndex(i);
      break;
    }
    controls_[txtProductsoort].SetEnabled(Record().Productsoort() == kAndereSoort);
    controls_[txtProductsoort].SetText(Record().ProductsoortOmschrijving());
  });
}

void VrijeKolom::chkProduct_Click() {
  const bool getoond = tracing_.Guarded("chkProduct_Click", [this] {
    const auto aangevinkt = [this] { return controls_[chkProduct].Value() == host::kTicked; };
    controls_[fraMij].SetVisible(aangevinkt());
    controls_[fraProductsoort].SetVisible(aangevinkt());
    controls_[fraProductnaam].SetVisible(aangevinkt());
    controls_[fraUwBemiddeling].SetVisible(aangevinkt());
  });
  if (!getoond || Filling_) return;
  tracing_.Handled("chkProduct_Click", [this] {
    const bool isProduct = controls_[chkProduct].Value() == host::kTicked;
    Record().SetIsProduct(isProduct);
    if (isProduct) {
      Record().SetUwBemiddeling(true);
      Filling_ = true;
      Fill_Product();
      Filling_ = false;
    } else {
      LeegProduct();
    }
  });
}

void VrijeKolom::LeegProduct() {
  Record().SetMaatschappij("");
  Record().SetMaatschappijNaam("");
  Record().SetProductsoort(kGeenSoort);
  Record().SetProductsoortOmschrijving("");
  Record().SetProductnaam("");
  Record().SetUwBemiddeling(false);
  if (!IsContract_) return;
  Record().SetLooptijd(0);
  HerlaadAlgemeen();
}

void VrijeKolom::cboMaatschappij_Click() {
  if (Filling_) return;
  tracing_.Handled("cboMaatschappij_Click", [this] {
    host::Application& application = host::Need(Application_);
    const std::string tekst = controls_[cboMaatschappij].Text();
    const std::shared_ptr<host::Codetabellen> tabellen = application.Codetabellen();
    const std::string code = application.ZoekCode(tabellen, kMaatschappijTabel, tekst);
    Record().SetMaatschappij(code);
    host::TextBox& naam = controls_[txtMaatschappij];
    naam.SetEnabled(Record().Maatschappij() == kAndereMaatschappij);
    if (Record().Maatschappij() != kAndereMaatschappij) {
      Record().SetMaatschappijNaam(tekst);
      naam.SetText(Record().MaatschappijNaam());
    } else {
      Record().SetMaatschappijNaam("");
      naam.SetText("");
      naam.SetFocus();
    }
  });
}

void VrijeKolom::cboProductsoort_Click() {
  std::int32_t code = 0;
  const bool gelezen = tracing_.Guarded("cboProductsoort_Click", [&] {
    const host::ListBox& lijst = controls_[cboProductsoort];
    code = lijst.ItemData(lijst.ListIndex());
    controls_[txtProductsoort].SetEnabled(code == kAndereSoort);
  });
  if (!gelezen || Filling_) return;
  tracing_.Handled("cboProductsoort_Click", [&] {
    Record().SetProductsoort(frame::ToInteger16(code));
    if (Record().Productsoort() == kAndereSoort) {
      Record().SetLooptijd(0);
      Record().SetProductsoortOmschrijving("");
      controls_[txtProductsoort].SetText("");
    } else {
      Record().SetProductsoortOmschrijving(controls_[cboProductsoort].Text());
      controls_[txtProductsoort].SetText(Record().ProductsoortOmschrijving());
      Record().SetLooptijd(kLooptijdProduct);
    }
    HerlaadAlgemeen();
  });
}

void VrijeKolom::HerlaadAlgemeen() {
  Filling_ = true;
  Fill_fraAlgemeen();
  UserControl_Resize();
  Filling_ = false;
}

}  // namespace brivane

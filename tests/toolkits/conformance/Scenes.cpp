#include "tests/toolkits/conformance/Scenes.h"

#include "tests/support/RecordingScenario.h"
#include <brivane/controls/Surface.h>
#include <brivane/frame/Calendar.h>
#include <brivane/scenario/Teksten.h>
#include <brivane/scenario/frmScenario.h>
#include <brivane/vrijekolom/Ontwerp.h>

namespace brivane::test {

namespace {

host::Date D(int year, int month, int day) { return frame::MakeDate({year, month, day}); }

void Fill(TestHost& host, EditorState state) {
  TestKolom& column = host.Kolom(1);
  KolomVelden& velden = column.velden;
  velden.Omschrijving = "Contributie tennisvereniging";
  velden.DatumAanvang = D(2031, 4, 1);
  velden.Looptijd = 30;
  column.bedrag->bedrag = 1234.5;
  switch (state) {
    case EditorState::Designed:
    case EditorState::Recurring: host.dossier.personen.resize(1); break;
    case EditorState::Product:
      velden.IsProduct = true;
      velden.Maatschappij = "ZZ";
      velden.MaatschappijNaam = "Drukkerij De Pers";
      velden.Productsoort = 44;
      velden.Productnaam = "Zaterdagabonnement";
      velden.UwBemiddeling = true;
      velden.Contractvervaldatum = D(2033, 12, 31);
      break;
    case EditorState::Transition:
      velden.CorrectieLast = 2;
      velden.CorrectieFiscaal = 2;
      velden.HeffingBij = 2;
      velden.UitsluitenAO = true;
      velden.ScenarioOverlijden = true;
      velden.PercentageOvergang = 70;
      velden.EinddatumOvergang = D(2040, 4, 1);
      break;
  }
}

struct FormSetting {
  std::string_view name;
  std::string_view scenario;
  std::int16_t kind;
  std::int16_t rows;
  double base;
  bool discount;
};

FormSetting SettingOf(FormState state) {
  switch (state) {
    case FormState::Amounts: return {"bedragen", "Rente", 1, 30, 1000, false};
    case FormState::PercentagesAndDiscount: return {"percentages-met-korting", "Rente", 2, 31, 4.5, true};
    case FormState::Growth: return {"bedragen-met-groei", "Huur", 3, 12, 2500, false};
    case FormState::Bridging: break;
  }
  return {"overbruggingskrediet", scenario::kOverbruggingskrediet, 1, 24, 0, false};
}

}  // namespace

std::string_view NameOf(EditorState state) {
  switch (state) {
    case EditorState::Designed: return "editor-ontworpen";
    case EditorState::Recurring: return "editor-vaste-last";
    case EditorState::Product: return "editor-product";
    case EditorState::Transition: break;
  }
  return "editor-overgang";
}

std::string_view NameOf(FormState state) { return SettingOf(state).name; }

EditorScene::EditorScene(frame::Toolkit& toolkit, EditorState state)
    : surface_(toolkit.MakeSurface(vrijekolom::kOntwerp)), editor_(*surface_, toolkit, host_.Factories()) {
  const host::Place place = surface_->Place();
  controls::Surface::Of(*surface_).Size(place.width, place.height);
  if (state == EditorState::Designed) return;
  Fill(host_, state);
  editor_.SetApplication(host_.application, 0, 1);
}

void ShowForm(frame::Toolkit& toolkit, FormState state, host::Hoofdvenster* eigenaar) {
  const FormSetting setting = SettingOf(state);
  auto scenario = std::make_shared<tests::RecordingScenario>();
  scenario->naam = std::string(setting.scenario);
  scenario->invoersoort = setting.kind;
  scenario->basis = setting.base;
  scenario->VoegToe({.maand = 25, .bedrag = 1250.75, .percentage = 2.25, .korting = setting.discount ? 0.5 : 0});
  frmScenario form(toolkit);
  form.SetDisableJaar(2, true);
  form.Invoeren(scenario, setting.rows, 0, 0, false, setting.discount);
  form.ShowModal(eigenaar);
}

}  // namespace brivane::test

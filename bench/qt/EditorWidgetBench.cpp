#include <QApplication>
#include <QLineEdit>

#include "bench/Compare.h"
#include "bench/qt/PlainEditor.h"
#include "dossier/model/Application.h"
#include "dossier/model/Environment.h"
#include <brivane/controls/TextBox.h>
#include <brivane/frame/Calendar.h>
#include <brivane/toolkits/qt/VrijeKolomWidget.h>

namespace {

using namespace brivane;

/// Two columns that differ in every field.
std::shared_ptr<dossier::Application> MakeHost() {
  dossier::DossierGegevens gegevens;
  gegevens.Personen = {{.Naam = {"J.", "de", "Vries"}, .Geboortedatum = frame::MakeDate({1980, 5, 17})},
                       {.Naam = {"M.", "", "Jansen"}, .Geboortedatum = frame::MakeDate({1982, 1, 3})}};
  gegevens.MaatschappijType = {{"AB", "Alfa Bank"}, {"CD", "Centrale Dekking"}, {"ZZ", "Anders"}};
  dossier::KolomGegevens een;
  een.Id = 1;
  een.Omschrijving = "Contributie voetbalvereniging";
  een.Bedrag.Bedrag = 1234.5;
  een.DatumAanvang = frame::MakeDate({2026, 1, 1});
  een.Looptijd = 26;
  dossier::KolomGegevens twee;
  twee.Id = 2;
  twee.CorrectieLast = 2;
  twee.CorrectieFiscaal = 2;
  twee.HeffingBij = 2;
  twee.Omschrijving = "Krant";
  twee.Bedrag.Bedrag = 25;
  twee.Termijn = 12;
  twee.InkomenUitArbeid = true;
  twee.InDagloon = true;
  twee.DatumAanvang = frame::MakeDate({2025, 2, 1});
  twee.Looptijd = 12;
  twee.IsProduct = true;
  twee.Maatschappij = "AB";
  twee.Productsoort = 4;
  twee.Productnaam = "Dagblad";
  twee.UwBemiddeling = true;
  twee.UitsluitenAO = true;
  twee.UitsluitenWW = true;
  twee.UitsluitenLangleven = true;
  twee.ScenarioOverlijden = true;
  twee.PercentageOvergang = 70;
  twee.EinddatumOvergang = frame::MakeDate({2047, 5, 17});
  twee.EindleeftijdOvergang = 65;
  gegevens.HuidigeLening.VrijeKolommen = {een, twee};
  return std::make_shared<dossier::Application>(
      std::make_shared<dossier::Dossier>(gegevens, std::make_shared<dossier::Environment>()));
}

void Paint() { QApplication::processEvents(); }

}  // namespace

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication qtApplication(argc, argv);
  QApplication::setStyle("Fusion");
  const auto application = MakeHost();
  qt::VrijeKolomWidget editor;
  editor.SetHostFactories({.MaakProcedureTrace = [](std::string_view) { return std::make_shared<dossier::Tracer>(); },
                           .MaakDossierControle = {}});
  editor.show();
  editor.SetApplication(application, 0, 1);
  Paint();
  bench::PlainEditor plain(qt::Toolkit::WidgetOf(editor.Surface()));
  const bench::PlainEditor::State first = plain.Capture();
  editor.SetApplication(application, 0, 2);
  Paint();
  const bench::PlainEditor::State second = plain.Capture();
  plain.Window().show();
  Paint();

  bench::Compare(
      "bind another column and paint", {.measured = "editor", .yardstick = "set by hand", .aim = 1.2},
      [&, turn = std::make_shared<bool>()] {
        *turn = !*turn;
        editor.SetApplication(application, 0, *turn ? 1 : 2);
        Paint();
      },
      [&, turn = std::make_shared<bool>()] {
        *turn = !*turn;
        for (const auto& set : *turn ? first : second) set();
        Paint();
      });

  auto& amount = dynamic_cast<controls::TextBox&>(*controls::Surface::Of(editor.Surface()).Find("TxtBd"));
  auto& box = dynamic_cast<QLineEdit&>(plain.Find("TxtBd"));
  bench::Compare(
      "one edit and paint", {.measured = "editor", .yardstick = "set by hand", .aim = 1.2},
      [&] {
        amount.Perform(controls::Enter{amount.Number() == 12.5 ? 25.0 : 12.5});
        Paint();
      },
      [&] {
        box.setText(box.text() == "12,50" ? "25,00" : "12,50");
        Paint();
      });
  return bench::Run(argc, argv);
}

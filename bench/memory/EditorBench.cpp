// Binding the editor and each of its handlers, on the controls in memory, as a multiple of the bare calls of host and
// controls that the rules require.

#include <memory>
#include <string>

#include "bench/Compare.h"
#include "bench/memory/Bare.h"
#include "examples/host/MemoryHost.h"
#include <brivane/frame/Calendar.h>
#include <brivane/toolkits/memory/Toolkit.h>
#include <brivane/vrijekolom/Ontwerp.h>
#include <brivane/vrijekolom/VrijeKolom.h>

namespace {

using namespace brivane;
using frame::MakeDate;

enum class Kind { Cost, Product };

std::shared_ptr<memory_host::Application> MakeApplication(Kind kind) {
  auto column = std::make_shared<memory_host::VrijeKolomItem>();
  column->omschrijving = "Contributie volkstuinvereniging";
  column->bedrag->basisbedrag = 1234.56;
  column->aanvang = MakeDate({2031, 4, 1});
  column->looptijd = 30;
  column->voorstel = {"J", "N", "N"};
  column->bijOverlijden = true;
  column->percentage = 70;
  column->eindleeftijd = 65;
  column->einddatum = MakeDate({2040, 12, 31});
  if (kind == Kind::Product) {
    column->isProduct = true;
    column->bemiddeling = true;
    column->maatschappij = "AB";
    column->maatschappijNaam = "Alfa Bank";
    column->productsoort = 99;
    column->productnaam = "Buitengewoon";
  }
  auto application = std::make_shared<memory_host::Application>();
  application->dossier->huidig->kolommen.push_back(column);
  for (const char* first : {"J.", "A."}) {
    auto person = std::make_shared<memory_host::Persoon>();
    person->naam = {first, "van", "Dam"};
    person->geboren = MakeDate({1975, 12, 31});
    application->dossier->personen.push_back(person);
  }
  return application;
}

/// The editor and the bare calls, each on a host and a surface of its own in the same state.
struct Sides {
  explicit Sides(Kind kind)
      : editorApplication(MakeApplication(kind)),
        editorSurface(toolkit.MakeSurface(vrijekolom::kOntwerp)),
        editor(*editorSurface, toolkit, memory_host::Factories()),
        controls(*editorSurface),
        bareSurface(toolkit.MakeSurface(vrijekolom::kOntwerp)),
        bare(*bareSurface, MakeApplication(kind), std::make_shared<memory_host::Trace>(),
             std::make_shared<memory_host::DossierControle>(),
             [this](const std::string& text) { heard += text.size(); }) {
    toolkit.Desktop().today = MakeDate({2026, 11, 21});
    refreshed = editor.RefreshTopDisplay.Connect([this](const std::string& text) { heard += text.size(); });
    editor.SetApplication(editorApplication, 0, 1);
    bare.SetApplication();
  }

  memory::Toolkit toolkit;
  std::size_t heard = 0;
  std::shared_ptr<host::Application> editorApplication;
  std::unique_ptr<host::Surface> editorSurface;
  VrijeKolom editor;
  host::Subscription refreshed;
  bench::EditorControls controls;
  std::unique_ptr<host::Surface> bareSurface;
  bench::Bare bare;
};

constexpr bench::Question kBinding{"binding", "bare calls", 4};
constexpr bench::Question kHandler{"handler", "bare calls", 4};

template <class Raise> void Handler(const std::string& name, Sides& sides, Raise raise, void (bench::Bare::*calls)()) {
  bench::Compare(name, kHandler, raise, [&sides, calls] { (sides.bare.*calls)(); });
}

/// A text box is left after an edit, which its handler accepts.
void Box(const std::string& name, Sides& sides, host::TextBox* box, void (bench::Bare::*calls)()) {
  Handler(
      name, sides,
      [box] {
        bool cancel = false;
        box->Validation.Raise(cancel);
      },
      calls);
}

/// Click and Change: the event of a control, without the change of value that led to it.
template <class Event> void Signal(const std::string& name, Sides& sides, Event* event, void (bench::Bare::*calls)()) {
  Handler(
      name, sides, [event] { event->Raise(); }, calls);
}

void AddCost(Sides& s) {
  using bench::Bare;
  const bench::EditorControls& c = s.controls;
  bench::Compare(
      "SetApplication", kBinding, [&s] { s.editor.SetApplication(s.editorApplication, 0, 1); },
      [&s] { s.bare.SetApplication(); });
  Handler(
      "Validation", s,
      [&s] {
        bool cancel = false;
        s.editor.Validation(cancel);
      },
      &Bare::Validation);

  Signal("jnInDagloon_Change", s, &c.jnInDagloon->Change, &Bare::jnInDagloon_Change);
  Signal("jnInkUitArbeid_Change", s, &c.jnInkUitArbeid->Change, &Bare::jnInkUitArbeid_Change);
  Signal("jnUwBemiddeling_Change", s, &c.jnUwBemiddeling->Change, &Bare::jnUwBemiddeling_Change);
  Signal("optAanvrager_Click", s, &c.aanvrager[1]->Click, &Bare::optAanvrager_Click);
  Signal("optFiscaal_Click", s, &c.fiscaal[1]->Click, &Bare::optFiscaal_Click);
  Signal("optLast_Click", s, &c.last[1]->Click, &Bare::optLast_Click);
  Box("TxtBd_Validation", s, c.TxtBd, &Bare::TxtBd_Validation);
  Box("TxtOm_Validation", s, c.TxtOm, &Bare::TxtOm_Validation);
  Box("TxtAnJaar_Validation", s, c.TxtAnJaar, &Bare::TxtAnJaar_Validation);
  Box("TxtAnMaand_Validation", s, c.TxtAnMaand, &Bare::TxtAnMaand_Validation);
  Box("TxtDtAanvang_Validation", s, c.TxtDtAanvang, &Bare::TxtDtAanvang_Validation);
  Box("TxtDtEind_Validation", s, c.TxtDtEind, &Bare::TxtDtEind_Validation);
  Signal("CboTermijn_Click", s, &c.cboTermijn->Click, &Bare::CboTermijn_Click);
  Signal("ChkVoorstel_Click", s, &c.voorstel[1]->Click, &Bare::ChkVoorstel_Click);

  Signal("jnAO_Change", s, &c.jnAO->Change, &Bare::jnAO_Change);
  Signal("jnWW_Change", s, &c.jnWW->Change, &Bare::jnWW_Change);
  Signal("jnLangleven_Change", s, &c.jnLangleven->Change, &Bare::jnLangleven_Change);
  Signal("jnOverlijden_Change", s, &c.jnOverlijden->Change, &Bare::jnOverlijden_Change);
  Box("TxtPcOvergang_Validation", s, c.TxtPcOvergang, &Bare::TxtPcOvergang_Validation);
  Box("TxtEinddatum_Validation", s, c.txtEinddatum, &Bare::TxtEinddatum_Validation);
  Box("TxtEindjaar_Validation", s, c.TxtEindjaar, &Bare::TxtEindjaar_Validation);
}

void AddProduct(Sides& s) {
  using bench::Bare;
  const bench::EditorControls& c = s.controls;
  bench::Compare(
      "SetApplication (product)", kBinding, [&s] { s.editor.SetApplication(s.editorApplication, 0, 1); },
      [&s] { s.bare.SetApplication(); });
  Box("txtMaatschappij_Validation", s, c.txtMaatschappij, &Bare::txtMaatschappij_Validation);
  Box("txtProductsoort_Validation", s, c.txtProductsoort, &Bare::txtProductsoort_Validation);
  Box("txtProductnaam_Validation", s, c.txtProductnaam, &Bare::txtProductnaam_Validation);
  Box("txtVervaldatum_Validation", s, c.txtVervaldatum, &Bare::txtVervaldatum_Validation);
  Signal("chkProduct_Click", s, &c.product->Click, &Bare::chkProduct_Click);
  Signal("cboMaatschappij_Click", s, &c.cboMaatschappij->Click, &Bare::cboMaatschappij_Click);
  Signal("cboProductsoort_Click", s, &c.cboProductsoort->Click, &Bare::cboProductsoort_Click);
}

}  // namespace

int main(int argc, char** argv) {
  Sides cost(Kind::Cost);
  Sides product(Kind::Product);
  AddCost(cost);
  AddProduct(product);
  return bench::Run(argc, argv);
}

#include <cassert>
#include <string>

#include <brivane/frame/Conversions.h>
#include <brivane/scenario/Ontwerp.h>
#include <brivane/scenario/Rooster.h>
#include <brivane/scenario/Teksten.h>

namespace brivane::scenario {

namespace {

using frame::Handle;
using frame::TypeOf;

template <class Control> Control& Bestaand(Control* control) {
  if (control == nullptr) throw host::Error(host::ErrorNumber::NoSuchElement);
  return *control;
}

/// Makes an element of a control array at a place and shows it.
template <Kind K> TypeOf<K>& Maak(host::Form& form, Handle<K> soort, int index, Twips links, Twips top) {
  auto& control = static_cast<TypeOf<K>&>(form.Create(soort.row, index));
  const host::Place was = control.Place();
  control.Move({links, top, was.width, was.height});
  control.SetVisible(true);
  return control;
}

/// Makes an element that keeps the top of its template.
template <Kind K> void MaakKop(host::Form& form, Handle<K> soort, int index, Twips links) {
  Maak(form, soort, index, links, form.At(soort.row).Place().top);
}

std::string Naam(std::string_view rol, const Opzet& opzet, int rij) {
  std::string naam(rol);
  naam += ' ';
  naam += opzet.overbrugging == Overbrugging::Ja ? kMaand : kJaar;
  naam += ' ';
  return naam += std::to_string(rij);
}

/// Makes the controls of one row that a person edits.
template <Kind K>
TypeOf<K>& MaakVak(host::Form& form, Handle<K> soort, int rij, Twips links, Twips top, bool vrij,
                   const std::string& naam) {
  TypeOf<K>& vak = Maak(form, soort, rij, links, top);
  vak.SetEnabled(vrij);
  vak.SetAccessibleName(naam);
  return vak;
}

host::Subscription Verbind(host::TextBox& vak, const std::function<void(int)>& bewerkt, int rij) {
  return vak.Validation.Connect([&bewerkt, rij](bool&) { bewerkt(rij); });
}

}  // namespace

Breedten Rooster::Templates() const {
  const auto breedte = [this](std::size_t row) { return form_.At(row).Place().width; };
  return {.jaar = breedte(lblJaar.row),
          .bedrag = breedte(txtBedrag.row),
          .eenmalig = breedte(chkEenmalig.row),
          .hint = breedte(Hint.row),
          .percentage = breedte(txtPercentage.row),
          .eenheid = breedte(lblPercentage.row),
          .korting = breedte(txtKorting.row),
          .kortingeenheid = breedte(lblPcKorting.row),
          .maandkop = breedte(lblMaand.row),
          .waardekop = breedte(lblRente.row),
          .kortingkop = breedte(lblKorting.row)};
}

void Rooster::Bouw(const Opzet& opzet, const Indeling& indeling, const std::function<bool(int)>& vrij) {
  assert(rijen_.empty());
  rijen_.reserve(indeling.rijen.size());
  int kolom = 0;
  for (const Rijplaats& plaats : indeling.rijen) {
    const int rij = Aantal() + 1;
    rijen_.push_back(BouwRij(rij, opzet, plaats, vrij(rij)));
    if (!plaats.eersteInKolom) continue;
    BouwKop(kolom + 1, opzet, indeling.koppen[static_cast<std::size_t>(kolom)]);
    ++kolom;
  }
}

Rooster::Rij Rooster::BouwRij(int rij, const Opzet& opzet, const Rijplaats& plaats, bool vrij) {
  Rij vakken;
  Maak(form_, lblJaar, rij, plaats.jaar, plaats.labelTop).SetCaption(std::to_string(rij));
  if (opzet.MetBedrag()) {
    vakken.bedrag = &MaakVak(form_, txtBedrag, rij, plaats.bedrag, plaats.vakTop, vrij, Naam(kRolBedrag, opzet, rij));
    subscriptions_ += Verbind(*vakken.bedrag, BedragBewerkt, rij);
  }
  if (opzet.MetEenmalig()) {
    vakken.eenmalig =
        &MaakVak(form_, chkEenmalig, rij, plaats.eenmalig, plaats.vakTop, vrij, Naam(kRolJaarbasis, opzet, rij));
    if (plaats.eersteInKolom)
      Maak(form_, Hint, rij, plaats.hint, plaats.vakTop).SetAccessibleName(Naam(kRolHulpJaarbasis, opzet, rij));
  }
  if (opzet.MetPercentage()) {
    vakken.percentage =
        &MaakVak(form_, txtPercentage, rij, plaats.percentage, plaats.vakTop, vrij, Naam(kRolPercentage, opzet, rij));
    subscriptions_ += Verbind(*vakken.percentage, PercentageBewerkt, rij);
    Maak(form_, lblPercentage, rij, plaats.eenheid, plaats.labelTop);
  }
  if (opzet.MetKorting()) {
    vakken.korting =
        &MaakVak(form_, txtKorting, rij, plaats.korting, plaats.vakTop, vrij, Naam(kRolKorting, opzet, rij));
    subscriptions_ += Verbind(*vakken.korting, KortingBewerkt, rij);
    Maak(form_, lblPcKorting, rij, plaats.kortingeenheid, plaats.labelTop);
  }
  return vakken;
}

void Rooster::BouwKop(int kolom, const Opzet& opzet, const Kopplaats& plaats) {
  if (opzet.overbrugging == Overbrugging::Ja) MaakKop(form_, lblMaand, kolom, plaats.maand);
  MaakKop(form_, lblRente, kolom, plaats.waarde);
  if (opzet.korting == Kortingkolom::Met) MaakKop(form_, lblKorting, kolom, plaats.korting);
}

double Rooster::Bedrag(int rij) const { return Bestaand(Van(rij).bedrag).Number(); }

void Rooster::ZetBedrag(int rij, double bedrag) { Bestaand(Van(rij).bedrag).SetNumber(frame::Finite(bedrag)); }

double Rooster::Percentage(int rij) const { return Bestaand(Van(rij).percentage).Number(); }

void Rooster::ZetPercentage(int rij, double percentage) {
  Bestaand(Van(rij).percentage).SetNumber(frame::Finite(percentage));
}

double Rooster::Korting(int rij) const {
  const host::TextBox* vak = Van(rij).korting;
  return vak != nullptr ? vak->Number() : 0;
}

void Rooster::ZetKorting(int rij, double korting) { Bestaand(Van(rij).korting).SetNumber(korting); }

bool Rooster::Eenmalig(int rij) const {
  const host::CheckBox* vak = Van(rij).eenmalig;
  return vak != nullptr && vak->Value() == host::kTicked;
}

void Rooster::ZetEenmalig(int rij, bool eenmalig) {
  Bestaand(Van(rij).eenmalig).SetValue(eenmalig ? host::kTicked : host::kUnticked);
}

double Rooster::Totaal() const {
  double totaal = static_cast<const host::TextBox&>(form_.At(txtBedrag.row)).Number();
  for (const Rij& rij : rijen_)
    if (rij.bedrag != nullptr) totaal += rij.bedrag->Number();
  return frame::Finite(totaal);
}

}  // namespace brivane::scenario

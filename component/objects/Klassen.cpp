#include "component/objects/Klassen.h"

#include <array>

#include "component/objects/ScenarioObject.h"
#include "component/objects/ToelichtingObject.h"
#include "component/objects/VrijeKolomObject.h"

namespace brivane::component {

namespace {

template <class Object> Identity* Make(IUnknown* outer) { return new Object(outer); }

// The numbers are those of the pictures in library/BrivaneVrijeKolom.rc.
const std::array kKlassen{
    Klasse{CLSID_VrijeKolom, L"VrijeKolom", L"Brivane vrije kolom", Usage::Control, 101, &Make<VrijeKolomObject>},
    Klasse{CLSID_Toelichting, L"Toelichting", L"Brivane toelichting", Usage::Control, 102, &Make<ToelichtingObject>},
    Klasse{CLSID_frmScenario, L"frmScenario", L"Brivane scenario per jaar", Usage::Object, 0, &Make<ScenarioObject>}};

}  // namespace

std::span<const Klasse> Klassen() { return kKlassen; }

const Klasse* FindKlasse(const CLSID& id) {
  for (const Klasse& klasse : kKlassen)
    if (klasse.id == id) return &klasse;
  return nullptr;
}

}  // namespace brivane::component

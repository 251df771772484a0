#include "component/objects/LibraryClasses.h"

#include <array>

#include "component/objects/ScenarioObject.h"
#include "component/objects/ToelichtingObject.h"
#include "component/objects/VrijeKolomObject.h"

namespace brivane::component {

namespace {

template <class Object> Identity* Make(IUnknown* outer) { return new Object(outer); }

// The numbers are those of the pictures in library/BrivaneVrijeKolom.rc.
const std::array kClasses{
    LibraryClass{CLSID_VrijeKolom, L"VrijeKolom", L"Brivane vrije kolom", Usage::Control, 101, &Make<VrijeKolomObject>},
    LibraryClass{CLSID_Toelichting, L"Toelichting", L"Brivane toelichting", Usage::Control, 102,
                 &Make<ToelichtingObject>},
    LibraryClass{CLSID_frmScenario, L"frmScenario", L"Brivane scenario per jaar", Usage::Object, 0,
                 &Make<ScenarioObject>}};

}  // namespace

std::span<const LibraryClass> LibraryClasses() { return kClasses; }

const LibraryClass* FindClass(const CLSID& id) {
  for (const LibraryClass& entry : kClasses)
    if (entry.id == id) return &entry;
  return nullptr;
}

}  // namespace brivane::component

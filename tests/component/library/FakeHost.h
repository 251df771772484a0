#pragma once

#include "tests/component/automation/FakeObject.h"

namespace brivane::component {

/// A compiled host with one column, number 1, of the loan of the current situation, and an applicant.
struct FakeHost {
  FakeHost();

  ComPtr<FakeObject> application = FakeObject::Make();
  ComPtr<FakeObject> dossier = FakeObject::Make();
  ComPtr<FakeObject> lening = FakeObject::Make();
  ComPtr<FakeObject> kolom = FakeObject::Make();
  ComPtr<FakeObject> bedrag = FakeObject::Make();
  ComPtr<FakeObject> persoon = FakeObject::Make();
  int reports = 0;
};

}  // namespace brivane::component

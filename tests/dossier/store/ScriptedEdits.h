#pragma once

#include "tests/dossier/store/Desk.h"

namespace brivane::dossier {

/// Edit number n of an endless script on the bound column. The same number is always the same edit, and no two in
/// a row leave the column the same.
inline void DoEdit(Desk& desk, int n) {
  switch (n % 6) {
    case 0: desk.Type("TxtOm", "Bewerking " + std::to_string(n)); break;
    case 1: desk.Type("TxtBd", n + 0.25); break;
    case 2: desk.Type("TxtDtAanvang", host::Date(46000 + n)); break;
    case 3: desk.Do("Toelichting.jnOverlijden", controls::Toggle{n / 6 % 2 == 0 ? host::kJa : host::kNee}); break;
    case 4: desk.Type("TxtAnJaar", static_cast<double>(n / 6 % 60)); break;
    case 5:
      desk.Toolkit().modal = [n](controls::Form& form) {
        for (int row = 2; row <= 6; ++row) form.Find("txtBedrag", row)->Perform(controls::Enter{n * 10.0 + row});
        form.Find("cmdOK")->Perform(controls::Press{});
      };
      desk.Do("cmdScenario", controls::Press{});
      break;
  }
}

}  // namespace brivane::dossier

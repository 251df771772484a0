#pragma once

#include "tests/dossier/store/Desk.h"

namespace brivane::dossier {

/// Edit number n of an endless script on the bound column. The same number is always the same edit, and no two in
/// a row leave the column the same.
inline void DoeBewerking(Werkplek& werk, int n) {
  switch (n % 6) {
    case 0: werk.Typ("TxtOm", "Bewerking " + std::to_string(n)); break;
    case 1: werk.Typ("TxtBd", n + 0.25); break;
    case 2: werk.Typ("TxtDtAanvang", host::Date(46000 + n)); break;
    case 3: werk.Doe("Toelichting.jnOverlijden", controls::Toggle{n / 6 % 2 == 0 ? host::kJa : host::kNee}); break;
    case 4: werk.Typ("TxtAnJaar", static_cast<double>(n / 6 % 60)); break;
    case 5:
      werk.Toolkit().modal = [n](controls::Form& form) {
        for (int rij = 2; rij <= 6; ++rij) form.Find("txtBedrag", rij)->Perform(controls::Enter{n * 10.0 + rij});
        form.Find("cmdOK")->Perform(controls::Press{});
      };
      werk.Doe("cmdScenario", controls::Press{});
      break;
  }
}

}  // namespace brivane::dossier

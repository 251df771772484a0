#include "dossier/office/Knock.h"

#include <utility>

namespace brivane::dossier {

void Knock(Aside& aside, NewConnection make, KnockAnswer answer) {
  aside.Run([make = std::move(make), answer = std::move(answer)]() -> Aside::Rest {
    std::optional<OfficeError> failure;
    try {
      make()->OpenOffice();
    } catch (const OfficeError& error) {
      failure = error;
    }
    return [answer, failure] { answer(failure); };
  });
}

}  // namespace brivane::dossier

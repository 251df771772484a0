#include "dossier/office/Reconnection.h"

#include <algorithm>

namespace brivane::dossier {

std::chrono::milliseconds PauseAfter(int tries) {
  constexpr std::chrono::milliseconds kFirst{500};
  constexpr std::chrono::milliseconds kLongest{30000};
  constexpr int kDoublings = 6;
  return std::min(kLongest, kFirst * (1 << std::clamp(tries, 0, kDoublings)));
}

Verdict Judge(const Before& before, const Found& found) {
  Verdict verdict;
  // While the broken session holds the client its last statement may still be stored.
  if (before.edited && !found.taken && found.holder == before.session) return verdict;
  verdict.role = before.edited && found.taken ? Role::Edit : Role::Read;
  if (before.edit) verdict.outcome = found.edit_is_there ? Outcome::WasStored : Outcome::WasNotStored;
  verdict.reload = found.step != before.step;
  return verdict;
}

}  // namespace brivane::dossier

#include <brivane/scenario/Opnamecontrole.h>
#include <brivane/scenario/Teksten.h>

namespace brivane::scenario {

void VoegMeldingToe(std::string& meldingen, std::string_view melding) {
  if (!meldingen.empty()) meldingen += kRegeleinde;
  meldingen += melding;
}

std::string OpnameMelding(std::string_view maximum) {
  std::string melding(kMaximaalVoor);
  melding += maximum;
  return melding += kMaximaalNa;
}

}  // namespace brivane::scenario

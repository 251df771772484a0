// The proposals that end the column.

#include <array>
#include <string>

#include <brivane/vrijekolom/Ontwerp.h>
#include <brivane/vrijekolom/VrijeKolom.h>

namespace brivane {

using namespace vrijekolom;

void VrijeKolom::ChkVoorstel_Click(std::int16_t Index) {
  if (Filling_) return;
  tracing_.Handled("ChkVoorstel_Click", [&] {
    std::array<std::string, kVoorstellen> oud;
    for (std::int16_t v = 1; v <= kVoorstellen; ++v) oud[static_cast<std::size_t>(v - 1)] = Record().Voorstel(v);
    const bool aangevinkt = controls_(ChkVoorstel, Index).Value() == host::kTicked;
    Record().SetVoorstel(Index, std::string(aangevinkt ? kInVoorstel : kUitVoorstel));
    // Every proposal marked is registered, not only the one clicked: the host accepts a repetition.
    for (std::int16_t v = 1; v <= kVoorstellen; ++v)
      if (Record().Voorstel(v) == kInVoorstel) host::Need(Dossier_).VoegToeAanVoorstel(v, Vrij_Id_);
    for (std::int16_t v = 1; v <= kVoorstellen; ++v)
      if (Record().Voorstel(v) != oud[static_cast<std::size_t>(v - 1)] && Record().Voorstel(v) == kUitVoorstel)
        host::Need(Dossier_).VerwijderUitVoorstel(v, Vrij_Id_, 0);
  });
}

}  // namespace brivane

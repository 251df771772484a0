#include "dossier/sums/Samenstelling.h"

#include <unordered_map>

namespace brivane::sums {

std::vector<Plek> HuidigeSituatie(std::size_t kolommen) {
  std::vector<Plek> plekken;
  plekken.reserve(kolommen);
  for (std::size_t plaats = 0; plaats < kolommen; ++plaats) plekken.push_back({Herkomst::Huidig, plaats});
  return plekken;
}

std::vector<Plek> NieuweSituatie(std::span<const std::int16_t> huidig, std::span<const std::int16_t> nieuw) {
  struct Versies {
    std::vector<std::size_t> plaatsen;
    bool geplaatst = false;
  };
  std::unordered_map<std::int16_t, Versies> versies;
  for (std::size_t plaats = 0; plaats < nieuw.size(); ++plaats) versies[nieuw[plaats]].plaatsen.push_back(plaats);

  std::vector<Plek> plekken;
  plekken.reserve(huidig.size() + nieuw.size());
  for (std::size_t plaats = 0; plaats < huidig.size(); ++plaats) {
    const auto versie = versies.find(huidig[plaats]);
    if (versie == versies.end()) {
      plekken.push_back({Herkomst::Volgt, plaats});
      continue;
    }
    if (!versie->second.geplaatst)
      for (const std::size_t eigen : versie->second.plaatsen) plekken.push_back({Herkomst::Afwijking, eigen});
    versie->second.geplaatst = true;
  }
  for (std::size_t plaats = 0; plaats < nieuw.size(); ++plaats)
    if (!versies[nieuw[plaats]].geplaatst) plekken.push_back({Herkomst::AlleenNieuw, plaats});
  return plekken;
}

}  // namespace brivane::sums

#include <cstddef>
#include <optional>

#include <brivane/scenario/Afronding.h>
#include <brivane/scenario/Laden.h>

namespace brivane::scenario {

namespace {

/// The rows from an entry's row on; none where no row holds its month.
template <class Rij> std::span<Rij> Vanaf(std::vector<Rij>& rijen, std::int16_t maand) {
  const std::optional<int> rij = RijVan(maand, static_cast<int>(rijen.size()));
  return rij ? std::span(rijen).subspan(static_cast<std::size_t>(*rij - 1)) : std::span<Rij>();
}

Renterij RijVoor(const RelatievePost& post, Kortingkolom kolom, double basis) {
  const double korting = kolom == Kortingkolom::Met ? post.korting : 0;
  const double percentage = ZoalsIngevoerd(basis + post.percentage + korting, post.percentage,
                                           [&](double ingevoerd) { return ingevoerd - korting - basis; });
  return {percentage, korting};
}

}  // namespace

std::vector<Bedragrij> LaadBedragen(int rijen, Overbrugging overbrugging, double basis,
                                    std::span<const Bedragpost> posten) {
  const bool krediet = overbrugging == Overbrugging::Ja;
  std::vector<Bedragrij> resultaat(static_cast<std::size_t>(rijen), Bedragrij{krediet ? 0 : basis, false});
  for (const Bedragpost& post : posten) {
    const std::span<Bedragrij> vanaf = Vanaf(resultaat, post.maand);
    if (vanaf.empty()) continue;
    vanaf.front().bedrag = post.bedrag;
    if (krediet) continue;
    vanaf.front().eenmalig = post.eenmalig;
    for (Bedragrij& volgende : vanaf.subspan(1)) volgende.bedrag = post.bedrag;
  }
  return resultaat;
}

std::vector<Renterij> LaadPercentages(int rijen, Kortingkolom kolom, double basis,
                                      std::span<const RelatievePost> posten) {
  const Renterij begin{ZoalsIngevoerd(basis, basis, [](double ingevoerd) { return ingevoerd; }), 0};
  std::vector<Renterij> resultaat(static_cast<std::size_t>(rijen), begin);
  for (const RelatievePost& post : posten) {
    const Renterij nieuw = RijVoor(post, kolom, basis);
    for (Renterij& rij : Vanaf(resultaat, post.maand)) rij = nieuw;
  }
  return resultaat;
}

std::vector<double> LaadGroei(int rijen, std::span<const Groeipost> posten) {
  std::vector<double> resultaat(static_cast<std::size_t>(rijen), 0.0);
  for (const Groeipost& post : posten) {
    const double percentage =
        ZoalsIngevoerd(post.percentage, post.percentage, [](double ingevoerd) { return ingevoerd; });
    for (double& rij : Vanaf(resultaat, post.maand)) rij = percentage;
  }
  return resultaat;
}

}  // namespace brivane::scenario

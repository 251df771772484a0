#pragma once

#include <functional>
#include <vector>

#include <brivane/host/model/BedragObject.h>
#include <brivane/scenario/Laden.h>
#include <brivane/scenario/Opslag.h>

/// A scenario's list of entries: read for the rows of a grid, emptied, and written anew.
namespace brivane::scenario {

/// The entries whose month falls in one of `rijen` rows, in list order.
[[nodiscard]] std::vector<Bedragpost> LeesBedragen(host::BedragObject& scenario, int rijen, Overbrugging overbrugging);
[[nodiscard]] std::vector<RelatievePost> LeesPercentages(host::BedragObject& scenario, int rijen, Kortingkolom kolom);
[[nodiscard]] std::vector<Groeipost> LeesGroei(host::BedragObject& scenario, int rijen);

void MaakLeeg(host::BedragObject& scenario);

/// Each appends one entry. Percentages go in single precision; error 6 where one is too large for it.
void Schrijf(host::BedragObject& scenario, const Bedragpost& post, Overbrugging overbrugging);
void Schrijf(host::BedragObject& scenario, std::int16_t maand, const std::function<Rentepost()>& lees,
             Kortingkolom kolom);
void Schrijf(host::BedragObject& scenario, const Groeipost& post);

}  // namespace brivane::scenario

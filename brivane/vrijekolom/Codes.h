#pragma once

#include <brivane/host/model/Codes.h>

namespace brivane::vrijekolom {

using namespace host::codes;

/// \name Checks
/// Which checks VrijeKolom::Validation runs. With any other number it asks whether a change is carried over, and
/// nothing else.
/// @{
inline constexpr std::int32_t kControleVolledig = 0;  ///< all, the proposals and the host's own check included
inline constexpr std::int32_t kControleAanvang = 1;   ///< that there is a start date
inline constexpr std::int32_t kControleEinde = 2;     ///< that the end date lies after it
/// @}

}  // namespace brivane::vrijekolom

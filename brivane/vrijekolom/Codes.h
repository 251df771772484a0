#pragma once

#include <brivane/host/model/Codes.h>

namespace brivane::vrijekolom {

using namespace host::codes;

// Which checks a Validation runs.
inline constexpr std::int32_t kControleVolledig = 0;
inline constexpr std::int32_t kControleAanvang = 1;
inline constexpr std::int32_t kControleEinde = 2;

}  // namespace brivane::vrijekolom

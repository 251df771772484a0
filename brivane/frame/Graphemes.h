#pragma once

#include <cstddef>
#include <string_view>

namespace brivane::frame {

/// Where the last user-perceived character of a non-empty UTF-8 text begins: a base with its combining
/// marks, joiners and modifiers, a pair of regional indicators, a CR LF, a composed Hangul syllable.
/// Bytes that are not UTF-8 count as characters of their own.
[[nodiscard]] std::size_t LastGraphemeStart(std::string_view text);

}  // namespace brivane::frame

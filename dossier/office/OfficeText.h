#pragma once

#include <string>
#include <string_view>

/// Texts as a server takes them, which takes valid UTF-8 without zero bytes alone: a loan file keeps any bytes.
namespace brivane::dossier {

/// Valid UTF-8 stays as it is. A byte that is not part of any, and a zero byte, becomes one character of private use
/// (U+10FE00 and the byte); so does each byte of such a character, so that every text comes back to the byte.
[[nodiscard]] std::string ToOffice(std::string_view bytes);
[[nodiscard]] std::string FromOffice(std::string_view text);

}  // namespace brivane::dossier

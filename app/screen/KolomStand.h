#pragma once

#include <QString>
#include <cstdint>

namespace brivane::app {

/// How a column of one situation stands to the other one. A case without new loans has nothing to compare with.
enum class KolomStand : std::uint8_t { Geen, Volgt, WijktAf, Nieuw };

/// Where the versions of one item are.
struct Versies {
  bool inHuidig = false;
  bool inNieuw = false;
};

/// `heeftNieuw`: the case has loans of the new situation. `Len_Id` is the loan of the column itself.
[[nodiscard]] KolomStand StandVan(std::int16_t Len_Id, Versies versies, bool heeftNieuw);

/// "=", "≠" or "+"; nothing for a column that stands to nothing.
[[nodiscard]] QString StandTeken(KolomStand stand);
/// "volgt", "wijkt af" or "nieuw".
[[nodiscard]] QString StandWoord(KolomStand stand);

}  // namespace brivane::app

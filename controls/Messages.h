#pragma once

/// What the forms of every toolkit ask.
namespace brivane::controls {

inline constexpr char kRowsLost[] =
    "De gewijzigde rijen worden niet bewaard als u het venster sluit zonder op OK te drukken. Wilt u het sluiten?";

}  // namespace brivane::controls

#pragma once

#include <vector>

#include <brivane/host/Twips.h>
#include <brivane/scenario/Invoersoort.h>

/// Where the rows of the grid stand: arithmetic in twips, apart from any control.
namespace brivane::scenario {

using host::Twips;

inline constexpr int kMinsteRijen = 1;
inline constexpr int kMeesteRijen = 80;

/// Gap between neighbouring controls, and after the last control of a column.
inline constexpr Twips kTussen{60};
inline constexpr Twips kNaKolom{120};
/// Top of the first row's label, from one row to the next, and how far boxes stand above their label.
inline constexpr Twips kEersteRij{1070};
inline constexpr Twips kRijAfstand{360};
inline constexpr Twips kVakHoger{50};
/// Left edge of the first column; also the frame's margin right of the rightmost control.
inline constexpr Twips kMarge{135};
/// From the value header to the discount header.
inline constexpr Twips kNaarKortingkop{915};
/// Around the OK button.
inline constexpr Twips kOmKnop{120};
/// Width of a narrow row label.
inline constexpr Twips kSmalLabel{240};

/// The number of rows for a number of years asked for: within 1 and 80.
[[nodiscard]] int Rijaantal(int aantalJaar);
[[nodiscard]] int Kolomaantal(int rijen);
[[nodiscard]] int RijenPerKolom(int rijen);

/// What a grid shows.
struct Opzet {
  int rijen = kMinsteRijen;
  Invoersoort soort = Invoersoort::Onbekend;
  Overbrugging overbrugging = Overbrugging::Nee;
  Kortingkolom korting = Kortingkolom::Zonder;

  [[nodiscard]] bool MetBedrag() const { return HeeftBedrag(soort); }
  [[nodiscard]] bool MetEenmalig() const { return soort == Invoersoort::Bedrag && overbrugging == Overbrugging::Nee; }
  [[nodiscard]] bool MetPercentage() const { return HeeftPercentage(soort); }
  [[nodiscard]] bool MetKorting() const { return MetPercentage() && korting == Kortingkolom::Met; }
};

/// Widths of the template controls.
struct Breedten {
  Twips jaar = {};
  Twips bedrag = {};
  Twips eenmalig = {};
  Twips hint = {};
  Twips percentage = {};
  Twips eenheid = {};  ///< "%" after the percentage
  Twips korting = {};
  Twips kortingeenheid = {};  ///< "%" after the discount
  Twips maandkop = {};
  Twips waardekop = {};
  Twips kortingkop = {};
};

/// Tops and left edges of a row's controls; those that the grid does not show stand at 0.
struct Rijplaats {
  bool eersteInKolom = false;
  Twips labelTop = {};
  Twips vakTop = {};
  Twips jaar = {};
  Twips bedrag = {};
  Twips eenmalig = {};
  Twips hint = {};
  Twips percentage = {};
  Twips eenheid = {};
  Twips korting = {};
  Twips kortingeenheid = {};
  friend bool operator==(const Rijplaats&, const Rijplaats&) = default;
};

/// Left edges of the headers of a column.
struct Kopplaats {
  Twips maand = {};
  Twips waarde = {};
  Twips korting = {};
  friend bool operator==(const Kopplaats&, const Kopplaats&) = default;
};

struct Indeling {
  std::vector<Rijplaats> rijen;
  std::vector<Kopplaats> koppen;  ///< one for each column that has rows
  Twips rechts = {};              ///< right edge of the rightmost control of the grid
  Twips kaderHoogte = {};         ///< height of the frame around the grid
};

/// Places every row and header of a grid, column after column.
[[nodiscard]] Indeling DeelIn(const Opzet& opzet, const Breedten& breedten);

}  // namespace brivane::scenario

#pragma once

#include <vector>

#include <brivane/host/Twips.h>
#include <brivane/scenario/Invoersoort.h>

/// Where the rows of the grid stand: arithmetic in twips, apart from any control.
namespace brivane::scenario {

using host::Twips;

/// The number of rows that a grid has at least and at most.
/// @{
inline constexpr int kMinsteRijen = 1;
inline constexpr int kMeesteRijen = 80;
/// @}

inline constexpr Twips kTussen{60};       ///< gap between neighbouring controls
inline constexpr Twips kNaKolom{120};     ///< gap after the last control of a column
inline constexpr Twips kEersteRij{1070};  ///< top of the first row's label
inline constexpr Twips kRijAfstand{360};  ///< from one row to the next
inline constexpr Twips kVakHoger{50};     ///< how far boxes stand above their label
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
/// How many columns a number of rows is spread over: 3 below 31 rows, else 4.
[[nodiscard]] int Kolomaantal(int rijen);
/// How many rows a column has; the last one has what is left.
[[nodiscard]] int RijenPerKolom(int rijen);

/// What a grid shows.
struct Opzet {
  int rijen = kMinsteRijen;                       ///< how many rows, within 1 and 80
  Invoersoort soort = Invoersoort::Onbekend;      ///< what is entered in a row
  Overbrugging overbrugging = Overbrugging::Nee;  ///< whether it is a bridging loan
  Kortingkolom korting = Kortingkolom::Zonder;    ///< whether a discount was asked for

  /// Whether a row has a box for an amount, a tick for a yearly one, a box for a percentage, one for a discount.
  /// @{
  [[nodiscard]] bool MetBedrag() const { return HeeftBedrag(soort); }
  [[nodiscard]] bool MetEenmalig() const { return soort == Invoersoort::Bedrag && overbrugging == Overbrugging::Nee; }
  [[nodiscard]] bool MetPercentage() const { return HeeftPercentage(soort); }
  [[nodiscard]] bool MetKorting() const { return MetPercentage() && korting == Kortingkolom::Met; }
  /// @}
};

/// Widths of the template controls.
struct Breedten {
  Twips jaar = {};            ///< row label
  Twips bedrag = {};          ///< amount box
  Twips eenmalig = {};        ///< tick for a yearly amount
  Twips hint = {};            ///< help icon beside it
  Twips percentage = {};      ///< percentage box
  Twips eenheid = {};         ///< "%" after the percentage
  Twips korting = {};         ///< discount box
  Twips kortingeenheid = {};  ///< "%" after the discount
  Twips maandkop = {};        ///< header over the row labels of a bridging loan
  Twips waardekop = {};       ///< header over the amounts or percentages
  Twips kortingkop = {};      ///< header over the discounts
};

/// Tops and left edges of a row's controls; those that the grid does not show stand at 0.
struct Rijplaats {
  bool eersteInKolom = false;  ///< it stands at the top of its column
  Twips labelTop = {};         ///< top of the label
  Twips vakTop = {};           ///< top of the boxes
  /// Left edge of the control of this name in Breedten.
  /// @{
  Twips jaar = {};
  Twips bedrag = {};
  Twips eenmalig = {};
  Twips hint = {};
  Twips percentage = {};
  Twips eenheid = {};
  Twips korting = {};
  Twips kortingeenheid = {};
  /// @}
  friend bool operator==(const Rijplaats&, const Rijplaats&) = default;
};

/// Left edges of the headers of a column.
struct Kopplaats {
  Twips maand = {};    ///< over the row labels, of a bridging loan
  Twips waarde = {};   ///< over the amounts or percentages
  Twips korting = {};  ///< over the discounts
  friend bool operator==(const Kopplaats&, const Kopplaats&) = default;
};

/// Where everything of a grid stands.
struct Indeling {
  std::vector<Rijplaats> rijen;   ///< one for each row, from row 1
  std::vector<Kopplaats> koppen;  ///< one for each column that has rows
  Twips rechts = {};              ///< right edge of the rightmost control of the grid
  Twips kaderHoogte = {};         ///< height of the frame around the grid
};

/// Places every row and header of a grid, column after column.
[[nodiscard]] Indeling DeelIn(const Opzet& opzet, const Breedten& breedten);

}  // namespace brivane::scenario

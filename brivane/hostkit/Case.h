#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include <brivane/frame/Calendar.h>

/// The case that a host hands the kit, anew each time: two persons, a loan of the current situation and two of the new
/// one, as they stand here. Texts are UTF-8.
///
/// Each free column has its identifier, and all else as in host::VrijeKolomValues and as a new amount object has it: no
/// texts, no dates, no product, the codes of a cost of the applicant, kind 1 (amounts), base amount 0 and no period
/// entries. The amount's name is any but "Overbruggingskrediet" and "Rente"; the header texts are the host's own.
namespace brivane::hostkit {

/// A person of the case.
struct CasePersoon {
  std::array<std::string_view, 3> naam;  ///< as Persoon::Naam answers it
  frame::YearMonthDay geboortedatum;     ///< the birth date
};
/// Person 1 and person 2.
inline constexpr std::array<CasePersoon, 2> kPersonen{
    {{{"J.", "van", "Dam"}, {1975, 12, 31}}, {{"Zoë", "de", "Wit"}, {1978, 2, 3}}}};

/// The age limit of the assumptions.
inline constexpr std::int16_t kLeeftijd = 67;

/// The identifiers of the columns in the loan of the current situation, in their order.
inline constexpr std::array<std::int16_t, 3> kHuidigeLening{1, 2, 3};
/// And in loan 1 and 2 of the new situation; there is no loan 3.
/// @{
inline constexpr std::array<std::int16_t, 3> kLening1{2, 1, 3};
inline constexpr std::array<std::int16_t, 1> kLening2{1};
/// @}
/// An identifier and a number that nothing has.
inline constexpr std::int16_t kNiemand = 32000;

}  // namespace brivane::hostkit

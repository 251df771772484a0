#pragma once

/// Percentages are entered with up to four decimals but stored in single precision, relative to a base value;
/// a load gives back what was entered.
namespace brivane::scenario {

/// A number to four decimals, half to even on the number times 10,000.
[[nodiscard]] double VierDecimalen(double getal);

/// Whether two numbers are the same in single precision; not where one of them is too large for it.
[[nodiscard]] bool GelijkInSingle(double een, double ander);

/// A loaded percentage rounded to four decimals where storing the rounded value gives the same number
/// again; else as it is, so that a percentage derived from two amounts is not disturbed. `opslag` answers
/// what storing a percentage would write, `opgeslagen` is what the list holds.
template <class Opslag> [[nodiscard]] double ZoalsIngevoerd(double percentage, double opgeslagen, Opslag&& opslag) {
  const double afgerond = VierDecimalen(percentage);
  return GelijkInSingle(opslag(afgerond), opgeslagen) ? afgerond : percentage;
}

}  // namespace brivane::scenario

#pragma once

/// What an edited row does to the rows after it.
///
/// The rules work on any `Rijen` with `Aantal()`, `Bedrag(r)`, `ZetBedrag(r, x)`, `Percentage(r)` and
/// `ZetPercentage(r, x)` for rows from 1: the boxes of the form, or plain arrays. They read no value before it
/// is needed, so that a row that cannot be read stops them there and what was written before it stays.
namespace brivane::scenario {

/// An amount grown by a percentage. The percentage goes through single precision and is divided by 100 in
/// double: 3.7 % grows by 3.7000000477 %. Fails with error 6 where it is too large for that.
[[nodiscard]] double Gegroeid(double bedrag, double percentage);

/// The growth from one amount, which is not 0, to the next, in percent.
[[nodiscard]] constexpr double Groeipercentage(double van, double naar) { return 100 * (naar - van) / van; }

/// Grows every amount after row `van`. A row whose percentage is 0 or negative grows by the last positive
/// percentage above it; the percentage of row `van` itself counts as it is.
template <class Rijen> void Groei(Rijen& rijen, int van) {
  double bedrag = rijen.Bedrag(van);
  double percentage = rijen.Percentage(van);
  for (int r = van; r < rijen.Aantal(); ++r) {
    bedrag = Gegroeid(bedrag, percentage);
    rijen.ZetBedrag(r + 1, bedrag);
    if (r == rijen.Aantal() - 1) break;
    const double eigen = rijen.Percentage(r + 1);
    if (eigen > 0) {
      percentage = eigen;
      bedrag = rijen.Bedrag(r + 1);
    }
  }
}

/// Copies the percentage of row `van` down and grows the amounts by it, in doubles, row by row. The last row
/// has no growth of its own and keeps its percentage.
template <class Rijen> void GroeiGelijk(Rijen& rijen, int van) {
  for (int r = van; r < rijen.Aantal(); ++r) {
    const double bedrag = rijen.Bedrag(r);
    const double percentage = rijen.Percentage(r);
    rijen.ZetBedrag(r + 1, bedrag * percentage / 100 + bedrag);
    if (r < rijen.Aantal() - 1) rijen.ZetPercentage(r + 1, percentage);
  }
}

/// Derives the percentage of the row above from its amount and that of row `rij`; an amount of 0 or less
/// leaves the percentage alone.
template <class Rijen> void LeidPercentageAf(Rijen& rijen, int rij) {
  const int boven = rij - 1;
  if (rij >= 2 && rijen.Bedrag(boven) > 0)
    rijen.ZetPercentage(boven, Groeipercentage(rijen.Bedrag(boven), rijen.Bedrag(rij)));
}

/// Copies the amount of row `van` to every later row.
template <class Rijen> void VulBedragDoor(Rijen& rijen, int van) {
  for (int r = van + 1; r <= rijen.Aantal(); ++r) rijen.ZetBedrag(r, rijen.Bedrag(van));
}

/// Copies the percentage of row `van` to every later row.
template <class Rijen> void VulPercentageDoor(Rijen& rijen, int van) {
  for (int r = van + 1; r <= rijen.Aantal(); ++r) rijen.ZetPercentage(r, rijen.Percentage(van));
}

}  // namespace brivane::scenario

#pragma once

#include <cstddef>
#include <vector>

#include <brivane/host/Error.h>

namespace brivane::tests {

/// Rows of a grid as plain arrays, from 1. The row that `kapot...` names holds something that cannot be read.
struct Rijentabel {
  std::vector<double> bedragen = {};
  std::vector<double> percentages = {};
  std::vector<double> kortingen = {};
  std::vector<bool> ticks = {};
  int kapotPercentage = 0;
  int kapotBedrag = 0;

  [[nodiscard]] int Aantal() const {
    return static_cast<int>(bedragen.size() > percentages.size() ? bedragen.size() : percentages.size());
  }
  [[nodiscard]] double Bedrag(int r) const { return Lees(bedragen, r, kapotBedrag); }
  void ZetBedrag(int r, double x) { bedragen.at(Plek(r)) = x; }
  [[nodiscard]] double Percentage(int r) const { return Lees(percentages, r, kapotPercentage); }
  void ZetPercentage(int r, double x) { percentages.at(Plek(r)) = x; }
  [[nodiscard]] double Korting(int r) const { return kortingen.at(Plek(r)); }
  [[nodiscard]] bool Eenmalig(int r) const { return ticks.at(Plek(r)); }

 private:
  static std::size_t Plek(int r) { return static_cast<std::size_t>(r - 1); }
  static double Lees(const std::vector<double>& waarden, int r, int kapot) {
    if (r == kapot) throw host::Error(host::ErrorNumber::TypeMismatch);
    return waarden.at(Plek(r));
  }
};

}  // namespace brivane::tests

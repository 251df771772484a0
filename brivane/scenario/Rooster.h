#pragma once

#include <functional>
#include <vector>

#include <brivane/frame/Handle.h>
#include <brivane/scenario/Indeling.h>

namespace brivane::scenario {

/// The grid on the form: makes the controls of the rows from their templates, and is their values.
///
/// Rows count from 1. A value whose box the grid does not show fails with error 340, but for a discount
/// without its column (0) and a tick without its box (no). Writing raises nothing.
class Rooster {
 public:
  /// The form outlives it.
  explicit Rooster(host::Form& form) : form_(form) {}

  /// Width of the templates as the form has them now.
  [[nodiscard]] Breedten Templates() const;
  /// Makes and shows the rows and headers; `vrij` answers whether a row can be edited. To be called once.
  void Bouw(const Opzet& opzet, const Indeling& indeling, const std::function<bool(int rij)>& vrij);

  /// How many rows there are; none until they are made.
  [[nodiscard]] int Aantal() const { return static_cast<int>(rijen_.size()); }
  /// The amount of a row in euros.
  [[nodiscard]] double Bedrag(int rij) const;
  void ZetBedrag(int rij, double bedrag);
  /// The percentage of a row.
  [[nodiscard]] double Percentage(int rij) const;
  void ZetPercentage(int rij, double percentage);
  /// The discount of a row in percentage points.
  [[nodiscard]] double Korting(int rij) const;
  void ZetKorting(int rij, double korting);
  /// Whether the amount of a row is ticked as a yearly one.
  [[nodiscard]] bool Eenmalig(int rij) const;
  void ZetEenmalig(int rij, bool eenmalig);
  /// Sum of all amount boxes, the template included. Fails with error 6 where a double cannot hold it.
  [[nodiscard]] double Totaal() const;

  /// A row was edited in one of its boxes, counted from 1; told before the edit that set it off returns.
  /// @{
  std::function<void(int rij)> BedragBewerkt;
  std::function<void(int rij)> PercentageBewerkt;
  std::function<void(int rij)> KortingBewerkt;
  /// @}

 private:
  struct Rij {
    host::TextBox* bedrag = nullptr;
    host::CheckBox* eenmalig = nullptr;
    host::TextBox* percentage = nullptr;
    host::TextBox* korting = nullptr;
  };

  [[nodiscard]] const Rij& Van(int rij) const { return rijen_.at(static_cast<std::size_t>(rij - 1)); }
  void BouwKop(int kolom, const Opzet& opzet, const Kopplaats& plaats);
  [[nodiscard]] Rij BouwRij(int rij, const Opzet& opzet, const Rijplaats& plaats, bool vrij);

  host::Form& form_;
  std::vector<Rij> rijen_;
  host::Subscriptions subscriptions_;
};

}  // namespace brivane::scenario

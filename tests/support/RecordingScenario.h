#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/Shortest.h"
#include <brivane/host/model/BedragObject.h>

namespace brivane::tests {

/// What one entry of a scenario holds.
struct PeriodeWaarden {
  std::int16_t maand = 0;
  double bedrag = 0;
  double percentage = 0;
  double korting = 0;
  bool eenmalig = false;
  friend bool operator==(const PeriodeWaarden&, const PeriodeWaarden&) = default;
};

/// An amount object in memory that tells what was done to it.
///
///     auto scenario = std::make_shared<RecordingScenario>();
///     scenario->invoersoort = 3;
///     ...
///     EXPECT_EQ(scenario->log, (std::vector<std::string>{"Bedrag = 100", "NieuwePeriode", "1.Maand = 25"}));
class RecordingScenario final : public host::BedragObject {
 public:
  std::string naam;
  std::int16_t invoersoort = 1;
  double basis = 0;
  std::vector<std::shared_ptr<PeriodeWaarden>> perioden;

  /// Writes and calls that changed something, in order.
  std::vector<std::string> log;
  /// Asked before every access, reads too, with its name; may throw to make it fail.
  std::function<void(const std::string& toegang)> voor;

  void VoegToe(const PeriodeWaarden& waarden) { perioden.push_back(std::make_shared<PeriodeWaarden>(waarden)); }
  /// The entries by value.
  [[nodiscard]] std::vector<PeriodeWaarden> Inhoud() const {
    std::vector<PeriodeWaarden> inhoud;
    for (const auto& periode : perioden) inhoud.push_back(*periode);
    return inhoud;
  }

  [[nodiscard]] std::string Naam() const override {
    Meld("Naam");
    return naam;
  }
  [[nodiscard]] std::int16_t Invoersoort() const override {
    Meld("Invoersoort");
    return invoersoort;
  }
  [[nodiscard]] double Basisbedrag() const override {
    Meld("Basisbedrag");
    return basis;
  }
  void SetBasisbedrag(double bedrag) override {
    Meld("Basisbedrag =");
    basis = bedrag;
    Schrijf("Basisbedrag", bedrag);
  }
  [[nodiscard]] double Bedrag() const override {
    Meld("Bedrag");
    return basis;
  }
  void SetBedrag(double bedrag) override {
    Meld("Bedrag =");
    basis = bedrag;
    Schrijf("Bedrag", bedrag);
  }
  [[nodiscard]] std::shared_ptr<host::Periode> Periode(std::int16_t positie) override {
    Meld("Periode");
    if (positie < 1 || static_cast<std::size_t>(positie) > perioden.size()) return nullptr;
    return std::make_shared<Post>(*this, positie, perioden[static_cast<std::size_t>(positie - 1)]);
  }
  std::int16_t NieuwePeriode() override {
    Meld("NieuwePeriode");
    VoegToe({});
    log.emplace_back("NieuwePeriode");
    return static_cast<std::int16_t>(perioden.size());
  }
  void VerwijderPeriode(std::int16_t positie) override {
    Meld("VerwijderPeriode");
    perioden.erase(perioden.begin() + (positie - 1));
    log.push_back("VerwijderPeriode " + std::to_string(positie));
  }

 private:
  class Post final : public host::Periode {
   public:
    Post(RecordingScenario& scenario, std::int16_t positie, std::shared_ptr<PeriodeWaarden> waarden)
        : scenario_(scenario), naam_(std::to_string(positie)), waarden_(std::move(waarden)) {}

    [[nodiscard]] std::int16_t Maand() const override { return Lees("Maand", waarden_->maand); }
    void SetMaand(std::int16_t maand) override { Zet("Maand", waarden_->maand, maand); }
    [[nodiscard]] double Bedrag() const override { return Lees("Bedrag", waarden_->bedrag); }
    void SetBedrag(double bedrag) override { Zet("Bedrag", waarden_->bedrag, bedrag); }
    [[nodiscard]] double Percentage() const override { return Lees("Percentage", waarden_->percentage); }
    void SetPercentage(double percentage) override { Zet("Percentage", waarden_->percentage, percentage); }
    [[nodiscard]] double Korting() const override { return Lees("Korting", waarden_->korting); }
    void SetKorting(double korting) override { Zet("Korting", waarden_->korting, korting); }
    [[nodiscard]] bool Eenmalig() const override { return Lees("Eenmalig", waarden_->eenmalig); }
    void SetEenmalig(bool eenmalig) override { Zet("Eenmalig", waarden_->eenmalig, eenmalig); }

   private:
    template <class T> T Lees(const char* veld, T waarde) const {
      scenario_.Meld("Periode.", veld);
      return waarde;
    }
    template <class T> void Zet(const char* veld, T& plaats, T waarde) {
      scenario_.Meld("Periode.", veld, " =");
      plaats = waarde;
      scenario_.Schrijf(naam_ + "." + veld, static_cast<double>(waarde));
    }

    RecordingScenario& scenario_;
    std::string naam_;
    std::shared_ptr<PeriodeWaarden> waarden_;
  };

  void Meld(const char* object, const char* veld = "", const char* soort = "") const {
    if (voor) voor(std::string(object) + veld + soort);
  }
  void Schrijf(const std::string& veld, double waarde) { log.push_back(veld + " = " + Shortest(waarde)); }
};

}  // namespace brivane::tests

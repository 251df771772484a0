// Growing and storing 80 rows of the year-by-year form on the controls in memory, as a multiple of the same
// arithmetic on plain arrays.

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

#include "bench/Compare.h"
#include "examples/host/MemoryHost.h"
#include <brivane/controls/Surface.h>
#include <brivane/scenario/frmScenario.h>
#include <brivane/toolkits/memory/Toolkit.h>

namespace {

using namespace brivane;

constexpr int kRows = 80;

/// Rows as a program without controls would hold them.
struct PlainRows {
  std::array<double, kRows> amounts{};
  std::array<double, kRows> percentages{};
};

/// The growth from row 1, as the form reckons it.
void Grow(PlainRows& rows, double first) {
  rows.amounts[0] = first;
  double percentage = rows.percentages[0];
  for (std::size_t r = 0; r + 1 < kRows; ++r) {
    rows.amounts[r + 1] =
        rows.amounts[r] * (static_cast<double>(static_cast<float>(percentage)) / 100) + rows.amounts[r];
    if (rows.percentages[r + 1] > 0) percentage = rows.percentages[r + 1];
  }
  benchmark::DoNotOptimize(rows);
}

struct PlainEntry {
  std::int16_t month;
  float percentage;
};

/// The change points of the percentages.
void Store(const PlainRows& rows, std::vector<PlainEntry>& entries) {
  entries.clear();
  double previous = 0;
  for (std::size_t r = 0; r < kRows; ++r) {
    if (rows.percentages[r] != previous)
      entries.push_back({static_cast<std::int16_t>(r * 12 + 1), static_cast<float>(rows.percentages[r])});
    previous = rows.percentages[r];
  }
  benchmark::DoNotOptimize(entries.data());
}

/// The form on 80 rows that each have a percentage of their own.
class OpenForm {
 public:
  OpenForm() : amount_(std::make_shared<memory_host::BedragObject>()), form_(toolkit_) {
    amount_->invoersoort = 3;
    amount_->basisbedrag = 1000;
    form_.Invoeren(amount_, kRows);
    for (int row = 1; row <= kRows; ++row) Type("txtPercentage", row, 0.5 + 0.01 * row);
  }

  void Type(std::string_view box, int row, double value) { Find(box, row).Perform(controls::Enter{value}); }
  void PressOk() { Find("cmdOK", frame::kNoIndex).Perform(controls::Press{}); }

 private:
  controls::AnyControl& Find(std::string_view name, int index) {
    return *controls::Surface::Of(form_.Form()).Find(name, index);
  }

  memory::Toolkit toolkit_;
  std::shared_ptr<memory_host::BedragObject> amount_;
  frmScenario form_;
};

void CompareGrowth() {
  auto form = std::make_shared<OpenForm>();
  auto rows = std::make_shared<PlainRows>();
  for (std::size_t r = 0; r < kRows; ++r) rows->percentages[r] = 0.5 + 0.01 * static_cast<double>(r + 1);
  bench::Compare(
      "80 rows: grow", {.measured = "form", .yardstick = "arrays", .aim = 0},
      [form, first = std::make_shared<double>(1000)] { form->Type("txtBedrag", 1, *first = 3000 - *first); },
      [rows, first = std::make_shared<double>(1000)] { Grow(*rows, *first = 3000 - *first); });
}

void CompareStore() {
  auto form = std::make_shared<std::unique_ptr<OpenForm>>(std::make_unique<OpenForm>());
  auto rows = std::make_shared<PlainRows>();
  auto entries = std::make_shared<std::vector<PlainEntry>>();
  for (std::size_t r = 0; r < kRows; ++r) rows->percentages[r] = 0.5 + 0.01 * static_cast<double>(r + 1);
  bench::CompareAndClear(
      "80 rows: store", {.measured = "form", .yardstick = "arrays", .aim = 0}, [form] { (*form)->PressOk(); },
      [form] { *form = std::make_unique<OpenForm>(); }, [rows, entries] { Store(*rows, *entries); }, [] {});
}

}  // namespace

int main(int argc, char** argv) {
  CompareGrowth();
  CompareStore();
  return bench::Run(argc, argv);
}

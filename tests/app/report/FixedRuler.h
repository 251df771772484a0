#pragma once

#include "app/report/Ruler.h"

namespace brivane::app::report {

/// Every character is 5 points wide and every line 10 high.
class FixedRuler final : public Ruler {
 public:
  [[nodiscard]] double Width(std::string_view text, Letters) const override {
    double width = 0;
    for (const char c : text) width += (static_cast<unsigned char>(c) & 0xC0U) == 0x80U ? 0 : 5;
    return width;
  }
  [[nodiscard]] double LineHeight(Letters) const override { return 10; }
};

}  // namespace brivane::app::report

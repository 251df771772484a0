#pragma once

#include <string>

#include <brivane/host/controls/Control.h>

namespace brivane::host {

/// The host's help icon: shows a fixed text on hover, focus and click.
class Hint : public Control {
 public:
  /// The text, as its design has it; UTF-8.
  [[nodiscard]] virtual std::string HelpText() const = 0;
};

}  // namespace brivane::host

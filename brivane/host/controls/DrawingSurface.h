#pragma once

#include <string_view>

#include <brivane/host/Twips.h>

namespace brivane::host {

/// Something that measures text in its font.
class DrawingSurface {
 public:
  virtual ~DrawingSurface() = default;
  /// Whether its font is bold while it measures; who sets it puts it back.
  [[nodiscard]] virtual bool FontBold() const = 0;
  virtual void SetFontBold(bool bold) = 0;
  /// Width of a UTF-8 text in the surface's font.
  [[nodiscard]] virtual Twips TextWidth(std::string_view text) const = 0;
};

}  // namespace brivane::host

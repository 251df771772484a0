#include "toolkits/win32/window/Fonts.h"

#include "toolkits/win32/window/Text.h"

namespace brivane::win32 {

Fonts::~Fonts() {
  for (const auto& [key, font] : made_) DeleteObject(font);
}

HFONT Fonts::Get(std::string_view face, int pixels, Weight weight) {
  HFONT& font = made_[{std::string(face), pixels, weight}];
  if (font == nullptr)
    font = CreateFontW(-pixels, 0, 0, 0, weight == Weight::Bold ? FW_BOLD : FW_NORMAL, FALSE, FALSE, FALSE,
                       DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, CLEARTYPE_QUALITY,
                       VARIABLE_PITCH | FF_SWISS, Wide(face).c_str());
  return font;
}

Measuring::~Measuring() {
  SelectObject(dc_, before_);
  ReleaseDC(nullptr, dc_);
}

int Measuring::Width(std::wstring_view text) const {
  SIZE size{};
  GetTextExtentPoint32W(dc_, text.data(), static_cast<int>(text.size()), &size);
  return size.cx;
}

int Measuring::LineHeight() const {
  TEXTMETRICW metrics{};
  GetTextMetricsW(dc_, &metrics);
  return metrics.tmHeight;
}

}  // namespace brivane::win32

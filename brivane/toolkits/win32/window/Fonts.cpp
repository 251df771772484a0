#include <brivane/toolkits/win32/window/Fonts.h>
#include <brivane/toolkits/win32/window/Text.h>

namespace brivane::win32 {

HFONT Fonts::Get(std::string_view face, int pixels, Weight weight) {
  OwnedFont& font = made_[{std::string(face), pixels, weight}];
  if (!font)
    font.Reset(CreateFontW(-pixels, 0, 0, 0, weight == Weight::Bold ? FW_BOLD : FW_NORMAL, FALSE, FALSE, FALSE,
                           DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, CLEARTYPE_QUALITY,
                           VARIABLE_PITCH | FF_SWISS, Wide(face).c_str()));
  return font.Get();
}

int Measuring::Width(std::wstring_view text) const {
  SIZE size{};
  GetTextExtentPoint32W(screen_.Get(), text.data(), static_cast<int>(text.size()), &size);
  return size.cx;
}

int Measuring::LineHeight() const {
  TEXTMETRICW metrics{};
  GetTextMetricsW(screen_.Get(), &metrics);
  return metrics.tmHeight;
}

int Measuring::WrappedHeight(const std::wstring& text, RECT& area) const {
  return DrawTextW(screen_.Get(), text.c_str(), -1, &area, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
}

}  // namespace brivane::win32

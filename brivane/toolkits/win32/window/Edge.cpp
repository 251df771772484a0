#include <algorithm>
#include <cmath>
#include <cstdint>

#include <brivane/controls/Pixels.h>
#include <brivane/toolkits/win32/window/Edge.h>

namespace brivane::win32 {

namespace {

constexpr float kTwipsPerPoint = 20;
constexpr std::uint32_t kSystemColor = 0x80000000U;

}  // namespace

int Edge::Pixel(float twips) const { return controls::Pixel(twips, scale_); }

RECT Edge::Pixels(const host::Place& place) const {
  const controls::PixelPlace pixels = controls::Pixels(place, scale_);
  return {pixels.left, pixels.top, pixels.left + pixels.width, pixels.top + pixels.height};
}

SIZE Edge::Pixels(host::Twips width, host::Twips height) const { return {Pixel(width.value), Pixel(height.value)}; }

host::Twips Edge::ToTwips(int pixels) const { return {static_cast<float>(pixels * controls::kTwipsPerPixel / scale_)}; }

int Edge::FontPixels(float points) const { return std::max(1, Pixel(points * kTwipsPerPoint)); }

int Edge::Designed(int pixels) const { return static_cast<int>(std::lround(pixels * scale_)); }

std::optional<COLORREF> OwnColor(host::Color color) {
  const auto value = static_cast<std::uint32_t>(color.value);
  if ((value & kSystemColor) != 0) return std::nullopt;
  return value & 0x00FFFFFFU;
}

COLORREF DrawnColor(host::Color color) {
  return OwnColor(color).value_or(GetSysColor(static_cast<int>(static_cast<std::uint32_t>(color.value) & 0xFFU)));
}

COLORREF TextOn(COLORREF background) {
  const int grey = (GetRValue(background) * 11 + GetGValue(background) * 16 + GetBValue(background) * 5) / 32;
  return grey < 128 ? RGB(255, 255, 255) : RGB(0, 0, 0);
}

}  // namespace brivane::win32

#include "component/control/Paper.h"

#include <algorithm>
#include <cmath>

#include "component/control/Units.h"
#include <brivane/toolkits/win32/window/Fonts.h>

namespace brivane::component {

Paper::Paper(HDC target, const RECT& bounds, SIZE size)
    : target_(target),
      bounds_(bounds),
      across_(1.0 * WidthOf(bounds) / size.cx),
      along_(1.0 * HeightOf(bounds) / size.cy) {}

void Paper::Fill(const RECT& place, COLORREF color) const {
  const RECT there = There(place);
  ::FillRect(target_, &there, win32::OwnedBrush(::CreateSolidBrush(color)).Get());
}

void Paper::Outline(const RECT& place, COLORREF color) const {
  const RECT there = There(place);
  const win32::Owned<HPEN, &::DeleteObject> pen(::CreatePen(PS_SOLID, 0, color));
  const win32::Selected drawn(target_, pen.Get());
  const POINT corners[] = {{there.left, there.top},
                           {there.right - 1, there.top},
                           {there.right - 1, there.bottom - 1},
                           {there.left, there.bottom - 1},
                           {there.left, there.top}};
  ::Polyline(target_, corners, 5);
}

void Paper::Round(const RECT& place, COLORREF line, COLORREF inside) const {
  const RECT there = There(place);
  const win32::Owned<HPEN, &::DeleteObject> pen(::CreatePen(PS_SOLID, 0, line));
  const win32::OwnedBrush brush(::CreateSolidBrush(inside));
  const win32::Selected drawn(target_, pen.Get());
  const win32::Selected filled(target_, brush.Get());
  ::Ellipse(target_, there.left, there.top, there.right, there.bottom);
}

void Paper::Lines(const std::vector<POINT>& points, COLORREF color) const {
  std::vector<POINT> there;
  there.reserve(points.size());
  for (const POINT point : points) there.push_back({X(point.x), Y(point.y)});
  const win32::Owned<HPEN, &::DeleteObject> pen(::CreatePen(PS_SOLID, 0, color));
  const win32::Selected drawn(target_, pen.Get());
  ::Polyline(target_, there.data(), static_cast<int>(there.size()));
}

void Paper::Text(const RECT& place, const std::wstring& text, HFONT font, COLORREF color, Align align) {
  if (text.empty()) return;
  const win32::Measuring measuring(font);
  const LONG spare = WidthOf(place) - measuring.Width(text);
  const LONG left = place.left + (align == Align::Left ? 0 : align == Align::Right ? spare : spare / 2);
  const LONG top = place.top + (HeightOf(place) - measuring.LineHeight()) / 2;
  const RECT there = There(place);
  const win32::Selected written(target_, FontThere(font));
  ::SetBkMode(target_, TRANSPARENT);
  ::SetTextAlign(target_, TA_LEFT | TA_TOP);
  ::SetTextColor(target_, color);
  ::ExtTextOutW(target_, X(left), Y(top), ETO_CLIPPED, &there, text.data(), static_cast<UINT>(text.size()), nullptr);
}

int Paper::X(LONG x) const { return static_cast<int>(std::lround(bounds_.left + x * across_)); }

int Paper::Y(LONG y) const { return static_cast<int>(std::lround(bounds_.top + y * along_)); }

RECT Paper::There(const RECT& place) const { return {X(place.left), Y(place.top), X(place.right), Y(place.bottom)}; }

HFONT Paper::FontThere(HFONT font) {
  win32::OwnedFont& made = fonts_[font];
  if (!made) {
    LOGFONTW description{};
    ::GetObjectW(font, sizeof description, &description);
    description.lfHeight = static_cast<LONG>(std::lround(description.lfHeight * along_));
    if (across_ != along_) {
      const win32::WindowContext screen;
      const win32::Selected measured(screen.Get(), font);
      TEXTMETRICW metrics{};
      ::GetTextMetricsW(screen.Get(), &metrics);
      description.lfWidth = static_cast<LONG>(std::lround(metrics.tmAveCharWidth * across_));
    }
    made.Reset(::CreateFontIndirectW(&description));
  }
  return made.Get();
}

std::vector<std::wstring> Wrapped(const std::wstring& text, HFONT font, LONG width) {
  const win32::Measuring measuring(font);
  std::vector<std::wstring> lines(1);
  std::size_t from = 0;
  while (from < text.size()) {
    const std::size_t end = std::min(text.find_first_of(L" \n", from), text.size());
    const std::wstring word = text.substr(from, end - from);
    const std::wstring longer = lines.back().empty() ? word : lines.back() + L' ' + word;
    if (lines.back().empty() || measuring.Width(longer) <= width)
      lines.back() = longer;
    else
      lines.push_back(word);
    if (end < text.size() && text[end] == L'\n') lines.emplace_back();
    from = end + 1;
  }
  return lines;
}

}  // namespace brivane::component

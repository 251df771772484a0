#include "component/control/SurfaceSubject.h"

#include <algorithm>

#include "controls/Surface.h"
#include "frame/Design.h"

namespace brivane::component {

namespace {

constexpr double kDesignedDpi = 96;

void Collect(const frame::Design& design, std::wstring& letters) {
  for (const frame::Row& row : design.rows) {
    if (row.mnemonic != '\0') letters.push_back(static_cast<wchar_t>(row.mnemonic));
    if (row.embedded.Given()) Collect(*static_cast<const frame::Design*>(row.embedded), letters);
  }
}

}  // namespace

float SurfaceSubject::Scale() const { return static_cast<float>(toolkit_.Edge().Scale() * kDesignedDpi / ScreenDpi()); }

Extent SurfaceSubject::Extent() const {
  const host::Place place = surface_.Place();
  return {place.width * Scale(), place.height * Scale()};
}

void SurfaceSubject::SetWidth(host::Twips width) {
  controls::Surface::Of(surface_).Size(width * (1 / Scale()), surface_.Place().height);
}

void SurfaceSubject::FollowFont(float points) {
  const float designed = controls::Surface::Of(surface_).Table().fontSize;
  const double scale = std::max(1.0F, points / designed) * ScreenDpi() / kDesignedDpi;
  if (scale == toolkit_.Edge().Scale()) return;
  toolkit_.SetScale(scale);
  toolkit_.Rescale(surface_);
}

void SurfaceSubject::Focus(TabEnd end) {
  (void)(end == TabEnd::First ? toolkit_.FocusFirst(surface_) : toolkit_.FocusLast(surface_));
}

std::wstring SurfaceSubject::Mnemonics() const {
  std::wstring letters;
  Collect(controls::Surface::Of(surface_).Table(), letters);
  return letters;
}

}  // namespace brivane::component

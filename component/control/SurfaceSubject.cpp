#include "component/control/SurfaceSubject.h"

#include <algorithm>
#include <utility>

#include "component/automation/Text.h"
#include "component/control/Sketch.h"
#include <brivane/controls/Surface.h>
#include <brivane/frame/Design.h>

namespace brivane::component {

namespace {

constexpr double kDesignedDpi = 96;

void Collect(const frame::Design& design, std::wstring& letters) {
  for (const frame::Row& row : design.rows) {
    if (row.mnemonic != '\0') letters.push_back(static_cast<wchar_t>(row.mnemonic));
    if (row.embedded.Given()) Collect(*static_cast<const frame::Design*>(row.embedded), letters);
  }
}

/// The controls that a colour of their surface comes to, on it and on what stands on it.
void CollectDesigned(host::Surface& surface, std::vector<host::Control*>& controls) {
  for (host::Control* const control : surface.Controls()) {
    if (control->BackColor() == host::kButtonFace) controls.push_back(control);
    if (auto* const inner = dynamic_cast<host::Surface*>(control)) CollectDesigned(*inner, controls);
  }
}

constexpr char kKeepQuestion[] =
    "De kleur of de breedte van dit onderdeel is gewijzigd. Wilt u de wijziging bij het formulier bewaren?";

}  // namespace

float SurfaceSubject::Scale() const { return static_cast<float>(toolkit_.Edge().Scale() * kDesignedDpi / ScreenDpi()); }

Extent SurfaceSubject::Extent() const {
  const host::Place place = surface_.Place();
  return {place.width * Scale(), place.height * Scale()};
}

void SurfaceSubject::SetWidth(host::Twips width) {
  controls::Surface::Of(surface_).Size(width * (1 / Scale()), surface_.Place().height);
}

void SurfaceSubject::Sketch(HDC target, const RECT& bounds) {
  SketchSurface(controls::Surface::Of(surface_), target, bounds);
}

void SurfaceSubject::FollowBackColor(host::Color color) {
  const host::Color before = BackColor();
  for (host::Control* const control : std::exchange(followers_, {}))
    if (control->BackColor() == before) control->SetBackColor(host::kButtonFace);
  CollectDesigned(surface_, followers_);
  SetBackColor(color);
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

bool SurfaceSubject::WantsToKeep() {
  return toolkit_.Ask(Narrow(UserType()), kKeepQuestion, host::MessageStyle::YesNoQuestion) == host::MessageAnswer::Yes;
}

std::wstring SurfaceSubject::Mnemonics() const {
  std::wstring letters;
  const controls::Surface& surface = controls::Surface::Of(surface_);
  if (!surface.IsVeiled()) Collect(surface.Table(), letters);
  return letters;
}

}  // namespace brivane::component

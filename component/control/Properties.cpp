#include "component/control/Properties.h"

#include <olectl.h>

#include <utility>

#include "component/control/View.h"

namespace brivane::component {

void Properties::SetBackColor(host::Color color) {
  const bool followed = !std::exchange(ownBackColor_, true);
  Touch();
  Show(color, followed);
}

void Properties::Show(host::Color color, bool inPlaceOfTheContainers) {
  if (inPlaceOfTheContainers)
    subject_.FollowBackColor(color);
  else
    subject_.SetBackColor(color);
  subject_.HasChanged(DISPID_BACKCOLOR);
}

void Properties::FollowAmbient() {
  FollowAmbientBackColor();
  FollowAmbientFont();
}

void Properties::FollowAmbientBackColor() {
  if (ownBackColor_) return;
  if (const auto color = site_.AmbientBackColor(); color && *color != subject_.BackColor()) Show(*color, true);
}

void Properties::FollowAmbientFont() {
  if (const auto points = site_.AmbientFontSize()) subject_.FollowFont(*points);
}

void Properties::Renew() {
  ownBackColor_ = false;
  FollowAmbient();
  Clean();
}

Kept Properties::Take() const {
  Kept kept;
  if (ownBackColor_) kept.backColor = subject_.BackColor();
  kept.size = HimetricOf(subject_.Extent());
  return kept;
}

void Properties::Restore(const Kept& kept) {
  const bool followed = !std::exchange(ownBackColor_, kept.backColor.has_value());
  if (kept.backColor) {
    if (*kept.backColor != subject_.BackColor()) Show(*kept.backColor, followed);
  } else {
    FollowAmbientBackColor();
  }
  if (kept.size.cx > 0 && kept.size.cx != HimetricOf(subject_.Extent().width))
    subject_.SetWidth(TwipsOfHimetric(kept.size.cx));
  Clean();
}

}  // namespace brivane::component

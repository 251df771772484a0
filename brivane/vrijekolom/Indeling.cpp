// Two columns of frames: positions in twips, the control's own height from the taller column.

#include <brivane/frame/Conversions.h>
#include <brivane/frame/LayoutHelpers.h>
#include <brivane/vrijekolom/Ontwerp.h>
#include <brivane/vrijekolom/VrijeKolom.h>

namespace brivane {

using namespace vrijekolom;
using host::Measure;
using host::Place;
using host::Twips;

namespace {

constexpr float kAanvangTop = 300;
constexpr std::int32_t kLooptijdTop = 660;
constexpr std::int32_t kRijstap = 360;
constexpr std::int32_t kAlgemeenMarge = 60;

Twips Heel(Twips lengte) { return {static_cast<float>(frame::ToInteger32(static_cast<double>(lengte.value)))}; }

void ZetTop(host::Control& control, std::int32_t top) { control.Write(Measure::Top, static_cast<float>(top)); }

}  // namespace

void VrijeKolom::UserControl_Initialize() {
  Initialised_ = true;
  frame::ScaleToResolution(desktop_, surface_.Controls(), surface_);
}

void VrijeKolom::UserControl_Resize() {
  if (Resizing_) return;
  Resizing_ = true;
  DeelAlgemeenIn();
  const Twips links = StapelLinks();
  const Twips rechts = StapelRechts();
  // This resizes the surface again; the nested call returns at once.
  surface_.Write(Measure::Height, frame::Larger(links, rechts).value);
  HeightChanged.Raise();
  Resizing_ = false;
}

// The expiry date takes the place of the duration for a contract; the two tests complement each other.
void VrijeKolom::DeelAlgemeenIn() {
  controls_[fraAanvangsdatum].Write(Measure::Top, kAanvangTop);
  std::int32_t y = kLooptijdTop;
  ZetTop(controls_[fraLooptijd], y);
  if (!IsContract_) y += kRijstap;
  ZetTop(controls_[fraVervaldatum], y);
  if (IsContract_) y += kRijstap;
  ZetTop(controls_[fraBeeindigen], y);
  controls_[fraAlgemeen].Write(Measure::Height, static_cast<float>(frame::ToInteger16(y + kAlgemeenMarge)));
}

/// Stacks the left column, hidden frames included, and answers its bottom.
Twips VrijeKolom::StapelLinks() {
  host::Frame& eerste = controls_[fraLast];
  const Place was = eerste.Place();
  eerste.Move({Twips{0}, Twips{0}, was.width, was.height});

  const host::Frame* boven = &eerste;
  for (const auto& kader : {fraFiscaal, fraAlgemeen, fraGegevens, fraHeffing}) {
    host::Frame& frame = controls_[kader];
    const Twips top = boven->Place().Bottom() + Twips{kKaderAfstand};
    frame.Move({eerste.Place().left, top, eerste.Place().width, frame.Place().height});
    boven = &frame;
  }
  return boven->Place().Bottom();
}

/// Places the product frame and the explanation control, and answers the right column's bottom.
Twips VrijeKolom::StapelRechts() {
  const Place links = controls_[fraLast].Place();
  host::Frame& product = controls_[fraProduct];
  Twips t = Heel(links.top);
  product.Move({links.Right() + Twips{kKolomAfstand}, t, product.Place().width, product.Place().height});

  host::Surface& toelichting = controls_[ToelichtingVlak];
  if (Initialised_) {
    t = Heel(t + product.Place().height + Twips{kKaderAfstand});
    toelichting.Move({product.Place().left, t, product.Place().width, toelichting.Place().height});
  }
  return toelichting.Place().Bottom();
}

}  // namespace brivane

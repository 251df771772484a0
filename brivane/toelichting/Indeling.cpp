#include <brivane/frame/Conversions.h>
#include <brivane/frame/LayoutHelpers.h>
#include <brivane/toelichting/Ontwerp.h>
#include <brivane/toelichting/Toelichting.h>

namespace brivane {

using namespace toelichting;
using host::Measure;
using host::Twips;

void Toelichting::UserControl_Initialize() {
  Fill_Listview();
  frame::ScaleToResolution(desktop_, surface_.Controls(), surface_);
}

void Toelichting::UserControl_Resize() {
  if (Resizing_) return;
  Resizing_ = true;
  const host::Place lijst = controls_[lstToelichting].Place();
  host::Frame& inhoud = controls_[fraContent];
  const std::int32_t top = frame::ToInteger32(static_cast<double>((lijst.Bottom() + Twips{kOnderLijst}).value));
  const host::Place was = inhoud.Place();
  inhoud.Move({Twips{kInhoudLinks}, Twips{static_cast<float>(top)}, was.width, was.height});

  const Twips onder = Twips{static_cast<float>(top)} + was.height + Twips{kOndermarge};
  const std::int32_t hoogte = frame::ToInteger32(static_cast<double>(onder.value));
  host::Frame& buiten = controls_[fraScenarios];
  buiten.Move({Twips{0}, Twips{0}, surface_.Place().width, Twips{static_cast<float>(hoogte)}});
  // This resizes the surface again; the nested call returns at once.
  surface_.Write(Measure::Height, buiten.Place().height.value);
  Resizing_ = false;
}

}  // namespace brivane

#include <brivane/controls/Choices.h>
#include <brivane/controls/Entrance.h>
#include <brivane/controls/Surface.h>

namespace brivane::controls {

namespace {

bool StandsIn(const AnyControl& control, const AnyControl& area) {
  const AnyControl* container = control.Container();
  while (container != nullptr && container != &area) container = container->Container();
  return container != nullptr;
}

/// The first stop that stands in an area of a surface, or in the whole of a surface that it holds.
AnyControl* FirstStop(const Surface& surface, const AnyControl& area) {
  AnyControl* first = nullptr;
  for (const auto& control : surface.Made()) {
    const int tab = control->Row().tab;
    if (tab == 0 || !control->Reachable() || !StandsIn(*control, area)) continue;
    if (first != nullptr && first->Row().tab <= tab) continue;
    first = control.get();
  }
  if (first == nullptr || first->ControlKind() != host::Kind::Surface) return first;
  return FirstStop(static_cast<const Surface&>(*first), *first);
}

}  // namespace

AnyControl* EntranceOf(const AnyControl& frame) {
  AnyControl* const first = frame.Reachable() ? FirstStop(*frame.Owner(), frame) : nullptr;
  if (first == nullptr || first->ControlKind() != host::Kind::OptionButton) return first;
  for (const auto& other : first->Owner()->Made())
    if (other->DesignName() == first->DesignName() && other->Reachable() &&
        static_cast<const OptionButton&>(*other).Value())
      return other.get();
  return first;
}

}  // namespace brivane::controls

#pragma once

#include "component/idl/Windows.h"

#include <vector>

#include "component/control/Subject.h"
#include <brivane/toolkits/win32/Toolkit.h>

namespace brivane::component {

/// The part of a subject that is the same for every control: its surface is one of the native toolkit's. What is left
/// to the object is its identity, its colour and what it holds of the host's.
class SurfaceSubject : public Subject {
 public:
  SurfaceSubject(win32::Toolkit& toolkit, host::Surface& surface) : toolkit_(toolkit), surface_(surface) {}

  [[nodiscard]] HWND Window() override { return win32::Toolkit::WindowOf(surface_); }
  [[nodiscard]] component::Extent Extent() const override;
  void SetWidth(host::Twips width) override;
  void Sketch(HDC target, const RECT& bounds) override;
  /// A surface gives its colour to the controls that have the designed one, which after the first colour are none; so
  /// the controls that took the container's go back to the designed one first.
  void FollowBackColor(host::Color color) override;
  /// Larger text than the design's makes everything larger; smaller text leaves it as designed.
  void FollowFont(float points) override;
  [[nodiscard]] bool Navigate(const MSG& message) override { return toolkit_.Navigate(surface_, message); }
  void Focus(TabEnd end) override;
  void HandOver() override { toolkit_.LeavePending(surface_); }
  void Abandon() override { toolkit_.Life()->Abandon(); }
  [[nodiscard]] std::wstring Mnemonics() const override;
  [[nodiscard]] bool WantsToKeep() override;

 private:
  /// Twips of the screen to a twip of the surface.
  [[nodiscard]] float Scale() const;

  win32::Toolkit& toolkit_;
  host::Surface& surface_;
  std::vector<host::Control*> followers_;  ///< the controls with the container's colour
};

}  // namespace brivane::component

#pragma once

#include <memory>

#include <brivane/controls/Plain.h>
#include <brivane/toolkits/win32/window/ControlWindow.h>

/// What stands there to be read: frame, label, and the area of a surface.
namespace brivane::win32 {

/// A group box that holds its controls; without a border an area that shows nothing of its own.
class FrameWindow final : public ControlWindow {
 public:
  FrameWindow(controls::Frame& frame, win32::Toolkit& toolkit);
  void Refresh(controls::Aspect aspect) override;

 private:
  controls::Frame& frame_;
};

class LabelWindow final : public ControlWindow {
 public:
  LabelWindow(controls::Label& label, win32::Toolkit& toolkit);
  void Refresh(controls::Aspect aspect) override;

 private:
  controls::Label& label_;
};

class SurfaceWindow final : public ControlWindow {
 public:
  SurfaceWindow(controls::Surface& surface, win32::Toolkit& toolkit);
  void Refresh(controls::Aspect aspect) override;

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void ShowVisible() override;
  void ShowPlace() override;

 private:
  void ShowVeil();
  void DrawVeil(HDC context) const;

  controls::Surface& surface_;
};

}  // namespace brivane::win32

#pragma once

#include <memory>

#include "toolkits/headless/Plain.h"
#include "toolkits/win32/ControlWindow.h"

/// What stands there to be read: frame, label, and the area of a surface.
namespace brivane::win32 {

/// A group box that holds its controls; without a border an area that shows nothing of its own.
class FrameWindow final : public ControlWindow {
 public:
  FrameWindow(headless::Frame& frame, win32::Toolkit& toolkit);
  void Refresh(headless::Aspect aspect) override;

 private:
  headless::Frame& frame_;
};

class LabelWindow final : public ControlWindow {
 public:
  LabelWindow(headless::Label& label, win32::Toolkit& toolkit);
  void Refresh(headless::Aspect aspect) override;

 private:
  headless::Label& label_;
};

class SurfaceWindow final : public ControlWindow {
 public:
  SurfaceWindow(headless::Surface& surface, win32::Toolkit& toolkit);

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void ShowVisible() override;
  void ShowPlace() override;

 private:
  headless::Surface& surface_;
};

}  // namespace brivane::win32

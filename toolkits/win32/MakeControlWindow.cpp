#include "toolkits/win32/BoxWindow.h"
#include "toolkits/win32/ButtonWindows.h"
#include "toolkits/win32/ComboWindow.h"
#include "toolkits/win32/DateWindow.h"
#include "toolkits/win32/HintWindow.h"
#include "toolkits/win32/ListViewWindow.h"
#include "toolkits/win32/PlainWindows.h"
#include "toolkits/win32/ToggleWindow.h"

namespace brivane::win32 {

using headless::Aspect;
using host::Kind;

namespace {

template <class Shown, class Control>
std::unique_ptr<ControlWindow> Make(headless::AnyControl& control, Toolkit& toolkit) {
  return std::make_unique<Shown>(static_cast<Control&>(control), toolkit);
}

std::unique_ptr<ControlWindow> MakeOf(headless::AnyControl& control, Toolkit& toolkit) {
  switch (control.ControlKind()) {
    case Kind::Frame: return Make<FrameWindow, headless::Frame>(control, toolkit);
    case Kind::Label: return Make<LabelWindow, headless::Label>(control, toolkit);
    case Kind::TextBox:
      if (control.Row().format == frame::Format::Date) return Make<DateWindow, headless::TextBox>(control, toolkit);
      return Make<BoxWindow, headless::TextBox>(control, toolkit);
    case Kind::JaNee: return Make<ToggleWindow, headless::JaNee>(control, toolkit);
    case Kind::Hint: return Make<HintWindow, headless::Hint>(control, toolkit);
    case Kind::OptionButton: return Make<OptionWindow, headless::OptionButton>(control, toolkit);
    case Kind::CheckBox: return Make<CheckWindow, headless::CheckBox>(control, toolkit);
    case Kind::ListBox: return Make<ComboWindow, headless::ListBox>(control, toolkit);
    case Kind::Button: return Make<PushWindow, headless::Button>(control, toolkit);
    case Kind::ListView: return Make<ListViewWindow, headless::ListView>(control, toolkit);
    case Kind::Surface: break;
  }
  return Make<SurfaceWindow, headless::Surface>(control, toolkit);
}

}  // namespace

std::unique_ptr<headless::Peer> MakeControlWindow(headless::AnyControl& control, Toolkit& toolkit) {
  std::unique_ptr<ControlWindow> window = MakeOf(control, toolkit);
  window->Rescale();
  if (!control.Host().Enabled()) window->Refresh(Aspect::Enabled);
  if (control.Host().Visible()) window->Refresh(Aspect::Visible);
  if (const auto color = control.Host().BackColor(); color && OwnColor(*color)) window->Refresh(Aspect::BackColor);
  return window;
}

}  // namespace brivane::win32

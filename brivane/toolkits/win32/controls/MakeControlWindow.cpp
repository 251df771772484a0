#include <brivane/toolkits/win32/controls/BoxWindow.h>
#include <brivane/toolkits/win32/controls/ButtonWindows.h>
#include <brivane/toolkits/win32/controls/ComboWindow.h>
#include <brivane/toolkits/win32/controls/DateWindow.h>
#include <brivane/toolkits/win32/controls/HintWindow.h>
#include <brivane/toolkits/win32/controls/ListViewWindow.h>
#include <brivane/toolkits/win32/controls/PlainWindows.h>
#include <brivane/toolkits/win32/controls/ToggleWindow.h>

namespace brivane::win32 {

using controls::Aspect;
using host::Kind;

namespace {

template <class Shown, class Control>
std::unique_ptr<ControlWindow> Make(controls::AnyControl& control, Toolkit& toolkit) {
  return std::make_unique<Shown>(static_cast<Control&>(control), toolkit);
}

std::unique_ptr<ControlWindow> MakeOf(controls::AnyControl& control, Toolkit& toolkit) {
  switch (control.ControlKind()) {
    case Kind::Frame: return Make<FrameWindow, controls::Frame>(control, toolkit);
    case Kind::Label: return Make<LabelWindow, controls::Label>(control, toolkit);
    case Kind::TextBox:
      if (control.Row().format == frame::Format::Date) return Make<DateWindow, controls::TextBox>(control, toolkit);
      return Make<BoxWindow, controls::TextBox>(control, toolkit);
    case Kind::JaNee: return Make<ToggleWindow, controls::JaNee>(control, toolkit);
    case Kind::Hint: return Make<HintWindow, controls::Hint>(control, toolkit);
    case Kind::OptionButton: return Make<OptionWindow, controls::OptionButton>(control, toolkit);
    case Kind::CheckBox: return Make<CheckWindow, controls::CheckBox>(control, toolkit);
    case Kind::ListBox: return Make<ComboWindow, controls::ListBox>(control, toolkit);
    case Kind::Button: return Make<PushWindow, controls::Button>(control, toolkit);
    case Kind::ListView: return Make<ListViewWindow, controls::ListView>(control, toolkit);
    case Kind::Surface: break;
  }
  return Make<SurfaceWindow, controls::Surface>(control, toolkit);
}

}  // namespace

std::unique_ptr<controls::Peer> MakeControlWindow(controls::AnyControl& control, Toolkit& toolkit) {
  std::unique_ptr<ControlWindow> window = MakeOf(control, toolkit);
  window->Rescale();
  if (!control.Host().Enabled()) window->Refresh(Aspect::Enabled);
  if (control.Host().Visible()) window->Refresh(Aspect::Visible);
  if (const auto color = control.Host().BackColor(); color && OwnColor(*color)) window->Refresh(Aspect::BackColor);
  return window;
}

}  // namespace brivane::win32

#include <brivane/toolkits/win32/form/FormWindow.h>
#include <brivane/toolkits/win32/window/NameLabel.h>
#include <brivane/toolkits/win32/window/Text.h>

namespace brivane::win32 {

NameLabel::NameLabel(const controls::AnyControl& control, win32::Toolkit& toolkit)
    : Window(toolkit, {.className = L"STATIC", .style = WS_CHILD | WS_VISIBLE | SS_NOPREFIX},
             AreaOf(*control.Container())),
      control_(control) {}

LRESULT NameLabel::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  std::string name(control_.AccessibleName());
  if (const std::string row = FormWindow::RowText(control_); !row.empty()) name += ", " + row;
  const auto answer = AnswerText(name, message, wParam, lParam);
  return answer ? *answer : Window::OnMessage(message, wParam, lParam);
}

}  // namespace brivane::win32

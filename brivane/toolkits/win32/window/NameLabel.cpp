#include <brivane/toolkits/win32/window/NameLabel.h>
#include <brivane/toolkits/win32/window/Text.h>

namespace brivane::win32 {

NameLabel::NameLabel(const controls::AnyControl& control, win32::Toolkit& toolkit)
    : Window(toolkit, {.className = L"STATIC", .style = WS_CHILD | WS_VISIBLE | SS_NOPREFIX},
             AreaOf(*control.Container())),
      control_(control) {}

LRESULT NameLabel::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  const auto answer = AnswerText(std::string(control_.AccessibleName()), message, wParam, lParam);
  return answer ? *answer : Window::OnMessage(message, wParam, lParam);
}

}  // namespace brivane::win32

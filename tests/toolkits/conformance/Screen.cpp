#include "tests/toolkits/conformance/Screen.h"

#include <chrono>
#include <thread>

#include <brivane/controls/entry/Content.h>

namespace brivane::test {

void ScreenUnderTest::TypeOver(const std::string& text) {
  Press('A', With::Control);
  if (text.empty())
    Press(Key::Delete);
  else
    Type(text);
}

void ScreenUnderTest::GiveFocus(controls::AnyControl& control) {
  control.GetPeer()->TakeFocus();
  Settle();
}

bool ScreenUnderTest::Await(const std::function<bool()>& so) {
  using namespace std::chrono_literals;
  for (int i = 0; i < 400 && !so(); ++i) {
    std::this_thread::sleep_for(5ms);
    Settle();
  }
  return so();
}

OnScreen::OnScreen() : subject(GetParam().make()), surface(subject->Toolkit().MakeSurface(kSurface)) {
  subject->Show(controls::Surface::Of(*surface));
  subject->Settle();
  subject->Answer([this](const std::string& title, const std::string& text, host::MessageStyle) {
    log.push_back("message " + title + ": " + text);
    return host::MessageAnswer::Ok;
  });
}

controls::AnyControl& OnScreen::Control(std::string_view name, int index) {
  return *controls::Surface::Of(*surface).Find(name, index);
}

void OnScreen::Follow(std::string_view name) {
  controls::TextBox& box = Box(name);
  subscriptions += box.Validation.Connect([this, &box](bool& Cancel) {
    log.push_back(box.ElementName() + " = " + controls::ShowContent(box.Content(), box.Format()));
    Cancel = refuse;
  });
}

}  // namespace brivane::test

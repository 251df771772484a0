#include "tests/toolkits/web/Stage.h"

#include <emscripten.h>
#include <gtest/gtest.h>

#include <cctype>
#include <cstdlib>
#include <map>
#include <sstream>

#include <brivane/controls/Choices.h>
#include <brivane/controls/Surface.h>
#include <brivane/controls/TextBox.h>
#include <brivane/controls/entry/Content.h>
#include <brivane/toolkits/web/peers/FormDialog.h>

// clang-format off
EM_JS(int, brivane_stage_open, (), { return Module["stage"]["open"](); })
EM_JS(void, brivane_stage_close, (int page), { Module["stage"]["close"](page); })
EM_JS(char*, brivane_stage_look, (int page, const char* what, int node, int number), {
  return Module["stage"]["look"](page, UTF8ToString(what), node, number);
})
EM_JS(void, brivane_stage_do, (int page, const char* what, int doing), {
  Module["stage"]["do"](page, UTF8ToString(what), doing);
})
// clang-format on

namespace brivane::test {

namespace {

std::map<int, Stage*> stages_;
/// Something that is being done.
struct Doing {
  web::Waiting waiting = {};
  std::string failure = {};
};

std::map<int, Doing*> doings_;

std::string PlainName(Key key) {
  switch (key) {
    case Key::Tab: return "Tab";
    case Key::Enter: return "Enter";
    case Key::KeypadEnter: return "NumpadEnter";
    case Key::Escape: return "Escape";
    case Key::Space: return "Space";
    case Key::Delete: return "Delete";
    case Key::Left: return "ArrowLeft";
    case Key::Right: return "ArrowRight";
    case Key::Up: return "ArrowUp";
    case Key::Down: return "ArrowDown";
    case Key::Home: return "Home";
    case Key::End: return "End";
    case Key::PageUp: return "PageUp";
    case Key::PageDown: return "PageDown";
    case Key::F4: return "F4";
    case Key::KeypadPoint: return "Keypad.";
    case Key::KeypadComma: return "Keypad,";
  }
  return {};
}

std::string Held(With with) {
  switch (with) {
    case With::Shift: return "Shift+";
    case With::Control: return "Control+";
    case With::Alt: return "Alt+";
    case With::None: break;
  }
  return {};
}

/// A turn of what a test does while something waits; what it throws is told here.
void RunPart(std::function<void()> part) {
  web::RunTurn([part = std::move(part)] {
    try {
      part();
    } catch (const std::exception& failure) {
      ADD_FAILURE() << "thrown: " << failure.what();
    } catch (...) {
      ADD_FAILURE() << "thrown";
    }
  });
}

class Doer {
 public:
  Doer(const Stage& stage, controls::AnyControl& control) : stage_(stage), control_(control) {}

  void operator()(const controls::Press&) const { stage_.Click(control_, Stage::Where::Middle); }
  void operator()(const controls::Select&) const { stage_.Click(control_); }
  void operator()(const controls::Tick& tick) const {
    if (static_cast<const controls::CheckBox&>(control_).Value() != tick.value) stage_.Click(control_);
  }
  void operator()(const controls::Toggle& toggle) const {
    stage_.Click(control_, toggle.value == host::kJa ? Stage::Where::LeftQuarter : Stage::Where::RightQuarter);
  }
  void operator()(const controls::Choose& choose) const {
    stage_.Click(control_, Stage::Where::Middle);
    if (!stage_.Sees("dropped", &control_)) return;
    stage_.Press(Key::Home);
    for (int i = 0; i < choose.index; ++i) stage_.Press(Key::Down);
    stage_.Press(Key::Enter);
  }
  void operator()(const controls::Enter& enter) const {
    stage_.Click(control_, Stage::Where::Middle);
    if (stage_.Look("focused") != control_.ElementName()) return;
    const auto format = static_cast<const controls::TextBox&>(control_).Format();
    const std::string text = controls::ShowContent(enter.value, format);
    stage_.Press('A', With::Control);
    if (text.empty())
      stage_.Press(Key::Delete);
    else
      stage_.Type(text);
    stage_.Press(Key::Tab);
  }
  void operator()(const controls::Close&) const { stage_.Do("click " + stage_.Look("close", &control_)); }

 private:
  const Stage& stage_;
  controls::AnyControl& control_;
};

}  // namespace

std::string NameOf(Key key, With with) { return Held(with) + PlainName(key); }
std::string NameOf(char key, With with) {
  return Held(with) + static_cast<char>(std::tolower(static_cast<unsigned char>(key)));
}

web::NodeId NodeOf(const controls::AnyControl& control) {
  controls::Peer* const peer = control.GetPeer();
  if (const auto* const form = dynamic_cast<const web::FormDialog*>(peer)) return form->Node();
  return dynamic_cast<const web::NodePeer&>(*peer).Node();
}

Stage::Element::Element() : page(brivane_stage_open()) {}
Stage::Element::~Element() { brivane_stage_close(page); }

Stage::Stage() { stages_[element_.page] = this; }
Stage::~Stage() { stages_.erase(element_.page); }

Stage* Stage::Find(int page) {
  const auto found = stages_.find(page);
  return found != stages_.end() ? found->second : nullptr;
}

void Stage::Show(controls::Surface& surface) {
  shown_ = &surface;
  Do("show " + std::to_string(NodeOf(surface)));
}

void Stage::Do(const std::string& what) const {
  static int last = 0;
  Doing doing;
  const int number = ++last;
  doings_[number] = &doing;
  brivane_stage_do(element_.page, what.c_str(), number);
  doing.waiting.Wait();
  if (!doing.failure.empty()) ADD_FAILURE() << what << ": " << doing.failure;
}

std::string Stage::Look(std::string_view what, const controls::AnyControl* control, int number) const {
  const web::NodeId node = control != nullptr ? NodeOf(*control) : web::kNoNode;
  char* const seen = brivane_stage_look(element_.page, std::string(what).c_str(), node, number);
  std::string text = seen;
  std::free(seen);
  return text;
}

bool Stage::Sees(std::string_view what, const controls::AnyControl* control) const {
  return Look(what, control) == "true";
}

void Stage::Click(const controls::AnyControl& control, Where where) const {
  std::istringstream place(Look("place", &control));
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;
  if (!(place >> left >> top >> width >> height)) return;
  const double across = where == Where::LeftEnd        ? 8
                        : where == Where::LeftQuarter  ? width / 4
                        : where == Where::RightQuarter ? 3 * width / 4
                        : where == Where::RightEnd     ? width - 10
                                                       : width / 2;
  Do("click " + std::to_string(left + across) + " " + std::to_string(top + height / 2));
}

void Stage::TurnWheel(const controls::AnyControl& control, int notches) const {
  const std::string place = Look("place", &control);
  if (!place.empty()) Do("wheel " + std::to_string(notches) + " " + place);
}

void Stage::Gesture(controls::AnyControl& control, const controls::Action& action) const {
  std::visit(Doer(*this, control), action);
}

void Stage::Opened(web::NodeId node) {
  web::FormDialog* const dialog = toolkit_.FindForm(node);
  if (dialog == nullptr) return;
  RunPart([this, form = &dialog->Form()] {
    if (!whileOpen_) ADD_FAILURE() << "a form that nobody waited for";
    const auto script = std::exchange(whileOpen_, nullptr);
    const auto life = toolkit_.Life();
    if (script) script(*form);
    if (!life->Ended() && !form->IsUnloaded()) form->Unload();
  });
}

void Stage::Asked(int box) {
  RunPart([this, box] {
    if (!whileAsked_) ADD_FAILURE() << "a message that nobody waited for: " << Look("message");
    if (const auto script = std::exchange(whileAsked_, nullptr)) script();
    if (Sees("asked")) toolkit_.Desktop().Answered(box, host::MessageAnswer::No);
  });
}

}  // namespace brivane::test

extern "C" {

/// `failure` is empty where it could be done.
EMSCRIPTEN_KEEPALIVE void brivane_stage_done(int doing, const char* failure) {
  const auto found = brivane::test::doings_.find(doing);
  found->second->failure = failure;
  found->second->waiting.End();
  brivane::test::doings_.erase(found);
}

EMSCRIPTEN_KEEPALIVE void brivane_stage_opened(int page, int form) {
  if (brivane::test::Stage* const stage = brivane::test::Stage::Find(page)) stage->Opened(form);
}

EMSCRIPTEN_KEEPALIVE void brivane_stage_asked(int page, int box) {
  if (brivane::test::Stage* const stage = brivane::test::Stage::Find(page)) stage->Asked(box);
}

}  // extern "C"

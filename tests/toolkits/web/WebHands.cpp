#include "tests/toolkits/person/Hands.h"
#include "tests/toolkits/web/Stage.h"

namespace brivane::test {
namespace {

class WebHands final : public Hands {
 public:
  WebHands() : surface_(Toolkit().MakeSurface(kSurface)) { Show(*surface_); }

  [[nodiscard]] host::Surface& Surface() override { return *surface_; }
  [[nodiscard]] web::Toolkit& Toolkit() override { return stage_.Toolkit(); }
  void Show(host::Surface& surface) override { stage_.Show(controls::Surface::Of(surface)); }
  void WhileOpen(std::function<void(controls::Form&)> script) override { stage_.WhileOpen(std::move(script)); }

  void Press(Key key, With with) override { stage_.Press(key, with); }
  void PressAlt(char letter) override { stage_.Press(letter, With::Alt); }
  void Type(const std::string& text) override { stage_.Type(text); }
  void Click(controls::AnyControl& control) override { stage_.Click(control); }
  void TurnWheel(controls::AnyControl& control, int notches) override { stage_.TurnWheel(control, notches); }
  [[nodiscard]] int Scrolled() const override { return std::stoi(stage_.Look("scrolled")); }
  void GiveFocus(controls::AnyControl& control) override { stage_.Do("focus " + std::to_string(NodeOf(control))); }
  void PickInOpenList(controls::ListBox& list, int index) override { stage_.Gesture(list, controls::Choose{index}); }
  bool CommitPending() override { return Toolkit().HandOver(controls::Surface::Of(*surface_)); }

  [[nodiscard]] std::string Focused() const override { return stage_.Look("focused"); }
  [[nodiscard]] int ShownEntry(controls::ListBox& list) const override {
    return std::stoi(stage_.Look("entry", &list));
  }
  [[nodiscard]] std::string FocusedText() const override { return stage_.Look("focusedText"); }

  [[nodiscard]] bool AnswerBox(std::chrono::milliseconds pause, const std::vector<BoxKey>& keys,
                               const std::function<void()>& bringUp) override {
    Toolkit().Desktop().pause = pause;
    bool answered = true;
    stage_.WhileAsked([&] {
      read_ = stage_.Look("message");
      for (const BoxKey& key : keys)
        if (stage_.Sees("asked")) Press(key);
      answered = !stage_.Sees("asked");
    });
    // No time passes but what the keys come after.
    stage_.Do("clock stop");
    bringUp();
    stage_.Do("clock start");
    return answered;
  }
  [[nodiscard]] std::string Read() const override { return read_; }
  void AddToQuestions(const std::string& details) override {
    Toolkit().Desktop().details = [details](const auto&, const auto&) { return details; };
  }

 private:
  void Press(const BoxKey& key) const {
    if (key.after.count() > 0) stage_.Do("wait " + std::to_string(key.after.count()));
    const With with = key.alt ? With::Alt : With::None;
    stage_.Do((key.held ? "hold " : "press ") + (key.key ? NameOf(*key.key, with) : NameOf(key.letter, with)));
  }

  Stage stage_;
  std::unique_ptr<host::Surface> surface_;
  std::string read_;
};

}  // namespace

std::unique_ptr<Hands> MakeHands() { return std::make_unique<WebHands>(); }

}  // namespace brivane::test

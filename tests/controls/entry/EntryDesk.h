#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tests/toolkits/conformance/TestDesign.h"
#include <brivane/controls/DrawnToolkit.h>
#include <brivane/controls/TextBox.h>
#include <brivane/controls/entry/Content.h>
#include <brivane/controls/entry/PendingEdit.h>
#include <brivane/toolkits/memory/Desktop.h>

/// Boxes that are typed in without a screen.
namespace brivane::controls {

/// A box on a screen that nobody sees.
class TestFace final : public EntryFace {
 public:
  std::string text;
  std::string reason;
  std::string note;
  bool focused = false;
  bool selected = false;
  bool readOnly = false;
  bool atHand = true;
  int calls = 0;  ///< of whatever changes it
  frame::Language language = frame::Language::Dutch;
  std::function<void()> whenFocused;

  [[nodiscard]] std::string Text() const override { return text; }
  void ShowText(const std::string& shown) override { Change(text, shown); }
  void InsertText(const std::string& inserted) override { Change(text, selected ? inserted : text + inserted); }
  void SelectAll() override { Change(selected, true); }
  [[nodiscard]] bool HasFocus() const override { return focused; }
  void TakeFocus() override {
    Change(focused, true);
    if (whenFocused) whenFocused();
  }
  [[nodiscard]] bool ReadOnly() const override { return readOnly; }
  [[nodiscard]] bool IsAtHand() const override { return atHand; }
  [[nodiscard]] const frame::Texts& Texts() const override { return frame::Texts::In(language); }
  void ShowReason(const std::string& why) override {
    Change(note, std::string());
    Change(reason, why);
  }
  void ShowNote(const std::string& what) override {
    Change(reason, std::string());
    Change(note, what);
  }
  void HideReason() override { ShowReason({}); }

 private:
  template <class T> void Change(T& member, T value) {
    member = std::move(value);
    ++calls;
  }
};

/// Shows a text box, as the peers of a real toolkit do.
class TestBoxPeer final : public Peer {
 public:
  TestBoxPeer(TextBox& box, DrawnToolkit& toolkit) { edit.Tie(box, toolkit); }
  void Refresh(Aspect aspect) override {
    if (aspect == Aspect::Value) edit.ShowContent();
  }

  TestFace face;
  PendingEdit edit{face};
};

class TestToolkit final : public DrawnToolkit {
 public:
  [[nodiscard]] memory::Desktop& Desktop() override { return desktop_; }
  [[nodiscard]] host::Twips MeasureText(const frame::Design&, std::string_view, bool) const override { return {}; }
  [[nodiscard]] const frame::Texts& Texts() const override { return frame::Texts::In(language); }
  [[nodiscard]] host::MessageAnswer Ask(const std::string& caption, const std::string& text,
                                        host::MessageStyle) override {
    asked.push_back(caption + ": " + text);
    return answer;
  }

  std::vector<std::string> asked;
  frame::Language language = frame::Language::Dutch;
  host::MessageAnswer answer = host::MessageAnswer::No;

 protected:
  [[nodiscard]] std::unique_ptr<Peer> MakePeer(AnyControl& control) override {
    if (control.ControlKind() != host::Kind::TextBox) return nullptr;
    return std::make_unique<TestBoxPeer>(static_cast<TextBox&>(control), *this);
  }

 private:
  memory::Desktop desktop_;
};

/// The design with every kind of box; `log` holds what they hand over.
class EntryTest : public testing::Test {
 protected:
  EntryTest() {
    for (const char* name : {"txtNaam", "txtBedrag", "txtPercentage", "txtJaren", "txtDatum"}) Follow(Box(name));
  }

  [[nodiscard]] TextBox& Box(std::string_view name) { return static_cast<TextBox&>(*Surface::Of(*surface).Find(name)); }
  [[nodiscard]] static TestFace& Face(const TextBox& box) { return static_cast<TestBoxPeer&>(*box.GetPeer()).face; }
  [[nodiscard]] static PendingEdit& Edit(const TextBox& box) { return static_cast<TestBoxPeer&>(*box.GetPeer()).edit; }
  /// A person replaces what stands in a box.
  static void TypeOver(const TextBox& box, const std::string& text) {
    Face(box).text = text;
    Face(box).selected = false;
    Edit(box).Typed();
  }
  void Follow(TextBox& box) {
    subscriptions += box.Validation.Connect([this, &box](bool& Cancel) {
      log.push_back(box.ElementName() + " = " + ShowContent(box.Content(), box.Format()));
      Cancel = refuse;
    });
  }

  TestToolkit toolkit;
  std::unique_ptr<host::Surface> surface = toolkit.MakeSurface(test::kSurface);
  host::Subscriptions subscriptions;
  std::vector<std::string> log;
  bool refuse = false;
};

/// A form with three rows.
class RowsTest : public EntryTest {
 protected:
  static constexpr auto kBedrag = frame::Find<frame::Kind::TextBox>(test::kForm, "txtBedrag");
  static constexpr auto kEenmalig = frame::Find<frame::Kind::CheckBox>(test::kForm, "chkEenmalig");

  RowsTest() {
    for (int i = 1; i <= 3; ++i) {
      form->Create(kBedrag.row, i).SetVisible(true);
      form->Create(kEenmalig.row, i).SetVisible(true);
      Follow(Row(i));
    }
  }
  [[nodiscard]] TextBox& Row(int index) { return static_cast<TextBox&>(*form->Element(kBedrag.row, index)); }
  [[nodiscard]] Form& Window() { return dynamic_cast<Form&>(*form); }

  std::unique_ptr<host::Form> form = toolkit.MakeForm(test::kForm);
};

}  // namespace brivane::controls

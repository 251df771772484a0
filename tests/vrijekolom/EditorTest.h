#pragma once

#include "tests/support/ControlTest.h"
#include <brivane/scenario/frmScenario.h>
#include <brivane/vrijekolom/Ontwerp.h>
#include <brivane/vrijekolom/VrijeKolom.h>

namespace brivane::test {

/// The editor, whose events stand in the host's calls. Bind binds column 1 of the current loan.
class EditorTest : public ControlTest {
 protected:
  EditorTest() : ControlTest(vrijekolom::kOntwerp) {}

  void SetUp() override { Make(); }
  void Make() {
    editor_.emplace(*surface_, toolkit_, host_.Factories());
    subscriptions_ += editor_->RefreshTopDisplay.Connect(
        [this](const std::string& text) { host_.calls.Add("event RefreshTopDisplay " + text); });
    subscriptions_ += editor_->HeightChanged.Connect([this] { host_.calls.Add("event HeightChanged"); });
    Forget();
  }
  void Bind(std::int16_t Len_Id = 0, std::int16_t Vrij_Id = 1) {
    editor_->SetApplication(host_.application, Len_Id, Vrij_Id);
  }
  void BindUnheard(std::int16_t Len_Id = 0, std::int16_t Vrij_Id = 1) {
    Bind(Len_Id, Vrij_Id);
    Forget();
  }
  bool Validate(std::int32_t nummer, bool cancel = false) {
    editor_->Validation(cancel, nummer);
    return cancel;
  }
  /// Leaves the mark of an edit that changes nothing else that matters to a test.
  void MarkChanged() {
    Act(on_[vrijekolom::TxtOm], controls::Enter{std::string("anders")});
    Forget();
  }
  /// A list entry by its text.
  void Pick(host::ListBox& list, const std::string& text) {
    for (int i = 0; i < list.ListCount(); ++i)
      if (list.List(i) == text) {
        Act(list, controls::Choose{i});
        return;
      }
    FAIL() << "no entry " << text;
  }
  [[nodiscard]] frame::Controls InToelichting() { return frame::Controls(on_[vrijekolom::ToelichtingVlak]); }

  TestKolom& kolom_ = host_.Kolom(1);
  std::optional<VrijeKolom> editor_;
  host::Subscriptions subscriptions_;
};

/// The lines of a binding of the explanation control.
inline const Lines kHerbonden{"enter Toelichting.SetApplication",
                              "enter Toelichting.Show_Keuze",
                              "leave Toelichting",
                              "enter Toelichting.Fill_Controls",
                              "leave Toelichting",
                              "leave Toelichting"};

/// Pieces of a log, one after the other.
inline Lines Join(std::initializer_list<Lines> pieces) {
  Lines all;
  for (const Lines& piece : pieces) all.insert(all.end(), piece.begin(), piece.end());
  return all;
}

}  // namespace brivane::test

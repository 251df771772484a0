#include "tests/toolkits/conformance/Conformance.h"

/// Forms: templates and the elements made from them, showing, closing and sizes.
namespace brivane::test {

using controls::Outcome;

class FormConformance : public Conformance {
 protected:
  static constexpr auto lblJaar = frame::Find<Kind::Label>(kForm, "lblJaar");
  static constexpr auto txtBedrag = frame::Find<Kind::TextBox>(kForm, "txtBedrag");
  static constexpr auto chkEenmalig = frame::Find<Kind::CheckBox>(kForm, "chkEenmalig");
  static constexpr auto cmdOK = frame::Find<Kind::Button>(kForm, "cmdOK");

  FormConformance() : form(subject->Toolkit().MakeForm(kForm)) {
    subscriptions += form->Activate.Connect([this] { log.emplace_back("Activate"); });
    subscriptions += form->Unloaded.Connect([this] { log.emplace_back("Unloaded"); });
  }

  template <Kind K> [[nodiscard]] frame::TypeOf<K>& At(frame::Handle<K> handle) {
    return static_cast<frame::TypeOf<K>&>(form->At(handle.row));
  }
  template <Kind K> frame::TypeOf<K>& Create(frame::Handle<K> handle, int index) {
    return static_cast<frame::TypeOf<K>&>(form->Create(handle.row, index));
  }
  [[nodiscard]] controls::Form& Window() { return dynamic_cast<controls::Form&>(*form); }
  [[nodiscard]] controls::ControlDump ShownOnForm(std::string_view name) {
    subject->Settle();
    for (const controls::ControlDump& dump : subject->Shown(Window()))
      if (dump.name == name) return dump;
    throw std::logic_error("not on the form: " + std::string(name));
  }
  /// Shows the form and runs a script while it is open.
  void Open(const std::function<void()>& script) {
    subject->WhileOpen([&](controls::Form& open) {
      EXPECT_EQ(&open, &Window());
      log.emplace_back("open");
      subject->Settle();
      script();
    });
    form->ShowModal(nullptr);
    subject->Settle();
    log.emplace_back("closed");
  }

  std::unique_ptr<host::Form> form;
};

INSTANTIATE_TEST_SUITE_P(Toolkit, FormConformance, testing::ValuesIn(Subjects()), SubjectName);

TEST_P(FormConformance, TemplatesStartInvisibleAndTheRestVisible) {
  EXPECT_FALSE(ShownOnForm("lblJaar(0)").visible);
  EXPECT_FALSE(ShownOnForm("txtBedrag(0)").visible);
  EXPECT_FALSE(ShownOnForm("chkEenmalig(0)").visible);
  EXPECT_TRUE(ShownOnForm("fraRooster").visible);
  EXPECT_TRUE(ShownOnForm("cmdOK").visible);
}

TEST_P(FormConformance, AnElementCopiesItsTemplateAndStartsInvisible) {
  host::TextBox& original = At(txtBedrag);
  original.Move({{700}, {310}, {1000}, {285}});
  original.Write(host::Measure::FontSize, 7.2F);
  original.SetBackColor(host::Color{255});
  original.SetEnabled(false);
  original.SetLocked(true);
  original.SetVisible(true);
  host::TextBox& box = Create(txtBedrag, 1);
  EXPECT_EQ(box.Name(), "txtBedrag");
  EXPECT_EQ(box.Kind(), Kind::TextBox);
  EXPECT_EQ(box.Place(), (host::Place{{700}, {310}, {1000}, {285}}));
  EXPECT_EQ(box.Read(host::Measure::FontSize), 7.2F);
  EXPECT_EQ(box.BackColor(), host::Color{255});
  EXPECT_FALSE(box.Enabled());
  EXPECT_TRUE(box.Locked());
  EXPECT_FALSE(box.Visible());
  const controls::ControlDump shown = ShownOnForm("txtBedrag(1)");
  EXPECT_EQ(shown.place, (host::Place{{700}, {310}, {1000}, {285}}));
  EXPECT_FALSE(shown.visible);
  EXPECT_FALSE(shown.enabled);
  EXPECT_EQ(shown.locked, true);
  At(lblJaar).SetCaption("2024");
  EXPECT_EQ(Create(lblJaar, 1).Caption(), "2024");
}

TEST_P(FormConformance, AnElementIsApartFromItsTemplateOnceMade) {
  host::TextBox& box = Create(txtBedrag, 1);
  box.SetNumber(12);
  box.SetVisible(true);
  At(txtBedrag).Write(host::Measure::Width, 100);
  EXPECT_EQ(At(txtBedrag).Number(), 0);
  EXPECT_FALSE(At(txtBedrag).Visible());
  EXPECT_EQ(box.Read(host::Measure::Width), 1200.0F);
}

TEST_P(FormConformance, ElementsAreReachedByIndexAndTheTemplateIsElementZero) {
  host::Control& third = Create(txtBedrag, 3);
  host::Control& first = Create(txtBedrag, 1);
  EXPECT_EQ(form->Element(txtBedrag.row, 3), &third);
  EXPECT_EQ(form->Element(txtBedrag.row, 1), &first);
  EXPECT_EQ(form->Element(txtBedrag.row, 0), &form->At(txtBedrag.row));
  EXPECT_EQ(form->Element(txtBedrag.row, 2), nullptr);
  EXPECT_EQ(form->Element(txtBedrag.row, 4), nullptr);
  EXPECT_EQ(form->Element(txtBedrag.row, -1), nullptr);
  EXPECT_EQ(form->Element(lblJaar.row, 1), nullptr);
}

TEST_P(FormConformance, TheControlsHoldTheTemplatesAndEveryElementInTheOrderOfCreation) {
  host::Control& label = Create(lblJaar, 1);
  host::Control& box = Create(txtBedrag, 1);
  const std::vector<host::Control*>& controls = form->Controls();
  ASSERT_EQ(controls.size(), std::size(kFormRows) + 2);
  EXPECT_EQ(controls[txtBedrag.row], &form->At(txtBedrag.row));
  EXPECT_EQ(controls[std::size(kFormRows)], &label);
  EXPECT_EQ(controls[std::size(kFormRows) + 1], &box);
}

TEST_P(FormConformance, EightyRowsOfElementsAreMade) {
  for (int i = 1; i <= 80; ++i) {
    Create(lblJaar, i).SetCaption(std::to_string(i));
    Create(txtBedrag, i).SetNumber(i);
  }
  EXPECT_EQ(ShownOnForm("lblJaar(80)").caption, "80");
  EXPECT_EQ(ShownOnForm("txtBedrag(41)").value, controls::DumpValue(41.0));
}

TEST_P(FormConformance, TheWindowIsLargerThanItsInsideByFrameAndTitle) {
  EXPECT_EQ(form->ScaleWidth(), host::Twips{6120});
  EXPECT_EQ(form->ScaleHeight(), host::Twips{3600});
  const host::Twips frameWidth = form->Place().width - form->ScaleWidth();
  const host::Twips frameHeight = form->Place().height - form->ScaleHeight();
  EXPECT_GE(frameWidth.value, 0);
  EXPECT_GT(frameHeight.value, 0);
  int resizes = 0;
  subscriptions += form->Resize.Connect([&] { ++resizes; });
  form->Write(host::Measure::Height, 4500 + frameHeight.value);
  form->Write(host::Measure::Width, 7500 + frameWidth.value);
  EXPECT_EQ(resizes, 2);
  EXPECT_EQ(form->ScaleHeight(), host::Twips{4500});
  EXPECT_EQ(form->ScaleWidth(), host::Twips{7500});
}

TEST_P(FormConformance, TheCaptionIsThatOfTheDesignUntilItIsSet) {
  EXPECT_EQ(form->Caption(), "Proefformulier");
  form->SetCaption("Rente");
  EXPECT_EQ(form->Caption(), "Rente");
}

TEST_P(FormConformance, ShowingActivatesAndClosesWhatWasLeftOpen) {
  Open([] {});
  EXPECT_EQ(log, (std::vector<std::string>{"Activate", "open", "Unloaded", "closed"}));
}

TEST_P(FormConformance, APersonWorksTheFormWhileItIsOpen) {
  host::TextBox& box = Create(txtBedrag, 1);
  box.SetVisible(true);
  subscriptions += box.Validation.Connect([&](bool&) { log.push_back("entered " + std::to_string(box.Number())); });
  subscriptions += At(cmdOK).Click.Connect([this] {
    log.emplace_back("OK");
    form->Unload();
    log.emplace_back("OK ends");
  });
  Open([&] {
    Act(*Window().Find("txtBedrag", 1), controls::Enter{12.5});
    Act(*Window().Find("cmdOK"), controls::Press{});
  });
  EXPECT_EQ(log,
            (std::vector<std::string>{"Activate", "open", "entered 12.500000", "OK", "Unloaded", "OK ends", "closed"}));
}

TEST_P(FormConformance, TheCloseBoxUnloads) {
  Open([this] {
    EXPECT_EQ(Door(Window(), controls::Close{}), Outcome::Done);
    EXPECT_EQ(Door(Window(), controls::Close{}), Outcome::Ignored);
  });
  EXPECT_EQ(log, (std::vector<std::string>{"Activate", "open", "Unloaded", "closed"}));
}

TEST_P(FormConformance, UnloadingTellsOnce) {
  form->Unload();
  form->Unload();
  EXPECT_EQ(log, std::vector<std::string>{"Unloaded"});
}

TEST_P(FormConformance, AFormUnloadedInItsActivateDoesNotOpen) {
  subscriptions += form->Activate.Connect([this] { form->Unload(); });
  Open([] {});
  EXPECT_EQ(log, (std::vector<std::string>{"Activate", "Unloaded", "closed"}));
}

TEST_P(FormConformance, AnActionAfterUnloadingIsIgnored) {
  subscriptions += At(cmdOK).Click.Connect([this] { log.emplace_back("OK"); });
  form->Unload();
  EXPECT_EQ(Door(*Window().Find("cmdOK"), controls::Press{}), Outcome::Ignored);
  EXPECT_EQ(log, std::vector<std::string>{"Unloaded"});
}

TEST_P(FormConformance, ATemplateAndAHiddenElementTakeNoAction) {
  Create(txtBedrag, 1);
  Open([this] {
    EXPECT_EQ(Door(*Window().Find("txtBedrag", 0), controls::Enter{1.0}), Outcome::Ignored);
    EXPECT_EQ(Door(*Window().Find("txtBedrag", 1), controls::Enter{1.0}), Outcome::Ignored);
  });
  EXPECT_EQ(At(txtBedrag).Number(), 0);
}

}  // namespace brivane::test

#include <gtest/gtest.h>

#include "tests/support/Moments.h"
#include <brivane/controls/TextBox.h>
#include <brivane/frame/Calendar.h>
#include <brivane/scenario/frmScenario.h>
#include <brivane/toelichting/Ontwerp.h>
#include <brivane/toelichting/Toelichting.h>
#include <brivane/toolkits/memory/Embedded.h>
#include <brivane/vrijekolom/Ontwerp.h>
#include <brivane/vrijekolom/VrijeKolom.h>

/// A host in memory that deletes a control from inside what the control set off: nothing of the host is touched
/// afterwards, and nothing of the control is left.
namespace brivane::test {
namespace {

using controls::Outcome;

enum class Also { Nothing, TheModel };

void Prepare(memory::Toolkit& toolkit) { toolkit.Desktop().today = frame::MakeDate({2026, 11, 21}); }

/// The host, and one control of its.
template <class Control> class Deleting : public testing::TestWithParam<Also> {
 protected:
  void New(const frame::Design& design) {
    model_ = std::make_unique<MomentsHost>();
    model_->strike = [this] { Delete(); };
    touched_ = 0;
    control_ = std::make_unique<memory::Embedded<Control>>(design, model_->Factories(), &Prepare);
  }
  void Delete() {
    control_.reset();
    if (!model_) return;
    model_->gone = true;
    // A member of the model that is running is not to be pulled from under itself.
    if (GetParam() == Also::TheModel && !model_->inHost) ForgetModel();
  }
  void ForgetModel() {
    if (model_) touched_ += model_->touched;
    subscriptions_.Reset();
    model_.reset();
  }
  void Moment() {
    if (model_) model_->Moment();
  }
  /// A person acts on a control, if there is still one.
  Outcome Do(std::string_view name, const controls::Action& action, int index = frame::kNoIndex) {
    return control_ ? control_->Surface().Find(name, index)->Perform(action) : Outcome::Ignored;
  }
  [[nodiscard]] int Touched() {
    ForgetModel();
    return touched_;
  }

  std::unique_ptr<MomentsHost> model_;
  std::unique_ptr<memory::Embedded<Control>> control_;
  host::Subscriptions subscriptions_;
  int touched_ = 0;
};

class DeletedEditor : public Deleting<VrijeKolom> {
 protected:
  DeletedEditor() { NewEditor(); }

  void NewEditor() {
    control_.reset();
    ForgetModel();
    New(vrijekolom::kOntwerp);
    TestKolom& kolom = model_->host.Kolom(1);
    kolom.velden.DatumAanvang = frame::MakeDate({2026, 1, 31});
    kolom.bedrag->bedrag = 100;
    kolom.bedrag->Voeg({.Maand = 13, .Bedrag = 120});
    model_->host.VoegLening({1, 2});
    memory::Desktop& machine = control_->Toolkit().Desktop();
    machine.answer = [this](const auto&, const auto&, host::MessageStyle style) {
      ++asked_;
      Moment();
      return style == host::MessageStyle::YesNoQuestion ? host::MessageAnswer::Yes : host::MessageAnswer::Ok;
    };
    control_->Toolkit().modal = [this](controls::Form& form) { InForm(form); };
    subscriptions_ += control_->Get().RefreshTopDisplay.Connect([this](const std::string&) { Moment(); });
    subscriptions_ += control_->Get().HeightChanged.Connect([this] { Moment(); });
    subscriptions_ += control_->Get().ScenarioGeopend.Connect([this](frmScenario&) { Moment(); });
    asked_ = 0;
  }
  void InForm(controls::Form& form) {
    ++formsOpen_;
    Moment();
    form.Find("txtBedrag", 1)->Perform(controls::Enter{150.0});
    form.Find("chkEenmalig", 2)->Perform(controls::Tick{host::kTicked});
    if (control_) Moment();
    form.Find("cmdOK")->Perform(controls::Press{});
    --formsOpen_;
  }
  void Bind() {
    if (control_) control_->SetApplication(model_->Application(), 0, 1);
  }
  void Check() {
    bool cancel = false;
    if (control_) control_->Validation(cancel);
  }
  /// Something of everything that an adviser does.
  void Session() {
    Bind();
    Do("TxtOm", controls::Enter{std::string("Krant")});
    Do("TxtBd", controls::Enter{12.5});
    Do("optLast", controls::Select{}, 2);
    Do("cboTermijn", controls::Choose{1});
    Do("TxtAnJaar", controls::Enter{2.0});
    Do("TxtDtEind", controls::Enter{frame::MakeDate({2020, 1, 1})});
    Do("chkProduct", controls::Tick{host::kTicked});
    Do("cboProductsoort", controls::Choose{0});
    Do("ChkVoorstel", controls::Tick{host::kTicked}, 1);
    Do("Toelichting.jnAO", controls::Toggle{host::kJa});
    Do("Toelichting.jnOverlijden", controls::Toggle{host::kJa});
    Do("cmdScenario", controls::Press{});
    Check();
    // A failure is reported, here and in the form.
    if (control_) {
      model_->Ledger().FailAt(
          hostkit::MemberOf(host::kFieldOf<host::kVrijeKolomFields, &host::VrijeKolomValues::Omschrijving>),
          hostkit::Op::Set, 2, host::Error(1004, "Mislukt", "Testhost"));
      model_->Ledger().FailAt(hostkit::Member::Scenario_NieuwePeriode, hostkit::Op::Get, 1,
                              host::Error(1004, "Mislukt", "Testhost"));
    }
    Do("TxtOm", controls::Enter{std::string("Blad")});
    Do("cmdScenario", controls::Press{});
    Bind();
  }

  int asked_ = 0;
  int formsOpen_ = 0;
};

TEST_P(DeletedEditor, AtEveryMomentOfASessionThatTheHostHasItsTurn) {
  Session();
  ASSERT_TRUE(control_);
  const int moments = model_->moments;
  EXPECT_GT(moments, 350);
  EXPECT_GE(asked_, 2);
  NewEditor();
  for (int nth = model_->moments + 1; nth <= moments; ++nth) {
    NewEditor();
    model_->nth = nth;
    Session();
    EXPECT_FALSE(control_) << nth;
    EXPECT_EQ(Touched(), 0) << nth;
    EXPECT_EQ(formsOpen_, 0) << nth;
  }
}

TEST_P(DeletedEditor, WhileTheFormIsOpen) {
  Bind();
  control_->Toolkit().modal = [this](controls::Form& form) {
    Delete();
    // What a script still holds takes nothing more.
    EXPECT_TRUE(form.IsUnloaded());
    EXPECT_EQ(form.Find("txtBedrag", 1)->Perform(controls::Enter{150.0}), Outcome::Ignored);
  };
  EXPECT_EQ(Do("cmdScenario", controls::Press{}), Outcome::Ignored);
  EXPECT_EQ(Touched(), 0);
}

TEST_P(DeletedEditor, WhileTheQuestionIsOpenItsAnswerIsNotTaken) {
  Bind();
  Do("TxtOm", controls::Enter{std::string("Krant")});
  control_->Toolkit().Desktop().answer = [this](const auto&...) {
    Delete();
    return host::MessageAnswer::Yes;
  };
  bool cancel = false;
  control_->Validation(cancel);
  EXPECT_FALSE(cancel);
  EXPECT_EQ(Touched(), 0);
}

TEST_P(DeletedEditor, AFailureOfTheHostAfterItIsReportedToNobody) {
  Bind();
  model_->at = {hostkit::Member::Bedrag_Basisbedrag, hostkit::Op::Set};
  model_->Ledger().FailAt(hostkit::Member::Bedrag_Basisbedrag, hostkit::Op::Set, 1,
                          host::Error(1004, "Mislukt", "Testhost"));
  EXPECT_EQ(Do("TxtBd", controls::Enter{12.5}), Outcome::Ignored);
  EXPECT_FALSE(control_);
  EXPECT_EQ(Touched(), 0);
}

INSTANTIATE_TEST_SUITE_P(And, DeletedEditor, testing::Values(Also::Nothing, Also::TheModel),
                         [](const auto& test) { return test.param == Also::Nothing ? "Nothing" : "TheModel"; });

class DeletedToelichting : public Deleting<Toelichting> {
 protected:
  DeletedToelichting() { NewPart(); }

  void NewPart() {
    control_.reset();
    ForgetModel();
    New(toelichting::kOntwerp);
    control_->Toolkit().Desktop().answer = [this](const auto&...) {
      Moment();
      return host::MessageAnswer::Ok;
    };
    subscriptions_ += control_->Get().Changed.Connect([this] { Moment(); });
  }
  void Session() {
    const auto application = model_->Application();
    control_->SetApplication(application, application->Dossier()->HuidigeLening(), 1);
    Do("jnWW", controls::Toggle{host::kJa});
    Do("jnOverlijden", controls::Toggle{host::kJa});
    Do("TxtPcOvergang", controls::Enter{70.0});
    Do("TxtEindjaar", controls::Enter{80.0});
    Do("txtEinddatum", controls::Enter{frame::MakeDate({2050, 1, 1})});
    Do("TxtPcOvergang", controls::Enter{170.0});
    bool cancel = false;
    if (control_) control_->Validation(cancel);
  }
};

TEST_P(DeletedToelichting, AtEveryMomentOfASessionThatTheHostHasItsTurn) {
  Session();
  ASSERT_TRUE(control_);
  const int moments = model_->moments;
  EXPECT_GT(moments, 50);
  NewPart();
  for (int nth = model_->moments + 3; nth <= moments; ++nth) {  // two are the test's own
    NewPart();
    model_->nth = nth;
    Session();
    EXPECT_FALSE(control_) << nth;
    EXPECT_EQ(Touched(), 0) << nth;
  }
}

INSTANTIATE_TEST_SUITE_P(And, DeletedToelichting, testing::Values(Also::Nothing, Also::TheModel),
                         [](const auto& test) { return test.param == Also::Nothing ? "Nothing" : "TheModel"; });

}  // namespace
}  // namespace brivane::test

#include <gtest/gtest.h>

#include <QApplication>
#include <QCalendarWidget>
#include <QComboBox>
#include <QDialog>
#include <QEventLoop>
#include <QPointer>
#include <QThread>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "tests/support/Moments.h"
#include "tests/support/RecordingScenario.h"
#include "tests/toolkits/qt/Person.h"
#include <brivane/controls/Surface.h>
#include <brivane/frame/Calendar.h>
#include <brivane/scenario/frmScenario.h>
#include <brivane/toolkits/qt/ToelichtingWidget.h>
#include <brivane/toolkits/qt/VrijeKolomWidget.h>
#include <brivane/toolkits/qt/widgets/DateBox.h>
#include <brivane/toolkits/qt/widgets/FormWindow.h>

/// A host that deletes a control, or what it stands in, wherever it has its turn: what is open closes, nothing of the
/// host is touched afterwards, and nothing of the control is left.
namespace brivane::test {
namespace {

using hostkit::Member;
using hostkit::Op;

enum class Who { Window, Parent, Control };
enum class How { Delete, DeleteLater, Timer, Close };

template <auto value> constexpr Member kField = hostkit::MemberOf(host::kFieldOf<host::kVrijeKolomFields, value>);
using Values = host::VrijeKolomValues;

/// A control in a part of a window, and the host that deletes it, one of them or all.
template <class Control> class Standing {
 public:
  Standing(Who who, How how) : who_(who), how_(how) {
    host_ = std::make_unique<MomentsHost>();
    host_->strike = [this] { Strike(); };
    TestKolom& kolom = host_->host.Kolom(1);
    kolom.velden.DatumAanvang = frame::MakeDate({2026, 1, 31});
    kolom.velden.Termijn = 1;
    kolom.bedrag->bedrag = 100;
    host_->host.VoegLening({1, 2});

    window_ = new QWidget;
    auto* const around = new QVBoxLayout(window_);
    parent_ = new QWidget(window_);
    around->addWidget(parent_);
    auto* const inside = new QVBoxLayout(parent_);
    control_ = new Control(parent_);
    inside->addWidget(control_);
    inside->addStretch();
    qt::Desktop& machine = control_->Toolkit().Desktop();
    machine.clock = [] { return frame::MakeDate({2026, 11, 21}); };
    machine.pause = {};
    QObject::connect(control_, &QObject::destroyed, [this] { Gone(); });
  }
  ~Standing() {
    delete window_;
    Settle();
  }

  [[nodiscard]] MomentsHost& Host() { return *host_; }
  [[nodiscard]] Control* Get() const { return control_; }
  [[nodiscard]] QWidget* Window() const { return window_; }
  [[nodiscard]] bool IsGone() const { return gone_; }
  [[nodiscard]] QWidget* Victim() const {
    return who_ == Who::Window ? window_.data() : who_ == Who::Parent ? parent_.data() : control_.data();
  }
  [[nodiscard]] controls::AnyControl& Find(std::string_view name, int index = frame::kNoIndex) {
    return *controls::Surface::Of(control_->Surface()).Find(name, index);
  }
  [[nodiscard]] int Touched() const { return touched_ + (host_ ? host_->touched : 0); }

  void Strike() {
    const QPointer<QWidget> victim(Victim());
    if (!victim) return;
    switch (how_) {
      case How::Delete: delete victim; break;
      case How::DeleteLater: victim->deleteLater(); break;
      case How::Timer: {
        QEventLoop loop;
        QTimer::singleShot(1, &loop, [&] {
          delete victim;
          loop.quit();
        });
        loop.exec();
        break;
      }
      case How::Close:
        victim->setAttribute(Qt::WA_DeleteOnClose);
        victim->close();
        break;
    }
  }
  /// Strikes when the next event loop runs, which is that of what is about to open.
  void StrikeInLoop() { StrikeInLoop(QThread::currentThread()->loopLevel()); }

  static void Settle() {
    for (int i = 0; i < 3; ++i) {
      QApplication::processEvents();
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
  }

 private:
  void StrikeInLoop(int around) {
    QTimer::singleShot(0, &context_, [this, around] {
      // Showing a window lets events run before the loop does.
      if (QThread::currentThread()->loopLevel() > around)
        Strike();
      else
        StrikeInLoop(around);
    });
  }
  /// The host takes its model along, unless a member of it is running.
  void Gone() {
    gone_ = true;
    host_->gone = true;
    if (host_->inHost) return;
    touched_ = host_->touched;
    host_.reset();
  }

  Who who_;
  How how_;
  std::unique_ptr<MomentsHost> host_;
  QPointer<QWidget> window_;
  QPointer<QWidget> parent_;
  QPointer<Control> control_;
  bool gone_ = false;
  int touched_ = 0;
  QObject context_;
};

using Editor = Standing<qt::VrijeKolomWidget>;
using Part = Standing<qt::ToelichtingWidget>;

/// Where the host strikes, from a control that is bound and on the screen.
template <class Stage> struct Place {
  const char* name;
  void (*act)(Stage& on);
};

/// Qt makes itself one for the desktop when it needs that.
std::ptrdiff_t Widgets() {
  const QWidgetList all = QApplication::allWidgets();
  return std::count_if(all.begin(), all.end(),
                       [](const QWidget* widget) { return widget->windowType() != Qt::Desktop; });
}

/// Every cell ends with the control gone, the host left in peace, no window left open, and no widget left behind.
template <class Stage, class Body> void Cell(Who who, How how, const Body& body) {
  // A program that ends with its last window is not what is shown here.
  QApplication::setQuitOnLastWindowClosed(false);
  Stage::Settle();
  const auto widgets = Widgets();
  QTimer watchdog;
  QObject::connect(&watchdog, &QTimer::timeout, [] { qFatal("something stays open"); });
  watchdog.start(30000);
  {
    Stage on(who, how);
    body(on);
    Stage::Settle();
    EXPECT_TRUE(on.IsGone());
    EXPECT_EQ(on.Touched(), 0);
    EXPECT_EQ(on.Get(), nullptr);
    EXPECT_EQ(on.Window() == nullptr, who == Who::Window);
    for (QWidget* const window : QApplication::topLevelWidgets())
      EXPECT_TRUE(window == on.Window() || !window->isVisible()) << window->metaObject()->className();
  }
  EXPECT_EQ(Widgets(), widgets);
}

void Bind(Editor& on) { on.Get()->SetApplication(on.Host().Application(), 0, 1); }

void At(Editor& on, Member member, Op op) { on.Host().at = {member, op}; }

/// The year form, with something that happens in its event loop.
void InForm(Editor& on, const std::function<void(controls::Form&)>& then) {
  QTimer::singleShot(0, [then] {
    auto* const dialog = dynamic_cast<qt::FormWindow::Window*>(QApplication::activeModalWidget());
    if (dialog == nullptr) return;  // the host struck before it opened
    ShowActive(*dialog);
    then(dialog->Form());
  });
  Click(*WidgetFor(on.Find("cmdScenario")));
}

void TypeOm(Editor& on, const char* text = "Krant") {
  Click(*WidgetFor(on.Find("TxtOm")));
  TypeOver(text);
}

/// What is only marked for deletion before an event loop begins goes after it: a person closes what opened.
void CloseWhatOpens() {
  QTimer::singleShot(0, [] {
    if (QWidget* const open = QApplication::activeModalWidget()) open->close();
  });
}

/// The host shows its report and strikes while it is open.
void ReportOpen(Editor& on) {
  on.Host().strike = [&on] {
    QDialog report;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&] {
      if (on.IsGone()) report.done(0);
    });
    poll.start(1);
    on.StrikeInLoop();
    report.exec();
  };
  At(on, Member::Application_ReportError, Op::Call);
}

void FailOm(Editor& on) {
  on.Host().Ledger().FailAt(kField<&Values::Omschrijving>, Op::Set, 1, host::Error(1004, "Mislukt", "Testhost"));
}

constexpr Place<Editor> kPlaces[] = {
    {"FormOpen", [](Editor& on) { InForm(on, [&on](auto&) { on.Strike(); }); }},
    {"FormOpenWithARowTyped",
     [](Editor& on) {
       InForm(on, [&on](auto&) {
         TypeOver("250");
         on.Strike();
       });
     }},
    {"FormAsksWhetherToClose",
     [](Editor& on) {
       InForm(on, [&on](auto&) {
         TypeOver("250");
         Press(Qt::Key_Tab);
         on.StrikeInLoop();
         Press(Qt::Key_Escape);
       });
     }},
    {"FormAboutToOpen",
     [](Editor& on) {
       auto opened = std::make_shared<host::Subscription>();
       *opened = on.Get()->Control()->ScenarioGeopend.Connect([&on](frmScenario&) { on.Strike(); });
       CloseWhatOpens();
       Click(*WidgetFor(on.Find("cmdScenario")));
     }},
    {"RowWritten",
     [](Editor& on) {
       InForm(on, [&on](auto&) {
         At(on, Member::Scenario_Bedrag, Op::Set);
         TypeOver("250");
         Press(Qt::Key_Tab);
       });
     }},
    {"FormStores",
     [](Editor& on) {
       InForm(on, [&on](controls::Form& form) {
         TypeOver("250");
         Press(Qt::Key_Tab);
         At(on, Member::Scenario_Bedrag, Op::Get);
         Click(*WidgetFor(*form.Find("cmdOK")));
         if (on.Get() != nullptr) on.Strike();
       });
     }},
    {"FormReportsAFailure",
     [](Editor& on) {
       InForm(on, [&on](controls::Form&) {
         on.Host().Ledger().FailAt(Member::Scenario_Bedrag, Op::Set, 1, host::Error(1004, "Mislukt", "Testhost"));
         TypeOver("250");
         on.StrikeInLoop();
         Press(Qt::Key_Tab);
       });
     }},
    {"QuestionOpen",
     [](Editor& on) {
       TypeOm(on);
       Press(Qt::Key_Tab);
       on.StrikeInLoop();
       bool cancel = false;
       on.Get()->Validation(cancel);
       EXPECT_FALSE(cancel);
     }},
    {"DetailsOfTheQuestion",
     [](Editor& on) {
       TypeOm(on);
       Press(Qt::Key_Tab);
       on.Get()->Toolkit().Desktop().details = [&on](const auto&, const auto&) {
         on.Strike();
         CloseWhatOpens();
         return std::string("iets");
       };
       bool cancel = false;
       on.Get()->Validation(cancel);
     }},
    {"RefusalOpen",
     [](Editor& on) {
       Click(*WidgetFor(on.Find("TxtDtAanvang")));
       TypeOver("");
       on.StrikeInLoop();
       Press(Qt::Key_Tab);
     }},
    {"ExplanationRefuses",
     [](Editor& on) {
       Do(on.Find("Toelichting.jnOverlijden"), controls::Toggle{host::kJa});
       on.StrikeInLoop();
       bool cancel = false;
       on.Get()->ValidationToelichting(cancel);
     }},
    {"ExplanationRefusesAHostThatAsksTheControl",
     [](Editor& on) {
       Do(on.Find("Toelichting.jnOverlijden"), controls::Toggle{host::kJa});
       on.StrikeInLoop();
       bool cancel = false;
       EXPECT_THROW(on.Get()->Control()->Toelichting().Validation(cancel), controls::Abandoned);
     }},
    {"HostReports",
     [](Editor& on) {
       ReportOpen(on);
       FailOm(on);
       TypeOm(on);
       Press(Qt::Key_Tab);
     }},
    {"ToolkitReports",
     [](Editor& on) {
       hostkit::AccessLedger& ledger = on.Host().Ledger();
       constexpr Member kEnter = Member::ProcedureTrace_EnterProcedure;
       ledger.FailAt(kEnter, Op::Call, ledger.Count(kEnter, Op::Call) + 1, host::Error(1004, "Mislukt", "Testhost"));
       TypeOm(on);
       on.StrikeInLoop();
       Press(Qt::Key_Tab);
     }},
    {"RefreshTopDisplay",
     [](Editor& on) {
       QObject::connect(on.Get(), &qt::VrijeKolomWidget::refreshTopDisplay, on.Get(), [&on] { on.Strike(); });
       TypeOm(on);
       Press(Qt::Key_Tab);
     }},
    {"RefreshTopDisplayByEnter",
     [](Editor& on) {
       QObject::connect(on.Get(), &qt::VrijeKolomWidget::refreshTopDisplay, on.Get(), [&on] { on.Strike(); });
       TypeOm(on);
       Press(Qt::Key_Return);
     }},
    {"RefreshTopDisplayByAClickElsewhere",
     [](Editor& on) {
       QObject::connect(on.Get(), &qt::VrijeKolomWidget::refreshTopDisplay, on.Get(), [&on] { on.Strike(); });
       TypeOm(on);
       Click(*WidgetFor(on.Find("optLast", 2)));
     }},
    {"HeightChangedWhileBinding",
     [](Editor& on) {
       QObject::connect(on.Get(), &qt::VrijeKolomWidget::heightChanged, on.Get(), [&on] { on.Strike(); });
       Bind(on);
     }},
    {"TopDisplayChangedByBinding",
     [](Editor& on) {
       QObject::connect(on.Get(), &qt::VrijeKolomWidget::topDisplayChanged, on.Get(), [&on] { on.Strike(); });
       Bind(on);
     }},
    {"TopDisplayChangedByUnbinding",
     [](Editor& on) {
       QObject::connect(on.Get(), &qt::VrijeKolomWidget::topDisplayChanged, on.Get(), [&on] { on.Strike(); });
       on.Get()->Unbind();
     }},
    {"TopDisplayRead",
     [](Editor& on) {
       At(on, kField<&Values::Kopregel>, Op::Get);
       (void)on.Get()->topDisplay();
     }},
    {"AsksWhetherToDropWhatNobodyCanReach",
     [](Editor& on) {
       TypeOm(on);
       on.Find("fraGegevens").Host().SetEnabled(false);
       on.StrikeInLoop();
       on.Get()->CommitPending();
     }},
    {"HeightChangedByAnEdit",
     [](Editor& on) {
       Click(*WidgetFor(on.Find("chkProduct")), QPoint(8, 8));
       QObject::connect(on.Get(), &qt::VrijeKolomWidget::heightChanged, on.Get(), [&on] { on.Strike(); });
       WidgetFor(on.Find("cboProductsoort"))->setFocus();
       Press(Qt::Key_Home);
       Press(Qt::Key_Return);
     }},
    {"HeightChangedByTheWindow",
     [](Editor& on) {
       QObject::connect(on.Get(), &qt::VrijeKolomWidget::heightChanged, on.Get(), [&on] { on.Strike(); });
       on.Window()->resize(1100, 800);
       QApplication::processEvents();
     }},
    {"HeightChangedWhenItIsSized",
     [](Editor& on) {
       QObject::connect(on.Get(), &qt::VrijeKolomWidget::heightChanged, on.Get(), [&on] { on.Strike(); });
       on.Get()->resize(700, 600);
     }},
    {"HostWritten",
     [](Editor& on) {
       At(on, kField<&Values::Omschrijving>, Op::Set);
       TypeOm(on);
       Press(Qt::Key_Tab);
     }},
    {"HostFailsToWrite",
     [](Editor& on) {
       At(on, kField<&Values::Omschrijving>, Op::Set);
       FailOm(on);
       TypeOm(on);
       Press(Qt::Key_Tab);
     }},
    {"HostAskedWhileBinding",
     [](Editor& on) {
       At(on, kField<&Values::Termijn>, Op::Get);
       Bind(on);
     }},
    {"HostTraces",
     [](Editor& on) {
       At(on, Member::ProcedureTrace_LeaveProcedure, Op::Call);
       TypeOm(on);
       Press(Qt::Key_Tab);
     }},
    {"HostChecks",
     [](Editor& on) {
       At(on, Member::DossierControle_Controleer, Op::Call);
       bool cancel = false;
       on.Get()->Validation(cancel);
     }},
    {"HostMakesTheTracer",
     [](Editor& on) {
       At(on, Member::ProcedureTrace_EnterProcedure, Op::Call);
       on.Get()->SetHostFactories(on.Host().Factories());
     }},
    {"OptionClicked",
     [](Editor& on) {
       At(on, kField<&Values::CorrectieLast>, Op::Set);
       Do(on.Find("optLast", 2), controls::Select{});
     }},
    {"CheckBoxTicked",
     [](Editor& on) {
       At(on, kField<&Values::IsProduct>, Op::Set);
       Do(on.Find("chkProduct"), controls::Tick{host::kTicked});
     }},
    {"ToggleSet",
     [](Editor& on) {
       At(on, kField<&Values::UitsluitenAO>, Op::Set);
       Do(on.Find("Toelichting.jnAO"), controls::Toggle{host::kNee});
     }},
    {"ListPicked",
     [](Editor& on) {
       At(on, kField<&Values::Termijn>, Op::Set);
       Do(on.Find("cboTermijn"), controls::Choose{2});
     }},
    {"ListChosenByKey",
     [](Editor& on) {
       At(on, kField<&Values::Termijn>, Op::Set);
       WidgetFor(on.Find("cboTermijn"))->setFocus();
       Press(Qt::Key_Down);
       Press(Qt::Key_Return);
     }},
    {"ListOpen",
     [](Editor& on) {
       Click(*WidgetFor(on.Find("cboTermijn")));
       EXPECT_NE(QApplication::activePopupWidget(), nullptr);
       on.Strike();
     }},
    {"CalendarOpen",
     [](Editor& on) {
       static_cast<qt::DateBox&>(*WidgetFor(on.Find("TxtDtAanvang"))).OpenCalendar();
       EXPECT_NE(QApplication::activePopupWidget(), nullptr);
       on.Strike();
     }},
    {"CalendarPicked",
     [](Editor& on) {
       At(on, kField<&Values::DatumAanvang>, Op::Set);
       auto& box = static_cast<qt::DateBox&>(*WidgetFor(on.Find("TxtDtAanvang")));
       box.OpenCalendar();
       Q_EMIT box.Calendar()->findChild<QCalendarWidget*>()->clicked(QDate(2026, 3, 1));
     }},
    {"HalfTyped",
     [](Editor& on) {
       TypeOm(on, "Kr");
       on.Strike();
     }},
    {"PendingHandedOver",
     [](Editor& on) {
       At(on, kField<&Values::Omschrijving>, Op::Set);
       TypeOm(on);
       on.Get()->CommitPending();
     }},
    {"ValidationHandsOver",
     [](Editor& on) {
       At(on, kField<&Values::Omschrijving>, Op::Set);
       TypeOm(on);
       CloseWhatOpens();
       bool cancel = false;
       on.Get()->Validation(cancel);
     }},
};

constexpr Who kWho[] = {Who::Window, Who::Parent, Who::Control};
constexpr How kHow[] = {How::Delete, How::DeleteLater, How::Timer, How::Close};

std::string NameOf(Who who) { return who == Who::Window ? "Window" : who == Who::Parent ? "Parent" : "Control"; }
std::string NameOf(How how) {
  constexpr const char* kNames[] = {"Delete", "DeleteLater", "Timer", "Close"};
  return kNames[static_cast<int>(how)];
}
template <class Stage> std::string NameOf(const Place<Stage>& place) { return place.name; }

const auto kNames = [](const auto& test) {
  return NameOf(std::get<0>(test.param)) + NameOf(std::get<1>(test.param)) + NameOf(std::get<2>(test.param));
};

class DeletedEditor : public testing::TestWithParam<std::tuple<Who, Place<Editor>, How>> {};

TEST_P(DeletedEditor, LeavesNothingBehind) {
  const auto& [who, place, how] = GetParam();
  Cell<Editor>(who, how, [&act = place.act](Editor& on) {
    on.Get()->SetHostFactories(on.Host().Factories());
    Bind(on);
    ShowActive(*on.Window());
    act(on);
  });
}

INSTANTIATE_TEST_SUITE_P(Cells, DeletedEditor,
                         testing::Combine(testing::ValuesIn(kWho), testing::ValuesIn(kPlaces), testing::ValuesIn(kHow)),
                         kNames);

void BindPart(Part& on) {
  std::shared_ptr<host::Application> application = on.Host().Application();
  std::shared_ptr<host::Lening> lening = application->Dossier()->HuidigeLening();
  on.Get()->SetApplication(application, lening, 1);
}

void DieYes(Part& on) { Do(on.Find("jnOverlijden"), controls::Toggle{host::kJa}); }

constexpr Place<Part> kPartPlaces[] = {
    {"Changed",
     [](Part& on) {
       QObject::connect(on.Get(), &qt::ToelichtingWidget::changed, on.Get(), [&on] { on.Strike(); });
       Do(on.Find("jnWW"), controls::Toggle{host::kNee});
     }},
    {"HostWritten",
     [](Part& on) {
       on.Host().at = {kField<&Values::ScenarioOverlijden>, Op::Set};
       DieYes(on);
     }},
    {"HostAskedWhileBinding",
     [](Part& on) {
       on.Host().at = {kField<&Values::UitsluitenAO>, Op::Get};
       BindPart(on);
     }},
    {"RefusalOpen",
     [](Part& on) {
       DieYes(on);
       Click(*WidgetFor(on.Find("TxtPcOvergang")));
       TypeOver("170");
       on.StrikeInLoop();
       Press(Qt::Key_Tab);
     }},
    {"CheckRefuses",
     [](Part& on) {
       DieYes(on);
       on.StrikeInLoop();
       bool cancel = false;
       on.Get()->Validation(cancel);
       if (!on.IsGone()) Part::Settle();
     }},
    {"TextHandedOver",
     [](Part& on) {
       DieYes(on);
       on.Host().at = {kField<&Values::PercentageOvergang>, Op::Set};
       Click(*WidgetFor(on.Find("TxtPcOvergang")));
       TypeOver("70");
       Press(Qt::Key_Tab);
     }},
    {"CalendarOpen",
     [](Part& on) {
       DieYes(on);
       static_cast<qt::DateBox&>(*WidgetFor(on.Find("txtEinddatum"))).OpenCalendar();
       EXPECT_NE(QApplication::activePopupWidget(), nullptr);
       on.Strike();
     }},
    {"HeightChanged",
     [](Part& on) {
       QObject::connect(on.Get(), &qt::ToelichtingWidget::heightChanged, on.Get(), [&on] { on.Strike(); });
       on.Get()->resize(500, 300);
     }},
};

class DeletedToelichting : public testing::TestWithParam<std::tuple<Who, Place<Part>, How>> {};

TEST_P(DeletedToelichting, LeavesNothingBehind) {
  const auto& [who, place, how] = GetParam();
  Cell<Part>(who, how, [&act = place.act](Part& on) {
    on.Get()->SetHostFactories(on.Host().Factories());
    BindPart(on);
    ShowActive(*on.Window());
    act(on);
  });
}

INSTANTIATE_TEST_SUITE_P(Cells, DeletedToelichting,
                         testing::Combine(testing::ValuesIn(kWho), testing::ValuesIn(kPartPlaces),
                                          testing::ValuesIn(kHow)),
                         kNames);

/// Something of everything that an adviser does, as long as there is an editor.
void Session(Editor& on) {
  const auto act = [&on](const std::function<void()>& step) {
    if (on.Get() != nullptr) step();
  };
  act([&] { on.Get()->SetHostFactories(on.Host().Factories()); });
  act([&] { Bind(on); });
  act([&] { ShowActive(*on.Window()); });
  act([&] { TypeOm(on); });
  act([&] { Press(Qt::Key_Tab); });
  act([&] { Do(on.Find("optLast", 2), controls::Select{}); });
  act([&] { Do(on.Find("chkProduct"), controls::Tick{host::kTicked}); });
  act([&] { Do(on.Find("Toelichting.jnOverlijden"), controls::Toggle{host::kJa}); });
  act([&] {
    InForm(on, [&on](controls::Form& form) {
      TypeOver("250");
      Press(Qt::Key_Tab);
      if (on.Get() != nullptr) Click(*WidgetFor(*form.Find("cmdOK")));
    });
  });
  act([&] {
    on.Get()->Toolkit().Desktop().answer = [](const auto&...) { return host::MessageAnswer::Yes; };
    bool cancel = false;
    on.Get()->Validation(cancel);
  });
}

TEST(DeletedEditorSession, AtEveryMomentOfASessionThatTheHostHasItsTurn) {
  int moments = 0;
  {
    Editor on(Who::Control, How::Delete);
    Session(on);
    ASSERT_FALSE(on.IsGone());
    moments = on.Host().moments;
  }
  EXPECT_GT(moments, 150);
  for (int nth = 1; nth <= moments; ++nth) {
    SCOPED_TRACE(nth);
    const Who who = kWho[nth % 3];
    const How how = nth % 2 == 0 ? How::Delete : How::Timer;
    Cell<Editor>(who, how, [nth](Editor& on) {
      on.Host().nth = nth;
      Session(on);
    });
    if (testing::Test::HasFailure()) break;
  }
}

/// A window that is not the editor's, but owns what is open.
TEST(DeletedOwner, TakesItsFormOffTheScreenAndStoresNothing) {
  qt::Toolkit toolkit;
  auto scenario = std::make_shared<tests::RecordingScenario>();
  scenario->basis = 100;
  frmScenario form(toolkit);
  form.Invoeren(scenario, 3);
  auto* const window = new QWidget;
  window->show();
  qt::Hoofdvenster owner(window);
  QTimer::singleShot(0, [&] {
    EXPECT_NE(QApplication::activeModalWidget(), nullptr);
    delete window;
  });
  form.ShowModal(&owner);
  EXPECT_TRUE(dynamic_cast<controls::Form&>(form.Form()).IsUnloaded());
  EXPECT_TRUE(scenario->Inhoud().empty());
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST(DeletedOwner, AnswersItsQuestionWithNo) {
  qt::Toolkit toolkit;
  auto* const window = new QWidget;
  ShowActive(*window);
  QTimer::singleShot(0, [&] { delete window; });
  EXPECT_EQ(toolkit.Desktop().MessageBox("Titel", "Vraag", host::MessageStyle::YesNoQuestion), host::MessageAnswer::No);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

}  // namespace
}  // namespace brivane::test

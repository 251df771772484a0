// Recording what happens on a screen.

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

#include "app/screen/MainWindow.h"
#include "dossier/model/SampleCase.h"
#include "replay/play/Session.h"
#include "tests/app/recording/RecordedSession.h"
#include <brivane/controls/Form.h>
#include <brivane/controls/Surface.h>
#include <brivane/frame/Calendar.h>
#include <brivane/toolkits/qt/VrijeKolomWidget.h>

namespace brivane::app {
namespace {

using controls::Enter;
using controls::Outcome;

/// The session on the widget.
class OnWidget final : public RecordedSession {
 public:
  OnWidget() {
    qt::Desktop& machine = widget_.Toolkit().Desktop();
    machine.clock = [] { return frame::MakeDate({2026, 11, 21}); };
    machine.answer = [this](const std::string& title, const std::string& text, host::MessageStyle style) {
      return Answer(title, text, style);
    };
    machine.answered = [this](host::MessageAnswer answer) { Recorder().Answered(answer); };
    QObject::connect(&widget_, &qt::VrijeKolomWidget::refreshTopDisplay, &widget_,
                     [this](const QString& text) { transcript_.RefreshTopDisplay(text.toStdString()); });
    QObject::connect(&widget_, &qt::VrijeKolomWidget::heightChanged, &widget_,
                     [this] { transcript_.Event("HeightChanged"); });
    Record(controls::Surface::Of(widget_.Surface()));
    widget_.SetHostFactories(host_.Factories());
    brivane::VrijeKolom& editor = *widget_.Control();
    Follow(editor);
    subscriptions_ += editor.ScenarioGeopend.Connect([this](frmScenario& form) {
      QTimer::singleShot(0, &widget_,
                         [this, &form] { std::exchange(work_, nullptr)(controls::Surface::Of(form.Form())); });
    });
    widget_.show();
    QApplication::processEvents();
  }
  ~OnWidget() override { LetGo(); }

 private:
  void LetWait(std::function<void()> act) override { QTimer::singleShot(0, &widget_, std::move(act)); }
  void OnForm(std::function<void(controls::Surface&)> work) override { work_ = std::move(work); }
  // The widget holds the host for its control.
  void SetApplication(std::int16_t Len_Id, std::int16_t Vrij_Id) override {
    widget_.SetApplication(host_.Application(), Len_Id, Vrij_Id);
  }

  std::function<void(controls::Surface&)> work_;
  qt::VrijeKolomWidget widget_;
};

TEST(WidgetRecordingTest, ASessionThroughEveryControlReplaysWithTheSameTranscript) {
  OnWidget session;
  session.Play();
  ASSERT_TRUE(session.Recorder().IsRunning());
  EXPECT_GE(session.actions, 60);
  std::vector<std::string> replayed = Lines(replay::ReadDocument(replay::WriteDocument(session.Recorder().Document())));
  // What waits in Qt's queue runs without anybody being told.
  EXPECT_GT(std::erase(replayed, "{\"pending\": true}"), 0u);
  EXPECT_EQ(replayed, session.live);
}

/// The program's window on a loan file of its own.
class WindowRecordingTest : public testing::Test {
 protected:
  WindowRecordingTest() {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder_.path());
    EXPECT_TRUE(window_.Make(dossierPath_, dossier::VoorbeeldDossier()));
    window_.show();
  }

  [[nodiscard]] DossierScreen& Screen() { return *window_.Screen(); }
  Outcome Do(const char* name, const controls::Action& action) {
    return controls::Surface::Of(Screen().Kolom().Editor().Surface()).Find(name)->Perform(action);
  }
  [[nodiscard]] replay::Document Written() const {
    QFile file(recordingPath_);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return replay::ReadDocument(file.readAll().toStdString());
  }
  [[nodiscard]] static replay::Json Replayed(const replay::Document& document) {
    replay::Session session(document, [](std::string_view) {});
    session.Run();
    return replay::ToJson(session.Case().Gegevens());
  }
  /// Closes the next message box and keeps its text.
  void CloseMessage() {
    QTimer::singleShot(50, &window_, [this] {
      auto* const message = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (message == nullptr) return CloseMessage();
      message_ = message->text();
      message->close();
    });
  }

  QTemporaryDir folder_;
  QString dossierPath_ = folder_.filePath(QStringLiteral("test.dossier"));
  QString recordingPath_ = folder_.filePath(QStringLiteral("opname.json"));
  EventLog eventLog_{folder_.filePath(QStringLiteral("logboek"))};
  MainWindow window_{eventLog_};
  QString message_;
};

TEST_F(WindowRecordingTest, WhatWasRecordedReplaysToWhatTheFileHolds) {
  ASSERT_TRUE(Screen().GoTo({0, 3}));
  ASSERT_TRUE(window_.Record(recordingPath_));
  EXPECT_TRUE(window_.Actions().record->isChecked());
  EXPECT_EQ(window_.Actions().record->text(), QStringLiteral("Opname stoppe&n"));
  EXPECT_EQ(Screen().Shown().Vrij_Id, 3);
  EXPECT_EQ(Do("TxtOm", Enter{std::string("Pianolessen")}), Outcome::Done);
  EXPECT_EQ(Do("TxtAnJaar", Enter{12.0}), Outcome::Done);
  ASSERT_TRUE(Screen().GoTo({0, 5}));
  EXPECT_EQ(Do("cboTermijn", controls::Choose{0}), Outcome::Done);
  const replay::Json file = replay::ToJson(Screen().Dossier().Gegevens());
  window_.Actions().record->trigger();
  EXPECT_FALSE(window_.Actions().record->isChecked());
  EXPECT_EQ(window_.Actions().record->text(), QStringLiteral("Op&nemen…"));
  // No longer recorded.
  EXPECT_EQ(Do("TxtOm", Enter{std::string("daarna")}), Outcome::Done);
  EXPECT_EQ(Replayed(Written()), file);
}

TEST_F(WindowRecordingTest, ClosingTheFileWritesTheRecording) {
  ASSERT_TRUE(window_.Record(recordingPath_));
  EXPECT_EQ(Do("TxtBd", Enter{499.5}), Outcome::Done);
  const replay::Json file = replay::ToJson(Screen().Dossier().Gegevens());
  // The editor asks whether the change is carried over: no.
  Screen().Kolom().Editor().Toolkit().Desktop().answer = [](const auto&...) { return host::MessageAnswer::No; };
  ASSERT_TRUE(window_.CloseDossier());
  const replay::Document document = Written();
  EXPECT_EQ(document.steps.back().answers, std::vector{host::MessageAnswer::No});
  EXPECT_EQ(Replayed(document), file);
}

TEST_F(WindowRecordingTest, AddingAColumnEndsTheRecordingAndSaysSo) {
  ASSERT_TRUE(window_.Record(recordingPath_));
  ASSERT_TRUE(Screen().GoTo({0, 3}));
  EXPECT_EQ(Do("TxtOm", Enter{std::string("Pianolessen")}), Outcome::Done);
  const replay::Json before = replay::ToJson(Screen().Dossier().Gegevens());
  CloseMessage();
  ASSERT_TRUE(Screen().AddKolom());
  for (int i = 0; i < 100 && message_.isEmpty(); ++i) QApplication::processEvents(QEventLoop::AllEvents, 50);
  EXPECT_TRUE(message_.contains(QStringLiteral("De opname is gestopt"))) << message_.toStdString();
  EXPECT_FALSE(window_.Actions().record->isChecked());
  EXPECT_EQ(Replayed(Written()), before);
}

}  // namespace
}  // namespace brivane::app

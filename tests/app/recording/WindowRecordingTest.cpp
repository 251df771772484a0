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
#include "controls/Form.h"
#include "controls/Surface.h"
#include "dossier/model/SampleCase.h"
#include "frame/Calendar.h"
#include "replay/play/Session.h"
#include "tests/app/recording/RecordedSession.h"
#include "toolkits/qt/VrijeKolomWidget.h"

namespace brivane::dossier {
namespace {

using controls::Enter;
using controls::Outcome;

/// The session on the widget.
class MetWidget final : public Opnamesessie {
 public:
  MetWidget() {
    qt::Desktop& machine = widget_.Toolkit().Desktop();
    machine.clock = [] { return frame::MakeDate({2026, 11, 21}); };
    machine.answer = [this](const std::string& titel, const std::string& tekst, host::MessageStyle stijl) {
      return Antwoord(titel, tekst, stijl);
    };
    machine.answered = [this](host::MessageAnswer antwoord) { Opname().Beantwoord(antwoord); };
    QObject::connect(&widget_, &qt::VrijeKolomWidget::refreshTopDisplay, &widget_,
                     [this](const QString& tekst) { transcript_.RefreshTopDisplay(tekst.toStdString()); });
    QObject::connect(&widget_, &qt::VrijeKolomWidget::heightChanged, &widget_,
                     [this] { transcript_.Event("HeightChanged"); });
    NeemOp(controls::Surface::Of(widget_.Surface()));
    widget_.SetHostFactories(host_.Factories());
    brivane::VrijeKolom& editor = *widget_.Control();
    Volg(editor);
    subscriptions_ += editor.ScenarioGeopend.Connect([this](frmScenario& formulier) {
      QTimer::singleShot(
          0, &widget_, [this, &formulier] { std::exchange(werk_, nullptr)(controls::Surface::Of(formulier.Form())); });
    });
    widget_.show();
    QApplication::processEvents();
  }
  ~MetWidget() override { LaatLos(); }

 private:
  void LaatWachten(std::function<void()> daad) override { QTimer::singleShot(0, &widget_, std::move(daad)); }
  void OpFormulier(std::function<void(controls::Surface&)> werk) override { werk_ = std::move(werk); }

  std::function<void(controls::Surface&)> werk_;
  qt::VrijeKolomWidget widget_;
};

TEST(OpnameMetWidget, ASessionThroughEveryControlReplaysWithTheSameTranscript) {
  MetWidget sessie;
  sessie.Speel();
  ASSERT_TRUE(sessie.Opname().Loopt());
  EXPECT_GE(sessie.acties, 60);
  std::vector<std::string> nagespeeld = Regels(replay::ReadDocument(replay::WriteDocument(sessie.Opname().Document())));
  // What waits in Qt's queue runs without anybody being told.
  EXPECT_GT(std::erase(nagespeeld, "{\"pending\": true}"), 0u);
  EXPECT_EQ(nagespeeld, sessie.live);
}

/// The program's window on a loan file of its own.
class OpnameInVenster : public testing::Test {
 protected:
  OpnameInVenster() {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, map_.path());
    EXPECT_TRUE(venster_.Maak(dossier_, VoorbeeldDossier()));
    venster_.show();
  }

  [[nodiscard]] Dossierscherm& Scherm() { return *venster_.Scherm(); }
  Outcome Doe(const char* naam, const controls::Action& actie) {
    return controls::Surface::Of(Scherm().Kolom().Editor().Surface()).Find(naam)->Perform(actie);
  }
  [[nodiscard]] replay::Document Geschreven() const {
    QFile bestand(opname_);
    EXPECT_TRUE(bestand.open(QIODevice::ReadOnly));
    return replay::ReadDocument(bestand.readAll().toStdString());
  }
  [[nodiscard]] static replay::Json Nagespeeld(const replay::Document& document) {
    replay::Session sessie(document, [](std::string_view) {});
    sessie.Run();
    return replay::ToJson(sessie.Case().Gegevens());
  }
  /// Closes the next message box and keeps its text.
  void SluitMelding() {
    QTimer::singleShot(50, &venster_, [this] {
      auto* const melding = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (melding == nullptr) return SluitMelding();
      melding_ = melding->text();
      melding->close();
    });
  }

  QTemporaryDir map_;
  QString dossier_ = map_.filePath(QStringLiteral("test.dossier"));
  QString opname_ = map_.filePath(QStringLiteral("opname.json"));
  Logboek logboek_{map_.filePath(QStringLiteral("logboek"))};
  Hoofdvenster venster_{logboek_};
  QString melding_;
};

TEST_F(OpnameInVenster, WhatWasRecordedReplaysToWhatTheFileHolds) {
  ASSERT_TRUE(Scherm().GaNaar({0, 3}));
  ASSERT_TRUE(venster_.NeemOp(opname_));
  EXPECT_TRUE(venster_.Opdrachten().opnemen->isChecked());
  EXPECT_EQ(venster_.Opdrachten().opnemen->text(), QStringLiteral("Opname stoppe&n"));
  EXPECT_EQ(Scherm().Getoond().Vrij_Id, 3);
  EXPECT_EQ(Doe("TxtOm", Enter{std::string("Pianolessen")}), Outcome::Done);
  EXPECT_EQ(Doe("TxtAnJaar", Enter{12.0}), Outcome::Done);
  ASSERT_TRUE(Scherm().GaNaar({0, 5}));
  EXPECT_EQ(Doe("cboTermijn", controls::Choose{0}), Outcome::Done);
  const replay::Json bestand = replay::ToJson(Scherm().Gegevens().Gegevens());
  venster_.Opdrachten().opnemen->trigger();
  EXPECT_FALSE(venster_.Opdrachten().opnemen->isChecked());
  EXPECT_EQ(venster_.Opdrachten().opnemen->text(), QStringLiteral("Op&nemen…"));
  // No longer recorded.
  EXPECT_EQ(Doe("TxtOm", Enter{std::string("daarna")}), Outcome::Done);
  EXPECT_EQ(Nagespeeld(Geschreven()), bestand);
}

TEST_F(OpnameInVenster, ClosingTheFileWritesTheRecording) {
  ASSERT_TRUE(venster_.NeemOp(opname_));
  EXPECT_EQ(Doe("TxtBd", Enter{499.5}), Outcome::Done);
  const replay::Json bestand = replay::ToJson(Scherm().Gegevens().Gegevens());
  // The editor asks whether the change is carried over: no.
  Scherm().Kolom().Editor().Toolkit().Desktop().answer = [](const auto&...) { return host::MessageAnswer::No; };
  ASSERT_TRUE(venster_.SluitDossier());
  const replay::Document document = Geschreven();
  EXPECT_EQ(document.steps.back().answers, std::vector{host::MessageAnswer::No});
  EXPECT_EQ(Nagespeeld(document), bestand);
}

TEST_F(OpnameInVenster, AddingAColumnEndsTheRecordingAndSaysSo) {
  ASSERT_TRUE(venster_.NeemOp(opname_));
  ASSERT_TRUE(Scherm().GaNaar({0, 3}));
  EXPECT_EQ(Doe("TxtOm", Enter{std::string("Pianolessen")}), Outcome::Done);
  const replay::Json voor = replay::ToJson(Scherm().Gegevens().Gegevens());
  SluitMelding();
  ASSERT_TRUE(Scherm().VoegToe());
  for (int i = 0; i < 100 && melding_.isEmpty(); ++i) QApplication::processEvents(QEventLoop::AllEvents, 50);
  EXPECT_TRUE(melding_.contains(QStringLiteral("De opname is gestopt"))) << melding_.toStdString();
  EXPECT_FALSE(venster_.Opdrachten().opnemen->isChecked());
  EXPECT_EQ(Nagespeeld(Geschreven()), voor);
}

}  // namespace
}  // namespace brivane::dossier

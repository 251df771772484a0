#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include "tests/support/TestHost.h"
#include "tests/toolkits/qt/Person.h"
#include <brivane/controls/Surface.h>
#include <brivane/frame/Calendar.h>
#include <brivane/toolkits/qt/VrijeKolomWidget.h>
#include <brivane/toolkits/qt/widgets/Bubble.h>
#include <brivane/toolkits/qt/widgets/EntryBox.h>

/// What is being typed when a host takes the editor away, in whatever way: it is handed over, or refused and kept.
namespace brivane::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// The editor on the first of two tab pages, a tool button beside them.
class Leaving : public testing::Test {
 protected:
  Leaving() {
    auto* const layout = new QVBoxLayout(&window_);
    tabs_ = new QTabWidget;
    tool_ = new QToolButton;
    layout->addWidget(tool_);
    layout->addWidget(tabs_);
    editor_ = new qt::VrijeKolomWidget;
    editor_->Toolkit().Desktop().answer = [this](const std::string& title, const std::string& text,
                                                 host::MessageStyle) {
      messages_.push_back(title + ": " + text);
      return answer_;
    };
    tabs_->addTab(editor_, "Kolom");
    tabs_->addTab(new QLabel("Iets anders"), "Anders");
    kolom_.velden.DatumAanvang = frame::MakeDate({2026, 1, 31});
    kolom_.velden.Omschrijving = "Club";
    host_.dossier.huidig->Voeg(2).velden.Omschrijving = "Tweede";
    editor_->SetHostFactories(host_.Factories());
    editor_->SetApplication(host_.application, 0, 1);
    ShowActive(window_);
  }

  [[nodiscard]] qt::EntryBox& Box(std::string_view name) {
    return dynamic_cast<qt::EntryBox&>(*WidgetFor(*controls::Surface::Of(editor_->Surface()).Find(name)));
  }
  void TypeInto(std::string_view name, const QString& text) {
    Click(Box(name));
    TypeOver(text);
  }
  void ClickTab(int index) { Click(*tabs_->tabBar(), tabs_->tabBar()->tabRect(index).center()); }
  static void Settle() { QApplication::processEvents(); }
  [[nodiscard]] bool Passes() {
    bool cancel = false;
    editor_->Validation(cancel);
    return !cancel;
  }

  TestHost host_;
  TestKolom& kolom_ = host_.Kolom(1);
  QWidget window_;
  QTabWidget* tabs_ = nullptr;
  QToolButton* tool_ = nullptr;
  qt::VrijeKolomWidget* editor_ = nullptr;
  host::MessageAnswer answer_ = host::MessageAnswer::Ok;
  std::vector<std::string> messages_;
};

TEST_F(Leaving, AClickOnAnotherTabHandsOver) {
  TypeInto("TxtOm", "Krant");
  ClickTab(1);
  EXPECT_EQ(tabs_->currentIndex(), 1);
  EXPECT_EQ(kolom_.velden.Omschrijving, "Krant");
  EXPECT_TRUE(Passes());
}

TEST_F(Leaving, AClickOnAnotherTabStaysWhereWhatIsTypedDoesNotPass) {
  TypeInto("TxtBd", "12.50");
  ClickTab(1);
  EXPECT_EQ(tabs_->currentIndex(), 0);
  EXPECT_NE(qt::Bubble::ReasonOf(Box("TxtBd")), "");
  EXPECT_TRUE(Box("TxtBd").hasFocus());
  EXPECT_FALSE(Passes());
}

TEST_F(Leaving, AToolButtonFindsTheRecordWithWhatWasTyped) {
  std::string found;
  QObject::connect(tool_, &QToolButton::clicked, &window_, [&] { found = kolom_.velden.Omschrijving; });
  TypeInto("TxtOm", "Krant");
  Click(*tool_);
  EXPECT_EQ(found, "Krant");
}

TEST_F(Leaving, AToolButtonDoesNothingWhereWhatIsTypedDoesNotPass) {
  int clicked = 0;
  QObject::connect(tool_, &QToolButton::clicked, &window_, [&] { ++clicked; });
  TypeInto("TxtBd", "12.50");
  Click(*tool_);
  EXPECT_EQ(clicked, 0);
  EXPECT_NE(qt::Bubble::ReasonOf(Box("TxtBd")), "");
}

TEST_F(Leaving, APageThatCodeTurnsHandsOver) {
  TypeInto("TxtOm", "Krant");
  tabs_->setCurrentIndex(1);
  Settle();
  EXPECT_EQ(kolom_.velden.Omschrijving, "Krant");
}

TEST_F(Leaving, ACheckHandsOverAtOnceWhatAPageHid) {
  TypeInto("TxtOm", "Krant");
  tabs_->setCurrentIndex(1);
  EXPECT_TRUE(Passes());
  EXPECT_EQ(kolom_.velden.Omschrijving, "Krant");
}

TEST_F(Leaving, WhatDoesNotPassIsKeptOnAHiddenPageAndACheckAsksWhetherItMayGo) {
  TypeInto("TxtBd", "12.50");
  tabs_->setCurrentIndex(1);
  Settle();
  EXPECT_THAT(messages_, IsEmpty());
  answer_ = host::MessageAnswer::No;
  EXPECT_FALSE(Passes());
  EXPECT_THAT(messages_, ElementsAre(HasSubstr("staat nog \"12.50\"")));
  tabs_->setCurrentIndex(0);
  EXPECT_EQ(Box("TxtBd").text(), "12.50");
  EXPECT_NE(qt::Bubble::ReasonOf(Box("TxtBd")), "");

  tabs_->setCurrentIndex(1);
  answer_ = host::MessageAnswer::Yes;
  EXPECT_TRUE(Passes());
  EXPECT_EQ(Box("TxtBd").text(), "0,00");
}

TEST_F(Leaving, TheReasonIsNotLeftFloatingOverAnotherPage) {
  TypeInto("TxtBd", "12.50");
  Press(Qt::Key_Tab);
  ASSERT_NE(qt::Bubble::ReasonOf(Box("TxtBd")), "");
  tabs_->setCurrentIndex(1);
  Settle();
  EXPECT_EQ(qt::Bubble::ReasonOf(Box("TxtBd")), "");
}

TEST_F(Leaving, DisablingHandsOver) {
  TypeInto("TxtOm", "Krant");
  editor_->setEnabled(false);
  Settle();
  EXPECT_EQ(kolom_.velden.Omschrijving, "Krant");
}

TEST_F(Leaving, DisablingKeepsWhatDoesNotPass) {
  TypeInto("TxtBd", "12.50");
  editor_->setEnabled(false);
  Settle();
  answer_ = host::MessageAnswer::No;
  EXPECT_FALSE(Passes());
  EXPECT_EQ(Box("TxtBd").text(), "12.50");
  editor_->setEnabled(true);
  EXPECT_FALSE(Passes());
  EXPECT_NE(qt::Bubble::ReasonOf(Box("TxtBd")), "");
}

TEST_F(Leaving, ANewParentHandsOver) {
  TypeInto("TxtOm", "Krant");
  QWidget other;
  editor_->setParent(&other);
  editor_->show();
  ShowActive(other);
  EXPECT_EQ(kolom_.velden.Omschrijving, "Krant");
  editor_->setParent(&window_);
}

TEST_F(Leaving, TheReasonGoesWithItsBoxIntoAnotherWindow) {
  TypeInto("TxtBd", "12.50");
  Press(Qt::Key_Tab);
  ASSERT_NE(qt::Bubble::ReasonOf(Box("TxtBd")), "");
  QWidget other;
  auto* const layout = new QVBoxLayout(&other);
  layout->addWidget(editor_);
  ShowActive(other);
  editor_->show();
  Settle();
  EXPECT_EQ(Box("TxtBd").window(), &other);
  EXPECT_NE(qt::Bubble::ReasonOf(Box("TxtBd")), "");
  for (const QObject* child : window_.children()) EXPECT_EQ(dynamic_cast<const qt::Bubble*>(child), nullptr);
  editor_->setParent(&window_);
}

TEST_F(Leaving, ANewBindingHandsOverToTheColumnThatItWasTypedIn) {
  TypeInto("TxtOm", "Krant");
  EXPECT_EQ(editor_->SetApplication(host_.application, 0, 2), controls::BindingResult::Bound);
  EXPECT_EQ(kolom_.velden.Omschrijving, "Krant");
  EXPECT_EQ(host_.Kolom(2).velden.Omschrijving, "Tweede");
  EXPECT_EQ(Box("TxtOm").text(), "Tweede");
}

TEST_F(Leaving, ANewBindingIsRefusedWhereWhatIsTypedDoesNotPass) {
  TypeInto("TxtBd", "12.50");
  EXPECT_EQ(editor_->SetApplication(host_.application, 0, 2), controls::BindingResult::Refused);
  EXPECT_TRUE(editor_->IsBound());
  EXPECT_EQ(editor_->Control()->Item()->Id(), 1);
  EXPECT_EQ(Box("TxtBd").text(), "12.50");
  EXPECT_NE(qt::Bubble::ReasonOf(Box("TxtBd")), "");
  editor_->PutBackPending();
  EXPECT_EQ(editor_->SetApplication(host_.application, 0, 2), controls::BindingResult::Bound);
}

TEST_F(Leaving, WhatTheHostFailsToTakeStaysAndACheckDoesNotPass) {
  for (int i = 0; i < 2; ++i) host_.calls.Fail("Omschrijving", Op::Set);
  TypeInto("TxtOm", "Krant");
  Press(Qt::Key_Tab);
  EXPECT_TRUE(Box("TxtOm").hasFocus());
  EXPECT_EQ(Box("TxtOm").text(), "Krant");
  EXPECT_THAT(qt::Bubble::ReasonOf(Box("TxtOm")).toStdString(), HasSubstr("niet bewaard"));
  EXPECT_FALSE(Passes());
  EXPECT_EQ(kolom_.velden.Omschrijving, "Club");
  // The third time it takes it.
  EXPECT_TRUE(Passes());
  EXPECT_EQ(kolom_.velden.Omschrijving, "Krant");
}

TEST_F(Leaving, WhatTheHostFailsToTakeIsPutBackByEscape) {
  host_.calls.Fail("Omschrijving", Op::Set);
  TypeInto("TxtOm", "Krant");
  Press(Qt::Key_Return);
  Press(Qt::Key_Escape);
  EXPECT_EQ(Box("TxtOm").text(), "Club");
  EXPECT_EQ(qt::Bubble::ReasonOf(Box("TxtOm")), "");
  EXPECT_TRUE(Passes());
}

/// A box that is taken apart with its window hands over nothing: there may be nobody left to take it.
TEST_F(Leaving, ADeletedWindowTakesWhatIsTypedAlong) {
  auto* const window = new QWidget;
  auto* const layout = new QVBoxLayout(window);
  layout->addWidget(editor_);
  ShowActive(*window);
  TypeInto("TxtOm", "Krant");
  delete window;
  Settle();
  EXPECT_EQ(kolom_.velden.Omschrijving, "Club");
}

TEST_F(Leaving, AScrollBarLeadsNowhere) {
  auto* const bar = new QScrollBar(Qt::Horizontal);
  window_.layout()->addWidget(bar);
  Settle();
  TypeInto("TxtOm", "Krant");
  Click(*bar);
  EXPECT_EQ(kolom_.velden.Omschrijving, "Club");
  EXPECT_TRUE(Box("TxtOm").hasFocus());
}

}  // namespace
}  // namespace brivane::test

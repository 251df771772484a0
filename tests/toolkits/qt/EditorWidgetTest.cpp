#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QSignalSpy>
#include <QVBoxLayout>

#include "tests/support/TestHost.h"
#include "tests/toolkits/qt/Person.h"
#include <brivane/controls/ListBox.h>
#include <brivane/controls/Surface.h>
#include <brivane/frame/Calendar.h>
#include <brivane/toelichting/Ontwerp.h>
#include <brivane/toolkits/qt/Dump.h>
#include <brivane/toolkits/qt/ToelichtingWidget.h>
#include <brivane/toolkits/qt/VrijeKolomWidget.h>
#include <brivane/toolkits/qt/widgets/EntryBox.h>
#include <brivane/vrijekolom/Ontwerp.h>

/// The embeddable controls in a window of their host, worked by keys.
namespace brivane::test {
namespace {

using testing::Contains;
using testing::ElementsAre;

/// A host window with the editor bound to column 1.
class EditorWidget : public testing::Test {
 protected:
  EditorWidget() {
    auto* const layout = new QVBoxLayout(&window_);
    editor_ = new qt::VrijeKolomWidget(&window_);
    layout->addWidget(editor_);
    layout->addStretch();
    editor_->Toolkit().Desktop().clock = [] { return frame::MakeDate({2026, 11, 21}); };
    editor_->Toolkit().Desktop().answer = [this](const std::string& title, const std::string& text,
                                                 host::MessageStyle) {
      messages_.push_back(title + ": " + text);
      return host::MessageAnswer::Ok;
    };
    kolom_.velden.DatumAanvang = frame::MakeDate({2026, 1, 31});
    editor_->SetHostFactories(host_.Factories());
    editor_->SetApplication(host_.application, 0, 1);
    ShowActive(window_);
  }

  [[nodiscard]] controls::AnyControl& Control(std::string_view name, int index = frame::kNoIndex) {
    return *controls::Surface::Of(editor_->Surface()).Find(name, index);
  }
  [[nodiscard]] QString TextOf(std::string_view name) {
    return dynamic_cast<qt::EntryBox&>(*WidgetFor(Control(name))).text();
  }
  void Focus(std::string_view name) { Click(*WidgetFor(Control(name))); }

  TestHost host_;
  TestKolom& kolom_ = host_.Kolom(1);
  QWidget window_;
  qt::VrijeKolomWidget* editor_ = nullptr;
  std::vector<std::string> messages_;
};

TEST_F(EditorWidget, KeysReachTheRecord) {
  QSignalSpy header(editor_, &qt::VrijeKolomWidget::refreshTopDisplay);
  Focus("TxtOm");
  TypeOver("Krant");
  Press(Qt::Key_Tab);
  TypeOver("12,50");
  Press(Qt::Key_Tab);
  Focus("TxtAnJaar");
  TypeOver("1");
  Press(Qt::Key_Tab);
  TypeOver("14");
  Press(Qt::Key_Tab);
  EXPECT_EQ(kolom_.velden.Omschrijving, "Krant");
  EXPECT_EQ(kolom_.bedrag->bedrag, 12.5);
  EXPECT_EQ(kolom_.velden.Looptijd, 26);
  EXPECT_EQ(TextOf("TxtAnJaar"), "2");
  EXPECT_EQ(TextOf("TxtAnMaand"), "2");
  EXPECT_EQ(TextOf("TxtDtEind"), "31-03-2028");
  EXPECT_EQ(header.size(), 4);
  EXPECT_EQ(header.back().front().toString(), "de kopregel");
  EXPECT_TRUE(editor_->Control()->Gewijzigd());
}

TEST_F(EditorWidget, ARefusedDateKeepsTheFocusUntilItIsMended) {
  Focus("TxtDtEind");
  TypeOver("1-1-2025");
  Press(Qt::Key_Tab);
  EXPECT_THAT(messages_, ElementsAre("Onjuiste invoer: De einddatum dient na de aanvangsdatum te liggen."));
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "TxtDtEind");
  EXPECT_EQ(kolom_.velden.Looptijd, 0);
  Press(Qt::Key_Escape);
  EXPECT_EQ(TextOf("TxtDtEind"), "");
  Press(Qt::Key_Tab);
  EXPECT_EQ(messages_.size(), 1U);
}

TEST_F(EditorWidget, PassingOneOffInTheTermListTakesNothingAway) {
  Focus("TxtAnJaar");
  TypeOver("1");
  Press(Qt::Key_Tab);
  ASSERT_EQ(kolom_.velden.Looptijd, 12);
  const auto termijn = kolom_.velden.Termijn;
  auto& list = static_cast<controls::ListBox&>(*controls::Surface::Of(editor_->Surface()).Find("cboTermijn"));
  WidgetFor(list)->setFocus();
  for (const int key : {Qt::Key_End, Qt::Key_Home, Qt::Key_E, Qt::Key_Escape}) Press(key);
  Press(Qt::Key_Tab);
  EXPECT_EQ(kolom_.velden.Termijn, termijn);
  EXPECT_EQ(kolom_.velden.Looptijd, 12);
  EXPECT_NE(TextOf("TxtDtEind"), "");
}

TEST_F(EditorWidget, ValidationHandsTheChoiceUnderWayOverFirst) {
  auto& list = static_cast<controls::ListBox&>(*controls::Surface::Of(editor_->Surface()).Find("cboTermijn"));
  WidgetFor(list)->setFocus();
  Press(Qt::Key_Home);
  Press(Qt::Key_Down);
  bool cancel = false;
  editor_->Validation(cancel);
  EXPECT_EQ(list.ListIndex(), 1);
  EXPECT_EQ(kolom_.velden.Termijn, list.ItemData(1));
}

TEST_F(EditorWidget, ValidationHandsTheBoxOverFirst) {
  Focus("TxtOm");
  TypeOver("Blad");
  bool cancel = false;
  editor_->Validation(cancel);
  EXPECT_FALSE(cancel);
  EXPECT_EQ(kolom_.velden.Omschrijving, "Blad");

  Focus("TxtBd");
  TypeOver("12.50");
  editor_->Validation(cancel);
  EXPECT_TRUE(cancel);
  EXPECT_EQ(TextOf("TxtBd"), "12.50");
  EXPECT_FALSE(editor_->CommitPending());
  TypeOver("12,50");
  EXPECT_TRUE(editor_->CommitPending());
  EXPECT_EQ(kolom_.bedrag->bedrag, 12.5);
}

TEST_F(EditorWidget, WhatTheWidgetsShowIsWhatTheControlsHoldToThePixel) {
  kolom_.velden.ScenarioOverlijden = true;
  kolom_.velden.PercentageOvergang = 70;
  kolom_.velden.EinddatumOvergang = frame::MakeDate({2047, 5, 17});
  kolom_.velden.IsProduct = true;
  kolom_.velden.Maatschappij = "AB";
  editor_->SetBeeindigenZichtbaar(true);
  editor_->SetApplication(host_.application, 0, 1);
  QApplication::processEvents();
  const auto& surface = controls::Surface::Of(editor_->Surface());
  const auto held = controls::DumpAll(surface);
  const auto shown = qt::DumpShown(surface, editor_->Toolkit());
  ASSERT_EQ(shown.size(), held.size());
  for (std::size_t i = 0; i < held.size(); ++i) EXPECT_TRUE(shown[i] == held[i]) << held[i].name;
}

TEST_F(EditorWidget, IsAsHighAsItSaysAndLaysOutWhenItIsSized) {
  QSignalSpy heights(editor_, &qt::ControlWidget::heightChanged);
  const host::Place place = editor_->Surface().Place();
  EXPECT_EQ(editor_->sizeHint(), QSize(830, static_cast<int>(place.height.value) / 15));
  EXPECT_EQ(editor_->height(), editor_->sizeHint().height());
  window_.resize(1000, 700);
  QApplication::processEvents();
  EXPECT_EQ(editor_->Surface().Place().width.value, 15.0F * static_cast<float>(editor_->width()));
  EXPECT_GE(heights.size(), 1);
  EXPECT_EQ(editor_->sizeHint().width(), 830);
}

TEST_F(EditorWidget, ABackColorIsTakenOverOnceItIsSet) {
  EXPECT_EQ(editor_->backColor(), window_.palette().color(QPalette::Window));
  EXPECT_TRUE(editor_->setProperty("backColor", QColor(200, 220, 255)));
  EXPECT_EQ(editor_->property("backColor").value<QColor>(), QColor(200, 220, 255));
  const QImage shown = editor_->grab().toImage();
  EXPECT_EQ(shown.pixelColor(shown.width() - 1, 1), QColor(200, 220, 255));
  EXPECT_EQ(shown.pixelColor(2, shown.height() - 2), QColor(200, 220, 255));
}

TEST_F(EditorWidget, FollowsALargerFontOfTheApplication) {
  const QFont before = QApplication::font();
  const QSize size = editor_->sizeHint();
  QFont larger = before;
  larger.setPixelSize(18);
  QApplication::setFont(larger);
  QApplication::processEvents();
  EXPECT_EQ(editor_->sizeHint().width(), size.width() * 3 / 2);
  EXPECT_EQ(WidgetFor(Control("TxtOm"))->font().pixelSize(), 18);
  EXPECT_EQ(WidgetFor(Control("TxtOm"))->width(), 4230 / 15 * 3 / 2);
  QApplication::setFont(before);
  QApplication::processEvents();
  EXPECT_EQ(editor_->sizeHint(), size);
}

TEST_F(EditorWidget, DisabledFieldsTakeNoKeys) {
  kolom_.velden.Termijn = 99;
  editor_->SetApplication(host_.application, 0, 1);
  Focus("TxtDtAanvang");
  TypeOver("1-2-2026");
  Press(Qt::Key_Tab);
  EXPECT_FALSE(WidgetFor(Control("TxtDtEind"))->isEnabled());
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "TxtOm");
  Focus("TxtDtEind");
  EXPECT_NE(QApplication::focusWidget()->objectName(), "TxtDtEind");
}

TEST(EditorWidgetAlone, FailsWhenItIsBoundWithoutFactories) {
  TestHost host;
  qt::VrijeKolomWidget editor;
  editor.setBackColor(Qt::yellow);
  editor.SetBeeindigenZichtbaar(true);
  try {
    editor.SetApplication(host.application, 0, 1);
    FAIL();
  } catch (const host::Error& error) {
    EXPECT_EQ(error.Number(), 91);
  }
  editor.SetHostFactories(host.Factories());
  EXPECT_EQ(editor.Control()->BackColor(), host::Color{0x00FFFF});
  EXPECT_TRUE(editor.Control()->BeeindigenZichtbaar());
}

TEST(ToelichtingWidget, IsBoundCheckedAndToldOfEdits) {
  TestHost host;
  QWidget window;
  auto* const layout = new QVBoxLayout(&window);
  auto* const toelichting = new qt::ToelichtingWidget(&window);
  layout->addWidget(toelichting);
  toelichting->SetHostFactories(host.Factories());
  std::shared_ptr<host::Application> application = host.application;
  std::shared_ptr<host::Lening> lening = host.dossier.huidig;
  toelichting->SetApplication(application, lening, 1);
  ShowActive(window);
  QSignalSpy changed(toelichting, &qt::ToelichtingWidget::changed);
  controls::AnyControl& toggle = *controls::Surface::Of(toelichting->Surface()).Find("jnOverlijden");
  WidgetFor(toggle)->setFocus();
  Press(Qt::Key_J);
  EXPECT_EQ(changed.size(), 1);
  EXPECT_TRUE(host.Kolom(1).velden.ScenarioOverlijden);

  std::vector<std::string> messages;
  toelichting->Toolkit().Desktop().answer = [&](const std::string&, const std::string& text, host::MessageStyle) {
    messages.push_back(text);
    return host::MessageAnswer::Ok;
  };
  bool cancel = false;
  toelichting->Validation(cancel);
  EXPECT_TRUE(cancel);
  EXPECT_THAT(messages, ElementsAre("Overgangspercentage partner van 1% t/m 100% invullen."));
  EXPECT_EQ(toelichting->sizeHint(), QSize(402, toelichting::kHoogte / 15));
}

}  // namespace
}  // namespace brivane::test

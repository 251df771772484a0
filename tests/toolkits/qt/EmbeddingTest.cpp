#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QSignalSpy>
#include <QVBoxLayout>

#include "tests/support/TestHost.h"
#include "tests/toolkits/qt/Person.h"
#include <brivane/controls/Surface.h>
#include <brivane/controls/TextBox.h>
#include <brivane/frame/Calendar.h>
#include <brivane/toolkits/qt/ToelichtingWidget.h>
#include <brivane/toolkits/qt/VrijeKolomWidget.h>

/// What the widgets tell their host, and what they show when they stand for nothing.
namespace brivane::test {
namespace {

using controls::BindingResult;
using controls::BindingState;

class Embedding : public testing::Test {
 protected:
  Embedding() {
    auto* const layout = new QVBoxLayout(&window_);
    header_ = new QLabel;
    editor_ = new qt::VrijeKolomWidget;
    layout->addWidget(header_);
    layout->addWidget(editor_);
    QObject::connect(editor_, &qt::VrijeKolomWidget::topDisplayChanged, header_, &QLabel::setText);
    kolom_.velden.Omschrijving = "Club";
    kolom_.velden.Kopregel = "Club, € 5 per maand";
    TestKolom& second = host_.dossier.huidig->Voeg(2);
    second.velden.Omschrijving = "Krant";
    second.velden.Kopregel = "Krant, € 9 per maand";
    editor_->SetHostFactories(host_.Factories());
    ShowActive(window_);
  }
  BindingResult Bind(std::int16_t Len_Id, std::int16_t Vrij_Id) {
    return editor_->SetApplication(host_.application, Len_Id, Vrij_Id);
  }
  [[nodiscard]] QWidget& Box(std::string_view name) {
    return *WidgetFor(*controls::Surface::Of(editor_->Surface()).Find(name));
  }
  /// The texts of labels that can be read in the editor.
  [[nodiscard]] static bool Reads(const QWidget& widget, const QString& text) {
    for (const QLabel* label : widget.findChildren<QLabel*>())
      if (label->isVisible() && label->text() == text) return true;
    return false;
  }

  TestHost host_;
  TestKolom& kolom_ = host_.Kolom(1);
  QWidget window_;
  QLabel* header_ = nullptr;
  qt::VrijeKolomWidget* editor_ = nullptr;
};

const QString kVeil = QStringLiteral("Er is geen vrije kolom geopend.");

TEST_F(Embedding, TheHeaderFollowsTheBindingAndTheEdit) {
  EXPECT_EQ(editor_->topDisplay(), "");
  Bind(0, 1);
  EXPECT_EQ(header_->text(), "Club, € 5 per maand");
  Bind(0, 2);
  EXPECT_EQ(header_->text(), "Krant, € 9 per maand");
  EXPECT_EQ(editor_->topDisplay(), "Krant, € 9 per maand");
  host_.Kolom(2).velden.Kopregel = "Blad";
  Click(Box("TxtOm"));
  TypeOver("Blad");
  Press(Qt::Key_Tab);
  EXPECT_EQ(header_->text(), "Blad");
  EXPECT_EQ(editor_->property("topDisplay").toString(), "Blad");
}

TEST_F(Embedding, TheHeaderIsReadOfTheHostOnlyWhereSomebodyWantsIt) {
  QObject::disconnect(editor_, nullptr, header_, nullptr);
  host_.calls.reads = true;
  Bind(0, 1);
  EXPECT_THAT(host_.calls.Take(), testing::Not(testing::Contains(testing::HasSubstr("Kopregel"))));
  EXPECT_EQ(editor_->topDisplay(), "Club, € 5 per maand");
  EXPECT_EQ(editor_->topDisplay(), "Club, € 5 per maand");
  EXPECT_THAT(host_.calls.Take(), testing::ElementsAre(testing::HasSubstr("Kopregel")));
}

TEST_F(Embedding, AFailedBindingTellsTheHostAndShowsNothing) {
  EXPECT_EQ(editor_->State(), BindingState::Never);
  EXPECT_EQ(Bind(0, 1), BindingResult::Bound);
  EXPECT_TRUE(editor_->IsBound());
  Click(Box("TxtOm"));
  EXPECT_EQ(Bind(9, 2), BindingResult::Failed);
  EXPECT_EQ(editor_->State(), BindingState::Failed);
  EXPECT_EQ(header_->text(), "");
  EXPECT_FALSE(Box("TxtOm").isVisible());
  EXPECT_TRUE(Reads(*editor_, kVeil));
  for (const char* text : {"x", "j"}) Type(text);
  Press(Qt::Key_Tab);
  EXPECT_EQ(kolom_.velden.Omschrijving, "Club");

  EXPECT_EQ(Bind(0, 2), BindingResult::Bound);
  EXPECT_TRUE(Box("TxtOm").isVisible());
  EXPECT_FALSE(Reads(*editor_, kVeil));
  EXPECT_EQ(header_->text(), "Krant, € 9 per maand");
}

/// The earlier column is not checked any more: the host has left it.
TEST_F(Embedding, AWidgetThatStandsForNothingHasNothingToCheck) {
  Bind(0, 1);
  Bind(9, 2);
  (void)host_.calls.Take();
  bool cancel = false;
  editor_->Validation(cancel);
  EXPECT_FALSE(cancel);
  EXPECT_THAT(host_.calls.Take(), testing::IsEmpty());
}

TEST_F(Embedding, ItLetsGoOfTheHost) {
  const auto before = host_.application.use_count();
  Bind(0, 1);
  Click(Box("TxtOm"));
  TypeOver("Blad");
  editor_->Unbind();
  EXPECT_EQ(kolom_.velden.Omschrijving, "Blad");
  EXPECT_EQ(editor_->State(), BindingState::Unbound);
  EXPECT_EQ(host_.application.use_count(), before);
  EXPECT_EQ(host_.dossier.huidig->kolommen.front().use_count(), 1);
  EXPECT_EQ(header_->text(), "");
  EXPECT_TRUE(Reads(*editor_, kVeil));
}

TEST_F(Embedding, NoApplicationLetsGoOfTheHostToo) {
  const auto before = host_.application.use_count();
  Bind(0, 1);
  EXPECT_EQ(editor_->SetApplication(nullptr, 0, 0), BindingResult::Failed);
  EXPECT_EQ(editor_->State(), BindingState::Unbound);
  EXPECT_EQ(host_.application.use_count(), before);
  EXPECT_EQ(host_.dossier.huidig->kolommen.front().use_count(), 1);
}

/// Two editors on one column: the host that has both binds the other one anew. Neither binding sets off another.
TEST_F(Embedding, AHostKeepsTwoEditorsOnOneColumnAlike) {
  auto* const other = new qt::VrijeKolomWidget;
  window_.layout()->addWidget(other);
  other->SetHostFactories(host_.Factories());
  Bind(0, 1);
  other->SetApplication(host_.application, 0, 1);
  int bound = 0;
  const auto follow = [&](qt::VrijeKolomWidget* edited, qt::VrijeKolomWidget* follower) {
    QObject::connect(edited, &qt::VrijeKolomWidget::refreshTopDisplay, follower, [this, &bound, follower] {
      ++bound;
      follower->SetApplication(host_.application, 0, 1);
    });
  };
  follow(editor_, other);
  follow(other, editor_);
  Click(Box("TxtOm"));
  TypeOver("Blad");
  Press(Qt::Key_Tab);
  const auto& box = dynamic_cast<const controls::TextBox&>(*controls::Surface::Of(other->Surface()).Find("TxtOm"));
  EXPECT_EQ(box.Text(), "Blad");
  EXPECT_EQ(bound, 1);
  EXPECT_TRUE(editor_->Control()->Gewijzigd());
}

TEST_F(Embedding, TypingBeforeTheFirstBindingBelongsToNothing) {
  Click(Box("TxtOm"));
  TypeOver("Blad");
  EXPECT_EQ(Bind(0, 1), BindingResult::Bound);
  EXPECT_EQ(kolom_.velden.Omschrijving, "Club");
}

TEST_F(Embedding, TheVeilIsAsLargeAsTheEditor) {
  Bind(9, 1);
  window_.resize(1000, 800);
  QApplication::processEvents();
  for (const QLabel* label : editor_->findChildren<QLabel*>()) {
    if (label->text() == kVeil) {
      EXPECT_EQ(label->geometry(), editor_->rect());
    }
  }
}

TEST_F(Embedding, AnErrorReportLeavesThePointerOfTheHost) {
  QApplication::setOverrideCursor(Qt::WaitCursor);
  Bind(9, 1);
  ASSERT_NE(QApplication::overrideCursor(), nullptr);
  QApplication::restoreOverrideCursor();
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST(ToelichtingEmbedding, AFailedBindingTellsTheHostAndShowsNothing) {
  TestHost host;
  QWidget window;
  auto* const layout = new QVBoxLayout(&window);
  auto* const toelichting = new qt::ToelichtingWidget;
  layout->addWidget(toelichting);
  toelichting->SetHostFactories(host.Factories());
  std::shared_ptr<host::Application> application = host.application;
  std::shared_ptr<host::Lening> lening = host.dossier.huidig;
  ShowActive(window);
  controls::AnyControl& toggle = *controls::Surface::Of(toelichting->Surface()).Find("jnOverlijden");
  EXPECT_EQ(toelichting->SetApplication(application, lening, 1), BindingResult::Bound);
  EXPECT_EQ(toelichting->SetApplication(application, lening, 9), BindingResult::Failed);
  EXPECT_FALSE(WidgetFor(toggle)->isVisible());
  EXPECT_EQ(toggle.Perform(controls::Toggle{host::kJa}), controls::Outcome::Ignored);
  EXPECT_FALSE(host.Kolom(1).velden.ScenarioOverlijden);
  EXPECT_EQ(toelichting->SetApplication(application, lening, 1), BindingResult::Bound);
  EXPECT_EQ(toggle.Perform(controls::Toggle{host::kJa}), controls::Outcome::Done);
  const auto held = host.dossier.huidig->kolommen.front().use_count();
  toelichting->Unbind();
  EXPECT_LT(host.dossier.huidig->kolommen.front().use_count(), held);
}

}  // namespace
}  // namespace brivane::test

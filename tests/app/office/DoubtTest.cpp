#include <QAction>
#include <QPointer>
#include <QScopeGuard>

#include "dossier/store/History.h"
#include "tests/app/office/ClientWindow.h"
#include "tests/support/postgres/SocketProxy.h"

// What is said in the year-by-year form, and beside a box, while it is not known whether the office has what was typed.
namespace brivane::app {
namespace {

using test::SocketProxy;
using Fate = SocketProxy::Fate;

constexpr char kStored[] = "De verbinding met het kantoor is er weer. De laatste wijziging is opgeslagen.";
constexpr char kNotStored[] = "De verbinding met het kantoor is er weer. De laatste wijziging is niet opgeslagen.";
constexpr char kUnknown[] = "Niet bekend of dit is opgeslagen (Scenario";
constexpr char kRefused[] = "Niet opgeslagen (Scenario";

class DoubtTest : public ClientWindow {
 protected:
  void OpenIt() {
    OpenAs(*window_, "anna", proxy_.Folder());
    ASSERT_TRUE(window_->Screen()->GoTo(Place{0, 1}));
  }
  static void Confirm() { PressKey(Qt::Key_O, Qt::AltModifier); }
  /// Types in the first row of the form, whose amount is stored by itself, and confirms.
  void Fill(Fate fate, int others = 0) {
    dialogs_.Expect([this, fate, others](QWidget&) {
      Type("1234");
      proxy_.NextMeets(fate, others);
      Confirm();
    });
  }
  static void ConfirmAndClose(QWidget& form) {
    const QPointer<QWidget> shown(&form);
    Confirm();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !shown || !shown->isVisible(); }, 5000));
  }
  void ExpectRefusal(const QString& text) {
    dialogs_.ExpectMessage(kFailed, [text](QWidget& box) {
      const auto& message = static_cast<QMessageBox&>(box);
      const QString said = message.text() + message.informativeText();
      EXPECT_TRUE(said.contains(text)) << qPrintable(said);
      Pressing(Qt::Key_Return)(box);
    });
  }
  void Show() {
    for (QPushButton* button : window_->findChildren<QPushButton*>())
      if (button->text().remove('&') == "Scenario invullen") return button->click();
    FAIL() << "no button for the form";
  }
  [[nodiscard]] QString Notice() { return Text(*window_, "bericht"); }
  [[nodiscard]] QString Unstored() { return Text(*window_, "nietOpgeslagen"); }
  [[nodiscard]] bool IsNoticed(const QString& notice) {
    return QTest::qWaitFor([&] { return Notice() == notice; }, 15000);
  }
  void ExpectNothingIsKept() {
    EXPECT_EQ(Unstored(), "");
    EXPECT_TRUE(UnfinishedText::All().empty());
  }
  [[nodiscard]] double BaseInOffice() {
    return office_.Open(client_, "rob")->Dossier()->FindKolom(0, 1)->Gegevens().Bedrag.Bedrag;
  }
  /// How many edits changed the base amount.
  [[nodiscard]] int TimesStored() {
    return office_
        .Psql("postgres", QString("SELECT count(*) FROM kantoor.wijziging WHERE client = %1 AND tabel = %2")
                              .arg(client_)
                              .arg(static_cast<int>(dossier::Tabel::Kolom)))
        .toInt();
  }
  /// Why a box was refused, as it is seen and as a screen reader finds it.
  [[nodiscard]] static QString Reason() {
    QString said;
    for (const QWidget* widget : QApplication::allWidgets()) {
      const auto* label = qobject_cast<const QLabel*>(widget);
      if (label && label->isVisible() && label->text().contains("Enter probeert het opnieuw")) said += label->text();
    }
    // A row of a form is described by its year as well.
    QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(QApplication::focusWidget());
    const QString described = reader ? reader->text(QAccessible::Description) : QString();
    return described.contains("bewaard") ? said + described : said;
  }

  SocketProxy proxy_{office_.Server().Folder()};
};

TEST_F(DoubtTest, AYearFormIsGoneOnWithOnceItTurnsOutThatItsAmountIsStored) {
  OpenIt();
  Fill(Fate::DeadAfter);
  ExpectRefusal("blijkt of dat is gelukt");
  dialogs_.Expect([&](QWidget& form) {
    EXPECT_TRUE(Unstored().startsWith(kUnknown)) << qPrintable(Unstored());
    EXPECT_EQ(Reason(), "");
    proxy_.Mend();
    EXPECT_TRUE(IsNoticed(kStored)) << qPrintable(Notice());
    ExpectNothingIsKept();
    EXPECT_EQ(Reason(), "");
    EXPECT_TRUE(form.isVisible());
    ConfirmAndClose(form);
  });
  Show();
  EXPECT_EQ(Notice(), kStored);
  ExpectNothingIsKept();
  EXPECT_EQ(BaseInOffice(), 1234);
  EXPECT_EQ(TimesStored(), 1);
}

TEST_F(DoubtTest, AYearFormWhoseAmountTurnsOutNotToBeStoredIsConfirmedOnceMore) {
  OpenIt();
  Fill(Fate::DeadBefore);
  ExpectRefusal("blijkt of dat is gelukt");
  dialogs_.Expect([&](QWidget& form) {
    EXPECT_TRUE(Unstored().startsWith(kUnknown)) << qPrintable(Unstored());
    proxy_.Mend();
    EXPECT_TRUE(IsNoticed(kNotStored)) << qPrintable(Notice());
    EXPECT_TRUE(Unstored().startsWith(kRefused)) << qPrintable(Unstored());
    ConfirmAndClose(form);
  });
  Show();
  // It is no more so.
  EXPECT_EQ(Notice(), "");
  ExpectNothingIsKept();
  EXPECT_EQ(BaseInOffice(), 1234);
  EXPECT_EQ(TimesStored(), 1);
}

TEST_F(DoubtTest, WhatIsTriedAgainWhileItIsNotKnownIsNotToldAsNotStored) {
  OpenIt();
  Fill(Fate::DeadAfter);
  ExpectRefusal("blijkt of dat is gelukt");
  dialogs_.Expect([&](QWidget&) { Confirm(); });
  ExpectRefusal("er is geen verbinding met het kantoor");
  dialogs_.Expect([&](QWidget& form) {
    EXPECT_EQ(Reason(), "");
    EXPECT_TRUE(Unstored().startsWith(kUnknown)) << qPrintable(Unstored());
    ASSERT_EQ(UnfinishedText::All().size(), 1U);
    EXPECT_TRUE(UnfinishedText::All().front().what.unknown);
    proxy_.Mend();
    EXPECT_TRUE(IsNoticed(kStored)) << qPrintable(Notice());
    ExpectNothingIsKept();
    ConfirmAndClose(form);
  });
  Show();
  ExpectNothingIsKept();
  EXPECT_EQ(TimesStored(), 1);
}

/// What another stored meanwhile is not read under the form, which would go on from something else.
TEST_F(DoubtTest, AYearFormThatAnotherOvertookHasToGoFirstAndKeepsItsText) {
  OpenIt();
  Fill(Fate::DeadAfter);
  ExpectRefusal("blijkt of dat is gelukt");
  dialogs_.Expect([&](QWidget&) {
    ASSERT_TRUE(QTest::qWaitFor(
        [&] {
          const auto bert = office_.Open(client_, "bert");
          if (bert->Now() != dossier::OfficeStore::State::Editing) return false;
          bert->Dossier()->FindKolom(0, 1)->SetOmschrijving("Van Bert");
          return true;
        },
        10000));
    proxy_.Mend();
    EXPECT_TRUE(IsNoticed(kStored)) << qPrintable(Notice());
    Confirm();
  });
  ExpectRefusal("het dossier is intussen gewijzigd. Sluit dit venster, dan wordt het opnieuw gelezen");
  dialogs_.Expect([&](QWidget&) {
    // Out of the box, and out of the form.
    PressKey(Qt::Key_Escape);
    PressKey(Qt::Key_Escape);
  });
  dialogs_.Expect([](QWidget& question) {
    for (QPushButton* button : question.findChildren<QPushButton*>())
      if (button->text().remove('&') == "Ja") return button->click();
    question.close();
    ADD_FAILURE() << "no Yes";
  });
  Show();
  EXPECT_TRUE(QTest::qWaitFor([&] { return Omschrijving(*window_) == "Van Bert"; }, 5000)) << Omschrijving(*window_);
  EXPECT_EQ(Notice(), kStored);
  EXPECT_TRUE(Unstored().startsWith(kRefused)) << qPrintable(Unstored());
  EXPECT_EQ(BaseInOffice(), 1234);
  EXPECT_EQ(TimesStored(), 2);
}

/// The message is gone, and who showed it has not come back yet.
TEST_F(DoubtTest, NothingIsSaidBesideABoxThatShowsAgainWhatStoodThere) {
  OpenAs(*window_, "anna", proxy_.Folder());
  proxy_.NextMeets(Fate::DeadAfter);
  dialogs_.ExpectMessage(kFailed, [](QWidget& box) {
    QObject::connect(static_cast<QDialog*>(&box), &QDialog::finished, &box, [] { QTest::qWait(200); });
    Pressing(Qt::Key_Return)(box);
  });
  PressKey(Qt::Key_O, Qt::AltModifier);
  Type("Avondkrant");
  PressKey(Qt::Key_Return);
  EXPECT_TRUE(QTest::qWaitFor([&] { return Unstored().endsWith(": Avondkrant"); }, 5000)) << qPrintable(Unstored());
  QTest::qWait(200);
  EXPECT_EQ(Omschrijving(*window_), "Weekendabonnement");
  EXPECT_EQ(Reason(), "");
}

TEST_F(DoubtTest, AnOfficeThatWasUpgradedMeanwhileIsNotToldAsOneThatIsNotThere) {
  OpenAs(*window_, "anna", proxy_.Folder());
  proxy_.NextMeets(Fate::DeadAfter);
  ExpectRefusal("blijkt of dat is gelukt");
  Describe("Avondkrant");
  office_.Psql("postgres", "UPDATE kantoor.versie SET nummer = nummer + 98");
  proxy_.Mend();
  EXPECT_TRUE(QTest::qWaitFor(
      [&] {
        return Bar(*window_) ==
               "Dit kantoor is nu niet te gebruiken: het kantoor is van een nieuwere versie; werk dit programma bij. "
               "Het wordt af en toe opnieuw geprobeerd. Of de laatste wijziging is opgeslagen, blijkt zodra dat lukt.";
      },
      15000))
      << qPrintable(Bar(*window_));
  office_.Psql("postgres", "UPDATE kantoor.versie SET nummer = nummer - 98");
  window_->Actions().office.reconnect->trigger();
  EXPECT_TRUE(IsNoticed(kStored)) << qPrintable(Notice());
  ExpectNothingIsKept();
  EXPECT_EQ(Stored(), "Avondkrant");
}

TEST_F(DoubtTest, WhoMayEditNoMoreIsToldKeepsWhatHeTypedAndGoesOnReading) {
  const auto grant = [this](const char* sql) { office_.Psql("postgres", sql); };
  // The roles are the server's, which other tests go on with.
  const auto giveBack = qScopeGuard([&] { grant("GRANT kantoor_adviseur TO anna; REVOKE kantoor_lezer FROM anna"); });
  OpenAs(*window_, "anna", proxy_.Folder());
  grant("REVOKE kantoor_adviseur FROM anna; GRANT kantoor_lezer TO anna");
  ExpectRefusal("u hebt daar op dit kantoor het recht niet toe");
  Describe("Avondkrant");
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return Bar(*window_) == "Alleen lezen: u mag in dit kantoor niets wijzigen."; }, 10000))
      << qPrintable(Bar(*window_));
  EXPECT_EQ(Notice(), "U mag in dit kantoor niet meer wijzigen. Wat u nog wijzigt, wordt niet opgeslagen.");
  EXPECT_TRUE(Unstored().endsWith(": Avondkrant")) << qPrintable(Unstored());
  EXPECT_FALSE(window_->Actions().add->isEnabled());
  {
    const auto bert = office_.Open(client_, "bert");
    ASSERT_EQ(bert->Now(), dossier::OfficeStore::State::Editing);
    bert->Dossier()->FindKolom(0, 2)->SetOmschrijving("Van Bert");
    EXPECT_TRUE(QTest::qWaitFor([&] { return Omschrijving(*window_) == "Van Bert"; }, 10000));
  }
  grant("REVOKE kantoor_lezer FROM anna");
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return Bar(*window_).startsWith("U hebt in dit kantoor geen rechten meer."); }, 10000))
      << qPrintable(Bar(*window_));
}

/// The rows, which go all at once: the form is gone by then.
TEST_F(DoubtTest, TheRowsOfAYearFormAreToldOfInBothFates) {
  OpenIt();
  for (const Fate fate : {Fate::DeadBefore, Fate::DeadAfter}) {
    // The second time the amount is there already.
    Fill(fate, fate == Fate::DeadBefore ? 1 : 0);
    ExpectRefusal("blijkt of dat is gelukt");
    Show();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Unstored().startsWith(kUnknown); }, 5000)) << qPrintable(Unstored());
    proxy_.Mend();
    if (fate == Fate::DeadAfter) {
      EXPECT_TRUE(IsNoticed(kStored)) << qPrintable(Notice());
      ExpectNothingIsKept();
    } else {
      EXPECT_TRUE(IsNoticed(kNotStored)) << qPrintable(Notice());
      EXPECT_TRUE(Unstored().startsWith(kRefused)) << qPrintable(Unstored());
    }
  }
}

}  // namespace
}  // namespace brivane::app

#include "app/screen/ClientOnScreen.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QScopedValueRollback>
#include <utility>

#include "app/desk/Messages.h"
#include "app/office/ClientWords.h"
#include "app/screen/FilledIn.h"
#include "app/screen/Greying.h"
#include "dossier/store/StoreErrors.h"
#include <brivane/frame/Phrase.h>
#include <brivane/toolkits/qt/widgets/EntryBox.h>
#include <brivane/toolkits/qt/widgets/FormWindow.h>

namespace brivane::app {
namespace {

using State = dossier::OfficeStore::State;

constexpr int kLook = 500;  ///< milliseconds
constexpr int kMost = 60;   ///< characters of a text that are shown

bool IsOfEditor(const QDialog& form) { return dynamic_cast<const qt::FormWindow::Window*>(&form) != nullptr; }

/// The same text of the same place, whatever became of it.
bool IsTheSame(const UnfinishedText& one, const UnfinishedText& other) {
  return one.lening == other.lening && one.kolom == other.kolom && one.box == other.box && one.title == other.title &&
         one.text == other.text;
}

QString Short(QString text) {
  text.replace(u'\n', u' ').replace(u'\t', u' ');
  return text.size() <= kMost ? text : text.left(kMost - 1) + u'…';
}

}  // namespace

ClientOnScreen::ClientOnScreen(DossierScreen& screen, dossier::OfficeStore& store, const OfficeActions& actions,
                               EventLog& eventLog, Window window)
    : screen_(screen),
      store_(store),
      actions_(actions),
      eventLog_(eventLog),
      window_(std::move(window)),
      bar_(new ClientBar({actions.ask, actions.takeOver, actions.handOver, actions.reconnect})),
      typed_(screen.Kolom().Editor()),
      state_(store.Now()) {
  subscriptions_ += store_.Changed.Connect([this] { OnChanged(); });
  subscriptions_ += store_.Herladen.Connect([this] { OnReread(); });
  subscriptions_ += store_.Asked.Connect([this](const QString& name) {
    asker_ = name;
    Refresh();
  });
  subscriptions_ += store_.Settled.Connect([this](dossier::Outcome outcome) { OnSettled(outcome); });
  subscriptions_ += store_.Bewerkingen().Stored.Connect([this] { OnStored(); });
  subscriptions_ +=
      store_.Bewerkingen().Failed.Connect([this](const dossier::StoreFailure& failure) { OnFailed(failure); });
  bar_->noticePutAway = [this] {
    asker_.clear();
    Notice({});
    Refresh();
  };
  bar_->putBack = [this] { PutBack(); };
  bar_->copied = [this] {
    if (unstored_) QGuiApplication::clipboard()->setText(unstored_->what.text);
  };
  bar_->thrownAway = [this] { ForgetUnstored(); };
  // It may be stored: neither that it is not is said there, nor what to do about it.
  screen_.Kolom().Editor().SetReasonTeller(
      [this] { return mayBeStored_ ? frame::Phrase() : frame::Phrase(frame::TextId::NotStored); });
  // How often it was tried is told by nobody.
  connect(&look_, &QTimer::timeout, this, [this] {
    Refresh();
    AskWhenQuiet();
  });
  look_.start(kLook);
  Refresh();
}

ClientOnScreen::~ClientOnScreen() {
  screen_.Kolom().Editor().SetReasonTeller(nullptr);
  delete bar_;
}

BarFacts ClientOnScreen::Facts() const {
  const dossier::Holder& holder = store_.HeldBy();
  const auto& failure = store_.LastFailure();
  const bool refused = failure && failure->Problem() != dossier::OfficeProblem::Unreachable;
  return {.state = store_.Now(),
          .writes = store_.Writes(),
          .holder = holder.naam,
          .since = MomentText(holder.sinds, QDateTime::currentDateTime()),
          .asked = asked_,
          .asker = asker_,
          .tries = store_.Tries(),
          .unknown = unknown_,
          .barred = store_.WantsPassword(),
          .said = failure ? failure->SaidByServer() : QString(),
          .refused = refused ? QString::fromStdString(failure->Oorzaak()) : QString(),
          .allowed = store_.GoneBecause() != dossier::OfficeProblem::NotAllowed,
          .unreadable = store_.Unreadable() ? QString::fromStdString(store_.Unreadable()->Oorzaak()) : QString()};
}

void ClientOnScreen::UpdateActions() {
  const BarWords words = WordsFor(Facts());
  const QString not_now = QStringLiteral("Dat kan nu niet.");
  SetGrey(*actions_.ask, words.ask ? QString() : not_now);
  SetGrey(*actions_.takeOver, words.takeOver ? QString() : not_now);
  SetGrey(*actions_.handOver, words.handOver ? QString() : not_now);
  SetGrey(*actions_.reconnect, words.reconnect ? QString() : QStringLiteral("De verbinding is er."));
}

void ClientOnScreen::Refresh() {
  UpdateActions();
  bar_->ShowState(WordsFor(Facts()).text);
  if (!unstored_) return bar_->ShowUnstored({}, false);
  const QString what =
      unstored_->what.unknown ? QStringLiteral("Niet bekend of dit is opgeslagen") : QStringLiteral("Niet opgeslagen");
  const QString where = label_.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(label_);
  bar_->ShowUnstored(QStringLiteral("%1%2: %3").arg(what, where, Short(unstored_->what.text)),
                     !unstored_->what.box.isEmpty() && store_.Now() == State::Editing);
}

void ClientOnScreen::Notice(const QString& text) {
  notStored_ = false;
  bar_->ShowNotice(text);
  if (!text.isEmpty()) eventLog_.Write(QStringLiteral("Kantoor: %1").arg(text));
}

void ClientOnScreen::OnChanged() {
  const State before = std::exchange(state_, store_.Now());
  const bool readable = !store_.Unreadable();
  const bool wasReadable = std::exchange(readable_, readable);
  if (wasReadable && !readable) eventLog_.Write(QStringLiteral("Kantoor: %1").arg(store_.Unreadable()->Melding()));
  if (state_ == State::Editing) asked_ = false;
  if (state_ != State::Editing) asker_.clear();
  if (before != state_) {
    const QString holder = store_.HeldBy().naam;
    const QString who = holder.isEmpty() ? QStringLiteral("Een ander") : holder;
    if (state_ == State::Broken) {
      settled_ = false;
      Notice({});
      window_.tell({});
      eventLog_.Write(QStringLiteral("Kantoor: geen verbinding."));
    } else if (state_ == State::Gone) {
      // The bar says it as long as the client is open.
      Notice({});
      window_.tell({});
      eventLog_.Write(QStringLiteral("Kantoor: %1").arg(WordsFor(Facts()).text));
    } else if (before == State::Broken && settled_) {
      // It was told already, with what became of the last edit.
    } else if (before == State::Broken) {
      Notice(state_ == State::Editing || !store_.Writes() || holder.isEmpty()
                 ? QStringLiteral("De verbinding met het kantoor is er weer.")
                 : QStringLiteral("De verbinding met het kantoor is er weer, maar intussen werkt %1 in dit dossier.")
                       .arg(holder));
    } else if (before == State::Editing && !store_.Writes()) {
      Notice(QStringLiteral("U mag in dit kantoor niet meer wijzigen. Wat u nog wijzigt, wordt niet opgeslagen."));
    } else if (before == State::Editing && !lettingGo_) {
      Notice(QStringLiteral("%1 heeft dit dossier overgenomen. Wat u nog wijzigt, wordt niet opgeslagen.").arg(who));
    } else if (state_ == State::Editing && readable) {
      Notice({});
      window_.tell(QStringLiteral("U kunt dit dossier nu bewerken."));
    }
    if (before == State::Broken) {
      if (password_) window_.admittedBy(*std::exchange(password_, std::nullopt));
      putAway_ = false;
    }
  }
  if (before != state_ || wasReadable != readable) {
    screen_.FollowRights();
    window_.changed();
  }
  // Who asked for it gets it.
  if (state_ == State::Reading && asked_ && store_.Writes() && store_.HeldBy().naam.isEmpty())
    QMetaObject::invokeMethod(this, &ClientOnScreen::TakeOver, Qt::QueuedConnection);
  Refresh();
}

void ClientOnScreen::OnReread() {
  screen_.Reread();
  const QString holder = store_.HeldBy().naam;
  if (store_.Now() == State::Reading && !holder.isEmpty())
    window_.tell(QStringLiteral("Bijgewerkt: %1 heeft iets gewijzigd.").arg(holder));
}

void ClientOnScreen::OnFailed(const dossier::StoreFailure& failure) {
  const bool unknown = failure.error.Number() == dossier::kUnknownError;
  // What is refused meanwhile tells nothing of the edit before.
  unknown_ = unknown_ || unknown;
  KeepUnstored(unknown);
  // The procedure that failed has not ended yet.
  QMetaObject::invokeMethod(this, &ClientOnScreen::Refresh, Qt::QueuedConnection);
}

void ClientOnScreen::OnSettled(dossier::Outcome outcome) {
  unknown_ = false;
  settled_ = outcome != dossier::Outcome::NoneAsked;
  SettleKept(outcome == dossier::Outcome::WasStored);
  if (outcome == dossier::Outcome::WasStored) {
    Notice(QStringLiteral("De verbinding met het kantoor is er weer. De laatste wijziging is opgeslagen."));
  } else if (outcome == dossier::Outcome::WasNotStored) {
    Notice(QStringLiteral("De verbinding met het kantoor is er weer. De laatste wijziging is niet opgeslagen."));
    notStored_ = true;
  }
  Refresh();
}

void ClientOnScreen::OnStored() {
  // Tried once more in the dialog that stayed, or in the box: it is no more so that it is not stored.
  const bool again = unstored_ && (form_ ? form_ == QApplication::activeModalWidget()
                                         : IsTheSame(unstored_->what, WhatWasEntered().what));
  typed_.Forget();
  if (!again) return;
  ForgetUnstored();
  if (notStored_) Notice({});
}

ClientOnScreen::Entered ClientOnScreen::WhatWasEntered() const {
  Entered entered{.what = window_.here()};
  entered.form = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  if (entered.form) {
    entered.what.title = entered.form->windowTitle();
    entered.what.text = FilledIn(*entered.form);
    entered.label = entered.what.title;
  } else if (typed_.Now()) {
    entered.what.box = typed_.Now()->box;
    entered.what.text = typed_.Now()->text;
    entered.label = typed_.Now()->label;
  }
  return entered;
}

void ClientOnScreen::KeepUnstored(bool unknown) {
  Entered entered = WhatWasEntered();
  UnfinishedText& unstored = entered.what;
  unstored.unknown = unknown;
  typed_.Forget();
  mayBeStored_ = unknown || (inDoubt_ && IsTheSame(inDoubt_->what, unstored));
  if (unknown) {
    formInDoubt_ = entered.form;
    textInDoubt_ = unstored.text;
  }
  if (unstored.text.isEmpty()) return;
  label_ = entered.label;
  form_ = entered.form;
  // Tried once more, it may have been stored the first time.
  if (!unknown && mayBeStored_) {
    unstored_ = inDoubt_;
    return;
  }
  // Of one box the last text counts; what stood in another is offered at the next start.
  if (unstored_ && unstored_->what.box == unstored.box && unstored_->what.kolom == unstored.kolom) Forget(*unstored_);
  unstored_ = {unstored.Keep(), unstored};
  if (unknown) inDoubt_ = unstored_;
}

void ClientOnScreen::SettleKept(bool stored) {
  const QPointer<QDialog> form = std::exchange(formInDoubt_, nullptr);
  // Where it was changed since, that is not what was stored; and a form of the editor stores its rows all at once
  // later.
  if (stored && form && form->isVisible() && !IsOfEditor(*form) && FilledIn(*form) == textInDoubt_)
    form->done(QDialog::Accepted);
  auto kept = std::exchange(inDoubt_, std::nullopt);
  if (!kept) return;
  const bool shown = unstored_ && unstored_->name == kept->name;
  if (stored) {
    UnfinishedText::Forget(kept->name);
    if (shown) unstored_.reset();
    return;
  }
  kept->what.unknown = false;
  kept->what.KeepAs(kept->name);
  if (shown) unstored_ = kept;
}

void ClientOnScreen::Forget(const UnfinishedText::Kept& kept) {
  UnfinishedText::Forget(kept.name);
  if (inDoubt_ && inDoubt_->name == kept.name) inDoubt_.reset();
}

void ClientOnScreen::ForgetUnstored() {
  if (unstored_) Forget(*unstored_);
  unstored_.reset();
  form_.clear();
  Refresh();
}

void ClientOnScreen::PutBack() {
  if (!unstored_ || store_.Now() != State::Editing) return;
  const UnfinishedText::Kept kept = *unstored_;
  if (!window_.goOn(kept.what)) return;
  ForgetUnstored();
}

template <class Task> void ClientOnScreen::Try(Task&& task) {
  try {
    task();
  } catch (const dossier::OfficeError& error) {
    // Of a client that is gone the bar tells.
    if (!IsGone()) ShowMessage(screen_.window(), QStringLiteral("Kantoor"), error.Melding());
  }
  Refresh();
}

void ClientOnScreen::Ask() {
  Try([this] {
    store_.Ask();
    asked_ = true;
  });
}

void ClientOnScreen::TakeOver() {
  if (store_.Now() != State::Reading) return;
  Try([this] {
    if (!store_.TakeOver()) window_.tell(QStringLiteral("%1 was u voor.").arg(store_.HeldBy().naam));
  });
}

void ClientOnScreen::Reconnect() {
  if (store_.Now() != State::Broken) return;
  if (store_.WantsPassword()) return AskPassword();
  store_.ReconnectNow();
}

void ClientOnScreen::AskWhenQuiet() {
  if (putAway_ || !store_.WantsPassword()) return;
  // What is being typed would go on in the question.
  if (QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr) return;
  if (!qt::EntryBox::AllPendingWithin(screen_.Kolom().Editor()).empty()) return;
  AskPassword();
}

void ClientOnScreen::AskPassword() {
  if (asking_) return;
  asking_ = true;
  const QPointer<ClientOnScreen> self(this);
  const std::optional<QString> given =
      window_.askPassword(password_ ? PasswordDialog::Because::Wrong : PasswordDialog::Because::Outdated);
  // The program may have ended meanwhile.
  if (!self) return;
  asking_ = false;
  putAway_ = !given;
  if (given) {
    password_ = given;
    store_.ReconnectNow(given);
  }
  Refresh();
}

void ClientOnScreen::HandOver() {
  // What is being typed goes along.
  if (store_.Now() != State::Editing || !screen_.Kolom().Editor().CommitPending()) return;
  if (store_.Now() != State::Editing) return;
  const QScopedValueRollback own(lettingGo_, true);
  Notice({});
  store_.LetGo();
  Refresh();
}

}  // namespace brivane::app

#pragma once

#include <QDialog>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <functional>
#include <optional>

#include "app/desk/UnfinishedText.h"
#include "app/office/BarWords.h"
#include "app/office/ClientBar.h"
#include "app/office/LastTyped.h"
#include "app/office/PasswordDialog.h"
#include "app/screen/DossierScreen.h"
#include "app/screen/OfficeActions.h"
#include "dossier/office/OfficeStore.h"

namespace brivane::app {

/// What the window does for an open client of an office beyond what it does for a file: the bar above it, the lease,
/// the connection, and a text that could not be stored.
class ClientOnScreen final : public QObject {
 public:
  struct Window {
    std::function<void()> changed;  ///< it may be edited, or may no longer be
    std::function<void(const QString&)> tell;
    std::function<UnfinishedText()> here;
    std::function<bool(const UnfinishedText&)> goOn;
    /// Nothing where the question was put away.
    std::function<std::optional<QString>(PasswordDialog::Because)> askPassword;
    /// The office let this password in.
    std::function<void(const QString&)> admittedBy;
  };

  /// Everything handed over outlives this object, the screen as what stores it too.
  ClientOnScreen(DossierScreen& screen, dossier::OfficeStore& store, const OfficeActions& actions, EventLog& eventLog,
                 Window window);
  ~ClientOnScreen() override;

  [[nodiscard]] QWidget* Bar() { return bar_; }
  /// Nothing comes of it any more: to be opened anew, where it is there again.
  [[nodiscard]] bool IsGone() const { return store_.Now() == dossier::OfficeStore::State::Gone; }
  /// What the actions do.
  void Ask();
  void TakeOver();
  void HandOver();
  void Reconnect();
  /// Which of them can be done now.
  void UpdateActions();

 private:
  [[nodiscard]] BarFacts Facts() const;
  void Refresh();
  void OnChanged();
  void OnFailed(const dossier::StoreFailure& failure);
  void OnSettled(dossier::Outcome outcome);
  void OnReread();
  void OnStored();
  /// What was typed in a box or filled in in a dialog, where it stands; no text where it is neither.
  struct Entered {
    UnfinishedText what;
    QString label{};  ///< of the box
    QPointer<QDialog> form{};
  };
  [[nodiscard]] Entered WhatWasEntered() const;
  /// `unknown`: it may have been stored.
  void KeepUnstored(bool unknown);
  void SettleKept(bool stored);
  void Forget(const UnfinishedText::Kept& kept);
  void ForgetUnstored();
  void PutBack();
  void Notice(const QString& text);
  /// Asks for the password that the office wants, unless somebody is at something.
  void AskWhenQuiet();
  void AskPassword();
  template <class Task> void Try(Task&& task);

  DossierScreen& screen_;
  dossier::OfficeStore& store_;
  OfficeActions actions_;
  EventLog& eventLog_;
  Window window_;
  QPointer<ClientBar> bar_;
  LastTyped typed_;
  QTimer look_;
  dossier::OfficeStore::State state_;
  bool asked_ = false;
  bool lettingGo_ = false;
  bool unknown_ = false;
  bool mayBeStored_ = false;         ///< what failed last
  bool asking_ = false;              ///< for a password
  bool putAway_ = false;             ///< the question for one, since the connection broke
  std::optional<QString> password_;  ///< that was given since then
  bool readable_ = true;
  bool settled_ = false;    ///< what became of an edit was told since the connection broke
  bool notStored_ = false;  ///< the notice says that the last edit was not stored
  QString asker_;
  std::optional<UnfinishedText::Kept> unstored_;
  QString label_;           ///< of its box
  QPointer<QDialog> form_;  ///< that it was filled in in, and stays there
  /// Of the edit whose outcome is not known.
  std::optional<UnfinishedText::Kept> inDoubt_;
  QPointer<QDialog> formInDoubt_;
  QString textInDoubt_;  ///< that was filled in there
  host::Subscriptions subscriptions_;
};

}  // namespace brivane::app

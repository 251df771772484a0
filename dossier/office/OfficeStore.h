#pragma once

#include <QDateTime>
#include <QDeadlineTimer>
#include <QString>
#include <memory>
#include <optional>

#include "dossier/office/Aside.h"
#include "dossier/office/ClientSession.h"
#include "dossier/store/DossierStore.h"

class QTimer;

namespace brivane::dossier {

class FileJournal;

/// A client of an office, open in this program, with its case in memory.
///
///     auto office = std::make_shared<OfficeConnection>(words);
///     office->OpenOffice();                              // OfficeError: show its Melding()
///     auto client = OfficeStore::Open(office, 17);
///     client->Changed.Connect([&] { /* who may edit, or the connection, is another: State(), HeldBy() */ });
///     client->Herladen.Connect([&] { /* what is on the screen is old: bind anew */ });
///
/// It is taken up to be edited where nobody else has it; else it opens to be read, and follows what the other stores.
/// With an event loop it looks after itself: it is told of edits, looks whether the other is gone, and tries again
/// where the connection broke, without waiting for a server that does not answer: one that says nothing for five
/// seconds is given up. A program without one calls Attend. A client that turns out to be gone is looked for no more.
class OfficeStore final : public DossierStore {
 public:
  using State = ClientSession::State;

  /// Throws OfficeError, with NoClient where there is no such client or none for this account, and Damaged where the
  /// office has of it what no client can be.
  [[nodiscard]] static std::unique_ptr<OfficeStore> Open(std::shared_ptr<OfficeConnection> office, int client);
  ~OfficeStore() override;

  [[nodiscard]] QString Naam() const override;
  [[nodiscard]] const std::shared_ptr<dossier::Dossier>& Dossier() const override { return dossier_; }
  [[nodiscard]] std::shared_ptr<Edits> GedeeldeBewerkingen() override;
  /// Somebody else has it, this account only reads, what is shown is old, or it is gone. Where the connection broke
  /// nothing is stored either, but what was edited goes on after it.
  [[nodiscard]] bool IsReadOnly() const override {
    return Now() == State::Reading || Now() == State::Gone || (unreadable_ && Now() == State::Editing);
  }
  [[nodiscard]] bool InPlace() const override { return session_->IsThere(); }
  /// The office names its users itself.
  void SetAuthor(const std::string&) override {}
  [[nodiscard]] std::vector<Entry> Next(StepKind kind) const override;
  std::optional<Done> Take(StepKind kind) override;
  [[nodiscard]] std::unique_ptr<HistoryView> Geschiedenis() const override;
  void WorkOff() noexcept override {}
  /// A loan file with everything that stands in the office, to the stored rows. Throws OfficeError where that cannot be
  /// read, and OpeningError where the file cannot be made.
  void Kopieer(const QString& pad) const override;

  [[nodiscard]] int Client() const { return session_->Client(); }
  [[nodiscard]] State Now() const { return session_->Now(); }
  /// This account may edit, as far as the office has said.
  [[nodiscard]] bool Writes() const { return session_->Writes(); }
  /// Where it is gone: NoClient, or NotAllowed where this account may not even read any more.
  [[nodiscard]] OfficeProblem GoneBecause() const { return session_->GoneBecause(); }
  /// Who else edits it; nobody where the name is empty.
  [[nodiscard]] const Holder& HeldBy() const { return session_->HeldBy(); }
  /// How many tries to reach the office have failed since the connection broke.
  [[nodiscard]] int Tries() const { return session_->Tries(); }
  /// Why what others stored cannot be read: what is shown is older, and nothing is edited. Nothing where it can.
  [[nodiscard]] const std::optional<OfficeError>& Unreadable() const { return unreadable_; }

  // What these find out of the connection and the client shows in Now() at once.

  /// Takes it up to be edited where nobody has it any more; answers whether it is taken up here now. Throws
  /// OfficeError.
  bool TakeOver();
  /// Lets another edit it; it goes on as one that is read. Not while an edit is under way.
  void LetGo();
  /// Asks who has it to let go. Throws OfficeError.
  void Ask();
  /// The office lets this account in no more with the password that it has: nothing is tried until another is given,
  /// or ReconnectNow.
  [[nodiscard]] bool WantsPassword() const { return barred_; }
  /// Why the last try failed; nothing once the connection is there. Where the office was reached, and cannot be used,
  /// it is tried again now and then.
  [[nodiscard]] const std::optional<OfficeError>& LastFailure() const { return failure_; }
  /// Tries at once to reach the office, where the connection broke; with another password where one is given.
  void ReconnectNow(const std::optional<QString>& password = std::nullopt);

  /// Does what is due: tries to reach the office where the connection broke, and otherwise looks who has the client and
  /// whether something was stored. What is in memory is left alone while a procedure of the editor runs, but for an
  /// edit made in a modal form that turns out to be stored.
  void Attend();

  /// Who may edit it, the connection, or whether it can be read, is another.
  host::Event<> Changed;
  /// The memory was loaded anew with what others stored, or with an edit whose outcome was not known.
  host::Event<> Herladen;
  /// Somebody asks for it, by name; told where it is edited here.
  host::Event<const QString&> Asked;
  /// Of an edit that was told as not known: whether it was stored. Told as soon as there is a connection, also under a
  /// modal form and before the memory shows it.
  host::Event<Outcome> Settled;

 private:
  OfficeStore(std::shared_ptr<OfficeConnection> office, int client);
  /// Has the whole of the history at hand. Throws OfficeError.
  void FillHistory() const;
  /// The same for an edit or a view. Throws host::Error.
  void ReadHistory() const;
  void Told(const QString& channel, const QString& what);
  /// Does something with the office. What went wrong with more than that shows in Now(); what went wrong with it alone
  /// is left to the next time.
  template <class Action> void Try(Action&& action);
  /// The same by hand: Throws what it throws, once what that means for the client was told.
  template <class Action> auto ByHand(Action&& action) -> decltype(action());
  /// What somebody is at work on stays as it is until he is done; a modal form goes on from what was stored in it.
  [[nodiscard]] bool MayReread() const;
  void Reload();
  void TellIfChanged();
  void Plan();
  /// It is time for Attend, or to find out first whether the office is there; nothing of this waits.
  void Due();
  void Knocked(const std::optional<OfficeError>& failure);
  /// The same as Attend does of a connection that is there, without waiting.
  void LookAside();
  void Heard(const OfficeAnswer& answer, std::int64_t step);
  void ReadAside();
  /// A question was asked of this session, and is not answered yet.
  [[nodiscard]] bool IsAsked() const;
  /// For the answer to a question: hands it on where it still counts.
  [[nodiscard]] std::function<void(OfficeAnswer)> Counting(void (OfficeStore::*heard)(const OfficeAnswer&,
                                                                                      std::int64_t));
  void Read(const OfficeAnswer& answer, std::int64_t step);
  /// Fills the tables and shows them, where they can be shown.
  template <class Fill> void Reread(Fill&& fill);

  std::shared_ptr<ClientSession> session_;
  std::shared_ptr<FileJournal> journal_;
  std::shared_ptr<dossier::Dossier> dossier_;
  std::unique_ptr<QTimer> timer_;
  std::unique_ptr<Aside> aside_;
  bool knocking_ = false;
  bool barred_ = false;
  std::optional<OfficeError> failure_;
  /// The session at which a question is under way, 0 for none.
  int asked_of_ = 0;
  QDeadlineTimer answered_by_;
  /// It should have been answered, and is waited for a last time.
  bool overdue_ = false;
  /// Something was told meanwhile.
  bool again_ = false;
  /// Gone with this object: a question outlives it.
  std::shared_ptr<int> here_ = std::make_shared<int>();
  host::Subscriptions subscriptions_;
  std::optional<OfficeError> unreadable_;
  /// What Changed told last.
  State told_state_ = State::Reading;
  QString told_holder_;
  bool told_unreadable_ = false;
  QDateTime told_asked_;
};

}  // namespace brivane::dossier

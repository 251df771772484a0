#pragma once

#include <QDateTime>
#include <QString>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "dossier/office/ClientTables.h"
#include "dossier/office/FoundBy.h"
#include "dossier/office/OfficeConnection.h"
#include "dossier/office/Reconnection.h"
#include "dossier/store/EditKeeper.h"

namespace brivane::dossier {

struct EditText;

/// Who edits a client, since when; nobody where the name is empty.
struct Holder {
  QString naam;
  QDateTime sinds;
};

/// A client of an office that is open in this program: whether it may edit it, and the way of each edit to the server.
///
/// An edit is one statement, which checks the lease, writes rows and history and commits before it answers. Where the
/// answer is lost the edit is looked up by its identifier once that is certain, and is never sent a second time.
class ClientSession final : public EditKeeper {
 public:
  enum class State {
    Editing,  ///< it is taken up here
    Reading,  ///< somebody else has it, or this account only reads
    Broken,   ///< there is no connection
    Gone      ///< it was removed, or is not for this account any more: for good, and what was read stays
  };

  /// Reads the client, and takes it up where that can be. Throws OfficeError, and DatabaseError where it can be none;
  /// it is free again then.
  ClientSession(std::shared_ptr<OfficeConnection> office, int client);
  ~ClientSession() override;

  [[nodiscard]] State Now() const { return state_; }
  [[nodiscard]] int Client() const { return client_; }
  [[nodiscard]] OfficeConnection& Office() { return *office_; }
  /// This account may edit, as far as the office has said.
  [[nodiscard]] bool Writes() const { return office_->User().writes && !refused_; }
  /// Where it is gone: NoClient, or NotAllowed where the account may not even read any more.
  [[nodiscard]] OfficeProblem GoneBecause() const { return gone_because_; }
  /// Who else has it, as far as this program was told.
  [[nodiscard]] const Holder& HeldBy() const { return holder_; }
  /// Who asks whoever has it to let go, as far as the server was asked; nobody where the name is empty.
  [[nodiscard]] const Holder& AskedBy() const { return asker_; }
  [[nodiscard]] ClientTables& Tables() { return tables_; }

  void Begin(bool in_form) override;
  void Keep(Database& tables, const KeptEdit& edit) override;

  /// Asks the server who has the client and how far it is; answers whether what is in memory is behind. Throws
  /// OfficeError.
  bool LookAround();
  /// The same without waiting; the answer comes in the event loop, and is to be handed to Heard.
  void LookAside(std::function<void(OfficeAnswer)> answer);
  /// An answer that was asked for when the last step was that one; nothing where it is not so any more. Throws
  /// OfficeError.
  void Heard(const OfficeAnswer& answer, std::int64_t step);
  /// Reads everything anew without waiting, and the answer is to be handed to FillWith.
  void ReadAside(std::function<void(OfficeAnswer)> answer);
  /// The same as Heard. Throws DatabaseError too.
  void FillWith(const OfficeAnswer& answer, std::int64_t step);
  [[nodiscard]] std::int64_t LastStep() const { return tables_.LastStep(); }
  /// Takes the client up where nobody has it any more; answers whether it is taken up here now. The tables are to be
  /// filled anew where it answers so and LookAround does. Throws OfficeError.
  bool Take();
  /// Lets another have it, and reads along.
  void LetGo() noexcept;
  /// As if it had never been opened; for the end, once.
  void Leave() noexcept;
  /// Asks who has it to let it go. Throws OfficeError.
  void Ask();
  /// Tries to begin a new session after the connection broke. Answers what came of it; nothing where it failed, as
  /// Failure() tells, or where the client is gone. Who may only read any more goes on as a reader.
  std::optional<Verdict> Reconnect() noexcept;
  [[nodiscard]] const std::optional<OfficeError>& Failure() const { return failure_; }
  /// A statement of this client's met a connection that is gone.
  void Broke();
  /// What such a statement failed with, where it is more than that statement: the connection is gone, the client, or
  /// the right to edit or to read it.
  void Met(const OfficeError& error);
  /// There is a connection, and the client.
  [[nodiscard]] bool IsThere() const { return state_ == State::Editing || state_ == State::Reading; }
  /// It was found out otherwise that the office cannot be reached yet: one more try has failed.
  void NotReached() { ++tries_; }
  [[nodiscard]] int Tries() const { return tries_; }
  /// What holds of the connection, this client and nobody else's.
  [[nodiscard]] QString Channel() const { return QStringLiteral("kantoor_%1").arg(client_); }
  /// There is an edit whose outcome is not known.
  [[nodiscard]] bool HasUnknownEdit() const { return pending_.has_value(); }
  /// The tables hold something else than the office: they are to be filled anew before anything is edited.
  [[nodiscard]] bool IsBehind() const { return behind_; }
  /// They lack nothing but the last edit made here, whose answer was lost.
  [[nodiscard]] bool LacksOwnEditAlone() const;
  /// What filled the tables cannot be shown: they stay behind.
  void StayBehind() { behind_ = true; }
  /// Fills the tables anew. Throws OfficeError, and DatabaseError.
  void Fill();

 private:
  struct Pending {
    QString edit;
    std::int64_t step;
  };

  [[nodiscard]] EditText TextOf(Database& tables, const KeptEdit& edit);
  [[nodiscard]] std::int64_t Send(const QString& edit, std::int64_t step, const EditText& text);
  bool TakeLease();
  /// Reads where it may not be edited any more.
  void TryTakeLease();
  void See(const OfficeRows& who);
  void SeeStep(std::int64_t newest);
  void TakeUp();
  /// Answers whether the office knows of it.
  bool GiveBack() noexcept;
  void Follow();
  void FollowNoMore();
  void LoseRight();
  void LoseSight(OfficeProblem because);
  OfficeRows TakeOrLook(bool takes);

  std::shared_ptr<OfficeConnection> office_;
  int client_;
  ClientTables tables_;
  State state_ = State::Reading;
  QString token_;
  Holder holder_;
  Holder asker_;
  /// The session that has it, and since when.
  int pid_ = 0;
  QDateTime since_;
  std::optional<Pending> pending_;
  int tries_ = 0;
  bool behind_ = false;
  bool refused_ = false;
  OfficeProblem gone_because_ = OfficeProblem::NoClient;
  std::optional<OfficeError> failure_;
  bool follows_ = false;
  bool left_ = false;
  FindingWords words_;
  /// The last step that the office was seen to have.
  std::int64_t newest_ = 0;
  /// Of the edit that was looked up last and is there.
  std::int64_t found_time_ = 0;
  std::int64_t found_step_ = 0;
};

}  // namespace brivane::dossier

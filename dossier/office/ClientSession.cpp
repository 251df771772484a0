#include "dossier/office/ClientSession.h"

#include <QDeadlineTimer>
#include <QUuid>
#include <thread>
#include <utility>

#include "dossier/office/EditText.h"
#include "dossier/office/Knock.h"
#include "dossier/office/WaitingTimes.h"
#include "dossier/store/Rows.h"
#include "dossier/store/StoreErrors.h"
#include <brivane/host/Error.h>

namespace brivane::dossier {
namespace {

using Patience = OfficeConnection::Patience;

constexpr char kBron[] = "Dossier";
/// How far apart it is looked whether a session that was ended is gone.
constexpr std::chrono::milliseconds kBetweenLooks{50};

[[noreturn]] void Refuse(std::int32_t number, const std::string& reason) {
  throw host::Error(number, "De wijziging is niet opgeslagen: " + reason + ".", kBron);
}

/// Whether the office lets one in again. A window waits for it: one that does not answer is left to later.
bool AnswersSoon(const OfficeConnection& office) {
  bool answers = false;
  Aside aside;
  Knock(aside, office.Another(), [&](const std::optional<OfficeError>& failure) { answers = !failure; });
  static_cast<void>(aside.Settle(WaitingTimes::Now().back));
  return answers;
}

QString WhoSql() {
  return QStringLiteral("SELECT houder, sinds, laatste, gevraagd_door, gevraagd_om FROM kantoor.wie(?::integer)");
}

QString SendSql() {
  return QStringLiteral(
      "SELECT kantoor.sla_op(?::integer, ?::uuid, ?::uuid, ?::kantoor.stap_rij, ?::kantoor.wijziging_rij[], "
      "?::kantoor.naam_rij[], ?::kantoor.vrijekolom_rij[], ?::kantoor.periode_rij[], ?::kantoor.periode_rij[], "
      "?::bigint[], ?::kantoor.zoek_rij, ?::json)");
}

std::int64_t NewestStep(Database& tables) {
  Rows& rows = tables.RowsAgain(QStringLiteral("SELECT coalesce(max(nummer), 0) FROM stap"));
  rows.Start({});
  const std::int64_t newest = rows.Next() ? rows.Whole(0) : 0;
  rows.Stop();
  return newest;
}

}  // namespace

ClientSession::ClientSession(std::shared_ptr<OfficeConnection> office, int client)
    : office_(std::move(office)), client_(client), tables_(*office_, client) {
  pid_ = office_->User().pid;
  try {
    if (Writes()) TryTakeLease();
    // Who reads along is told of everything that was stored after what he read.
    if (state_ == State::Reading) TakeUp();
    Fill();
    if (state_ == State::Editing) TakeUp();
  } catch (...) {
    // The lease is the session's, which other clients go on with.
    Leave();
    throw;
  }
}

ClientSession::~ClientSession() { Leave(); }

void ClientSession::Leave() noexcept {
  if (std::exchange(left_, true)) return;
  GiveBack();
  if (!IsThere()) return;
  office_->ListenNoMore(Channel());
  FollowNoMore();
}

void ClientSession::Fill() {
  tables_.Fill();
  behind_ = false;
}

void ClientSession::TakeUp() {
  office_->Listen(Channel());
  // The first edit is one round trip too.
  if (state_ == State::Editing) office_->Prepare(SendSql());
  if (state_ == State::Reading) Follow();
}

void ClientSession::Follow() {
  office_->Post(QStringLiteral("SELECT kantoor.volg(?::integer)"), {client_});
  follows_ = true;
}

void ClientSession::FollowNoMore() {
  if (!std::exchange(follows_, false)) return;
  office_->Post(QStringLiteral("SELECT kantoor.volg_niet(?::integer)"), {client_});
}

bool ClientSession::Take() {
  if (state_ == State::Editing) return true;
  if (state_ == State::Gone || !TakeLease()) return false;
  office_->Prepare(SendSql());
  return true;
}

void ClientSession::TryTakeLease() {
  try {
    TakeLease();
  } catch (const OfficeError& error) {
    // The right was taken away since the session began.
    if (error.Problem() != OfficeProblem::NotAllowed) throw;
    refused_ = true;
  }
}

bool ClientSession::TakeLease() {
  const OfficeRows row =
      office_->Run(QStringLiteral("SELECT bewijs::text, houder, sinds, laatste, pid FROM kantoor.neem(?::integer)"),
                   {client_}, Patience::Short);
  token_ = row.value(0).toString();
  SeeStep(row.value(3).toLongLong());
  if (token_.isEmpty()) {
    holder_ = {row.value(1).toString(), row.value(2).toDateTime()};
    return false;
  }
  holder_ = {};
  state_ = State::Editing;
  pid_ = office_->User().pid;
  since_ = row.value(2).toDateTime();
  FollowNoMore();
  return true;
}

bool ClientSession::LookAround() {
  See(office_->Run(WhoSql(), {client_}, Patience::Short));
  return behind_;
}

void ClientSession::LookAside(std::function<void(OfficeAnswer)> answer) {
  office_->Ask(WhoSql(), {client_}, std::move(answer));
}

void ClientSession::Heard(const OfficeAnswer& answer, std::int64_t step) {
  if (answer.failure) throw OfficeError(*answer.failure);
  if (step == LastStep()) See(answer.rows);
}

void ClientSession::See(const OfficeRows& who) {
  if (state_ == State::Reading) holder_ = {who.value(0).toString(), who.value(1).toDateTime()};
  asker_ = {who.value(3).toString(), who.value(4).toDateTime()};
  SeeStep(who.value(2).toLongLong());
}

void ClientSession::SeeStep(std::int64_t newest) {
  newest_ = newest;
  behind_ = behind_ || newest != tables_.LastStep();
}

bool ClientSession::LacksOwnEditAlone() const {
  return state_ == State::Editing && newest_ == found_step_ && newest_ == tables_.LastStep() + 1;
}

void ClientSession::ReadAside(std::function<void(OfficeAnswer)> answer) {
  office_->Ask(ClientTables::Reading(), {client_, 0}, std::move(answer));
}

void ClientSession::FillWith(const OfficeAnswer& answer, std::int64_t step) {
  if (answer.failure) throw OfficeError(*answer.failure);
  if (step != LastStep()) return;
  tables_.FillWith(answer.rows);
  behind_ = false;
}

void ClientSession::LetGo() noexcept {
  if (GiveBack()) Follow();
}

bool ClientSession::GiveBack() noexcept {
  if (state_ != State::Editing) return false;
  state_ = State::Reading;
  const QString token = std::exchange(token_, {});
  try {
    // The others are told, and the way out is not held up.
    office_->Run(QStringLiteral("SELECT kantoor.laat_los(?::integer, ?::uuid)"), {client_, token}, Patience::Moment);
    return true;
  } catch (const OfficeError&) {
    // With the session the lease goes too.
    return false;
  }
}

void ClientSession::Ask() {
  office_->Run(QStringLiteral("SELECT kantoor.vraag(?::integer)"), {client_}, Patience::Short);
}

void ClientSession::Begin(bool in_form) {
  switch (state_) {
    case State::Editing: break;
    case State::Broken: Refuse(kOfficeError, "er is geen verbinding met het kantoor");
    case State::Gone: Refuse(kRefusedError, OfficeError(gone_because_, "").Oorzaak());
    case State::Reading:
      if (!Writes()) Refuse(kLeaseError, "u mag dit dossier alleen lezen");
      Refuse(kLeaseError, holder_.naam.isEmpty() ? "het dossier is niet bij u in bewerking"
                                                 : holder_.naam.toStdString() + " werkt in dit dossier");
  }
  // What could not be kept in memory after it was stored, or was stored by another.
  if (behind_ || NewestStep(tables_.Tables()) != tables_.LastStep()) {
    behind_ = true;
    // Nothing is read under a form, which goes on from what it was opened with.
    Refuse(kRefusedError, in_form
                              ? "het dossier is intussen gewijzigd. Sluit dit venster, dan wordt het opnieuw gelezen"
                              : "het dossier wordt opnieuw gelezen");
  }
}

void ClientSession::Keep(Database& tables, const KeptEdit& edit) {
  const auto step = std::get<std::int64_t>(edit.history.step.front());
  const std::int64_t time = Send(QUuid::createUuid().toString(QUuid::WithoutBraces), step, TextOf(tables, edit));
  // By the server's clock.
  tables.RowsAgain(QStringLiteral("UPDATE stap SET tijd = ? WHERE nummer = ?")).Run(Row{time, step});
  tables_.StepStored(step);
}

EditText ClientSession::TextOf(Database& tables, const KeptEdit& edit) {
  const bool found = ChangesWords(edit.rows);
  return dossier::TextOf(edit, found ? std::optional(words_.Of(tables)) : std::nullopt);
}

std::int64_t ClientSession::Send(const QString& edit, std::int64_t step, const EditText& text) {
  try {
    return office_
        ->Run(SendSql(),
              {client_, token_, edit, text.step, text.entries, text.names, text.columns, text.periods,
               text.periods_added, text.periods_removed, text.found, text.rest},
              Patience::Edit)
        .value(0)
        .toLongLong();
  } catch (const OfficeError& error) {
    switch (error.Problem()) {
      case OfficeProblem::Unreachable: break;
      case OfficeProblem::LeaseLost:
        state_ = State::Reading;
        token_.clear();
        behind_ = true;
        Refuse(kLeaseError, error.Oorzaak());
      case OfficeProblem::Stale: behind_ = true; Refuse(kRefusedError, error.Oorzaak());
      default: Met(error); Refuse(kRefusedError, error.Oorzaak());
    }
  }
  pending_ = Pending{edit, step};
  Broke();
  // Where the server is there again at once, the adviser notices nothing.
  const std::optional<Verdict> verdict = AnswersSoon(*office_) ? Reconnect() : std::nullopt;
  if (!verdict || verdict->role == Role::TryAgain) {
    throw host::Error(
        kUnknownError,
        "De verbinding met het kantoor viel weg terwijl de wijziging werd opgeslagen. Zodra de verbinding er "
        "weer is, blijkt of dat is gelukt.",
        kBron);
  }
  if (verdict->outcome == Outcome::WasNotStored) Refuse(kOfficeError, "de verbinding met het kantoor viel even weg");
  behind_ = newest_ != step;
  return found_time_;
}

void ClientSession::Broke() {
  state_ = State::Broken;
  tries_ = 0;
}

void ClientSession::Met(const OfficeError& error) {
  if (error.Problem() == OfficeProblem::Unreachable && IsThere()) Broke();
  if (error.Problem() == OfficeProblem::NoClient) LoseSight(OfficeProblem::NoClient);
  if (error.Problem() == OfficeProblem::NotAllowed) LoseRight();
}

void ClientSession::LoseRight() {
  // Who was a reader already may not even read.
  if (!Writes()) return LoseSight(OfficeProblem::NotAllowed);
  refused_ = true;
  if (state_ != State::Editing) return;
  // The office lets nobody let go who may not edit. What this session has is of no use to it any more.
  office_->Post(QStringLiteral("SELECT pg_advisory_unlock_all(), pg_notify(?, 'los')"), {Channel()});
  token_.clear();
  state_ = State::Reading;
  Follow();
}

void ClientSession::LoseSight(OfficeProblem because) {
  // Those to whom it was given may edit it at once.
  if (state_ == State::Editing)
    office_->Post(QStringLiteral("SELECT kantoor.laat_los(?::integer, ?::uuid)"), {client_, token_});
  office_->ListenNoMore(Channel());
  FollowNoMore();
  token_.clear();
  holder_ = {};
  asker_ = {};
  gone_because_ = because;
  state_ = State::Gone;
}

OfficeRows ClientSession::TakeOrLook(bool takes) {
  return office_->Run(
      takes ? QStringLiteral("SELECT bewijs::text, houder, sinds, laatste, pid FROM kantoor.neem(?::integer)")
            : QStringLiteral("SELECT NULL, houder, sinds, laatste, 0 FROM kantoor.wie(?::integer)"),
      {client_}, Patience::Short);
}

std::optional<Verdict> ClientSession::Reconnect() noexcept {
  const Before before{.edited = !token_.isEmpty(),
                      .step = tables_.LastStep(),
                      .session = {pid_, since_.toMSecsSinceEpoch()},
                      .edit = pending_ ? std::optional(pending_->step) : std::nullopt};
  refused_ = false;
  failure_.reset();
  bool entered = false;
  try {
    // Another client of the same window may have begun the new session already. Who waits here is in the middle of an
    // edit, or knows that the server answers.
    if (office_->IsBroken()) office_->OpenOffice(Patience::Short);
    entered = true;
    for (QDeadlineTimer ends(WaitingTimes::Now().ending); !ends.hasExpired();) {
      Found found;
      bool takes = before.edited && Writes();
      OfficeRows row;
      try {
        row = TakeOrLook(takes);
      } catch (const OfficeError& error) {
        if (!takes || error.Problem() != OfficeProblem::NotAllowed) throw;
        refused_ = true;
        takes = false;
        row = TakeOrLook(takes);
      }
      const QString token = row.value(0).toString();
      found = {.taken = !token.isEmpty(),
               // A reader is not told which session has it, and knows his own by when it took it up.
               .holder = {takes ? row.value(4).toInt() : pid_, row.value(2).toDateTime().toMSecsSinceEpoch()},
               .step = row.value(3).toLongLong(),
               .edit_is_there = false};
      const Holder holder = found.taken ? Holder() : Holder{row.value(1).toString(), row.value(2).toDateTime()};
      if (pending_) {
        const OfficeRows time =
            office_->Run(takes ? QStringLiteral("SELECT kantoor.uitkomst(?::integer, ?::bigint, ?::uuid)")
                               : QStringLiteral("SELECT tijd FROM kantoor.stap WHERE client = ?::integer AND nummer = "
                                                "?::bigint AND bewerking = ?::uuid"),
                         {client_, static_cast<qlonglong>(pending_->step), pending_->edit}, Patience::Short);
        found.edit_is_there = !time.isNull(0);
        found_time_ = time.value(0).toLongLong();
        if (found.edit_is_there) found_step_ = pending_->step;
      }
      const Verdict verdict = Judge(before, found);
      if (verdict.role == Role::TryAgain) {
        // The server has not noticed yet that the session is gone.
        office_->Run(QStringLiteral("SELECT pg_terminate_backend(pid) FROM pg_stat_activity WHERE pid = ?::integer AND "
                                    "usename = session_user AND backend_start <= ?::timestamptz"),
                     {before.session.pid, since_.toUTC().toString(Qt::ISODateWithMs)}, Patience::Short);
        std::this_thread::sleep_for(kBetweenLooks);
        continue;
      }
      state_ = verdict.role == Role::Edit ? State::Editing : State::Reading;
      token_ = token;
      holder_ = holder;
      pid_ = office_->User().pid;
      since_ = row.value(2).toDateTime();
      follows_ = false;
      TakeUp();
      newest_ = found.step;
      behind_ = behind_ || verdict.reload;
      pending_.reset();
      tries_ = 0;
      return verdict;
    }
  } catch (const OfficeError& error) {
    failure_ = error;
    const OfficeProblem problem = error.Problem();
    if (problem == OfficeProblem::NoClient || (entered && problem == OfficeProblem::NotAllowed)) {
      LoseSight(problem);
      return std::nullopt;
    }
  }
  state_ = State::Broken;
  ++tries_;
  return std::nullopt;
}

}  // namespace brivane::dossier

#include "dossier/office/ClientSession.h"

#include <QSqlQuery>
#include <QThread>
#include <QUuid>
#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include "dossier/office/FoundBy.h"
#include "dossier/office/Knock.h"
#include "dossier/office/OfficeTables.h"
#include "dossier/office/RowsJson.h"
#include "dossier/store/StoreErrors.h"
#include <brivane/host/Error.h>

namespace brivane::dossier {
namespace {

constexpr char kBron[] = "Dossier";
/// How often, and how far apart, it is looked whether a session that was ended is gone.
constexpr int kLooks = 20;
constexpr std::chrono::milliseconds kAnswersWithin{1000};
constexpr unsigned long kBetweenLooks = 50;

[[noreturn]] void Refuse(std::int32_t number, const std::string& reason) {
  throw host::Error(number, "De wijziging is niet opgeslagen: " + reason + ".", kBron);
}

/// Whether the office lets one in again. A window waits for it: one that does not answer is left to later.
bool AnswersSoon(const OfficeConnection& office) {
  bool answers = false;
  Aside aside;
  Knock(aside, office.Another(), [&](const std::optional<OfficeError>& failure) { answers = !failure; });
  static_cast<void>(aside.Settle(kAnswersWithin));
  return answers;
}

QString SendSql() { return QStringLiteral("SELECT kantoor.sla_op(?::integer, ?::uuid, ?::uuid, ?::json)"); }

/// The first value that a statement answers, which is run for every edit.
std::int64_t Often(Database& tables, const QString& sql) {
  QSqlQuery& query = tables.Again(sql);
  Database::Run(query);
  const std::int64_t value = query.next() ? query.value(0).toLongLong() : 0;
  query.finish();
  return value;
}

std::int64_t NewestStep(Database& tables) {
  return Often(tables, QStringLiteral("SELECT coalesce(max(nummer), 0) FROM stap"));
}

std::int64_t NewestName(Database& tables) {
  return Often(tables, QStringLiteral("SELECT coalesce(max(nummer), 0) FROM naam"));
}

/// A name and a value of an object.
std::string Member(std::string_view name, const std::string& value) { return '"' + std::string(name) + "\":" + value; }

std::string Joined(const std::vector<std::string>& members) {
  std::string text = "{";
  for (const std::string& one : members) {
    if (text.size() > 1) text += ',';
    text += one;
  }
  return text + '}';
}

/// Whether a client may be found by other words after such an entry.
bool IsFoundBy(Tabel tabel, int field) {
  if (tabel == Tabel::Persoon) return true;
  return tabel == Tabel::Kolom &&
         (field == 0 || TableOf(tabel).columns[static_cast<std::size_t>(field)].kind == Opslag::Text);
}

}  // namespace

ClientSession::ClientSession(std::shared_ptr<OfficeConnection> office, int client)
    : office_(std::move(office)), client_(client), tables_(*office_, client) {
  pid_ = office_->User().pid;
  try {
    if (office_->User().writes) Take();
    TakeUp();
    Fill();
  } catch (...) {
    // The lease is the session's, which other clients go on with.
    Leave();
    throw;
  }
}

ClientSession::~ClientSession() { Leave(); }

void ClientSession::Leave() noexcept {
  LetGo();
  try {
    if (state_ != State::Broken) {
      office_->ListenNoMore(Channel());
      FollowNoMore();
    }
  } catch (const OfficeError&) {
    // The server forgets a session that ended.
  }
}

void ClientSession::Fill() {
  tables_.Fill();
  names_ = NewestName(tables_.Tables());
  behind_ = false;
}

void ClientSession::TakeUp() {
  office_->Listen(Channel());
  if (state_ == State::Reading) Follow();
}

void ClientSession::Follow() {
  office_->Run(QStringLiteral("SELECT kantoor.volg(?::integer)"), {client_});
  follows_ = true;
}

void ClientSession::FollowNoMore() {
  if (!std::exchange(follows_, false)) return;
  office_->Run(QStringLiteral("SELECT kantoor.volg_niet(?::integer)"), {client_});
}

bool ClientSession::Take() {
  if (state_ == State::Editing) return true;
  const QSqlQuery& row = office_->Run(
      QStringLiteral("SELECT bewijs::text, houder, sinds, laatste, pid FROM kantoor.neem(?::integer)"), {client_});
  token_ = row.value(0).toString();
  behind_ = behind_ || row.value(3).toLongLong() != tables_.LastStep();
  if (token_.isEmpty()) {
    holder_ = {row.value(1).toString(), row.value(2).toDateTime()};
    return false;
  }
  holder_ = {};
  state_ = State::Editing;
  pid_ = office_->User().pid;
  since_ = row.value(2).toDateTime();
  FollowNoMore();
  // The first edit is one round trip too.
  office_->Prepared(SendSql());
  return true;
}

bool ClientSession::LookAround() {
  const QSqlQuery& row =
      office_->Run(QStringLiteral("SELECT houder, sinds, laatste FROM kantoor.wie(?::integer)"), {client_});
  if (state_ == State::Reading) holder_ = {row.value(0).toString(), row.value(1).toDateTime()};
  behind_ = behind_ || row.value(2).toLongLong() != tables_.LastStep();
  return behind_;
}

void ClientSession::LetGo() noexcept {
  if (state_ != State::Editing) return;
  try {
    state_ = State::Reading;
    office_->Run(QStringLiteral("SELECT kantoor.laat_los(?::integer, ?::uuid)"), {client_, token_});
    Follow();
  } catch (const OfficeError&) {
    // With the session the lease goes too.
  }
  token_.clear();
}

void ClientSession::Ask() { office_->Run(QStringLiteral("SELECT kantoor.vraag(?::integer)"), {client_}); }

void ClientSession::Begin() {
  switch (state_) {
    case State::Editing: break;
    case State::Broken: Refuse(kOfficeError, "er is geen verbinding met het kantoor");
    case State::Reading:
      if (!office_->User().writes) Refuse(kLeaseError, "u mag dit dossier alleen lezen");
      Refuse(kLeaseError, holder_.naam.isEmpty() ? "het dossier is niet bij u in bewerking"
                                                 : holder_.naam.toStdString() + " werkt in dit dossier");
  }
  // What could not be kept in memory after it was stored, or was stored by another.
  if (behind_ || NewestStep(tables_.Tables()) != tables_.LastStep()) {
    behind_ = true;
    Refuse(kRefusedError, "het dossier wordt opnieuw gelezen");
  }
}

void ClientSession::Keep(Database& tables) {
  const std::int64_t step = NewestStep(tables);
  if (step == tables_.LastStep()) return;
  const QString payload = QString::fromStdString(Payload(tables, step));
  const QString edit = QUuid::createUuid().toString(QUuid::WithoutBraces);
  const std::int64_t time = Send(edit, step, payload);
  // By the server's clock.
  QSqlQuery& clock = tables.Again(QStringLiteral("UPDATE stap SET tijd = ? WHERE nummer = ?"));
  clock.bindValue(0, static_cast<qlonglong>(time));
  clock.bindValue(1, static_cast<qlonglong>(step));
  Database::Run(clock);
  clock.finish();
  tables_.StepStored(step);
  names_ = NewestName(tables);
}

std::vector<std::string> ClientSession::Objects(Database& tables, const ClientTable& table, const std::string& where,
                                                std::initializer_list<std::int64_t> values) {
  QString& sql = readings_[std::string(table.name) + ' ' + where];
  if (sql.isEmpty()) sql = Reading(table) + QStringLiteral(" WHERE ") + QString::fromStdString(where);
  QSqlQuery& query = tables.Again(sql);
  int place = 0;
  for (const std::int64_t value : values) query.bindValue(place++, static_cast<qlonglong>(value));
  Database::Run(query);
  std::vector<std::string> objects;
  while (query.next()) objects.push_back(JsonOf(table, ReadRow(query, table)));
  query.finish();
  return objects;
}

std::string ClientSession::Payload(Database& tables, std::int64_t step) {
  std::map<Tabel, std::set<Sleutel>> changed;
  bool found = false;
  QSqlQuery& entries = tables.Again(QStringLiteral(
      "SELECT tabel, sleutel, veld FROM wijziging WHERE nummer >= (SELECT eerste FROM stap WHERE nummer = "
      "?)"));
  entries.bindValue(0, static_cast<qlonglong>(step));
  Database::Run(entries);
  while (entries.next()) {
    const auto tabel = static_cast<Tabel>(entries.value(0).toInt());
    changed[tabel].insert(entries.value(1).toLongLong());
    found = found || IsFoundBy(tabel, entries.value(2).toInt());
  }
  entries.finish();
  std::vector<std::string> members;
  std::vector<std::string> gone;
  for (const auto& [tabel, keys] : changed) {
    const ClientTable table{TableOf(tabel).name, TableOf(tabel).columns};
    std::vector<std::string> rows;
    std::vector<std::string> removed;
    for (const Sleutel key : keys) {
      const bool two = tabel == Tabel::Voorstel;
      const Row which = two ? Row{std::int64_t{ProposalOf(key)}, std::int64_t{ItemOf(key)}} : Row{key};
      std::vector<std::string> row =
          two ? Objects(tables, table, "voorstel = ? AND vrij_id = ?", {ProposalOf(key), ItemOf(key)})
              : Objects(tables, table, std::string(table.columns.front().name) + " = ?", {key});
      if (row.empty())
        removed.push_back(JsonRow(table.columns, which));
      else
        rows.push_back(std::move(row.front()));
    }
    if (!rows.empty()) members.push_back(Member(table.name, JsonList(rows)));
    if (!removed.empty()) gone.push_back(Member(table.name, JsonList(removed)));
  }
  if (!gone.empty()) members.push_back(Member("weg", Joined(gone)));
  members.push_back(Member("stap", Objects(tables, Steps(), "nummer = ?", {step}).front()));
  members.push_back(Member(
      "wijziging", JsonList(Objects(tables, Entries(),
                                    "nummer >= (SELECT eerste FROM stap WHERE nummer = ?) ORDER BY nummer", {step}))));
  if (const auto names = Objects(tables, Names(), "nummer > ?", {names_}); !names.empty())
    members.push_back(Member("naam", JsonList(names)));
  if (found) members.push_back(Member("zoek", JsonOf(FoundByOf(tables))));
  return Joined(members);
}

std::int64_t ClientSession::Send(const QString& edit, std::int64_t step, const QString& payload) {
  try {
    return office_->Run(SendSql(), {client_, token_, edit, payload}).value(0).toLongLong();
  } catch (const OfficeError& error) {
    switch (error.Problem()) {
      case OfficeProblem::Unreachable: break;
      case OfficeProblem::LeaseLost:
        state_ = State::Reading;
        token_.clear();
        behind_ = true;
        Refuse(kLeaseError, error.Oorzaak());
      case OfficeProblem::Stale: behind_ = true; Refuse(kRefusedError, error.Oorzaak());
      default: Refuse(kRefusedError, error.Oorzaak());
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
  behind_ = found_step_ != step;
  return found_time_;
}

void ClientSession::Broke() {
  state_ = State::Broken;
  tries_ = 0;
}

std::optional<Verdict> ClientSession::Reconnect() noexcept {
  const Before before{.edited = !token_.isEmpty(),
                      .step = tables_.LastStep(),
                      .session = {pid_, since_.toMSecsSinceEpoch()},
                      .edit = pending_ ? std::optional(pending_->step) : std::nullopt};
  try {
    // Another client of the same window may have begun the new session already. Who waits here is in the middle of an
    // edit, or knows that the server answers.
    if (office_->IsBroken()) office_->OpenOffice(OfficeConnection::Patience::Short);
    for (int look = 0; look < kLooks; ++look) {
      Found found;
      QSqlQuery& row = office_->Run(
          before.edited
              ? QStringLiteral("SELECT bewijs::text, houder, sinds, laatste, pid FROM kantoor.neem(?::integer)")
              : QStringLiteral("SELECT NULL, houder, sinds, laatste, 0 FROM kantoor.wie(?::integer)"),
          {client_});
      const QString token = row.value(0).toString();
      found = {.taken = !token.isEmpty(),
               .holder = {row.value(4).toInt(), row.value(2).toDateTime().toMSecsSinceEpoch()},
               .step = row.value(3).toLongLong(),
               .edit_is_there = false};
      const Holder holder = found.taken ? Holder() : Holder{row.value(1).toString(), row.value(2).toDateTime()};
      if (pending_) {
        const QSqlQuery& time = office_->Run(QStringLiteral("SELECT kantoor.uitkomst(?::integer, ?::bigint, ?::uuid)"),
                                             {client_, static_cast<qlonglong>(pending_->step), pending_->edit});
        found.edit_is_there = !time.isNull(0);
        found_time_ = time.value(0).toLongLong();
      }
      const Verdict verdict = Judge(before, found);
      if (verdict.role == Role::TryAgain) {
        // The server has not noticed yet that the session is gone.
        office_->Run(QStringLiteral("SELECT pg_terminate_backend(pid) FROM pg_stat_activity WHERE pid = ?::integer AND "
                                    "usename = session_user AND backend_start <= ?::timestamptz"),
                     {before.session.pid, since_.toUTC().toString(Qt::ISODateWithMs)});
        QThread::msleep(kBetweenLooks);
        continue;
      }
      state_ = verdict.role == Role::Edit ? State::Editing : State::Reading;
      token_ = token;
      holder_ = holder;
      pid_ = office_->User().pid;
      since_ = row.value(2).toDateTime();
      follows_ = false;
      TakeUp();
      if (state_ == State::Editing) office_->Prepared(SendSql());
      found_step_ = found.step;
      behind_ = behind_ || verdict.reload;
      pending_.reset();
      tries_ = 0;
      return verdict;
    }
  } catch (const OfficeError&) {
    // The next try comes later.
  }
  state_ = State::Broken;
  ++tries_;
  return std::nullopt;
}

}  // namespace brivane::dossier

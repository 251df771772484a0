#include "dossier/office/OfficeStore.h"

#include <QCoreApplication>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "dossier/office/Knock.h"
#include "dossier/office/OfficeDamage.h"
#include "dossier/office/WaitingTimes.h"
#include "dossier/store/DossierFile.h"
#include "dossier/store/FileJournal.h"
#include "dossier/store/Reader.h"

namespace brivane::dossier {
namespace {

/// An office that is there and refuses is tried as one that so many tries did not reach.
constexpr int kMany = 100;
/// Until what is behind is read anew.
constexpr std::chrono::milliseconds kSoon{50};

host::Error AsFailure(const OfficeError& error) {
  return {error.Problem() == OfficeProblem::Unreachable ? kOfficeError : kRefusedError,
          "Dit kan nu niet: " + error.Oorzaak() + ".", "Dossier"};
}

}  // namespace

OfficeStore::OfficeStore(std::shared_ptr<OfficeConnection> office, int client)
    : session_(std::make_shared<ClientSession>(std::move(office), client)) {
  StoredDossier contents = ReadDossier(session_->Tables().Tables());
  MustBePossible(contents.gegevens);
  auto goal = std::make_shared<std::weak_ptr<dossier::Dossier>>();
  journal_ = std::make_shared<FileJournal>(
      session_->Tables().Release(), contents,
      [goal](DossierGegevens gegevens) {
        MustBePossible(gegevens);
        if (const auto dossier = goal->lock()) dossier->Herlaad(std::move(gegevens));
      },
      nullptr, session_);
  journal_->SetAuthor(session_->Office().User().name);
  auto environment = std::make_shared<Environment>();
  environment->Journal = journal_;
  environment->Kopteksten = std::make_shared<BerekendeKopteksten>();
  dossier_ = std::make_shared<dossier::Dossier>(std::move(contents.gegevens), std::move(environment));
  *goal = dossier_;
  told_state_ = session_->Now();
  told_holder_ = session_->HeldBy().naam;
  subscriptions_ +=
      session_->Office().Told.Connect([this](const QString& channel, const QString& what) { Told(channel, what); });
  // Whether the connection broke shows when an edit ends.
  subscriptions_ += journal_->Bewerkingen().Failed.Connect([this](const StoreFailure&) { Plan(); });
  subscriptions_ += journal_->Bewerkingen().Stored.Connect([this] { Plan(); });
  if (QCoreApplication::instance() == nullptr) return;
  timer_ = std::make_unique<QTimer>();
  timer_->setSingleShot(true);
  QObject::connect(timer_.get(), &QTimer::timeout, [this] { Due(); });
  Plan();
}

OfficeStore::~OfficeStore() {
  subscriptions_ = {};
  timer_.reset();
  aside_.reset();
  journal_->Sluit();
  session_->Leave();
}

std::unique_ptr<OfficeStore> OfficeStore::Open(std::shared_ptr<OfficeConnection> office, int client) {
  return Readable([&] { return std::unique_ptr<OfficeStore>(new OfficeStore(std::move(office), client)); });
}

QString OfficeStore::Naam() const {
  const std::vector<PersoonGegevens> personen = dossier_->Personen();
  QStringList parts;
  for (const std::string& part : personen.front().Naam) {
    if (!part.empty()) parts << QString::fromStdString(part);
  }
  return parts.join(u' ');
}

std::shared_ptr<Edits> OfficeStore::GedeeldeBewerkingen() { return {journal_, &journal_->Bewerkingen()}; }

void OfficeStore::FillHistory() const {
  try {
    Readable([&] { session_->Tables().FillHistory(); });
  } catch (const OfficeError& error) {
    session_->Met(error);
    throw;
  }
}

void OfficeStore::ReadHistory() const {
  try {
    FillHistory();
  } catch (const OfficeError& error) {
    throw AsFailure(error);
  }
}

std::vector<Entry> OfficeStore::Next(StepKind kind) const {
  if (Now() != State::Editing) return {};
  // The last step is there from the start, so that a menu can name it.
  const std::int64_t next = journal_->NextStep(kind);
  if (next != 0 && (kind == StepKind::Redo || next != session_->Tables().LastStep())) ReadHistory();
  return journal_->Next(kind);
}

std::optional<Done> OfficeStore::Take(StepKind kind) {
  ReadHistory();
  return journal_->Take(kind);
}

std::unique_ptr<HistoryView> OfficeStore::Geschiedenis() const {
  ReadHistory();
  return std::make_unique<HistoryView>(*journal_->Bestand());
}

void OfficeStore::Kopieer(const QString& pad) const {
  FillHistory();
  DossierFile::Maak(pad, *journal_->Bestand());
}

bool OfficeStore::TakeOver() {
  const bool mine = ByHand([&] {
    const bool taken = session_->Take();
    if (session_->IsBehind()) Reload();
    return taken;
  });
  TellIfChanged();
  return mine;
}

void OfficeStore::LetGo() {
  session_->LetGo();
  TellIfChanged();
}

void OfficeStore::Ask() {
  ByHand([&] { session_->Ask(); });
}

void OfficeStore::Due() {
  if (Now() == State::Gone) return TellIfChanged();
  if (Now() != State::Broken) return LookAside();
  if (!session_->Office().IsBroken()) return Attend();
  if (barred_ || std::exchange(knocking_, true)) return TellIfChanged();
  if (!aside_) aside_ = std::make_unique<Aside>();
  Knock(*aside_, session_->Office().Another(), [this](const std::optional<OfficeError>& failure) { Knocked(failure); });
  // A window shows at once that the connection is gone.
  TellIfChanged();
}

void OfficeStore::Knocked(const std::optional<OfficeError>& failure) {
  knocking_ = false;
  failure_ = failure;
  if (Now() != State::Broken || !failure) return Attend();
  session_->NotReached();
  // The same password time and again locks an account.
  barred_ = failure->WantsPassword();
  Plan();
}

void OfficeStore::ReconnectNow(const std::optional<QString>& password) {
  if (password) session_->Office().SetPassword(*password);
  barred_ = false;
  if (timer_ && Now() == State::Broken && !knocking_) timer_->start(0);
}

bool OfficeStore::IsAsked() const { return asked_of_ != 0 && asked_of_ == session_->Office().User().pid; }

std::function<void(OfficeAnswer)> OfficeStore::Counting(void (OfficeStore::*heard)(const OfficeAnswer&, std::int64_t)) {
  asked_of_ = session_->Office().User().pid;
  answered_by_ = QDeadlineTimer(WaitingTimes::Now().silence);
  overdue_ = false;
  return [this, heard, here = std::weak_ptr(here_), of = asked_of_, state = Now(),
          step = session_->LastStep()](const OfficeAnswer& answer) {
    if (here.expired() || of != asked_of_ || !IsAsked()) return;
    asked_of_ = 0;
    if (state == Now())
      (this->*heard)(answer, step);
    else
      again_ = true;  // nobody tells of what came between that question and this state
    TellIfChanged();
    if (std::exchange(again_, false) && !IsAsked() && session_->IsThere()) timer_->start(0);
  };
}

void OfficeStore::LookAside() {
  if (!IsAsked()) {
    session_->LookAside(Counting(&OfficeStore::Heard));
  } else if (answered_by_.hasExpired() && !std::exchange(overdue_, true)) {
    // Where the machine slept the answer may be there already, and is heard first.
    answered_by_ = QDeadlineTimer(WaitingTimes::Now().overdue);
  } else if (answered_by_.hasExpired()) {
    session_->Office().GiveUp();
    session_->Broke();
  }
  TellIfChanged();
}

void OfficeStore::Heard(const OfficeAnswer& answer, std::int64_t step) {
  Try([&] { session_->Heard(answer, step); });
  if (session_->IsThere() && session_->IsBehind() && MayReread()) session_->ReadAside(Counting(&OfficeStore::Read));
}

void OfficeStore::Read(const OfficeAnswer& answer, std::int64_t step) {
  if (MayReread()) Try([&] { Reread([&] { session_->FillWith(answer, step); }); });
}

bool OfficeStore::MayReread() const {
  const Edits& edits = journal_->Bewerkingen();
  return edits.IsQuiet() || (edits.IsBetweenEdits() && session_->LacksOwnEditAlone());
}

void OfficeStore::Attend() {
  std::optional<Outcome> settled;
  if (Now() == State::Broken) {
    const bool unknown = session_->HasUnknownEdit();
    const std::optional<Verdict> verdict = session_->Reconnect();
    if (verdict && unknown) settled = verdict->outcome;
    if (!verdict) failure_ = session_->Failure();
  } else if (Now() != State::Gone) {
    Try([&] { session_->LookAround(); });
  }
  if (session_->IsThere() && session_->IsBehind() && MayReread()) Try([&] { Reload(); });
  // Whatever somebody is at work on: the next edit would be taken for this one.
  if (settled) Settled.Raise(*settled);
  TellIfChanged();
}

void OfficeStore::Told(const QString& channel, const QString& what) {
  if (channel != session_->Channel() || !timer_) return;
  // What is told is a hint to look: anybody on the server may tell. Who edits looks for who asks alone. An answer under
  // way may be older than it.
  if (Now() != State::Reading && (Now() != State::Editing || what != QLatin1String("vraag"))) return;
  again_ = IsAsked();
  if (!again_) timer_->start(0);
}

template <class Action> void OfficeStore::Try(Action&& action) {
  try {
    action();
  } catch (const OfficeError& error) {
    session_->Met(error);
  }
}

template <class Action> auto OfficeStore::ByHand(Action&& action) -> decltype(action()) {
  try {
    return action();
  } catch (const OfficeError& error) {
    session_->Met(error);
    TellIfChanged();
    throw;
  }
}

void OfficeStore::Reload() {
  Reread([&] { session_->Fill(); });
}

template <class Fill> void OfficeStore::Reread(Fill&& fill) {
  try {
    fill();
    if (session_->IsBehind()) return;
    journal_->Refilled();
  } catch (const DatabaseError& error) {
    // Nothing is edited until a reading succeeds.
    session_->StayBehind();
    unreadable_ = DamageInOffice(error);
    return;
  }
  unreadable_.reset();
  Herladen.Raise();
}

void OfficeStore::TellIfChanged() {
  if (Now() != State::Broken) {
    barred_ = false;
    failure_.reset();
  }
  Plan();
  if (const Holder& asker = session_->AskedBy();
      Now() == State::Editing && !asker.naam.isEmpty() && std::exchange(told_asked_, asker.sinds) != asker.sinds)
    Asked.Raise(asker.naam);
  if (Now() == told_state_ && HeldBy().naam == told_holder_ && unreadable_.has_value() == told_unreadable_) return;
  told_state_ = Now();
  told_holder_ = HeldBy().naam;
  told_unreadable_ = unreadable_.has_value();
  Changed.Raise();
}

void OfficeStore::Plan() {
  if (!timer_) return;
  const bool told = told_state_ == Now();
  if (told && (Now() == State::Gone || (Now() == State::Broken && (knocking_ || barred_)))) {
    // What comes of knocking, or of a password, plans what comes next; what is gone is looked for no more.
    timer_->stop();
  } else if (Now() == State::Broken) {
    const bool refused = failure_ && failure_->Problem() != OfficeProblem::Unreachable;
    const std::chrono::milliseconds pause = PauseAfter(refused ? kMany : std::max(Tries() - 1, 0));
    timer_->start(told ? pause : std::chrono::milliseconds(0));
  } else if (!told) {
    timer_->start(0);
  } else if (IsAsked()) {
    timer_->start(static_cast<int>(answered_by_.remainingTime()));
  } else if (!unreadable_ && session_->IsBehind()) {
    timer_->start(kSoon);
  } else {
    timer_->start(Now() == State::Reading ? WaitingTimes::Now().reading : WaitingTimes::Now().editing);
  }
}

}  // namespace brivane::dossier

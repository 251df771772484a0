#include "dossier/office/OfficeConnection.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>

#include "dossier/office/Aside.h"
#include "dossier/office/ConnectionWords.h"
#include "dossier/office/LongWait.h"
#include "dossier/office/OfficeSetup.h"
#include "dossier/office/ServerSession.h"
#include "dossier/office/WaitingTimes.h"

namespace brivane::dossier {
namespace {

/// What the caller's words say goes before. A network that swallows everything is found out within seconds. Every
/// statement finds its rows by their keys, whatever the values, so that one plan is good for all: without being told,
/// the server plans the first five of each session anew.
constexpr char kUnlessSaid[] =
    "connect_timeout=10 tcp_user_timeout=15000 keepalives_idle=20 keepalives_interval=5 keepalives_count=3 "
    "fallback_application_name=dossier options='-c plan_cache_mode=force_generic_plan' ";

/// Of two the last counts.
QString Connecting() {
  const auto longest = std::chrono::duration_cast<std::chrono::seconds>(WaitingTimes::Now().connecting);
  return QStringLiteral(" connect_timeout=%1").arg(longest.count());
}

std::chrono::milliseconds Longest(OfficeConnection::Patience patience) {
  using enum OfficeConnection::Patience;
  const WaitingTimes times = WaitingTimes::Now();
  switch (patience) {
    case Endless: break;
    case Long: return times.much;
    case Edit: return times.edit;
    case Short: return times.little;
    case Moment: return times.moment;
  }
  return std::chrono::hours(24);
}

/// What one waits for.
struct Awaited {
  std::mutex guard;
  std::condition_variable changed;
  std::optional<OfficeAnswer> answer;
};

}  // namespace

OfficeConnection::OfficeConnection(const QString& words, const QString& password)
    : options_(words.contains(u'=') ? words : QStringLiteral("service=") + words), password_(password) {
  if (HoldsPassword(words))
    throw OfficeError(OfficeProblem::Refused, "a password does not stand among the words of a connection");
}

OfficeConnection::~OfficeConnection() {
  if (!session_) return;
  aside_->Run([session = session_]() -> Aside::Rest {
    session->End();
    return {};
  });
  static_cast<void>(aside_->End(WaitingTimes::Now().leaving));
}

std::function<std::unique_ptr<OfficeConnection>()> OfficeConnection::Another() const {
  return [words = options_, password = password_] { return std::make_unique<OfficeConnection>(words, password); };
}

bool OfficeConnection::IsBroken() const { return !session_ || session_->broken; }

void OfficeConnection::GiveUp() {
  if (!session_) return;
  session_->given_up = true;
  aside_->Run([session = std::move(session_)]() -> Aside::Rest {
    session->End();
    return {};
  });
  session_.reset();
  aside_.reset();
}

void OfficeConnection::Open(Patience patience) {
  if (!session_) {
    aside_ = std::make_unique<Aside>();
    session_ =
        std::make_shared<ServerSession>([this, teller = aside_->Teller()](const QString& channel, const QString& what) {
          teller([this, channel, what] { Told.Raise(channel, what); });
        });
  }
  const QString options =
      QLatin1String(kUnlessSaid) + options_ + (patience == Patience::Endless ? QString() : Connecting());
  Await(
      [options, password = password_](ServerSession& session) {
        session.Open(options, password);
        return OfficeRows();
      },
      patience);
}

void OfficeConnection::OpenOffice(Patience patience) {
  Open(patience);
  const OfficeRows row =
      Run(QStringLiteral("SELECT versie, gebruiker, naam, schrijft, beheert, pid, team FROM kantoor.ik()"), {},
          patience == Patience::Endless ? Patience::Long : patience);
  const int version = row.value(0).toInt();
  if (version < kOfficeVersion) throw OfficeError(OfficeProblem::Older, "The office is of an earlier version");
  if (version > kOfficeVersion) throw OfficeError(OfficeProblem::Newer, "The office is of a later version");
  user_ = {.account = row.value(1).toString(),
           .name = row.value(2).toString().toStdString(),
           .writes = row.value(3).toBool(),
           .manages = row.value(4).toBool(),
           .team = row.value(6).toInt(),
           .pid = row.value(5).toInt()};
}

OfficeRows OfficeConnection::Await(const Task& task, Patience patience) {
  if (!session_) throw OfficeError(OfficeProblem::Unreachable, "er is geen verbinding");
  const auto awaited = std::make_shared<Awaited>();
  aside_->Run([session = session_, task, awaited]() -> Aside::Rest {
    OfficeAnswer answer;
    try {
      answer.rows = task(*session);
    } catch (const OfficeError& error) {
      answer.failure = error;
    }
    const std::lock_guard lock(awaited->guard);
    awaited->answer = std::move(answer);
    awaited->changed.notify_all();
    return {};
  });
  const std::chrono::milliseconds longest = Longest(patience);
  Waiting waiting;
  std::unique_lock lock(awaited->guard);
  for (;;) {
    const std::chrono::milliseconds so_far = waiting.SoFar();
    const std::chrono::milliseconds until = std::min(longest, waiting.ShownAt());
    if (awaited->changed.wait_for(lock, until - so_far, [&] { return awaited->answer.has_value(); })) break;
    if (waiting.SoFar() >= longest) {
      lock.unlock();
      GiveUp();
      throw OfficeError(OfficeProblem::Unreachable, "het antwoordt niet");
    }
    lock.unlock();
    waiting.Show();
    lock.lock();
  }
  if (awaited->answer->failure) throw OfficeError(*awaited->answer->failure);
  return std::move(awaited->answer->rows);
}

void OfficeConnection::Do(const Task& task) {
  if (IsBroken()) return;
  aside_->Run([session = session_, task]() -> Aside::Rest {
    try {
      task(*session);
    } catch (const OfficeError&) {
      // Whether the session broke shows to who asks next.
    }
    return {};
  });
}

OfficeRows OfficeConnection::Run(const QString& sql, std::initializer_list<QVariant> values, Patience patience) {
  return Await([sql, given = std::vector(values)](ServerSession& session) { return session.Run(sql, given); },
               patience);
}

void OfficeConnection::RunScript(const QString& sql, Patience patience) {
  Await(
      [sql](ServerSession& session) {
        session.RunScript(sql);
        return OfficeRows();
      },
      patience);
}

void OfficeConnection::Prepare(const QString& sql) {
  Do([sql](ServerSession& session) {
    session.Prepare(sql);
    return OfficeRows();
  });
}

void OfficeConnection::Post(const QString& sql, std::initializer_list<QVariant> values) {
  Do([sql, given = std::vector(values)](ServerSession& session) { return session.Run(sql, given); });
}

void OfficeConnection::Ask(const QString& sql, std::initializer_list<QVariant> values,
                           std::function<void(OfficeAnswer)> answer) {
  if (!session_) throw OfficeError(OfficeProblem::Unreachable, "er is geen verbinding");
  aside_->Run([session = session_, sql, given = std::vector(values), answer = std::move(answer)]() -> Aside::Rest {
    OfficeAnswer found;
    try {
      found.rows = session->Run(sql, given);
    } catch (const OfficeError& error) {
      found.failure = error;
    }
    return [answer, found] { answer(found); };
  });
}

void OfficeConnection::Listen(const QString& channel) {
  Do([channel](ServerSession& session) {
    session.Listen(channel);
    return OfficeRows();
  });
}

void OfficeConnection::ListenNoMore(const QString& channel) {
  Do([channel](ServerSession& session) {
    session.ListenNoMore(channel);
    return OfficeRows();
  });
}

}  // namespace brivane::dossier

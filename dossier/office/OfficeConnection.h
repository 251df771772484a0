#pragma once

#include <QString>
#include <QVariant>
#include <cstddef>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "dossier/office/OfficeError.h"
#include <brivane/host/Event.h>

namespace brivane::dossier {

class Aside;
class ServerSession;

/// Who the session is to the office.
struct OfficeUser {
  QString account;
  /// As the history names them.
  std::string name;
  bool writes = false;
  bool manages = false;
  /// A team that they are in, 0 for none.
  int team = 0;
  /// The session at the server.
  int pid = 0;
};

/// What a statement answered: all of its rows, at the first one, with the words of Qt's queries.
class OfficeRows {
 public:
  using Row = std::vector<QVariant>;

  OfficeRows() = default;
  explicit OfficeRows(std::vector<Row> rows) : rows_(std::move(rows)) {}

  [[nodiscard]] bool isValid() const { return at_ < rows_.size(); }
  bool next() { return ++at_ < rows_.size(); }
  [[nodiscard]] QVariant value(int place) const {
    return isValid() ? rows_[at_].at(static_cast<std::size_t>(place)) : QVariant();
  }
  [[nodiscard]] bool isNull(int place) const { return value(place).isNull(); }

 private:
  std::vector<Row> rows_;
  std::size_t at_ = 0;
};

/// The same of one that nobody waited for.
struct OfficeAnswer {
  OfficeRows rows{};
  std::optional<OfficeError> failure{};
};

/// One session at the server of an office. Everything throws OfficeError; a session that broke stays so until Open.
///
/// A statement is prepared once in a session and takes one round trip from then on; values are always bound.
///
/// The session lives on a thread of its own, where statements run one after the other. Who waits for one waits no
/// longer than a given patience, whatever the network does, and no event is handled meanwhile: LongWait shows it. A
/// session that did not answer in time is given up: it counts as broken, runs nothing of what it was still to run, and
/// is left to end by itself. Whether the statement under way was worked off is not known then, as where a connection
/// breaks.
class OfficeConnection {
 public:
  /// `words`: the name of a libpq service, or connection words ("host=... dbname=... sslmode=verify-full"). They hold
  /// no password: that comes from where libpq looks for it, or is handed over apart.
  explicit OfficeConnection(const QString& words, const QString& password = {});
  OfficeConnection(const OfficeConnection&) = delete;
  OfficeConnection& operator=(const OfficeConnection&) = delete;
  ~OfficeConnection();

  /// How long an answer is waited for, as WaitingTimes has it.
  enum class Patience {
    Endless,  ///< as long as the network lets it
    Long,     ///< much is asked
    Edit,     ///< has to be told whether it was stored
    Short,    ///< the server answered just now, or is asked for little
    Moment    ///< on the way out
  };

  /// Begins a session, also after the one before broke.
  void Open(Patience patience = Patience::Endless);
  /// The same, and asks who the session is: throws where there is no office of this version.
  void OpenOffice(Patience patience = Patience::Endless);
  /// Is handed to the server from the next Open on, also of those that Another makes.
  void SetPassword(const QString& password) { password_ = password; }
  /// Makes a further session of the same words and password, which is not begun yet; on any thread, also without this.
  [[nodiscard]] std::function<std::unique_ptr<OfficeConnection>()> Another() const;
  /// There is no session, or it turned out to be gone.
  [[nodiscard]] bool IsBroken() const;
  [[nodiscard]] const OfficeUser& User() const { return user_; }

  /// Runs a statement and answers all of its rows.
  OfficeRows Run(const QString& sql, std::initializer_list<QVariant> values = {}, Patience patience = Patience::Long);
  /// Runs statements without values or rows, as they stand.
  void RunScript(const QString& sql, Patience patience = Patience::Endless);

  // Nobody waits for these, and they throw nothing: after what was asked before, and before what is asked later.

  /// Has the statement prepared, so that the next run is one round trip.
  void Prepare(const QString& sql);
  /// Runs a statement whose rows nobody wants.
  void Post(const QString& sql, std::initializer_list<QVariant> values);
  /// Runs a statement and hands its answer over in the event loop; never where the session is given up before.
  void Ask(const QString& sql, std::initializer_list<QVariant> values, std::function<void(OfficeAnswer)> answer);
  /// Is told by the server from now on, while the program has an event loop.
  void Listen(const QString& channel);
  void ListenNoMore(const QString& channel);
  /// The channel, and what was told.
  host::Event<const QString&, const QString&> Told;

  /// Leaves a session alone that does not answer.
  void GiveUp();

 private:
  using Task = std::function<OfficeRows(ServerSession&)>;
  void Do(const Task& task);
  OfficeRows Await(const Task& task, Patience patience);

  QString options_;
  QString password_;
  std::shared_ptr<ServerSession> session_;
  std::unique_ptr<Aside> aside_;
  OfficeUser user_;
};

}  // namespace brivane::dossier

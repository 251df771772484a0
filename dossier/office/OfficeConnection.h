#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QVariant>
#include <functional>
#include <initializer_list>
#include <map>
#include <memory>
#include <string>

#include "dossier/office/OfficeError.h"
#include <brivane/host/Event.h>

namespace brivane::dossier {

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

/// One session at the server of an office. Everything throws OfficeError; a session that broke stays so until Open.
///
/// A statement is prepared once in a session and takes one round trip from then on; values are always bound.
class OfficeConnection {
 public:
  /// `words`: the name of a libpq service, or connection words ("host=... dbname=... sslmode=verify-full"). They hold
  /// no password: that comes from where libpq looks for it, or is handed over apart.
  explicit OfficeConnection(const QString& words, const QString& password = {});
  OfficeConnection(const OfficeConnection&) = delete;
  OfficeConnection& operator=(const OfficeConnection&) = delete;
  ~OfficeConnection();

  /// How long a server may take to answer: one that answered just now answers soon.
  enum class Patience { Long, Short };

  /// Begins a session, also after the one before broke.
  void Open(Patience patience = Patience::Long);
  /// The same, and asks who the session is: throws where there is no office of this version.
  void OpenOffice(Patience patience = Patience::Long);
  /// Makes a further session of the same words and password, which is not begun yet; on any thread, also without this.
  [[nodiscard]] std::function<std::unique_ptr<OfficeConnection>()> Another() const;
  /// There is no session, or it turned out to be gone.
  [[nodiscard]] bool IsBroken() const { return broken_; }
  [[nodiscard]] const OfficeUser& User() const { return user_; }

  /// Runs a statement and answers all of its rows; they are there until it runs again.
  QSqlQuery& Run(const QString& sql, std::initializer_list<QVariant> values = {});
  /// Has the statement prepared, so that the next run is one round trip.
  QSqlQuery& Prepared(const QString& sql);
  /// Runs statements without values or rows, as they stand.
  void RunScript(const QString& sql);

  /// Is told by the server from now on, while the program has an event loop.
  void Listen(const QString& channel);
  void ListenNoMore(const QString& channel);
  /// The channel, and what was told.
  host::Event<const QString&, const QString&> Told;

 private:
  [[noreturn]] void Fail(const QSqlError& error);

  QString name_;
  QString options_;
  QString password_;
  QSqlDatabase database_;
  QMetaObject::Connection told_;
  std::map<QString, QSqlQuery> statements_;
  OfficeUser user_;
  bool broken_ = true;
};

}  // namespace brivane::dossier

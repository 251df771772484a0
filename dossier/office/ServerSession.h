#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>
#include <atomic>
#include <functional>
#include <map>
#include <vector>

#include "dossier/office/OfficeConnection.h"

namespace brivane::dossier {

/// What of a connection belongs to one thread: Qt's session at the server. Made anywhere, used and ended on that thread
/// alone, but for its two flags.
class ServerSession {
 public:
  /// `told` is called on that thread.
  using Told = std::function<void(const QString& channel, const QString& what)>;

  explicit ServerSession(Told told);
  ServerSession(const ServerSession&) = delete;
  ServerSession& operator=(const ServerSession&) = delete;
  ~ServerSession() = default;

  void Open(const QString& options, const QString& password);
  OfficeRows Run(const QString& sql, const std::vector<QVariant>& values);
  void RunScript(const QString& sql);
  void Prepare(const QString& sql) { static_cast<void>(Prepared(sql)); }
  void Listen(const QString& channel);
  void ListenNoMore(const QString& channel);
  void End() { Drop(); }

  /// There is no session, or it turned out to be gone.
  std::atomic<bool> broken = true;
  /// Nobody waits for it any more: it does nothing but end.
  std::atomic<bool> given_up = false;

 private:
  void MustBeThere() const;
  void Drop();
  QSqlQuery& Prepared(const QString& sql);
  [[noreturn]] void Fail(const QSqlError& error);

  QString name_;
  Told told_;
  QSqlDatabase database_;
  std::map<QString, QSqlQuery> statements_;
};

}  // namespace brivane::dossier

#include "dossier/office/ServerSession.h"

#include <QCoreApplication>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlRecord>
#include <utility>

namespace brivane::dossier {
namespace {

/// Qt's sessions have names, unique in the process.
QString NewName() {
  static std::atomic<int> counter = 0;
  return QStringLiteral("brivane-kantoor-%1").arg(++counter);
}

}  // namespace

ServerSession::ServerSession(Told told) : name_(NewName()), told_(std::move(told)) {}

void ServerSession::Open(const QString& options, const QString& password) {
  if (given_up) MustBeThere();
  Drop();
  database_ = QSqlDatabase::addDatabase(QStringLiteral("QPSQL"), name_);
  if (!database_.isValid()) throw OfficeError(OfficeProblem::Refused, "The driver for PostgreSQL is missing");
  database_.setPassword(password);
  database_.setConnectOptions(options);
  QObject::connect(database_.driver(), &QSqlDriver::notification, database_.driver(),
                   [told = told_](const QString& channel, QSqlDriver::NotificationSource, const QVariant& payload) {
                     told(channel, payload.toString());
                   });
  if (!database_.open()) Fail(database_.lastError());
  if (given_up) MustBeThere();
  broken = false;
}

void ServerSession::MustBeThere() const {
  if (broken || given_up) throw OfficeError(OfficeProblem::Unreachable, "er is geen verbinding");
}

QSqlQuery& ServerSession::Prepared(const QString& sql) {
  MustBeThere();
  const auto known = statements_.find(sql);
  if (known != statements_.end()) return known->second;
  QSqlQuery query(database_);
  // Not forward only: then the driver answers before the server has committed.
  if (!query.prepare(sql)) Fail(query.lastError());
  return statements_.emplace(sql, std::move(query)).first->second;
}

OfficeRows ServerSession::Run(const QString& sql, const std::vector<QVariant>& values) {
  QSqlQuery& query = Prepared(sql);
  MustBeThere();
  int place = 0;
  for (const QVariant& value : values) query.bindValue(place++, value);
  if (!query.exec()) Fail(query.lastError());
  const int width = query.record().count();
  std::vector<OfficeRows::Row> rows;
  while (query.next()) {
    OfficeRows::Row row;
    row.reserve(static_cast<std::size_t>(width));
    for (int column = 0; column < width; ++column) row.push_back(query.value(column));
    rows.push_back(std::move(row));
  }
  return OfficeRows(std::move(rows));
}

void ServerSession::RunScript(const QString& sql) {
  MustBeThere();
  QSqlQuery query(database_);
  bool good = query.exec(sql);
  // Each statement has its own result, and a later one may be the failure.
  while (good && query.nextResult()) good = !query.lastError().isValid();
  if (query.lastError().isValid()) Fail(query.lastError());
}

void ServerSession::Listen(const QString& channel) {
  // Without an event loop nobody hears it.
  if (QCoreApplication::instance() == nullptr) return;
  MustBeThere();
  if (database_.driver()->subscribedToNotifications().contains(channel)) return RunScript("LISTEN " + channel);
  if (!database_.driver()->subscribeToNotification(channel)) Fail(database_.driver()->lastError());
}

void ServerSession::ListenNoMore(const QString& channel) {
  if (QCoreApplication::instance() == nullptr) return;
  // The server alone is told: what it sent before may still stand in line, and the driver warns of what comes in under
  // a name that it does not know any more.
  RunScript("UNLISTEN " + channel);
}

void ServerSession::Drop() {
  broken = true;
  database_ = {};
  if (QSqlDatabase::contains(name_)) QSqlDatabase::removeDatabase(name_);
  // After the driver, or each would be taken back at the server first.
  statements_.clear();
}

void ServerSession::Fail(const QSqlError& error) {
  OfficeError failure(error);
  // The line is closed already, and its number may be another's the next moment.
  if (failure.Problem() == OfficeProblem::Unreachable) Drop();
  throw OfficeError(std::move(failure));
}

}  // namespace brivane::dossier

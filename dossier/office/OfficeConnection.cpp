#include "dossier/office/OfficeConnection.h"

#include <QCoreApplication>
#include <QSqlDriver>
#include <QSqlError>
#include <atomic>

#include "dossier/office/OfficeSetup.h"

namespace brivane::dossier {
namespace {

/// Connections have names, unique in the process.
QString NewName() {
  static std::atomic<int> counter = 0;
  return QStringLiteral("brivane-kantoor-%1").arg(++counter);
}

/// What the caller's words say goes before. A network that swallows everything is found out within seconds. Every
/// statement finds its rows by their keys, whatever the values, so that one plan is good for all: without being told,
/// the server plans the first five of each session anew.
constexpr char kUnlessSaid[] =
    "connect_timeout=10 tcp_user_timeout=15000 keepalives_idle=20 keepalives_interval=5 keepalives_count=3 "
    "fallback_application_name=dossier options='-c plan_cache_mode=force_generic_plan' ";
/// Of two the last counts.
constexpr char kShort[] = " connect_timeout=3";

}  // namespace

OfficeConnection::OfficeConnection(const QString& words, const QString& password)
    : name_(NewName()),
      options_(words.contains(u'=') ? words : QStringLiteral("service=") + words),
      password_(password) {
  if (words.contains(QLatin1String("password=")))
    throw OfficeError(OfficeProblem::Refused, "a password does not stand among the words of a connection");
  database_ = QSqlDatabase::addDatabase(QStringLiteral("QPSQL"), name_);
  if (!password.isEmpty()) database_.setPassword(password);
}

OfficeConnection::~OfficeConnection() {
  QObject::disconnect(told_);
  statements_.clear();
  database_.close();
  database_ = {};
  QSqlDatabase::removeDatabase(name_);
}

std::function<std::unique_ptr<OfficeConnection>()> OfficeConnection::Another() const {
  return [words = options_, password = password_] { return std::make_unique<OfficeConnection>(words, password); };
}

void OfficeConnection::Open(Patience patience) {
  statements_.clear();
  database_.close();
  broken_ = true;
  if (!database_.isValid()) throw OfficeError(OfficeProblem::Refused, "The driver for PostgreSQL is missing");
  database_.setConnectOptions(QLatin1String(kUnlessSaid) + options_ +
                              QLatin1String(patience == Patience::Short ? kShort : ""));
  if (!database_.open()) Fail(database_.lastError());
  broken_ = false;
  if (!told_) {
    told_ = QObject::connect(database_.driver(), &QSqlDriver::notification, database_.driver(),
                             [this](const QString& channel, QSqlDriver::NotificationSource, const QVariant& payload) {
                               const QString what = payload.toString();
                               Told.Raise(channel, what);
                             });
  }
}

void OfficeConnection::OpenOffice(Patience patience) {
  Open(patience);
  const QSqlQuery& query =
      Run(QStringLiteral("SELECT versie, gebruiker, naam, schrijft, beheert, pid, team FROM kantoor.ik()"));
  const int version = query.value(0).toInt();
  if (version < kOfficeVersion) throw OfficeError(OfficeProblem::Older, "The office is of an earlier version");
  if (version > kOfficeVersion) throw OfficeError(OfficeProblem::Newer, "The office is of a later version");
  user_ = {.account = query.value(1).toString(),
           .name = query.value(2).toString().toStdString(),
           .writes = query.value(3).toBool(),
           .manages = query.value(4).toBool(),
           .team = query.value(6).toInt(),
           .pid = query.value(5).toInt()};
}

QSqlQuery& OfficeConnection::Prepared(const QString& sql) {
  if (broken_) throw OfficeError(OfficeProblem::Unreachable, "There is no connection");
  const auto known = statements_.find(sql);
  if (known != statements_.end()) return known->second;
  QSqlQuery query(database_);
  // Not forward only: then the driver answers before the server has committed.
  if (!query.prepare(sql)) Fail(query.lastError());
  return statements_.emplace(sql, std::move(query)).first->second;
}

QSqlQuery& OfficeConnection::Run(const QString& sql, std::initializer_list<QVariant> values) {
  QSqlQuery& query = Prepared(sql);
  int place = 0;
  for (const QVariant& value : values) query.bindValue(place++, value);
  if (!query.exec()) Fail(query.lastError());
  query.next();
  return query;
}

void OfficeConnection::RunScript(const QString& sql) {
  if (broken_) throw OfficeError(OfficeProblem::Unreachable, "There is no connection");
  QSqlQuery query(database_);
  bool good = query.exec(sql);
  // Each statement has its own result, and a later one may be the failure.
  while (good && query.nextResult()) good = !query.lastError().isValid();
  if (query.lastError().isValid()) Fail(query.lastError());
}

void OfficeConnection::Listen(const QString& channel) {
  // Without an event loop nobody hears it.
  if (QCoreApplication::instance() == nullptr) return;
  if (!database_.driver()->subscribedToNotifications().contains(channel) &&
      !database_.driver()->subscribeToNotification(channel))
    Fail(database_.driver()->lastError());
}

void OfficeConnection::ListenNoMore(const QString& channel) {
  if (!broken_ && QCoreApplication::instance() != nullptr) database_.driver()->unsubscribeFromNotification(channel);
}

void OfficeConnection::Fail(const QSqlError& error) {
  if (OfficeError(error).Problem() == OfficeProblem::Unreachable) broken_ = true;
  throw OfficeError(error);
}

}  // namespace brivane::dossier

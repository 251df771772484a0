#include "tests/support/postgres/PostgresServer.h"

#include <unistd.h>

#include <memory>
#include <stdexcept>

namespace brivane::test {
namespace {

constexpr char kPrograms[] = "/usr/lib/postgresql/15/bin/";
constexpr char kAccount[] = "postgres";
constexpr int kLongest = 60000;

}  // namespace

PostgresServer::PostgresServer(Disk disk) : folder_(QStringLiteral("/tmp/brivane-pg-XXXXXX")), disk_(disk) {
  if (geteuid() == 0 && QProcess::execute("chown", {QLatin1String(kAccount), folder_.path()}) != 0)
    throw std::runtime_error("the folder of the server cannot be given away");
  bool failed = false;
  const QString said = Run(
      QLatin1String(kPrograms) + "initdb",
      {"-D", folder_.filePath("data"), "-U", kAccount, "-A", "trust", "-E", "UTF8", "--locale=C.UTF-8", "--no-sync"},
      &failed);
  if (failed) throw std::runtime_error(said.toStdString());
  Start();
  // Its input ends with this process, however that ends.
  const QString stop = QString("cat; %1 %2pg_ctl -D %3/data -m immediate stop; rm -rf %3")
                           .arg(geteuid() == 0 ? QString("runuser -u %1 --").arg(kAccount) : QString(),
                                QLatin1String(kPrograms), folder_.path());
  guard_.setStandardOutputFile(QProcess::nullDevice());
  guard_.setStandardErrorFile(QProcess::nullDevice());
  guard_.setWorkingDirectory("/");
  guard_.start("setsid", {"sh", "-c", stop});
  guard_.waitForStarted();
}

PostgresServer::~PostgresServer() {
  guard_.closeWriteChannel();
  guard_.waitForFinished(kLongest);
}

PostgresServer& PostgresServer::Shared() {
  static PostgresServer server;
  return server;
}

QString PostgresServer::Words(const QString& account, const QString& database) const {
  return QString("host=%1 user=%2 dbname=%3").arg(folder_.path(), account, database);
}

QString PostgresServer::MakeDatabase(const QString& like) {
  const QString name = QString("proef_%1").arg(++databases_);
  bool failed = false;
  const QString said =
      Psql(kAccount, kAccount, QString("CREATE DATABASE %1 TEMPLATE %2").arg(name, like.isEmpty() ? "template0" : like),
           &failed);
  if (failed) throw std::runtime_error(said.toStdString());
  return name;
}

QString PostgresServer::Psql(const QString& account, const QString& database, const QString& sql, bool* failed) {
  QProcess psql;
  psql.setProcessChannelMode(QProcess::MergedChannels);
  psql.start(QLatin1String(kPrograms) + "psql",
             {"-X", "-q", "-A", "-t", "-v", "ON_ERROR_STOP=1", "-d", Words(account, database), "-c", sql});
  psql.waitForFinished(kLongest);
  if (failed != nullptr) *failed = psql.exitStatus() != QProcess::NormalExit || psql.exitCode() != 0;
  return QString::fromUtf8(psql.readAll()).trimmed();
}

void PostgresServer::Start() {
  QString options =
      QString("-k %1 -c listen_addresses= -c max_connections=120 -c log_min_messages=fatal").arg(folder_.path());
  if (disk_ == Disk::DoesNotWait) options += " -c fsync=off -c full_page_writes=off";
  bool failed = false;
  const QString said =
      Run(QLatin1String(kPrograms) + "pg_ctl",
          {"-D", folder_.filePath("data"), "-l", folder_.filePath("log"), "-w", "-o", options, "start"}, &failed);
  if (failed) throw std::runtime_error(said.toStdString());
}

void PostgresServer::Stop(const QString& how) {
  Run(QLatin1String(kPrograms) + "pg_ctl", {"-D", folder_.filePath("data"), "-w", "-m", how, "stop"}, nullptr);
}

bool PostgresServer::IsRunning() const {
  bool failed = false;
  Run(QLatin1String(kPrograms) + "pg_ctl", {"-D", folder_.filePath("data"), "status"}, &failed);
  return !failed;
}

QString PostgresServer::Run(const QString& program, const QStringList& arguments, bool* failed) const {
  QProcess process;
  process.setProcessChannelMode(QProcess::MergedChannels);
  // A server that goes on keeps what it inherited open.
  process.setStandardOutputFile(QProcess::nullDevice());
  process.setWorkingDirectory("/");
  if (geteuid() == 0)
    process.start("runuser", QStringList{"-u", kAccount, "--", program} + arguments);
  else
    process.start(program, arguments);
  process.waitForFinished(kLongest);
  if (failed != nullptr) *failed = process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0;
  return program + ": " + QString::number(process.exitCode());
}

}  // namespace brivane::test

#include "tests/support/postgres/PostgresServer.h"

#include <unistd.h>

#include <QFile>
#include <QProcess>
#include <stdexcept>

namespace brivane::test {
namespace {

constexpr char kPrograms[] = "/usr/lib/postgresql/15/bin/";
constexpr char kAccount[] = "postgres";
constexpr int kLongest = 60000;
/// A large office is filled by statements.
constexpr int kLongestStatement = 1800000;

}  // namespace

PostgresServer::PostgresServer(Disk disk, const QString& settings) : folder_(QStringLiteral("/tmp/brivane-pg-XXXXXX")) {
  if (geteuid() == 0 && QProcess::execute("chown", {QLatin1String(kAccount), folder_.path()}) != 0)
    throw std::runtime_error("the folder of the server cannot be given away");
  if (!Tool("initdb", {"-D", folder_.filePath("data"), "-U", kAccount, "-A", "trust", "-E", "UTF8", "--locale=C.UTF-8",
                       "--no-sync"}))
    throw std::runtime_error("initdb failed");
  AddSettings(
      QString("unix_socket_directories = '%1'\nlisten_addresses = ''\nmax_connections = 120\nlog_min_messages = "
              "fatal\n")
          .arg(folder_.path()) +
      settings);
  if (disk == Disk::DoesNotWait) AddSettings("fsync = off\nfull_page_writes = off\n");
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
  psql.waitForFinished(kLongestStatement);
  if (failed != nullptr) *failed = psql.exitStatus() != QProcess::NormalExit || psql.exitCode() != 0;
  return QString::fromUtf8(psql.readAll()).trimmed();
}

void PostgresServer::AddSettings(const QString& lines) {
  QFile file(folder_.filePath("data/postgresql.conf"));
  if (!file.open(QIODevice::Append)) throw std::runtime_error("the settings cannot be written");
  file.write(lines.toUtf8());
}

void PostgresServer::AddAdmissions(const QString& lines) {
  QFile file(folder_.filePath("data/pg_hba.conf"));
  if (!file.open(QIODevice::ReadWrite)) throw std::runtime_error("who is let in cannot be written");
  const QByteArray there = file.readAll();
  file.seek(0);
  file.write(lines.toUtf8() + there);
}

void PostgresServer::HandOver(const QString& path) const {
  QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
  if (geteuid() == 0) QProcess::execute("chown", {QLatin1String(kAccount), path});
}

void PostgresServer::Start() {
  if (!Tool("pg_ctl", {"-D", folder_.filePath("data"), "-l", folder_.filePath("log"), "-w", "start"}))
    throw std::runtime_error("the server does not start");
}

void PostgresServer::Stop(const QString& how) {
  static_cast<void>(Tool("pg_ctl", {"-D", folder_.filePath("data"), "-w", "-m", how, "stop"}));
}

bool PostgresServer::Tool(const QString& program, const QStringList& arguments) const {
  QProcess process;
  // A server that goes on keeps what it inherited open.
  process.setStandardOutputFile(QProcess::nullDevice());
  process.setStandardErrorFile(QProcess::nullDevice());
  process.setWorkingDirectory("/");
  const QString path = QLatin1String(kPrograms) + program;
  if (geteuid() == 0)
    process.start("runuser", QStringList{"-u", kAccount, "--", path} + arguments);
  else
    process.start(path, arguments);
  process.waitForFinished(kLongest);
  return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

}  // namespace brivane::test

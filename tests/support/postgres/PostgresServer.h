#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace brivane::test {

/// A server of PostgreSQL of a test's own: in a temporary folder, reached by a local socket alone, stopped and removed
/// with this object, also where the test is killed. Root starts it as the account of the Debian package, as the server
/// refuses to run as root.
class PostgresServer {
 public:
  /// Whether writing waits for the disk, as it does in an office; a test that breaks nothing need not wait.
  enum class Disk { Waits, DoesNotWait };

  /// `settings`: lines for its settings beside those.
  explicit PostgresServer(Disk disk = Disk::DoesNotWait, const QString& settings = {});
  PostgresServer(const PostgresServer&) = delete;
  PostgresServer& operator=(const PostgresServer&) = delete;
  ~PostgresServer();

  /// One for all tests of a program, started when it is first asked for.
  [[nodiscard]] static PostgresServer& Shared();

  /// Connection words for an account and a database; anybody is let in under any name.
  [[nodiscard]] QString Words(const QString& account, const QString& database) const;
  /// Makes a database of its own name, as a copy of another where one is given, and answers its name.
  QString MakeDatabase(const QString& like = {});
  /// Runs psql, and answers what it printed; `failed` is set where it did not end well, and not looked at where it is
  /// nothing.
  QString Psql(const QString& account, const QString& database, const QString& sql, bool* failed = nullptr);

  /// Adds lines to the settings, or before those that say who is let in; they count from the next start.
  void AddSettings(const QString& lines);
  void AddAdmissions(const QString& lines);
  /// Gives a file to the account of the server, for it alone.
  void HandOver(const QString& path) const;
  /// Runs a program of PostgreSQL's as the account of the server; answers whether it ended well.
  [[nodiscard]] bool Tool(const QString& program, const QStringList& arguments) const;
  void Start();
  /// How a server ends: "fast" or "immediate".
  void Stop(const QString& how);
  [[nodiscard]] QString Folder() const { return folder_.path(); }

 private:
  QTemporaryDir folder_;
  /// Waits for the end of this process.
  QProcess guard_;
  int databases_ = 0;
};

}  // namespace brivane::test

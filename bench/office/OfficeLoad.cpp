#include <QCoreApplication>
#include <QStringList>
#include <QTemporaryDir>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>

#include "bench/office/Adviser.h"
#include "bench/office/Relay.h"
#include "bench/office/Times.h"
#include "bench/office/Worker.h"
#include "tests/dossier/office/ManyClients.h"

// Many advisers at once, each a process of its own with the editor on a client of his own, twice a second; and as many
// plain connections that do the bare UPDATE of one row at the same rate. The two take turns of some seconds, so that
// what else the machine does meets both. Prints what each takes, and whether each accepted edit stands in the office
// once; ends with 1 where one does not.
//
//     office_load [--clients=N] [ADVISERS:SECONDS:MILLISECONDS...]
//
// Each row is so many advisers for so many seconds, with answers so many milliseconds late, half of it on the way
// there.
namespace {

using namespace brivane;
using namespace brivane::bench;
using dossier::TrialOffice;

constexpr int kTurn = 10;
constexpr int kMostAdvisers = 50;
/// Edits of one adviser in one row, at most.
constexpr int kNumbers = 1000;

struct Row {
  int advisers = 0;
  int seconds = 0;
  int delay = 0;
};

/// What the workers answered, by the first word of a line.
struct Figures {
  std::map<std::string, Times> times;
  std::vector<std::string> held;
  int other = 0;
  int failed = 0;

  void Add(const std::vector<std::string>& lines) {
    for (const std::string& line : lines) {
      std::istringstream words(line);
      std::string what;
      words >> what;
      std::int64_t time = 0;
      if (what == "held") {
        held.push_back(line.substr(5));
      } else if (what == "other") {
        ++other;
      } else if (what != "failed" && words >> time) {
        times[what].push_back(time);
      } else {
        ++failed;
        std::fprintf(stderr, "%s\n", line.c_str());
      }
    }
  }
};

class OfficeLoad {
 public:
  explicit OfficeLoad(int clients) : clients_(clients) {
    MakeClients(office_, first_, {.clients = clients});
    QString sql =
        "CREATE EXTENSION pg_stat_statements; "
        "CREATE TABLE los AS SELECT DISTINCT ON (client) * FROM kantoor.vrijekolom ORDER BY client, sleutel; "
        "ALTER TABLE los ADD PRIMARY KEY (client); GRANT ALL ON los TO PUBLIC; "
        "CREATE TABLE gehouden (gebruiker name, client integer, van timestamptz, tot timestamptz, bewerkingen "
        "integer); ";
    for (int who = 0; who < kMostAdvisers; ++who) {
      sql += QString(
                 "CREATE ROLE adviseur_%1 LOGIN; GRANT kantoor_adviseur TO adviseur_%1; INSERT INTO kantoor.lid "
                 "VALUES ('adviseur_%1', 1); ")
                 .arg(who);
    }
    Do(sql);
    Do("VACUUM ANALYZE");
  }

  /// Answers whether everything that was accepted stands there once.
  bool Run(const Row& row) {
    std::unique_ptr<Worker> relay;
    const QTemporaryDir folder;
    QString words = office_.Words("");
    words.remove("user=");
    if (row.delay > 0) {
      relay = std::make_unique<Worker>(std::vector<std::string>{
          "relay", server_.Folder().toStdString(), folder.path().toStdString(), std::to_string(row.delay * 500)});
      static_cast<void>(relay->Answers());
      words += " host=" + folder.path();
    }
    Do("CHECKPOINT");
    Do("SELECT pg_stat_statements_reset()");
    std::vector<Worker> advisers;
    for (int who = 0; who < row.advisers; ++who) {
      advisers.push_back(Worker({"adviser", std::to_string(who),
                                 std::to_string((rows_ * kMostAdvisers + who) * kNumbers), std::to_string(first_),
                                 std::to_string(clients_), std::to_string(row.advisers), words.toStdString()}));
    }
    ++rows_;
    Figures figures;
    const auto all = [&](const char* what, int seconds, const char* first = nullptr) {
      const std::string rest = ' ' + std::to_string(Now() + 1'000'000) + ' ' + std::to_string(seconds);
      for (Worker& worker : advisers) worker.Tell((&worker == &advisers.front() && first ? first : what) + rest);
      for (Worker& worker : advisers) figures.Add(worker.Answers());
    };
    for (Worker& worker : advisers) figures.Add(worker.Answers());
    for (int left = row.seconds; left > 0; left -= kTurn) {
      all("bare", std::min(left, kTurn));
      all("edit", std::min(left, kTurn));
    }
    const QString at_server = office_.Psql(
        "postgres",
        "SELECT string_agg(coalesce((SELECT to_char(sum(p.total_exec_time) / sum(p.calls), 'FM990.00') FROM "
        "pg_stat_statements p WHERE p.query LIKE w.woord), '-'), ' and ' ORDER BY w.nummer) FROM (VALUES "
        "(1, '%UPDATE los%'), (2, '%sla_op%')) w(nummer, woord)");
    const std::map<std::string, Times> measured = figures.times;
    // A colleague reads along with one of them.
    all("edit", std::min(row.seconds, 2 * kTurn), "along");
    for (Worker& worker : advisers) {
      worker.End();
      figures.Add(worker.Answers());
    }
    Print(row, measured, figures, at_server);
    return Check(figures) && figures.failed == 0;
  }

 private:
  void Do(const QString& sql) {
    bool failed = false;
    const QString said = office_.Psql("postgres", sql, &failed);
    if (failed) std::fprintf(stderr, "%s\n", said.toStdString().c_str());
  }

  static void Print(const Row& row, const std::map<std::string, Times>& measured, const Figures& figures,
                    const QString& at_server) {
    const auto line = [](const char* what, const Times& times) {
      std::printf("    %-34s %6zu   median %7.2f ms   95 %% %8.2f ms   99 %% %8.2f ms\n", what, times.size(),
                  Within(times, 0.5), Within(times, 0.95), Within(times, 0.99));
    };
    const auto times = [](const std::map<std::string, Times>& all, const char* what) {
      const auto found = all.find(what);
      return found == all.end() ? Times() : found->second;
    };
    std::string load;
    std::getline(std::ifstream("/proc/loadavg"), load);
    std::printf("%d advisers, %d seconds each way, answers %d ms late; load of the machine %s\n", row.advisers,
                row.seconds, row.delay, load.substr(0, 5).c_str());
    const Times bare = times(measured, "bare");
    const Times edits = times(measured, "edit");
    line("bare UPDATE", bare);
    line("accepted edit", edits);
    line("  computed by the program", times(measured, "computed"));
    line("first edit of a session", times(figures.times, "first"));
    line("a client opened and taken up", times(figures.times, "open"));
    line("an accepted edit shows to a reader", times(figures.times, "shown"));
    std::printf("    ratio of the medians %.2f, of the 99 %% %.2f; at the server without the commit %s ms\n",
                Within(edits, 0.5) / Within(bare, 0.5), Within(edits, 0.99) / Within(bare, 0.99),
                at_server.toStdString().c_str());
  }

  /// Holds what the advisers saw to what stands in the office, of all rows so far.
  bool Check(const Figures& figures) {
    QString values;
    for (const std::string& held : figures.held) {
      std::istringstream words(held);
      std::string client, from, to, edits, who;
      words >> who >> client >> from >> to >> edits;
      values += QString("%1('adviseur_%2', %3, to_timestamp(%4 / 1e6), to_timestamp(%5 / 1e6), %6)")
                    .arg(values.isEmpty() ? "" : ", ", QString::fromStdString(who), QString::fromStdString(client),
                         QString::fromStdString(from), QString::fromStdString(to), QString::fromStdString(edits));
    }
    Do("INSERT INTO gehouden VALUES " + values);
    const QString said = office_.Psql("postgres", R"sql(
      WITH telling AS (SELECT g.bewerkingen, (SELECT count(*) FROM kantoor.stap s WHERE s.client = g.client
          AND s.gebruiker = g.gebruiker AND s.opgeslagen BETWEEN g.van AND g.tot) AS staan FROM gehouden g)
      SELECT concat_ws(' ', (SELECT sum(bewerkingen) FROM gehouden), (SELECT count(*) FROM gehouden),
        (SELECT coalesce(sum(greatest(bewerkingen - staan, 0)), 0) FROM telling),
        (SELECT coalesce(sum(greatest(staan - bewerkingen, 0)), 0) FROM telling)
          + (SELECT count(*) FROM kantoor.stap) - (SELECT sum(staan) FROM telling)
          + (SELECT count(*) - count(DISTINCT bewerking) FROM kantoor.stap),
        (SELECT count(*) FROM gehouden a JOIN gehouden b ON a.client = b.client AND a.ctid < b.ctid
          AND a.van <= b.tot AND b.van <= a.tot),
        (SELECT count(*) FROM kantoor.client c WHERE c.laatste <> (SELECT count(*) FROM kantoor.stap s
            WHERE s.client = c.nummer) OR c.laatste <> (SELECT coalesce(max(s.nummer), 0) FROM kantoor.stap s
            WHERE s.client = c.nummer))
          + (SELECT count(*) FROM kantoor.stap s WHERE NOT EXISTS (SELECT FROM kantoor.wijziging w
            WHERE w.client = s.client AND w.stap = s.nummer))))sql");
    const QStringList n = said.split(u' ');
    if (n.size() != 6) {
      std::fprintf(stderr, "%s\n", said.toStdString().c_str());
      return false;
    }
    const auto text = [&](int place) { return n[place].toStdString(); };
    std::printf(
        "    so far %s edits in %s turns at a client, %d times another had it: lost %s, there twice or too many "
        "%s, clients with two at once %s, half %s\n\n",
        text(0).c_str(), text(1).c_str(), figures.other, text(2).c_str(), text(3).c_str(), text(4).c_str(),
        text(5).c_str());
    std::fflush(stdout);
    return n[2] == "0" && n[3] == "0" && n[4] == "0" && n[5] == "0";
  }

  int clients_;
  // Its disk is one that waits.
  test::PostgresServer server_{test::PostgresServer::Disk::Waits, "shared_preload_libraries = 'pg_stat_statements'\n"};
  TrialOffice office_{server_};
  int first_ = office_.Add();
  int rows_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  const QStringList given = QCoreApplication::arguments().mid(1);
  if (given.value(0) == "relay") {
    return RunRelay(given.value(1).toStdString(), given.value(2).toStdString(),
                    std::chrono::microseconds(given.value(3).toInt()));
  }
  if (given.value(0) == "adviser") {
    Adviser({.who = given.value(1).toInt(),
             .number = given.value(2).toInt(),
             .first = given.value(3).toInt(),
             .clients = given.value(4).toInt(),
             .advisers = given.value(5).toInt(),
             .words = given.value(6).toStdString()})
        .Work();
    return 0;
  }
  int clients = 10000;
  std::vector<Row> rows;
  for (const QString& word : given) {
    const QStringList parts = word.split(u':');
    if (word.startsWith("--clients="))
      clients = word.section(u'=', 1).toInt();
    else
      rows.push_back({parts.value(0).toInt(), parts.value(1).toInt(), parts.value(2).toInt()});
  }
  if (rows.empty()) rows = {{1, 120, 0}, {10, 120, 0}, {50, 120, 0}, {1, 120, 20}, {10, 120, 20}, {50, 120, 20}};
  OfficeLoad load(clients);
  bool good = true;
  for (const Row& row : rows) good = load.Run(row) && good;
  return good ? 0 : 1;
}

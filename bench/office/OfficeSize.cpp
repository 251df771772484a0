#include <QCoreApplication>
#include <QRegularExpression>
#include <chrono>
#include <cstdio>

#include "bench/office/Times.h"
#include "bench/office/Worker.h"
#include "dossier/office/FoundBy.h"
#include "tests/dossier/office/ManyClients.h"

// A large office beside one of a hundred clients: looking clients up while typing, key by key, and opening one. Each
// client has ten columns and a hundred entries of history.
//
//     office_size [CLIENTS]        100,000
namespace {

using namespace brivane;
using namespace brivane::bench;
using dossier::TrialOffice;

constexpr int kColumns = 10;
constexpr int kSteps = 50;
constexpr int kEntries = 2;
constexpr int kTeams = 20;
constexpr int kOpened = 100;
constexpr int kAgain = 5;

/// What somebody types: words that few, many, all, none of the clients have, and one that only those of others have.
const char* const kTyped[] = {"dijkstra 4321", "bakker",   "smit 99", "krant",    "gift vos", "11-09-1950",
                              "mij17",         "polis431", "elders",  "elders k", "w3f0",     "xyzzy"};

dossier::DossierGegevens TenColumns() {
  dossier::DossierGegevens contents = dossier::VoorbeeldDossier();
  auto& columns = contents.HuidigeLening.VrijeKolommen;
  const std::vector<dossier::KolomGegevens> sample = columns;
  const auto others = [&] {
    std::size_t count = 0;
    for (const auto& loan : contents.Leningen) count += loan.VrijeKolommen.size();
    return count;
  }();
  while (columns.size() + others < kColumns) {
    dossier::KolomGegevens column = sample[columns.size() % sample.size()];
    column.Id = static_cast<std::int16_t>(columns.size() + 1);
    columns.push_back(column);
  }
  return contents;
}

/// An office of so many clients on a server; anna is in two of its teams, and mia sees all.
class Filled {
 public:
  Filled(test::PostgresServer& server, int clients, int teams) : office(server) {
    const std::int64_t start = Now();
    const int first = office.Add(TenColumns());
    MakeClients(office, first, {.clients = clients, .steps = kSteps, .entries = kEntries, .teams = teams});
    office.Psql("postgres", "INSERT INTO kantoor.lid VALUES ('anna', 2)");
    std::printf("%s clients, columns, steps, entries; %s; made in %.0f s\n",
                office
                    .Psql("postgres",
                          "SELECT concat_ws(', ', (SELECT count(*) FROM kantoor.client), (SELECT count(*) FROM "
                          "kantoor.vrijekolom), (SELECT count(*) FROM kantoor.stap), (SELECT count(*) FROM "
                          "kantoor.wijziging))")
                    .toStdString()
                    .c_str(),
                office
                    .Psql("postgres",
                          "SELECT pg_size_pretty(pg_database_size(current_database())) || ' in all, history ' || "
                          "pg_size_pretty(pg_total_relation_size('kantoor.stap') + "
                          "pg_total_relation_size('kantoor.wijziging')) || ', words ' || "
                          "pg_size_pretty(pg_total_relation_size('kantoor.zoek'))")
                    .toStdString()
                    .c_str(),
                static_cast<double>(Now() - start) / 1e6);
    std::fflush(stdout);
  }
  /// Clients of anna's, any.
  [[nodiscard]] std::vector<int> Some() {
    std::vector<int> some;
    const QString said = office.Psql(
        "postgres",
        QString("SELECT nummer FROM kantoor.client WHERE team IN (1, 2) ORDER BY md5(nummer::text) LIMIT %1")
            .arg(kOpened));
    for (const QString& line : said.split(u'\n')) some.push_back(line.toInt());
    return some;
  }

  TrialOffice office;
};

void Print(const char* what, const Times& times) {
  std::printf("    %-46s %5zu   median %7.2f ms   95 %% %7.2f ms   99 %% %7.2f ms\n", what, times.size(),
              Within(times, 0.5), Within(times, 0.95), Within(times, 0.99));
  std::fflush(stdout);
}

/// Every beginning of every text, as each key asks the server anew.
QStringList Keys() {
  QStringList keys;
  for (const char* typed : kTyped) {
    const QString text(typed);
    for (qsizetype length = 0; length <= text.size(); ++length) keys << text.left(length);
  }
  return keys;
}

/// The time that the server itself gives for them.
Times AtServer(TrialOffice& office, const QString& account, const QStringList& keys) {
  QString sql;
  for (const QString& key : keys) {
    const QStringList words = dossier::WordsTyped(key);
    sql += "EXPLAIN ANALYZE SELECT * FROM kantoor.zoek_clienten(ARRAY['" + words.join("','") + "']::text[], 50); ";
  }
  const QString said = office.Psql(account, sql);
  const QRegularExpression took("Execution Time: ([0-9.]+) ms");
  Times times;
  for (auto found = took.globalMatch(said); found.hasNext();)
    times.push_back(static_cast<std::int64_t>(found.next().captured(1).toDouble() * 1000));
  return times;
}

void Search(Filled& large) {
  const QStringList keys = Keys();
  for (const char* account : {"anna", "mia"}) {
    const auto connection = large.office.Enter(account);
    Times times;
    std::int64_t worst = 0;
    QString worst_key;
    for (int again = 0; again < kAgain; ++again) {
      for (const QString& key : keys) {
        const std::int64_t start = Now();
        static_cast<void>(SearchClients(*connection, key, 50));
        times.push_back(Now() - start);
        if (times.back() > worst) {
          worst = times.back();
          worst_key = key;
        }
      }
    }
    const std::string who =
        account == std::string("anna") ? "an adviser of two teams in twenty" : "a manager, who sees all";
    Print(("a key while looking up, " + who).c_str(), times);
    std::printf("    %-46s the slowest, \"%s\", %.2f ms\n", "", worst_key.toStdString().c_str(),
                static_cast<double>(worst) / 1000);
    Print("    by the server's own time", AtServer(large.office, account, keys));
  }
}

/// Opens clients of both in turns, so that what else the machine does meets both.
void Open(Filled& small, Filled& large) {
  const std::vector<int> few = small.Some();
  const std::vector<int> many = large.Some();
  const auto in_small = small.office.Enter();
  const auto in_large = large.office.Enter();
  // What is done once in a session.
  dossier::OfficeStore::Open(in_small, few.front()).reset();
  dossier::OfficeStore::Open(in_large, many.front()).reset();
  for (const char* when : {"for the first time since the server started", "again"}) {
    Times small_times;
    Times large_times;
    const auto open = [](const auto& office, int client, Times& times) {
      const std::int64_t start = Now();
      const auto store = dossier::OfficeStore::Open(office, client);
      times.push_back(Now() - start);
    };
    for (std::size_t n = 0; n < many.size(); ++n) {
      open(in_small, few[n % few.size()], small_times);
      open(in_large, many[n], large_times);
    }
    Print((std::string("a client of a hundred opened, ") + when).c_str(), small_times);
    Print((std::string("a client of the large office, ") + when).c_str(), large_times);
    std::printf("    ratio of the medians %.2f\n", Within(large_times, 0.5) / Within(small_times, 0.5));
  }
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  const QString given = QCoreApplication::arguments().value(1);
  test::PostgresServer server(test::PostgresServer::Disk::DoesNotWait, "max_wal_size = 8GB\n");
  Filled small(server, 100, 2);
  Filled large(server, given.isEmpty() ? 100000 : given.toInt(), kTeams);
  Search(large);
  server.Stop("fast");
  server.Start();
  Open(small, large);
}

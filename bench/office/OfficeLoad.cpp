#include <sys/wait.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QSqlQuery>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "tests/dossier/office/ManyClients.h"
#include "tests/dossier/store/ScriptedEdits.h"
#include "tests/support/postgres/SocketProxy.h"

// Many advisers at once, each a process of its own with the editor on a client of his own, without a window; and the
// bare UPDATE of one row by as many plain connections at the same rate. Prints what a bare UPDATE and an accepted edit
// take, and whether each edit stands in the office once.
//
//     office_load [ADVISERS [SECONDS [CLIENTS [DELAY]]]]        50 advisers, 120 seconds, 10,000 clients, no delay in
//     ms
namespace {

using namespace brivane;
using namespace brivane::dossier;
using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kBetweenEdits{500};

struct Load {
  int advisers = 50;
  int seconds = 120;
  int clients = 10000;
  int delay = 0;
};

/// What one adviser did: how long each edit took, in microseconds.
using Times = std::vector<std::int64_t>;

/// Runs a body in a process of its own for each adviser, all at the same time, and gathers their times.
template <class Body> Times InProcesses(int count, Body&& body) {
  std::vector<int> pipes;
  for (int n = 0; n < count; ++n) {
    int ends[2];
    if (pipe(ends) != 0) std::abort();
    if (fork() == 0) {
      close(ends[0]);
      const Times times = body(n);
      const auto* bytes = reinterpret_cast<const char*>(times.data());
      std::size_t left = times.size() * sizeof(std::int64_t);
      while (left > 0) {
        const ssize_t sent = write(ends[1], bytes, left);
        if (sent <= 0) break;
        bytes += sent;
        left -= static_cast<std::size_t>(sent);
      }
      _exit(0);
    }
    close(ends[1]);
    pipes.push_back(ends[0]);
  }
  Times all;
  for (const int from : pipes) {
    std::int64_t time = 0;
    while (read(from, &time, sizeof time) == static_cast<ssize_t>(sizeof time)) all.push_back(time);
    close(from);
  }
  while (wait(nullptr) > 0) {
  }
  return all;
}

/// Two a second, each adviser at moments of his own.
template <class Edit> Times AtTheRate(int who, int seconds, Edit&& edit) {
  std::mt19937 chance(static_cast<unsigned>(who));
  auto next = Clock::now() + std::chrono::milliseconds(chance() % kBetweenEdits.count());
  const auto end = next + std::chrono::seconds(seconds);
  Times times;
  for (int n = 0; next < end; ++n, next += kBetweenEdits) {
    std::this_thread::sleep_until(next);
    const auto start = Clock::now();
    edit(n);
    times.push_back(std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - start).count());
  }
  return times;
}

double At(const Times& sorted, double part) {
  if (sorted.empty()) return 0;
  return static_cast<double>(sorted[static_cast<std::size_t>(part * static_cast<double>(sorted.size() - 1))]) / 1000;
}

/// A table of its own for the bare UPDATE, with rows as those of a column.
void MakeBareTable(TrialOffice& office) {
  bool failed = false;
  const QString said =
      office.Psql("postgres",
                  "CREATE TABLE los AS SELECT DISTINCT ON (client) * FROM kantoor.vrijekolom ORDER BY client, "
                  "sleutel; ALTER TABLE los ADD PRIMARY KEY (client); GRANT ALL ON los TO PUBLIC; ANALYZE los",
                  &failed);
  if (failed) std::fprintf(stderr, "%s\n", said.toStdString().c_str());
}

void Print(const char* what, Times& times) {
  std::sort(times.begin(), times.end());
  std::printf("%-14s %6zu   median %7.2f ms   99 %% %8.2f ms\n", what, times.size(), At(times, 0.5), At(times, 0.99));
}

int Run(const Load& load) {
  // Its disk is one that waits, and none of it is this process's once it forks.
  test::PostgresServer server(test::PostgresServer::Disk::Waits);
  TrialOffice office(server);
  const int first = office.Add();
  MakeClients(office, first, load.clients);
  MakeBareTable(office);
  std::unique_ptr<test::SocketProxy> proxy;
  if (load.delay > 0)
    proxy = std::make_unique<test::SocketProxy>(server.Folder(), std::chrono::milliseconds(load.delay));
  const QString by = proxy ? proxy->Folder() : QString();
  std::printf("%d advisers, %d seconds, %d clients, answers %d ms late\n", load.advisers, load.seconds, load.clients,
              load.delay);

  Times bare = InProcesses(load.advisers, [&](int who) {
    OfficeConnection connection(office.Words("anna") + (by.isEmpty() ? QString() : " host=" + by));
    connection.Open();
    const QString update = "UPDATE los SET bedrag = ? WHERE client = ?";
    connection.Prepared(update);
    return AtTheRate(who, load.seconds, [&](int n) { connection.Run(update, {n + 0.25, first + who}); });
  });
  Times edits = InProcesses(load.advisers, [&](int who) {
    const auto store = OfficeStore::Open(office.Enter("anna", by), first + who);
    Desk desk(*store);
    desk.Bind(0, 1);
    return AtTheRate(who, load.seconds, [&](int n) {
      DoEdit(desk, n + 1);
      if (!desk.reports.empty()) std::fprintf(stderr, "%s\n", desk.reports.back().ErrorDescription.c_str());
    });
  });
  Print("bare UPDATE", bare);
  Print("accepted edit", edits);
  std::printf("ratio of the medians %.2f\n", At(edits, 0.5) / At(bare, 0.5));
  const QString stored = office.Psql(
      "postgres", "SELECT count(*), count(DISTINCT bewerking), count(DISTINCT (client, nummer)) FROM kantoor.stap");
  std::printf("steps, identifiers, numbers: %s of %zu edits\n", stored.toStdString().c_str(), edits.size());
  return stored == QString("%1|%1|%1").arg(edits.size()) ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  Load load;
  int* const given[] = {&load.advisers, &load.seconds, &load.clients, &load.delay};
  for (int n = 1; n < argc && n <= static_cast<int>(std::size(given)); ++n) *given[n - 1] = std::atoi(argv[n]);
  return Run(load);
}

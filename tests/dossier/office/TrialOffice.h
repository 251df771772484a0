#pragma once

#include <gtest/gtest.h>

#include <QString>
#include <initializer_list>
#include <memory>

#include "dossier/model/SampleCase.h"
#include "dossier/office/Office.h"
#include "dossier/office/OfficeConnection.h"
#include "dossier/office/OfficeSetup.h"
#include "dossier/office/OfficeStore.h"
#include "dossier/office/WaitingTimes.h"
#include "tests/support/postgres/PostgresServer.h"

namespace brivane::dossier {

/// What the program waits for, twice as long as a test does: nothing is given up because the machine is slow. The kept
/// ones alone are as a person knows them, for a test of a line that is silent: had another been waited for, it would
/// show on any machine.
[[nodiscard]] inline WaitingTimes Patient(std::initializer_list<WaitingTimes::Time WaitingTimes::*> kept = {}) {
  constexpr WaitingTimes::Time kLong{120000};
  WaitingTimes times;
  times.much = times.edit = times.little = times.moment = times.silence = kLong;
  times.back = times.connecting = times.ending = times.leaving = kLong;
  for (const auto time : kept) times.*time = WaitingTimes().*time;
  return times;
}

/// An office of its own for a test, on the server that the program's tests share. Advisers anna and bert are in team 1
/// ("Noord"), carla in team 2 ("Zuid"); rob reads in team 1; mia manages. The program is patient from here on.
class TrialOffice {
 public:
  static constexpr int kNoord = 1;
  static constexpr int kZuid = 2;

  explicit TrialOffice(test::PostgresServer& server = test::PostgresServer::Shared())
      : server_(server),
        database_(server.MakeDatabase(&server == &test::PostgresServer::Shared() ? Template() : QString())) {
    WaitingTimes::Set(Patient());
    if (&server != &test::PostgresServer::Shared()) Furnish(server_, database_);
  }

  [[nodiscard]] const QString& Name() const { return database_; }
  [[nodiscard]] QString Words(const QString& account) const { return server_.Words(account, database_); }
  /// `by`: the folder of another socket that leads to the server.
  [[nodiscard]] std::shared_ptr<OfficeConnection> Enter(const QString& account = "anna", const QString& by = {}) const {
    // Of two hosts the last counts.
    auto office = std::make_shared<OfficeConnection>(Words(account) + (by.isEmpty() ? QString() : " host=" + by));
    office->OpenOffice();
    return office;
  }
  /// Adds a client as anna and answers its number.
  [[nodiscard]] int Add(const DossierGegevens& contents = VoorbeeldDossier()) const {
    return AddClient(*Enter(), kNoord, contents);
  }
  [[nodiscard]] std::unique_ptr<OfficeStore> Open(int client, const QString& account = "anna") const {
    return OfficeStore::Open(Enter(account), client);
  }
  QString Psql(const QString& account, const QString& sql, bool* failed = nullptr) {
    return server_.Psql(account, database_, sql, failed);
  }
  [[nodiscard]] test::PostgresServer& Server() { return server_; }

 private:
  static void Furnish(test::PostgresServer& server, const QString& database) {
    {
      OfficeConnection manager(server.Words("postgres", database));
      manager.Open();
      SetUpOffice(manager);
    }
    bool failed = false;
    const QString said = server.Psql(
        "postgres", database,
        "DO $$ DECLARE a text; BEGIN FOREACH a IN ARRAY ARRAY['anna', 'bert', 'carla', 'rob', 'mia'] LOOP IF NOT "
        "EXISTS "
        "(SELECT FROM pg_roles WHERE rolname = a) THEN EXECUTE format('CREATE ROLE %I LOGIN', a); END IF; END LOOP; "
        "END $$; "
        "GRANT kantoor_adviseur TO anna, bert, carla; GRANT kantoor_lezer TO rob; GRANT kantoor_beheerder TO mia; "
        "INSERT INTO kantoor.team (naam) VALUES ('Noord'), ('Zuid'); "
        "INSERT INTO kantoor.lid VALUES ('anna', 1), ('bert', 1), ('carla', 2), ('rob', 1); "
        "INSERT INTO kantoor.medewerker VALUES ('anna', 'Anna Aalders'), ('bert', 'Bert Bakker')",
        &failed);
    EXPECT_FALSE(failed) << said.toStdString();
  }
  /// Made once; a database like it takes a tenth of a second.
  static QString Template() {
    static const QString name = [] {
      test::PostgresServer& server = test::PostgresServer::Shared();
      const QString made = server.MakeDatabase();
      Furnish(server, made);
      return made;
    }();
    return name;
  }

  test::PostgresServer& server_;
  QString database_;
};

}  // namespace brivane::dossier

#include <gtest/gtest.h>

#include <thread>

#include "tests/dossier/office/TrialOffice.h"

namespace brivane::dossier {
namespace {

TEST(SetUpTest, IsDoneOnceAndLeavesWhatIsThere) {
  TrialOffice office;
  const int client = office.Add();
  OfficeConnection manager(office.Words("postgres"));
  manager.Open();
  EXPECT_EQ(SetUpOffice(manager), kOfficeVersion);
  EXPECT_EQ(office.Psql("postgres", "SELECT count(*) FROM kantoor.versie"), QString::number(kOfficeVersion));
  EXPECT_EQ(office.Open(client)->Dossier()->FindKolom(0, 1)->Omschrijving(), "Kinderopvang");
}

TEST(SetUpTest, TwoAtOnceWaitForEachOther) {
  test::PostgresServer& server = test::PostgresServer::Shared();
  const QString words = server.Words("postgres", server.MakeDatabase());
  int found[2] = {-1, -1};
  const auto set_up = [&](int which) {
    OfficeConnection manager(words);
    manager.Open();
    found[which] = SetUpOffice(manager);
  };
  std::thread one([&] { set_up(0); });
  std::thread other([&] { set_up(1); });
  one.join();
  other.join();
  EXPECT_EQ(std::min(found[0], found[1]), 0);
  EXPECT_EQ(std::max(found[0], found[1]), kOfficeVersion);
}

TEST(SetUpTest, AFailureHalfwayLeavesNothing) {
  test::PostgresServer& server = test::PostgresServer::Shared();
  const QString database = server.MakeDatabase();
  // A schema of that name that is not an office's stands in the way.
  server.Psql("postgres", database, "CREATE SCHEMA kantoor; CREATE TABLE kantoor.iets ()");
  OfficeConnection manager(server.Words("postgres", database));
  manager.Open();
  EXPECT_THROW(SetUpOffice(manager), OfficeError);
  EXPECT_EQ(
      server.Psql(
          "postgres", database,
          "SELECT count(*) FROM pg_class c JOIN pg_namespace n ON n.oid = c.relnamespace WHERE n.nspname = 'kantoor'"),
      "1");
  EXPECT_EQ(server.Psql("postgres", database, "SELECT count(*) FROM pg_extension WHERE extname = 'pg_trgm'"), "0");
}

TEST(SetUpTest, ByAnAccountThatOwnsTheDatabaseAndMakesRoles) {
  test::PostgresServer& server = test::PostgresServer::Shared();
  server.Psql("postgres", "postgres", "CREATE ROLE oprichter LOGIN CREATEROLE");
  const QString database = server.MakeDatabase();
  server.Psql("postgres", "postgres", "ALTER DATABASE " + database + " OWNER TO oprichter");
  OfficeConnection manager(server.Words("oprichter", database));
  manager.Open();
  EXPECT_EQ(SetUpOffice(manager), 0);
  EXPECT_EQ(SetUpOffice(manager), kOfficeVersion);
}

TEST(SetUpTest, ADatabaseThatCannotHoldEveryNameIsRefused) {
  test::PostgresServer& server = test::PostgresServer::Shared();
  for (const char* encoding : {"LATIN1", "SQL_ASCII"}) {
    SCOPED_TRACE(encoding);
    const QString database = QString("proef_") + QString(encoding).toLower();
    bool failed = false;
    server.Psql(
        "postgres", "postgres",
        QString("CREATE DATABASE %1 ENCODING '%2' LOCALE 'C' TEMPLATE template0").arg(database, QString(encoding)),
        &failed);
    ASSERT_FALSE(failed);
    OfficeConnection manager(server.Words("postgres", database));
    manager.Open();
    try {
      SetUpOffice(manager);
      ADD_FAILURE() << "set up";
    } catch (const OfficeError& error) {
      EXPECT_EQ(error.Problem(), OfficeProblem::Refused);
      EXPECT_EQ(error.what(), "The database has the encoding " + std::string(encoding) +
                                  ", and an office needs UTF8: make it by createdb --encoding=UTF8 "
                                  "--template=template0");
    }
    EXPECT_EQ(server.Psql("postgres", database, "SELECT to_regnamespace('kantoor') IS NULL"), "t");
  }
}

TEST(SetUpTest, WhoMayConnectMakesNoTablesOfHisOwn) {
  const TrialOffice accounts;
  test::PostgresServer& server = test::PostgresServer::Shared();
  const QString database = server.MakeDatabase();
  const auto makes_one = [&] {
    bool failed = false;
    server.Psql("anna", database, "CREATE TEMPORARY TABLE eigen ()", &failed);
    return !failed;
  };
  ASSERT_TRUE(makes_one());
  OfficeConnection manager(server.Words("postgres", database));
  manager.Open();
  SetUpOffice(manager);
  EXPECT_FALSE(makes_one());
  // A dump that was put back does not know of it: the set-up says it again.
  server.Psql("postgres", database, QString("GRANT TEMPORARY ON DATABASE %1 TO PUBLIC").arg(database));
  EXPECT_EQ(SetUpOffice(manager), kOfficeVersion);
  EXPECT_FALSE(makes_one());
}

TEST(SetUpTest, LargeObjectsAreTakenAwayAsTheDocumentSays) {
  TrialOffice office;
  const auto makes_one = [&] {
    bool failed = false;
    office.Psql("anna", "SELECT lo_from_bytea(0, 'x'), lo_create(0), lo_creat(-1)", &failed);
    return !failed;
  };
  ASSERT_TRUE(makes_one());
  office.Psql("postgres",
              "REVOKE EXECUTE ON FUNCTION lo_create(oid), lo_creat(integer), lo_from_bytea(oid, bytea) FROM PUBLIC");
  EXPECT_FALSE(makes_one());
}

TEST(SetUpTest, ALaterOfficeIsLeftAlone) {
  TrialOffice office;
  office.Psql("postgres", "INSERT INTO kantoor.versie (nummer) VALUES (99)");
  for (const bool setting_up : {true, false}) {
    try {
      OfficeConnection connection(office.Words(setting_up ? "postgres" : "anna"));
      if (setting_up) {
        connection.Open();
        SetUpOffice(connection);
      } else {
        connection.OpenOffice();
      }
      ADD_FAILURE() << "done";
    } catch (const OfficeError& error) {
      EXPECT_EQ(error.Problem(), OfficeProblem::Newer);
    }
  }
}

TEST(SetUpTest, AnEarlierOfficeIsBroughtUpToDateOrLeftAsItWas) {
  TrialOffice office;
  const int client = office.Add();
  const char* const paints[] = {"ALTER TABLE kantoor.team ADD COLUMN kleur text",
                                "UPDATE kantoor.team SET kleur = 'groen'"};
  const char* const fails[] = {"ALTER TABLE kantoor.team ADD COLUMN vorm text", "UPDATE kantoor.team SET vorm = 1 / 0"};
  std::vector<OfficeUpgrade> upgrades(OfficeUpgrades().begin(), OfficeUpgrades().end());
  upgrades.push_back({"CREATE TABLE public.van_wie AS SELECT current_user AS wie", paints});
  OfficeConnection manager(office.Words("postgres"));
  manager.Open();
  EXPECT_EQ(BringUpToDate(manager, upgrades), 1);
  const QString versions = "SELECT string_agg(nummer::text, ' ' ORDER BY nummer) FROM kantoor.versie";
  EXPECT_EQ(office.Psql("postgres", versions), "1 2");
  EXPECT_EQ(office.Psql("postgres", "SELECT wie FROM public.van_wie"), "postgres");
  EXPECT_EQ(office.Psql("anna", "SELECT kleur FROM kantoor.team WHERE nummer = 1"), "groen");
  EXPECT_EQ(office.Psql("rob", QString("SELECT count(*) FROM kantoor.client WHERE nummer = %1").arg(client)), "1");
  EXPECT_EQ(BringUpToDate(manager, upgrades), 2);
  // One that fails halfway leaves the version before it.
  upgrades.push_back({"SELECT 1", fails});
  EXPECT_THROW(BringUpToDate(manager, upgrades), OfficeError);
  EXPECT_EQ(office.Psql("postgres", versions), "1 2");
  EXPECT_EQ(
      office.Psql("postgres",
                  "SELECT count(*) FROM pg_attribute WHERE attrelid = 'kantoor.team'::regclass AND attname = 'vorm'"),
      "0");
  // This program is older than that office now.
  EXPECT_THROW(SetUpOffice(manager), OfficeError);
}

TEST(SetUpTest, AnEarlierOfficeIsNotEntered) {
  TrialOffice office;
  office.Psql("postgres", "UPDATE kantoor.versie SET nummer = nummer - 1");
  try {
    static_cast<void>(office.Enter());
    ADD_FAILURE() << "entered";
  } catch (const OfficeError& error) {
    EXPECT_EQ(error.Problem(), OfficeProblem::Older);
    EXPECT_EQ(error.Melding(), "Het kantoor is ingericht voor een eerdere versie; de beheerder werkt het bij.");
  }
}

TEST(SetUpTest, APasswordAmongTheWordsIsRefusedHoweverItIsWritten) {
  for (const char* words : {"host=x password=geheim", "host=x PASSWORD = geheim", "host=x sslpassword=geheim"}) {
    try {
      OfficeConnection connection(words);
      ADD_FAILURE() << words;
    } catch (const OfficeError& error) {
      EXPECT_EQ(error.Problem(), OfficeProblem::Refused);
      EXPECT_EQ(error.Melding().indexOf("geheim"), -1);
    }
  }
}

TEST(SetUpTest, WhereThereIsNoOfficeThatIsTold) {
  test::PostgresServer& server = test::PostgresServer::Shared();
  const QString database = server.MakeDatabase();
  const std::pair<QString, OfficeProblem> table[] = {
      {server.Words("postgres", database), OfficeProblem::NoOffice},
      {server.Words("postgres", "bestaat_niet"), OfficeProblem::Unreachable},
      {server.Words("niemand", database), OfficeProblem::Unreachable},
      {"host=/nergens dbname=x", OfficeProblem::Unreachable},
      {"geen_dienst", OfficeProblem::Unreachable}};
  for (const auto& [words, problem] : table) {
    try {
      OfficeConnection(words).OpenOffice();
      ADD_FAILURE() << words.toStdString();
    } catch (const OfficeError& error) {
      EXPECT_EQ(error.Problem(), problem) << words.toStdString() << ": " << error.what();
    }
  }
}

}  // namespace
}  // namespace brivane::dossier

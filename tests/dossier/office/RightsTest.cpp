#include <gtest/gtest.h>

#include <QRegularExpression>

#include "tests/dossier/office/TrialOffice.h"

// What the database refuses, whoever speaks to it: each tried by psql, as an adviser, a reader and somebody else.
namespace brivane::dossier {
namespace {

/// A client of team Noord with a history, and one of Zuid.
class RightsTest : public testing::Test {
 protected:
  RightsTest() {
    office_.Open(noord_)->Dossier()->FindKolom(0, 1)->SetLooptijd(10);
    EXPECT_EQ(office_.Psql("postgres", "CREATE ROLE vreemd_" + office_.Name() + " LOGIN"), "");
  }
  ~RightsTest() override { office_.Psql("postgres", "DROP ROLE vreemd_" + office_.Name()); }

  void ExpectRefused(const QString& account, const QString& sql, const char* reason) {
    bool failed = false;
    const QString said = office_.Psql(account, sql, &failed);
    EXPECT_TRUE(failed) << account.toStdString() << " could: " << sql.toStdString() << "\n" << said.toStdString();
    EXPECT_TRUE(said.contains(QLatin1String(reason))) << account.toStdString() << ": " << sql.toStdString() << "\n"
                                                      << said.toStdString();
  }
  /// The call that stores step 2 of a client; `proof` is the lease, `name` what number 90 stands for, `rest` its rows.
  [[nodiscard]] static QString Store(const QString& client, const QString& proof, const QString& name,
                                     const QString& rest = "NULL") {
    return QString(
               "SELECT kantoor.sla_op(%1, %2, gen_random_uuid(), '(2,0,90,0,2,2,0,2,50)', NULL, '{\"(90,%3)\"}', NULL, "
               "NULL, NULL, NULL, NULL, %4)")
        .arg(client, proof, name, rest);
  }
  /// Takes a client up, its proof in a table. The session of a psql that is gone may still end.
  [[nodiscard]] static QString Take(const QString& client) {
    return QString(
               "DO $$ BEGIN FOR look IN 1..6000 LOOP EXIT WHEN NOT EXISTS (SELECT FROM pg_locks WHERE locktype = "
               "'advisory' AND objid = %1 AND database = (SELECT oid FROM pg_database WHERE datname = "
               "current_database())); PERFORM pg_sleep(0.01); END LOOP; END $$; "
               "CREATE TEMP TABLE b AS SELECT bewijs FROM kantoor.neem(%1); ")
        .arg(client);
  }
  [[nodiscard]] QString N() const { return QString::number(noord_); }
  [[nodiscard]] QString Z() const { return QString::number(zuid_); }

  TrialOffice office_;
  int noord_ = office_.Add();
  int zuid_ = AddClient(*office_.Enter("carla"), TrialOffice::kZuid, VoorbeeldDossier());
};

const QStringList kTables = {
    "versie",   "team",       "lid",       "medewerker", "client", "dossier", "persoon",   "maatschappij_type",
    "lening",   "vrijekolom", "periode",   "voorstel",   "naam",   "stap",    "wijziging", "zoek",
    "bewerker", "meelezer",   "toevoeging"};

TEST_F(RightsTest, NoRowIsWrittenButByTheFunctions) {
  for (const char* account : {"anna", "rob"}) {
    for (const QString& table : kTables) {
      for (const QString& sql :
           {QString("DELETE FROM kantoor.%1"), QString("TRUNCATE kantoor.%1 CASCADE"),
            QString("INSERT INTO kantoor.%1 DEFAULT VALUES"),
            QString("ALTER TABLE kantoor.%1 DISABLE ROW LEVEL SECURITY"), QString("DROP TABLE kantoor.%1 CASCADE"),
            QString("CREATE TRIGGER t BEFORE INSERT ON kantoor.%1 EXECUTE FUNCTION kantoor.geschiedenis_blijft()"),
            QString("BEGIN; LOCK TABLE kantoor.%1 IN ACCESS EXCLUSIVE MODE")}) {
        const bool owns = sql.startsWith("ALTER") || sql.startsWith("DROP");
        ExpectRefused(account, sql.arg(table), owns ? "must be owner" : "permission denied");
      }
    }
    ExpectRefused(account, "UPDATE kantoor.vrijekolom SET looptijd = 1", "permission denied");
    ExpectRefused(account, "UPDATE kantoor.client SET team = 2", "permission denied");
    ExpectRefused(account, "UPDATE kantoor.stap SET tijd = 0", "permission denied");
    ExpectRefused(account, "UPDATE kantoor.stap SET gebruiker = 'bert'", "permission denied");
    ExpectRefused(account, "UPDATE kantoor.wijziging SET oud = NULL", "permission denied");
    ExpectRefused(account, "UPDATE kantoor.naam SET tekst = 'x'", "permission denied");
    ExpectRefused(account, "INSERT INTO kantoor.lid VALUES (session_user, 2)", "permission denied");
    ExpectRefused(account, "SELECT * FROM kantoor.zoek", "permission denied");
    ExpectRefused(account, "SELECT bewijs FROM kantoor.bewerker", "permission denied");
    ExpectRefused(account, "CREATE TABLE kantoor.x ()", "permission denied");
    ExpectRefused(account, "CREATE FUNCTION kantoor.mag() RETURNS int LANGUAGE sql AS 'SELECT 1'", "permission denied");
    ExpectRefused(account, "DROP SCHEMA kantoor CASCADE", "must be owner");
    ExpectRefused(account,
                  "CREATE OR REPLACE FUNCTION kantoor.eigen_naam() RETURNS text LANGUAGE sql AS 'SELECT ''x'''",
                  "permission denied");
    ExpectRefused(account, "ALTER FUNCTION kantoor.ik() SECURITY INVOKER", "must be owner");
    ExpectRefused(account, "SET ROLE kantoor_eigenaar", "permission denied");
    ExpectRefused(account, "SET ROLE kantoor_beheerder", "permission denied");
    ExpectRefused(account, "SET SESSION AUTHORIZATION bert", "permission denied");
    ExpectRefused(account, "GRANT kantoor_beheerder TO " + QString(account), "must have admin option");
    ExpectRefused(account, "ALTER ROLE " + QString(account) + " BYPASSRLS", "must be superuser");
    ExpectRefused(account, "DROP POLICY eigen_team ON kantoor.client", "must be owner");
    ExpectRefused(account, "SET row_security = off; SELECT * FROM kantoor.client", "row-level security");
  }
}

TEST_F(RightsTest, TheInnerFunctionsAreTheOwnersAlone) {
  for (const char* account : {"anna", "rob"}) {
    for (const QString& call :
         {QString("kantoor.schrijf_rijen(%1, '{}')"), QString("kantoor.meld(%1, 'x')"),
          QString("kantoor.slot_van_toevoeging(gen_random_uuid())"), QString("kantoor.sloten()"),
          QString("kantoor.moet_houder_zijn(%1, gen_random_uuid())"), QString("kantoor.moet_zichtbaar_zijn(%1)"),
          QString("kantoor.moet_adviseur_zijn()"), QString("kantoor.geef_aan_team(%1, 2)"),
          QString("kantoor.verwijder(%1)"), QString("kantoor.eigen_naam()")}) {
      ExpectRefused(account, "SELECT " + (call.contains('%') ? call.arg(N()) : call), "permission denied");
    }
  }
}

TEST_F(RightsTest, AReaderTakesNothingUpAndStoresNothing) {
  for (const QString& call :
       {"kantoor.neem(" + N() + ")", "kantoor.laat_los(" + N() + ", gen_random_uuid())", "kantoor.vraag(" + N() + ")",
        QString("kantoor.nieuw(1, gen_random_uuid(), '{}')"), QString("kantoor.toegevoegd(gen_random_uuid())"),
        "kantoor.vul_geschiedenis(" + N() + ", '{}')", "kantoor.uitkomst(" + N() + ", 1, gen_random_uuid())"})
    ExpectRefused("rob", "SELECT " + call, "permission denied");
  ExpectRefused("rob", Store(N(), "gen_random_uuid()", "rob"), "permission denied");
}

TEST_F(RightsTest, AnotherTeamsClientIsNotThere) {
  for (const char* account : {"anna", "rob"}) {
    for (const char* table :
         {"client WHERE nummer", "dossier WHERE client", "persoon WHERE client", "maatschappij_type WHERE client",
          "lening WHERE client", "vrijekolom WHERE client", "periode WHERE client", "voorstel WHERE client",
          "naam WHERE client", "stap WHERE client", "wijziging WHERE client"}) {
      EXPECT_EQ(office_.Psql(account, QString("SELECT count(*) FROM kantoor.%1 = %2").arg(table, Z())), "0") << table;
    }
    EXPECT_NE(office_.Psql(account, "SELECT count(*) FROM kantoor.vrijekolom WHERE client = " + N()), "0");
    EXPECT_EQ(office_.Psql(account, "SELECT count(*) FROM kantoor.zoek_clienten('{heuvel}', 50)"), "1");
    ExpectRefused(account, "SELECT kantoor.wie(" + Z() + ")", "no such client");
    ExpectRefused(account, "SELECT kantoor.volg(" + Z() + ")", "no such client");
  }
  ExpectRefused("anna", "SELECT kantoor.neem(" + Z() + ")", "no such client");
  ExpectRefused("anna", "SELECT kantoor.vraag(" + Z() + ")", "no such client");
  ExpectRefused("anna", "SELECT kantoor.uitkomst(" + Z() + ", 1, gen_random_uuid())", "no such client");
  ExpectRefused("anna", Store(Z(), "gen_random_uuid()", "Anna Aalders"), "no such client");
  ExpectRefused("anna", "SELECT kantoor.nieuw(2, gen_random_uuid(), '{}')", "not a member");
  // A policy cannot be looked past by a function of one's own that is cheap.
  EXPECT_EQ(office_
                .Psql("anna",
                      "CREATE FUNCTION pg_temp.kijk(text) RETURNS boolean LANGUAGE plpgsql COST 0.0000001 AS $$ "
                      "BEGIN RAISE NOTICE 'zag %', $1; RETURN true; END $$; SELECT count(*) FROM "
                      "kantoor.client WHERE pg_temp.kijk(naam)")
                .count("zag"),
            1);
}

TEST_F(RightsTest, AnEditIsStoredByItsHolderInHisOwnNameOnce) {
  // Without the client taken up, with a guessed proof, in another session than the one that took it up.
  ExpectRefused("anna", Store(N(), "gen_random_uuid()", "Anna Aalders"), "let go");
  ExpectRefused("bert", "SELECT kantoor.neem(" + N() + "); " + Store(N(), "gen_random_uuid()", "Bert Bakker"),
                "let go");
  const QString proof = "(SELECT bewijs FROM b)";
  ExpectRefused("anna", Take(N()) + Store(N(), proof, "Anna Aalders").replace(", gen_random_uuid(), '(", ", NULL, '("),
                "an edit without an identifier");
  ExpectRefused("anna", Take(N()) + Store(N(), proof, "Bert Bakker"), "somebody else's name");
  bool failed = false;
  const QString said = office_.Psql("anna", Take(N()) + Store(N(), proof, "Anna Aalders"), &failed);
  EXPECT_FALSE(failed) << said.toStdString();
  ExpectRefused("anna", Take(N()) + Store(N(), proof, "Anna Aalders"), "another step was stored");
  EXPECT_EQ(office_.Psql(
                "rob",
                "SELECT gebruiker, nummer, opgeslagen > now() - interval '1 minute' FROM kantoor.stap WHERE client = " +
                    N() + " ORDER BY nummer"),
            "anna|1|t\nanna|2|t");
}

TEST_F(RightsTest, AnEditCannotNameAnotherClient) {
  const QString other = QString::number(office_.Add());
  const QString rest = "'{\"dossier\":[{\"client\":" + other + ",\"enig\":1,\"leeftijd\":99}]}'";
  bool failed = false;
  office_.Psql("anna", Take(N()) + Store(N(), "(SELECT bewijs FROM b)", "Anna Aalders", rest), &failed);
  EXPECT_FALSE(failed);
  EXPECT_EQ(office_.Psql("rob", "SELECT leeftijd FROM kantoor.dossier WHERE client = " + other), "67");
  EXPECT_EQ(office_.Psql("rob", "SELECT leeftijd FROM kantoor.dossier WHERE client = " + N()), "99");
}

TEST_F(RightsTest, ToNameAClientOneselfGivesNoWayToIt) {
  const QString name = "SET kantoor.client = " + Z() + "; ";
  for (const char* account : {"anna", "rob"}) {
    for (const char* table : {"dossier", "persoon", "maatschappij_type", "lening", "vrijekolom", "periode", "voorstel",
                              "naam", "stap", "wijziging"})
      EXPECT_EQ(
          office_.Psql(account, name + QString("SELECT count(*) FROM kantoor.%1 WHERE client = %2").arg(table, Z())),
          "0")
          << table;
    ExpectRefused(account, name + "SELECT kantoor.wie(" + Z() + ")", "no such client");
  }
  ExpectRefused("anna", name + "SELECT kantoor.uitkomst(" + Z() + ", 1, gen_random_uuid())", "no such client");
  ExpectRefused("anna", name + Store(Z(), "gen_random_uuid()", "Anna Aalders"), "no such client");
  ExpectRefused("anna", name + "SELECT kantoor.vul_geschiedenis(" + Z() + ", '{\"stap\":[{\"nummer\":1}]}')",
                "not a client of this transaction");
  // What one may edit is stored where it belongs.
  bool failed = false;
  const QString said = office_.Psql(
      "anna",
      Take(N()) + name +
          Store(N(), "(SELECT bewijs FROM b)", "Anna Aalders", "'{\"dossier\":[{\"enig\":1,\"leeftijd\":99}]}'"),
      &failed);
  EXPECT_FALSE(failed) << said.toStdString();
  EXPECT_EQ(office_.Psql("postgres", "SELECT string_agg(leeftijd::text, ' ' ORDER BY client) FROM kantoor.dossier"),
            "99 67");
}

TEST_F(RightsTest, AMistakeInAFunctionReachesNoOtherClient) {
  const QString owner = "SET ROLE kantoor_eigenaar; ";
  for (const char* table : {"dossier", "persoon", "maatschappij_type", "lening", "vrijekolom", "periode", "voorstel",
                            "naam", "stap", "wijziging"}) {
    EXPECT_EQ(office_.Psql("postgres", owner + "SELECT count(*) FROM kantoor." + table), "0") << table;
    EXPECT_EQ(office_.Psql("postgres", owner + "SET kantoor.client = " + N() +
                                           QString("; SELECT count(*) FROM kantoor.%1 "
                                                   "WHERE client <> %2")
                                               .arg(table, N())),
              "0")
        << table;
  }
  const QString here = owner + "SET kantoor.client = " + N() + "; ";
  EXPECT_NE(office_.Psql("postgres", here + "SELECT count(*) FROM kantoor.vrijekolom"), "0");
  for (const QString& sql :
       {QString("INSERT INTO kantoor.voorstel VALUES (%1, 1, 1)"), QString("UPDATE kantoor.vrijekolom SET client = %1"),
        QString("INSERT INTO kantoor.naam VALUES (%1, 91, 'x')"),
        QString("INSERT INTO kantoor.wijziging VALUES (%1, 91, 1, 1, 1, 0, 0, 0, 0, 1)")})
    ExpectRefused("postgres", here + sql.arg(Z()), "row-level security");
  office_.Psql("postgres", here + "DELETE FROM kantoor.periode; UPDATE kantoor.lening SET naam = 'x'");
  EXPECT_EQ(office_.Psql("postgres", "SELECT count(*) FROM kantoor.lening WHERE naam = 'x' AND client <> " + N()), "0");
  EXPECT_NE(office_.Psql("postgres", "SELECT count(*) FROM kantoor.periode WHERE client = " + Z()), "0");
}

TEST_F(RightsTest, WhatIsInTheOfficeGetsNoHistoryFromElsewhere) {
  ExpectRefused("anna", "SELECT kantoor.vul_geschiedenis(" + N() + ", '{\"stap\":[{\"nummer\":1}]}')",
                "not a client of this transaction");
  // Also not by changing it in the same transaction.
  ExpectRefused("anna", "BEGIN; SELECT kantoor.vraag(" + N() + "); SELECT kantoor.vul_geschiedenis(" + N() + ", '{}')",
                "not a client of this transaction");
}

TEST_F(RightsTest, AnEditInTheSameTransactionOpensNoWayToTheHistory) {
  const QString forged =
      "SELECT kantoor.vul_geschiedenis(" + N() +
      ", '{\"naam\":[{\"nummer\":91,\"tekst\":\"Bert Bakker\"}],\"stap\":[{\"nummer\":3,\"tijd\":1000,"
      "\"medewerker\":91,\"soort\":0,\"van\":3,\"terug\":3,\"opnieuw\":0,\"eerste\":3,\"hoogste\":50}]}')";
  ExpectRefused("anna", "BEGIN; " + Take(N()) + Store(N(), "(SELECT bewijs FROM b)", "Anna Aalders") + "; " + forged,
                "not a client of this transaction");
  // Who manages and edits gives it to a team in the same transaction.
  office_.Psql("postgres", "GRANT kantoor_beheerder TO anna");
  ExpectRefused("anna", "BEGIN; SELECT kantoor.geef_aan_team(" + N() + ", 1); " + forged,
                "not a client of this transaction");
  office_.Psql("postgres", "REVOKE kantoor_beheerder FROM anna");
  EXPECT_EQ(office_.Psql("postgres", "SELECT max(nummer) FROM kantoor.stap WHERE client = " + N()), "1");
}

TEST_F(RightsTest, AClientThatWasMadeByATransactionOfThatNumberElsewhereGetsNoHistory) {
  // As after a dump was put back: the number of the transaction comes again, the moment that it began does not.
  ExpectRefused("postgres",
                "BEGIN; UPDATE kantoor.toevoeging SET transactie = pg_current_xact_id() WHERE client = " + N() +
                    "; SET LOCAL SESSION AUTHORIZATION anna; SELECT kantoor.vul_geschiedenis(" + N() + ", '{}')",
                "not a client of this transaction");
}

TEST_F(RightsTest, TheOwnerOfTheOfficeChangesNoHistoryEither) {
  for (const char* sql :
       {"UPDATE kantoor.stap SET tijd = 0", "DELETE FROM kantoor.stap", "TRUNCATE kantoor.wijziging",
        "UPDATE kantoor.wijziging SET oud = NULL", "DELETE FROM kantoor.naam", "DELETE FROM kantoor.client",
        "TRUNCATE kantoor.client CASCADE", "UPDATE kantoor.client SET nummer = DEFAULT"})
    ExpectRefused("postgres", QString("SET ROLE kantoor_eigenaar; ") + sql, "history");
}

TEST_F(RightsTest, AClientIsRemovedByASuperuserAlone) {
  ExpectRefused("mia", "SELECT kantoor.verwijder(" + N() + ")", "permission denied");
  // Nor by the owner: what keeps the history is not his to pass over.
  ExpectRefused("postgres", "SET ROLE kantoor_eigenaar; SELECT kantoor.verwijder(" + N() + ")", "permission denied");
  {
    const auto edited = office_.Open(noord_);
    ExpectRefused("postgres", "SELECT kantoor.verwijder(" + N() + ")", "somebody edits");
  }
  ExpectRefused("postgres", "SELECT kantoor.verwijder(4711)", "no such client");
  // The rows of a client in each table.
  const QString rows =
      "SELECT string_agg(k.relname || ' ' || (xpath('/row/n/text()', query_to_xml('SELECT count(*) AS n FROM kantoor.' "
      "|| "
      "k.relname || ' WHERE client = %1', false, true, '')))[1]::text, ' ' ORDER BY k.relname) FROM pg_class k JOIN "
      "pg_attribute a ON a.attrelid = k.oid WHERE k.relnamespace = 'kantoor'::regnamespace AND k.relkind = 'r' AND "
      "a.attname = 'client'";
  const QString others = office_.Psql("postgres", rows.arg(Z()));
  const QString before = office_.Psql("postgres", rows.arg(N()));
  EXPECT_EQ(office_.Psql("postgres", "SELECT kantoor.verwijder(" + N() + ")"), "");
  EXPECT_EQ(office_.Psql("postgres", "SELECT count(*) FROM kantoor.client"), "1");
  EXPECT_EQ(office_.Psql("postgres", rows.arg(Z())), others);
  EXPECT_EQ(office_.Psql("postgres", rows.arg(N())), QString(before).replace(QRegularExpression("\\d+"), "0"));
  EXPECT_NE(others, QString(others).replace(QRegularExpression("\\d+"), "0"));
  // What keeps the history does so again in the same session.
  ExpectRefused("postgres", "SELECT kantoor.verwijder(" + Z() + "); DELETE FROM kantoor.stap", "history");
}

TEST_F(RightsTest, WhoHasNoRoleSeesNothing) {
  const QString stranger = "vreemd_" + office_.Name();
  ExpectRefused(stranger, "SELECT * FROM kantoor.client", "permission denied");
  ExpectRefused(stranger, "SELECT kantoor.ik()", "permission denied");
  ExpectRefused(stranger, "SELECT kantoor.zoek_clienten('{}', 5)", "permission denied");
  OfficeConnection connection(office_.Words(stranger));
  try {
    connection.OpenOffice();
    ADD_FAILURE() << "entered";
  } catch (const OfficeError& error) {
    EXPECT_EQ(error.Problem(), OfficeProblem::NotAllowed);
  }
}

TEST_F(RightsTest, AManagerSeesAllAndWritesNoCase) {
  EXPECT_EQ(office_.Psql("mia", "SELECT count(*) FROM kantoor.client"), "2");
  ExpectRefused("mia", "SELECT kantoor.neem(" + N() + ")", "permission denied");
  ExpectRefused("mia", "DELETE FROM kantoor.stap", "permission denied");
  ExpectRefused("mia", "UPDATE kantoor.vrijekolom SET looptijd = 1", "permission denied");
  EXPECT_EQ(office_.Psql("mia", "SELECT kantoor.geef_aan_team(" + N() + ", 2)"), "");
  EXPECT_EQ(office_.Psql("anna", "SELECT count(*) FROM kantoor.client"), "0");
  EXPECT_EQ(office_.Psql("carla", "SELECT count(*) FROM kantoor.client"), "2");
}

TEST_F(RightsTest, EveryFunctionOfTheOwnerHasAFixedPath) {
  EXPECT_EQ(
      office_.Psql("postgres",
                   "SELECT count(*) FROM pg_proc p JOIN pg_namespace n ON n.oid = p.pronamespace WHERE n.nspname = "
                   "'kantoor' AND NOT EXISTS (SELECT FROM unnest(p.proconfig) s WHERE s LIKE 'search_path=pg_catalog, "
                   "%pg_temp')"),
      "0");
  EXPECT_EQ(
      office_.Psql("postgres",
                   "SELECT count(*) FROM pg_class c JOIN pg_namespace n ON n.oid = c.relnamespace WHERE "
                   "n.nspname = 'kantoor' AND c.relkind = 'r' AND pg_get_userbyid(c.relowner) <> 'kantoor_eigenaar'"),
      "0");
}

}  // namespace
}  // namespace brivane::dossier

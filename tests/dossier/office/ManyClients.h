#pragma once

#include "tests/dossier/office/TrialOffice.h"

namespace brivane::dossier {

/// How many of everything an office is to have.
struct Many {
  int clients = 0;
  int steps = 0;    ///< in the history of each
  int entries = 1;  ///< of each step
  int teams = 1;    ///< among which the clients are dealt out, from team 1 on
};

/// Fills an office with copies of one client of team 1, each with a name, a day of birth, some words and a history of
/// its own; those of other teams all have the word "elders". The server makes them itself.
inline void MakeClients(TrialOffice& office, int first, const Many& many) {
  QString sql =
      "SET synchronous_commit = off; SET session_replication_role = replica; "
      "INSERT INTO kantoor.team (naam) SELECT 'Team ' || g FROM generate_series(3, {teams}) g; "
      "CREATE TEMP TABLE namen AS SELECT ARRAY['Bakker', 'Visser', 'Jansen', 'Smit', 'Meijer', 'Mulder', 'Bos', 'Vos', "
      "'Peters', 'Hendriks', 'Dekker', 'Dijkstra', 'Kok', 'Jacobs', 'Haan', 'Vermeulen', 'Hoekstra', 'Prins', 'Blom', "
      "'Huisman'] AS n; "
      "INSERT INTO kantoor.client (team, naam, geboortedatum, gewijzigd, gewijzigd_door, laatste) SELECT 1 + g % "
      "{teams}, "
      "n[1 + g % 20] || ' ' || g, 10000 + g % 20000, now() - g * interval '1 minute', CASE g % 7 WHEN 0 THEN 'anna' "
      "ELSE 'bert' END, {steps} FROM generate_series(2, {clients}) g, namen; "
      "INSERT INTO kantoor.zoek (client, team, tekst) SELECT nummer, team, ' ' || lower(naam) || ' w' || "
      "md5(nummer::text) || to_char(date '1899-12-30' + geboortedatum::int, ' DDMMYYYY YYYYMMDD') || ' krant "
      "kinderopvang "
      "gift mij' || nummer % 307 || ' polis' || nummer % 5003 || CASE team WHEN 1 THEN '' ELSE ' elders' END FROM "
      "kantoor.client WHERE nummer > {like}; "
      "DO $$ DECLARE tabel text; kolommen text; BEGIN FOREACH tabel IN ARRAY ARRAY['dossier', 'persoon', "
      "'maatschappij_type', 'lening', 'vrijekolom', 'periode', 'voorstel'] LOOP "
      "SELECT string_agg(format('t.%I', k.column_name), ', ' ORDER BY k.ordinal_position) INTO kolommen FROM "
      "information_schema.columns k WHERE k.table_schema = 'kantoor' AND k.table_name = tabel AND k.column_name <> "
      "'client'; "
      "EXECUTE format('INSERT INTO kantoor.%1$I SELECT c.nummer, %2$s FROM kantoor.%1$I t, kantoor.client c WHERE "
      "t.client = {like} AND c.nummer > {like}', tabel, kolommen); END LOOP; END $$; ";
  if (many.steps > 0) {
    sql +=
        "INSERT INTO kantoor.naam SELECT nummer, 1, 'Anna Aalders' FROM kantoor.client WHERE nummer > {like}; "
        "INSERT INTO kantoor.stap SELECT nummer, s, 1700000000000 + s, 1, 0, s, s, 0, 1 + (s - 1) * {entries}, 50, "
        "NULL, "
        "'anna', now() FROM kantoor.client, generate_series(1, {steps}) s WHERE nummer > {like}; "
        "INSERT INTO kantoor.wijziging SELECT nummer, w, 1 + (w - 1) / {entries}, 1, 1, 0, 1, 0, 1, 1, decode('7342', "
        "'hex'), "
        "decode('7343', 'hex') FROM kantoor.client, generate_series(1, {steps} * {entries}) w WHERE nummer > {like}; ";
  }
  sql.replace("{teams}", QString::number(many.teams))
      .replace("{steps}", QString::number(many.steps))
      .replace("{clients}", QString::number(many.clients))
      .replace("{like}", QString::number(first))
      .replace("{entries}", QString::number(many.entries));
  bool failed = false;
  const QString said = office.Psql("postgres", sql, &failed);
  EXPECT_FALSE(failed) << said.toStdString();
  const QString analyzed = office.Psql("postgres", "VACUUM ANALYZE", &failed);
  EXPECT_FALSE(failed) << analyzed.toStdString();
}

}  // namespace brivane::dossier

#pragma once

#include "tests/dossier/office/TrialOffice.h"

namespace brivane::dossier {

/// Fills an office with copies of one client until there are so many, each with a name, a day of birth and some words
/// of its own, and so many steps of one entry in its history. The server makes them itself.
inline void MakeClients(TrialOffice& office, int first, int clients, int steps = 0) {
  const QString like = QString::number(first);
  QString sql =
      "SET synchronous_commit = off; "
      "CREATE TEMP TABLE namen AS SELECT ARRAY['Bakker', 'Visser', 'Jansen', 'Smit', 'Meijer', 'Mulder', 'Bos', 'Vos', "
      "'Peters', 'Hendriks', 'Dekker', 'Dijkstra', 'Kok', 'Jacobs', 'Haan', 'Vermeulen', 'Hoekstra', 'Prins', 'Blom', "
      "'Huisman'] AS n; "
      "INSERT INTO kantoor.client (team, naam, geboortedatum, gewijzigd, gewijzigd_door, laatste) SELECT 1, n[1 + g % "
      "20] || "
      "' ' || g, 10000 + g % 20000, now() - g * interval '1 minute', CASE g % 7 WHEN 0 THEN 'anna' ELSE 'bert' END, " +
      QString::number(steps) + " FROM generate_series(2, " + QString::number(clients) +
      ") g, namen; "
      "INSERT INTO kantoor.zoek SELECT nummer, ' ' || lower(naam) || ' w' || md5(nummer::text) || ' ' || "
      "to_char(date '1899-12-30' + geboortedatum::int, 'DDMMYYYY') || ' krant kinderopvang gift' FROM kantoor.client "
      "WHERE "
      "nummer > " +
      like + "; ";
  for (const char* table : {"dossier", "persoon", "maatschappij_type", "lening", "vrijekolom", "periode", "voorstel"}) {
    sql +=
        QString(
            "INSERT INTO kantoor.%1 SELECT (jsonb_populate_record(t, jsonb_build_object('client', c.nummer))).* FROM "
            "kantoor.%1 t, kantoor.client c WHERE t.client = %2 AND c.nummer > %2; ")
            .arg(table, like);
  }
  if (steps > 0) {
    const QString n = QString::number(steps);
    sql += "INSERT INTO kantoor.naam SELECT nummer, 1, 'Anna Aalders' FROM kantoor.client WHERE nummer > " + like +
           "; INSERT INTO kantoor.stap SELECT nummer, s, 1700000000000 + s, 1, 0, s, s, 0, s, 50, NULL, 'anna', now() "
           "FROM "
           "kantoor.client, generate_series(1, " +
           n + ") s WHERE nummer > " + like +
           "; INSERT INTO kantoor.wijziging SELECT nummer, s, s, 1, 1, 0, 1, 0, 1, 1, decode('7342', 'hex'), "
           "decode('7343', "
           "'hex') FROM kantoor.client, generate_series(1, " +
           n + ") s WHERE nummer > " + like + "; ";
  }
  bool failed = false;
  const QString said = office.Psql("postgres", sql, &failed);
  EXPECT_FALSE(failed) << said.toStdString();
  const QString analyzed = office.Psql("postgres", "VACUUM ANALYZE", &failed);
  EXPECT_FALSE(failed) << analyzed.toStdString();
}

}  // namespace brivane::dossier

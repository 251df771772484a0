#include "dossier/office/SchemaSteps.h"

namespace brivane::dossier {

// A date is a number of days since 30 December 1899, 0 for none. A flag is 0 or 1. `lening.nummer` 0 is the loan of the
// current situation, 1 and up those of the new one. `volgorde` orders a loan's columns; period entries stand in the
// order of their keys. The columns of a case are those of a loan file, behind the number of the client.
//
// A client keeps its number, and is not removed but by `verwijder`, which takes all of it (SchemaRights.cpp). So the
// tables that each edit writes to do not refer to it: a column has its loan and a period its column, which do, and the
// history is written by functions that have changed the row of the client before. Each reference would be looked up
// again at each row of an edit.
//
// A row type stands beside each table of a case: what an edit hands over is read as that, so that it cannot name
// another client.
const char* const kTablesV1 = R"sql(
CREATE TABLE kantoor.versie (nummer integer PRIMARY KEY, tijd timestamptz NOT NULL DEFAULT clock_timestamp(),
  gebruiker name NOT NULL DEFAULT session_user);

CREATE TABLE kantoor.team (nummer integer GENERATED ALWAYS AS IDENTITY PRIMARY KEY, naam text NOT NULL UNIQUE
  CHECK (naam <> ''));
CREATE TABLE kantoor.lid (gebruiker name NOT NULL, team integer NOT NULL REFERENCES kantoor.team,
  PRIMARY KEY (gebruiker, team));
CREATE TABLE kantoor.medewerker (gebruiker name PRIMARY KEY, naam text NOT NULL CHECK (naam <> ''));

-- `laatste`: the last step of the history. `merk` changes with everything that is stored, the rest of the row is what a
-- list shows.
CREATE TABLE kantoor.client (nummer integer GENERATED ALWAYS AS IDENTITY PRIMARY KEY,
  team integer NOT NULL REFERENCES kantoor.team, laatste bigint NOT NULL DEFAULT 0,
  gewijzigd timestamptz NOT NULL DEFAULT clock_timestamp(), gewijzigd_door name NOT NULL DEFAULT session_user,
  naam text NOT NULL, geboortedatum bigint NOT NULL);
CREATE INDEX client_team ON kantoor.client (team, gewijzigd DESC);
CREATE INDEX client_eigen ON kantoor.client (gewijzigd_door, gewijzigd DESC);

-- What a client is found by: folded words, each behind a space. Its team stands here too, for the index.
CREATE TYPE kantoor.zoek_rij AS (naam text, geboortedatum bigint, tekst text);
CREATE TABLE kantoor.zoek (client integer PRIMARY KEY REFERENCES kantoor.client ON DELETE CASCADE, team integer NOT NULL,
  tekst text NOT NULL);
DO $$
BEGIN
  EXECUTE format('CREATE INDEX zoek_tekst ON kantoor.zoek USING gin (team, tekst %I.gin_trgm_ops)',
    (SELECT n.nspname FROM pg_extension e JOIN pg_namespace n ON n.oid = e.extnamespace WHERE e.extname = 'pg_trgm'));
END $$;

-- How a client came: `kenmerk` is the identifier of the addition, and `transactie` made it, which began at `begin`. Both,
-- as a server that a dump is put back into counts its transactions anew.
CREATE TABLE kantoor.toevoeging (client integer PRIMARY KEY REFERENCES kantoor.client ON DELETE CASCADE,
  kenmerk uuid NOT NULL UNIQUE, gebruiker name NOT NULL DEFAULT session_user,
  transactie xid8 NOT NULL DEFAULT pg_current_xact_id(), begin timestamptz NOT NULL DEFAULT transaction_timestamp());

CREATE TYPE kantoor.dossier_rij AS (enig bigint, leeftijd bigint);
CREATE TABLE kantoor.dossier (client integer NOT NULL REFERENCES kantoor.client ON DELETE CASCADE,
  enig bigint NOT NULL CHECK (enig = 1), leeftijd bigint NOT NULL, PRIMARY KEY (client, enig));

CREATE TYPE kantoor.persoon_rij AS (nummer bigint, naam_1 text, naam_2 text, naam_3 text, geboortedatum bigint,
  belastingtarief double precision);
CREATE TABLE kantoor.persoon (client integer NOT NULL REFERENCES kantoor.client ON DELETE CASCADE,
  nummer bigint NOT NULL CHECK (nummer IN (1, 2)), naam_1 text NOT NULL, naam_2 text NOT NULL, naam_3 text NOT NULL,
  geboortedatum bigint NOT NULL, belastingtarief double precision, PRIMARY KEY (client, nummer));

CREATE TYPE kantoor.maatschappij_type_rij AS (volgorde bigint, code text, tekst text);
CREATE TABLE kantoor.maatschappij_type (client integer NOT NULL REFERENCES kantoor.client ON DELETE CASCADE,
  volgorde bigint NOT NULL, code text NOT NULL, tekst text NOT NULL, PRIMARY KEY (client, volgorde));

CREATE TYPE kantoor.lening_rij AS (sleutel bigint, nummer bigint, naam text);
CREATE TABLE kantoor.lening (client integer NOT NULL REFERENCES kantoor.client ON DELETE CASCADE,
  sleutel bigint NOT NULL, nummer bigint NOT NULL CHECK (nummer >= 0), naam text NOT NULL,
  PRIMARY KEY (client, sleutel), UNIQUE (client, nummer) DEFERRABLE INITIALLY DEFERRED);

CREATE TYPE kantoor.vrijekolom_rij AS (sleutel bigint, lening bigint, volgorde bigint, id bigint, correctie_last bigint,
  correctie_fiscaal bigint, heffing_bij bigint, omschrijving text, termijn bigint, inkomen_uit_arbeid bigint,
  in_dagloon bigint, datum_aanvang bigint, looptijd bigint, contractvervaldatum bigint, is_product bigint,
  maatschappij text, maatschappij_naam text, productsoort bigint, productsoort_omschrijving text, productnaam text,
  uw_bemiddeling bigint, voorstel_1 text, voorstel_2 text, voorstel_3 text, uitsluiten_ao bigint, uitsluiten_ww bigint,
  uitsluiten_langleven bigint, scenario_overlijden bigint, percentage_overgang double precision,
  einddatum_overgang bigint, eindleeftijd_overgang bigint, bedrag_naam text, invoersoort bigint,
  bedrag double precision);
CREATE TABLE kantoor.vrijekolom (client integer NOT NULL,
  sleutel bigint NOT NULL, lening bigint NOT NULL, volgorde bigint NOT NULL, id bigint NOT NULL,
  correctie_last bigint NOT NULL, correctie_fiscaal bigint NOT NULL, heffing_bij bigint NOT NULL,
  omschrijving text NOT NULL, termijn bigint NOT NULL, inkomen_uit_arbeid bigint NOT NULL, in_dagloon bigint NOT NULL,
  datum_aanvang bigint NOT NULL, looptijd bigint NOT NULL, contractvervaldatum bigint NOT NULL,
  is_product bigint NOT NULL, maatschappij text NOT NULL, maatschappij_naam text NOT NULL, productsoort bigint NOT NULL,
  productsoort_omschrijving text NOT NULL, productnaam text NOT NULL, uw_bemiddeling bigint NOT NULL,
  voorstel_1 text NOT NULL, voorstel_2 text NOT NULL, voorstel_3 text NOT NULL, uitsluiten_ao bigint NOT NULL,
  uitsluiten_ww bigint NOT NULL, uitsluiten_langleven bigint NOT NULL, scenario_overlijden bigint NOT NULL,
  percentage_overgang double precision NOT NULL, einddatum_overgang bigint NOT NULL,
  eindleeftijd_overgang bigint NOT NULL, bedrag_naam text NOT NULL, invoersoort bigint NOT NULL,
  bedrag double precision NOT NULL, PRIMARY KEY (client, sleutel),
  FOREIGN KEY (client, lening) REFERENCES kantoor.lening DEFERRABLE INITIALLY DEFERRED) WITH (fillfactor = 80);

CREATE TYPE kantoor.periode_rij AS (sleutel bigint, kolom bigint, maand bigint, bedrag double precision,
  percentage double precision, korting double precision, eenmalig bigint);
CREATE TABLE kantoor.periode (client integer NOT NULL,
  sleutel bigint NOT NULL, kolom bigint NOT NULL, maand bigint NOT NULL, bedrag double precision NOT NULL,
  percentage double precision NOT NULL, korting double precision NOT NULL, eenmalig bigint NOT NULL,
  PRIMARY KEY (client, sleutel),
  FOREIGN KEY (client, kolom) REFERENCES kantoor.vrijekolom DEFERRABLE INITIALLY DEFERRED);

CREATE TYPE kantoor.voorstel_rij AS (voorstel bigint, vrij_id bigint);
CREATE TABLE kantoor.voorstel (client integer NOT NULL REFERENCES kantoor.client ON DELETE CASCADE,
  voorstel bigint NOT NULL CHECK (voorstel IN (1, 2, 3)), vrij_id bigint NOT NULL,
  PRIMARY KEY (client, voorstel, vrij_id));

-- The history: as in a loan file, and beside it who and when by the database's own account and clock. `bewerking` is the
-- identifier of the edit, none for what a file brought along. A value stands as the bytes that a loan file's history has.
CREATE TYPE kantoor.naam_rij AS (nummer bigint, tekst text);
CREATE TABLE kantoor.naam (client integer NOT NULL, nummer bigint NOT NULL,
  tekst text NOT NULL, PRIMARY KEY (client, nummer));

CREATE TYPE kantoor.stap_rij AS (nummer bigint, tijd bigint, medewerker bigint, soort bigint, van bigint, terug bigint,
  opnieuw bigint, eerste bigint, hoogste bigint);
CREATE TABLE kantoor.stap (client integer NOT NULL,
  nummer bigint NOT NULL, tijd bigint NOT NULL, medewerker bigint NOT NULL, soort bigint NOT NULL, van bigint NOT NULL,
  terug bigint NOT NULL, opnieuw bigint NOT NULL, eerste bigint NOT NULL, hoogste bigint NOT NULL, bewerking uuid,
  gebruiker name NOT NULL, opgeslagen timestamptz NOT NULL, PRIMARY KEY (client, nummer));

CREATE TYPE kantoor.wijziging_rij AS (nummer bigint, stap bigint, tabel bigint, sleutel bigint, lening bigint,
  lening_naam bigint, kolom bigint, kolom_naam bigint, veld bigint, oud bytea, nieuw bytea);
CREATE TABLE kantoor.wijziging (client integer NOT NULL,
  nummer bigint NOT NULL, stap bigint NOT NULL, tabel bigint NOT NULL, sleutel bigint NOT NULL, lening bigint NOT NULL,
  lening_naam bigint NOT NULL, kolom bigint NOT NULL, kolom_naam bigint NOT NULL, veld bigint NOT NULL,
  oud bytea, nieuw bytea, PRIMARY KEY (client, nummer));

-- Who edits a client. It counts as long as the session holds the advisory lock of that client, and is left behind where
-- the session ended; `bewijs` is known to the holder alone.
CREATE TABLE kantoor.bewerker (client integer PRIMARY KEY REFERENCES kantoor.client ON DELETE CASCADE,
  pid integer NOT NULL, bewijs uuid NOT NULL, gebruiker name NOT NULL, sinds timestamptz NOT NULL,
  gevraagd_door name, gevraagd_om timestamptz);
-- Who reads along: without anyone nobody is told of an edit, as telling makes committers wait for each other.
CREATE TABLE kantoor.meelezer (client integer NOT NULL REFERENCES kantoor.client ON DELETE CASCADE,
  pid integer NOT NULL, PRIMARY KEY (client, pid));
)sql";

}  // namespace brivane::dossier

#include "dossier/office/SchemaSteps.h"

namespace brivane::dossier {

// The group roles belong to the whole server, the schema to one database. Nobody logs in as the owner.
//
// Who makes a role is a member of it at once from PostgreSQL 16 on, and still may not become it: the membership is
// granted always. Where it was there the server would only say so.
const char* const kRolesV1 = R"sql(
SET LOCAL client_min_messages = warning;
DO $$
DECLARE
  rol text;
BEGIN
  FOREACH rol IN ARRAY ARRAY['kantoor_eigenaar', 'kantoor_adviseur', 'kantoor_lezer', 'kantoor_beheerder'] LOOP
    IF NOT EXISTS (SELECT FROM pg_roles WHERE rolname = rol) THEN
      EXECUTE format('CREATE ROLE %I NOLOGIN NOSUPERUSER NOCREATEDB NOCREATEROLE NOREPLICATION NOBYPASSRLS', rol);
    END IF;
  END LOOP;
  EXECUTE format('GRANT kantoor_eigenaar TO %I', current_user);
END $$;
CREATE EXTENSION IF NOT EXISTS pg_trgm;
CREATE EXTENSION IF NOT EXISTS btree_gin;
CREATE SCHEMA kantoor AUTHORIZATION kantoor_eigenaar;
REVOKE ALL ON SCHEMA kantoor FROM PUBLIC;
)sql";

// Rows are seen by team: the policies go by the session's user, and for clients they hold for the owner's functions
// too. What is asked once for a statement stands in a SELECT of its own.
//
// In the tables of a client those functions see one client, the one that `kantoor.client` names: a function sets it
// once it has found that the session may see that client, and a mistake in it reaches no other. Whoever else sets it
// gains nothing, as each of those functions sets it again, and the policy is the owner's alone. To ask for the team
// again at each row of an edit would cost more than the edit.
const char* const kRightsV1 = R"sql(
GRANT USAGE ON SCHEMA kantoor TO kantoor_adviseur, kantoor_lezer, kantoor_beheerder;
GRANT SELECT ON kantoor.versie, kantoor.team, kantoor.lid, kantoor.medewerker, kantoor.client, kantoor.dossier,
  kantoor.persoon, kantoor.maatschappij_type, kantoor.lening, kantoor.vrijekolom, kantoor.periode, kantoor.voorstel,
  kantoor.naam, kantoor.stap, kantoor.wijziging
  TO kantoor_adviseur, kantoor_lezer, kantoor_beheerder;
GRANT INSERT, UPDATE, DELETE ON kantoor.team, kantoor.lid, kantoor.medewerker TO kantoor_beheerder;

ALTER TABLE kantoor.client ENABLE ROW LEVEL SECURITY;
ALTER TABLE kantoor.client FORCE ROW LEVEL SECURITY;
CREATE POLICY eigen_team ON kantoor.client
  USING (team = ANY (ARRAY(SELECT l.team FROM kantoor.lid l WHERE l.gebruiker = session_user))
         OR (SELECT pg_has_role(session_user, 'kantoor_beheerder', 'MEMBER')));

DO $$
DECLARE
  tabel text;
BEGIN
  FOREACH tabel IN ARRAY ARRAY['dossier', 'persoon', 'maatschappij_type', 'lening', 'vrijekolom', 'periode', 'voorstel',
                               'naam', 'stap', 'wijziging'] LOOP
    EXECUTE format('ALTER TABLE kantoor.%I ENABLE ROW LEVEL SECURITY', tabel);
    EXECUTE format('ALTER TABLE kantoor.%I FORCE ROW LEVEL SECURITY', tabel);
    EXECUTE format('CREATE POLICY eigen_team ON kantoor.%1$I TO kantoor_adviseur, kantoor_lezer, kantoor_beheerder '
                   'USING (EXISTS (SELECT FROM kantoor.client c WHERE c.nummer = %1$I.client))', tabel);
    EXECUTE format('CREATE POLICY ene_client ON kantoor.%I TO kantoor_eigenaar '
                   'USING (client = nullif(current_setting(''kantoor.client'', true), '''')::integer)', tabel);
  END LOOP;
END $$;

-- Also for the owner: a mistake in a function must not change what was.
CREATE FUNCTION kantoor.geschiedenis_blijft() RETURNS trigger LANGUAGE plpgsql SET search_path = pg_catalog, pg_temp AS $$
BEGIN
  RAISE EXCEPTION 'history' USING ERRCODE = 'KT005';
END $$;
CREATE TRIGGER blijft BEFORE DELETE OR TRUNCATE OR UPDATE OF nummer ON kantoor.client
  EXECUTE FUNCTION kantoor.geschiedenis_blijft();
CREATE TRIGGER blijft BEFORE UPDATE OR DELETE OR TRUNCATE ON kantoor.naam EXECUTE FUNCTION kantoor.geschiedenis_blijft();
CREATE TRIGGER blijft BEFORE UPDATE OR DELETE OR TRUNCATE ON kantoor.stap EXECUTE FUNCTION kantoor.geschiedenis_blijft();
CREATE TRIGGER blijft BEFORE UPDATE OR DELETE OR TRUNCATE ON kantoor.wijziging
  EXECUTE FUNCTION kantoor.geschiedenis_blijft();
)sql";

// Functions are open to everybody when they are made.
const char* const kFunctionRightsV1 = R"sql(
REVOKE ALL ON ALL FUNCTIONS IN SCHEMA kantoor FROM PUBLIC;
GRANT EXECUTE ON FUNCTION kantoor.ik(), kantoor.wie(integer), kantoor.zoek_clienten(text[], integer),
  kantoor.volg(integer), kantoor.volg_niet(integer)
  TO kantoor_adviseur, kantoor_lezer, kantoor_beheerder;
GRANT EXECUTE ON FUNCTION kantoor.neem(integer), kantoor.laat_los(integer, uuid), kantoor.vraag(integer),
  kantoor.sla_op(integer, uuid, uuid, kantoor.stap_rij, kantoor.wijziging_rij[], kantoor.naam_rij[],
  kantoor.vrijekolom_rij[], kantoor.periode_rij[], kantoor.periode_rij[], bigint[], kantoor.zoek_rij, json),
  kantoor.nieuw(integer, uuid, json), kantoor.toegevoegd(uuid), kantoor.vul_geschiedenis(integer, json),
  kantoor.uitkomst(integer, bigint, uuid)
  TO kantoor_adviseur;
GRANT EXECUTE ON FUNCTION kantoor.geef_aan_team(integer, integer) TO kantoor_beheerder;
)sql";

}  // namespace brivane::dossier

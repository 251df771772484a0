#include "dossier/office/SchemaSteps.h"

namespace brivane::dossier {

// What writes the tables of a client. Each function finds out first whether the session may see the client, and names
// it in `kantoor.client`: only its rows are there from then on (SchemaRights.cpp).
//
// An edit takes few statements and one path: an adviser waits for it. Its rows come as row types of their own, as an
// object would be read anew for each of its parts.
const char* const kStoringV1 = R"sql(
-- The rows of an edit that is not of the daily ones, or of a new client; `p` names the tables that have any.
CREATE FUNCTION kantoor.schrijf_rijen(p_client integer, p json) RETURNS void LANGUAGE plpgsql
  SET search_path = pg_catalog, kantoor, pg_temp AS $$
DECLARE
  -- Asked once: each look into the object reads all of it.
  v_delen text[] := ARRAY(SELECT json_object_keys(p));
BEGIN
  IF 'weg' = ANY (v_delen) THEN
    DELETE FROM vrijekolom t USING json_populate_recordset(NULL::vrijekolom_rij, p->'weg'->'vrijekolom') r
      WHERE t.client = p_client AND t.sleutel = r.sleutel;
    DELETE FROM lening t USING json_populate_recordset(NULL::lening_rij, p->'weg'->'lening') r
      WHERE t.client = p_client AND t.sleutel = r.sleutel;
    DELETE FROM persoon t USING json_populate_recordset(NULL::persoon_rij, p->'weg'->'persoon') r
      WHERE t.client = p_client AND t.nummer = r.nummer;
    DELETE FROM voorstel t USING json_populate_recordset(NULL::voorstel_rij, p->'weg'->'voorstel') r
      WHERE t.client = p_client AND t.voorstel = r.voorstel AND t.vrij_id = r.vrij_id;
  END IF;
  IF 'dossier' = ANY (v_delen) THEN
    INSERT INTO dossier SELECT p_client, r.* FROM json_populate_recordset(NULL::dossier_rij, p->'dossier') r
      ON CONFLICT (client, enig) DO UPDATE SET leeftijd = EXCLUDED.leeftijd;
  END IF;
  IF 'persoon' = ANY (v_delen) THEN
    INSERT INTO persoon SELECT p_client, r.* FROM json_populate_recordset(NULL::persoon_rij, p->'persoon') r
      ON CONFLICT (client, nummer) DO UPDATE SET naam_1 = EXCLUDED.naam_1, naam_2 = EXCLUDED.naam_2,
        naam_3 = EXCLUDED.naam_3, geboortedatum = EXCLUDED.geboortedatum, belastingtarief = EXCLUDED.belastingtarief;
  END IF;
  IF 'maatschappij_type' = ANY (v_delen) THEN
    INSERT INTO maatschappij_type SELECT p_client, r.*
      FROM json_populate_recordset(NULL::maatschappij_type_rij, p->'maatschappij_type') r;
  END IF;
  IF 'lening' = ANY (v_delen) THEN
    INSERT INTO lening SELECT p_client, r.* FROM json_populate_recordset(NULL::lening_rij, p->'lening') r
      ON CONFLICT (client, sleutel) DO UPDATE SET nummer = EXCLUDED.nummer, naam = EXCLUDED.naam;
  END IF;
  IF 'vrijekolom' = ANY (v_delen) THEN
    INSERT INTO vrijekolom SELECT p_client, r.* FROM json_populate_recordset(NULL::vrijekolom_rij, p->'vrijekolom') r;
  END IF;
  IF 'periode' = ANY (v_delen) THEN
    INSERT INTO periode SELECT p_client, r.* FROM json_populate_recordset(NULL::periode_rij, p->'periode') r;
  END IF;
  IF 'voorstel' = ANY (v_delen) THEN
    INSERT INTO voorstel SELECT p_client, r.* FROM json_populate_recordset(NULL::voorstel_rij, p->'voorstel') r;
  END IF;
END $$;

-- Stores one edit: its step, its entries with the names that are new, and its rows. Of columns and periods those that
-- changed (`p_kolommen`, `p_perioden`), and the periods that came (`p_erbij`) and went (`p_weg`, their keys); all other
-- rows stand in `p_rest`. `p_zoek`: what the client is found by, where that may have changed. Answers the time of the
-- step. Refuses a holder that lost the client (KT001), and an edit that does not follow on what stands there (KT002), so
-- that none is stored twice.
CREATE FUNCTION kantoor.sla_op(p_client integer, p_bewijs uuid, p_bewerking uuid, p_stap kantoor.stap_rij,
    p_wijzigingen kantoor.wijziging_rij[], p_namen kantoor.naam_rij[], p_kolommen kantoor.vrijekolom_rij[],
    p_perioden kantoor.periode_rij[], p_erbij kantoor.periode_rij[], p_weg bigint[], p_zoek kantoor.zoek_rij, p_rest json)
  RETURNS bigint LANGUAGE plpgsql SECURITY DEFINER SET search_path = pg_catalog, kantoor, pg_temp AS $$
DECLARE
  v_nu timestamptz := clock_timestamp();
  v_tijd bigint := (extract(epoch FROM v_nu) * 1000)::bigint;
  v_naam text;
  v_houdt boolean;
  v_gelezen boolean;
  v_kolom vrijekolom_rij;
  v_periode periode_rij;
  v_gezet text;
BEGIN
  IF NOT pg_has_role(session_user, 'kantoor_adviseur', 'MEMBER') THEN
    RAISE EXCEPTION 'not an adviser' USING ERRCODE = 'insufficient_privilege';
  END IF;
  -- Without one it would pass for history that a file brought along.
  IF p_bewerking IS NULL THEN
    RAISE EXCEPTION 'an edit without an identifier' USING ERRCODE = 'null_value_not_allowed';
  END IF;
  -- What is told as stored outlives a power cut, however the server is set. An assignment is no statement of its own.
  IF current_setting('synchronous_commit') = 'off' THEN
    v_gezet := set_config('synchronous_commit', 'on', true);
  END IF;
  UPDATE client c SET laatste = p_stap.nummer, gewijzigd = v_nu, gewijzigd_door = session_user
    WHERE c.nummer = p_client AND c.laatste = p_stap.nummer - 1;
  IF NOT FOUND THEN
    PERFORM moet_zichtbaar_zijn(p_client);
    IF NOT EXISTS (SELECT FROM bewerker b WHERE b.client = p_client AND b.bewijs = p_bewijs AND b.pid = pg_backend_pid())
    THEN
      RAISE EXCEPTION 'the client was let go' USING ERRCODE = 'KT001';
    END IF;
    RAISE EXCEPTION 'another step was stored' USING ERRCODE = 'KT002';
  END IF;
  v_gezet := set_config('kantoor.client', p_client::text, true);
  -- Whoever takes the client up waits for the row above, so that this stays true until the end.
  SELECT EXISTS (SELECT FROM bewerker b WHERE b.client = p_client AND b.bewijs = p_bewijs AND b.pid = pg_backend_pid()),
      coalesce((SELECT m.naam FROM medewerker m WHERE m.gebruiker = session_user), session_user::text),
      EXISTS (SELECT FROM meelezer l WHERE l.client = p_client)
    INTO v_houdt, v_naam, v_gelezen;
  IF NOT v_houdt THEN
    RAISE EXCEPTION 'the client was let go' USING ERRCODE = 'KT001';
  END IF;
  IF p_namen IS NOT NULL THEN
    INSERT INTO naam SELECT p_client, r.* FROM unnest(p_namen) r;
  END IF;
  -- A step names the session's user and nobody else.
  INSERT INTO stap SELECT p_client, p_stap.nummer, v_tijd, n.nummer, p_stap.soort, p_stap.van, p_stap.terug,
      p_stap.opnieuw, p_stap.eerste, p_stap.hoogste, p_bewerking, session_user, v_nu
    FROM naam n WHERE n.client = p_client AND n.nummer = p_stap.medewerker AND n.tekst = v_naam;
  IF NOT FOUND THEN
    RAISE EXCEPTION 'somebody else''s name' USING ERRCODE = 'KT006';
  END IF;
  INSERT INTO wijziging SELECT p_client, r.nummer, p_stap.nummer, r.tabel, r.sleutel, r.lening, r.lening_naam, r.kolom,
      r.kolom_naam, r.veld, r.oud, r.nieuw FROM unnest(p_wijzigingen) r;
  IF p_rest IS NOT NULL THEN
    PERFORM schrijf_rijen(p_client, p_rest);
  END IF;
  IF p_kolommen IS NOT NULL THEN
    FOREACH v_kolom IN ARRAY p_kolommen LOOP
      UPDATE vrijekolom t SET lening = v_kolom.lening, volgorde = v_kolom.volgorde, id = v_kolom.id,
          correctie_last = v_kolom.correctie_last, correctie_fiscaal = v_kolom.correctie_fiscaal,
          heffing_bij = v_kolom.heffing_bij, omschrijving = v_kolom.omschrijving, termijn = v_kolom.termijn,
          inkomen_uit_arbeid = v_kolom.inkomen_uit_arbeid, in_dagloon = v_kolom.in_dagloon,
          datum_aanvang = v_kolom.datum_aanvang, looptijd = v_kolom.looptijd,
          contractvervaldatum = v_kolom.contractvervaldatum, is_product = v_kolom.is_product,
          maatschappij = v_kolom.maatschappij, maatschappij_naam = v_kolom.maatschappij_naam,
          productsoort = v_kolom.productsoort, productsoort_omschrijving = v_kolom.productsoort_omschrijving,
          productnaam = v_kolom.productnaam, uw_bemiddeling = v_kolom.uw_bemiddeling, voorstel_1 = v_kolom.voorstel_1,
          voorstel_2 = v_kolom.voorstel_2, voorstel_3 = v_kolom.voorstel_3, uitsluiten_ao = v_kolom.uitsluiten_ao,
          uitsluiten_ww = v_kolom.uitsluiten_ww, uitsluiten_langleven = v_kolom.uitsluiten_langleven,
          scenario_overlijden = v_kolom.scenario_overlijden, percentage_overgang = v_kolom.percentage_overgang,
          einddatum_overgang = v_kolom.einddatum_overgang, eindleeftijd_overgang = v_kolom.eindleeftijd_overgang,
          bedrag_naam = v_kolom.bedrag_naam, invoersoort = v_kolom.invoersoort, bedrag = v_kolom.bedrag
        WHERE t.client = p_client AND t.sleutel = v_kolom.sleutel;
      IF NOT FOUND THEN
        RAISE EXCEPTION 'no such column' USING ERRCODE = 'KT002';
      END IF;
    END LOOP;
  END IF;
  IF p_weg IS NOT NULL THEN
    DELETE FROM periode t WHERE t.client = p_client AND t.sleutel = ANY (p_weg);
  END IF;
  IF p_erbij IS NOT NULL THEN
    INSERT INTO periode SELECT p_client, r.* FROM unnest(p_erbij) r;
  END IF;
  IF p_perioden IS NOT NULL THEN
    FOREACH v_periode IN ARRAY p_perioden LOOP
      UPDATE periode t SET kolom = v_periode.kolom, maand = v_periode.maand, bedrag = v_periode.bedrag,
          percentage = v_periode.percentage, korting = v_periode.korting, eenmalig = v_periode.eenmalig
        WHERE t.client = p_client AND t.sleutel = v_periode.sleutel;
      IF NOT FOUND THEN
        RAISE EXCEPTION 'no such period' USING ERRCODE = 'KT002';
      END IF;
    END LOOP;
  END IF;
  IF p_zoek IS NOT NULL THEN
    UPDATE zoek z SET tekst = p_zoek.tekst WHERE z.client = p_client AND z.tekst <> p_zoek.tekst;
    UPDATE client c SET naam = p_zoek.naam, geboortedatum = p_zoek.geboortedatum
      WHERE c.nummer = p_client AND (c.naam, c.geboortedatum) <> (p_zoek.naam, p_zoek.geboortedatum);
  END IF;
  IF v_gelezen THEN
    PERFORM pg_notify('kantoor_' || p_client, 'stap ' || p_stap.nummer || ' ' || v_naam);
  END IF;
  RETURN v_tijd;
END $$;

-- The time of an edit whose answer was lost, none where it was not stored. Certain once the client was taken up again, or
-- by somebody else: the session that stored it has ended then.
CREATE FUNCTION kantoor.uitkomst(p_client integer, p_stap bigint, p_bewerking uuid) RETURNS bigint
  LANGUAGE plpgsql SECURITY DEFINER SET search_path = pg_catalog, kantoor, pg_temp AS $$
BEGIN
  PERFORM moet_zichtbaar_zijn(p_client);
  RETURN (SELECT s.tijd FROM stap s WHERE s.client = p_client AND s.nummer = p_stap AND s.bewerking = p_bewerking);
END $$;

-- A new client of a team that the session is in. `p_kenmerk` is the identifier of the addition, by which it is looked up.
CREATE FUNCTION kantoor.nieuw(p_team integer, p_kenmerk uuid, p json) RETURNS integer LANGUAGE plpgsql SECURITY DEFINER
  SET search_path = pg_catalog, kantoor, pg_temp AS $$
DECLARE
  v_client integer;
BEGIN
  PERFORM moet_adviseur_zijn();
  IF NOT EXISTS (SELECT FROM lid l WHERE l.gebruiker = session_user AND l.team = p_team) THEN
    RAISE EXCEPTION 'not a member of the team' USING ERRCODE = 'insufficient_privilege';
  END IF;
  IF current_setting('synchronous_commit') = 'off' THEN
    PERFORM set_config('synchronous_commit', 'on', true);
  END IF;
  PERFORM slot_van_toevoeging(p_kenmerk);
  INSERT INTO client (team, naam, geboortedatum)
    VALUES (p_team, p->'zoek'->>'naam', (p->'zoek'->>'geboortedatum')::bigint) RETURNING nummer INTO v_client;
  INSERT INTO toevoeging (client, kenmerk) VALUES (v_client, p_kenmerk);
  PERFORM moet_zichtbaar_zijn(v_client);
  INSERT INTO zoek (client, team, tekst) VALUES (v_client, p_team, p->'zoek'->>'tekst');
  PERFORM schrijf_rijen(v_client, p);
  RETURN v_client;
END $$;

-- The client of an addition whose answer was lost, none where it was not stored. It waits for the session that adds to
-- end, for some seconds: then it is certain.
CREATE FUNCTION kantoor.toegevoegd(p_kenmerk uuid) RETURNS integer LANGUAGE plpgsql SECURITY DEFINER
  SET search_path = pg_catalog, kantoor, pg_temp SET lock_timeout = '5s' AS $$
BEGIN
  PERFORM moet_adviseur_zijn();
  PERFORM slot_van_toevoeging(p_kenmerk);
  RETURN (SELECT t.client FROM toevoeging t WHERE t.kenmerk = p_kenmerk AND t.gebruiker = session_user);
END $$;

-- A part of the history that a file brings along, in the transaction that made the client; what was stored in the office
-- is out of its reach.
CREATE FUNCTION kantoor.vul_geschiedenis(p_client integer, p json) RETURNS void LANGUAGE plpgsql SECURITY DEFINER
  SET search_path = pg_catalog, kantoor, pg_temp AS $$
BEGIN
  PERFORM moet_adviseur_zijn();
  IF NOT EXISTS (SELECT FROM toevoeging t WHERE t.client = p_client AND t.transactie = pg_current_xact_id()
                   AND t.begin = transaction_timestamp()) THEN
    RAISE EXCEPTION 'not a client of this transaction' USING ERRCODE = 'insufficient_privilege';
  END IF;
  PERFORM moet_zichtbaar_zijn(p_client);
  INSERT INTO naam SELECT p_client, r.* FROM json_populate_recordset(NULL::naam_rij, p->'naam') r;
  INSERT INTO stap SELECT p_client, r.*, NULL, session_user, clock_timestamp()
    FROM json_populate_recordset(NULL::stap_rij, p->'stap') r;
  INSERT INTO wijziging SELECT p_client, r.* FROM json_populate_recordset(NULL::wijziging_rij, p->'wijziging') r;
  UPDATE client c SET laatste = (SELECT coalesce(max(s.nummer), 0) FROM stap s WHERE s.client = p_client)
    WHERE c.nummer = p_client;
END $$;
)sql";

}  // namespace brivane::dossier

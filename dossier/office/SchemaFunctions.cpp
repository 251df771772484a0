#include "dossier/office/SchemaSteps.h"

namespace brivane::dossier {

// All run as the owner, which no adviser can be, and by the session's user see the rows of his teams alone. Each begins
// with what it checks. Their failures have codes of their own: OfficeError.h.
const char* const kFunctionsV1 = R"sql(
-- Not a function of plain SQL, which is planned anew for each edit.
CREATE FUNCTION kantoor.eigen_naam() RETURNS text LANGUAGE plpgsql STABLE SECURITY DEFINER
  SET search_path = pg_catalog, kantoor, pg_temp AS $$
BEGIN
  RETURN coalesce((SELECT m.naam FROM medewerker m WHERE m.gebruiker = session_user), session_user::text);
END $$;

-- Who the session is, and which version of the schema it meets.
CREATE FUNCTION kantoor.ik(OUT versie integer, OUT gebruiker name, OUT naam text, OUT schrijft boolean,
    OUT beheert boolean, OUT pid integer, OUT team integer) LANGUAGE sql STABLE SECURITY DEFINER
  SET search_path = pg_catalog, kantoor, pg_temp AS $$
  SELECT (SELECT max(v.nummer) FROM versie v), session_user, eigen_naam(),
    pg_has_role(session_user, 'kantoor_adviseur', 'MEMBER'), pg_has_role(session_user, 'kantoor_beheerder', 'MEMBER'),
    pg_backend_pid(), (SELECT min(l.team) FROM lid l WHERE l.gebruiker = session_user)
$$;

CREATE FUNCTION kantoor.moet_adviseur_zijn() RETURNS void LANGUAGE plpgsql STABLE
  SET search_path = pg_catalog, kantoor, pg_temp AS $$
BEGIN
  IF NOT pg_has_role(session_user, 'kantoor_adviseur', 'MEMBER') THEN
    RAISE EXCEPTION 'not an adviser' USING ERRCODE = 'insufficient_privilege';
  END IF;
END $$;

-- The last step of a client that the session may see. The rows of its tables are open to the functions from here on,
-- and those of no other client.
CREATE FUNCTION kantoor.moet_zichtbaar_zijn(p_client integer) RETURNS bigint LANGUAGE plpgsql
  SET search_path = pg_catalog, kantoor, pg_temp AS $$
DECLARE
  v_laatste bigint;
BEGIN
  SELECT c.laatste INTO v_laatste FROM client c WHERE c.nummer = p_client;
  IF NOT FOUND THEN
    RAISE EXCEPTION 'no such client' USING ERRCODE = 'KT003';
  END IF;
  PERFORM set_config('kantoor.client', p_client::text, true);
  RETURN v_laatste;
END $$;

-- The advisory locks of the clients: the first key is the office's own.
CREATE FUNCTION kantoor.sloten(OUT client integer, OUT pid integer) RETURNS SETOF record LANGUAGE sql STABLE
  SET search_path = pg_catalog, pg_temp AS $$
  SELECT l.objid::bigint::integer, l.pid FROM pg_locks l WHERE l.locktype = 'advisory' AND l.granted
    AND l.classid = 1262571092 AND l.objsubid = 2
    AND l.database = (SELECT d.oid FROM pg_database d WHERE d.datname = current_database())
$$;

-- Held until the transaction ends.
CREATE FUNCTION kantoor.slot_van_toevoeging(p_kenmerk uuid) RETURNS void LANGUAGE sql
  SET search_path = pg_catalog, pg_temp AS $$
  SELECT pg_advisory_xact_lock(hashtextextended(p_kenmerk::text, 0))
$$;

CREATE FUNCTION kantoor.meld(p_client integer, p_bericht text) RETURNS void LANGUAGE plpgsql
  SET search_path = pg_catalog, kantoor, pg_temp AS $$
BEGIN
  IF EXISTS (SELECT FROM meelezer m WHERE m.client = p_client) THEN
    PERFORM pg_notify('kantoor_' || p_client, p_bericht);
  END IF;
END $$;

-- Takes up a client to edit it. `bewijs` is none where another session has it: `houder`, since `sinds`, by `pid`.
CREATE FUNCTION kantoor.neem(p_client integer, OUT bewijs uuid, OUT houder text, OUT sinds timestamptz,
    OUT laatste bigint, OUT pid integer) LANGUAGE plpgsql SECURITY DEFINER SET search_path = pg_catalog, kantoor, pg_temp AS $$
DECLARE
  v_genomen boolean := false;
BEGIN
  PERFORM moet_adviseur_zijn();
  PERFORM moet_zichtbaar_zijn(p_client);
  -- A session may lock twice, but the client is edited once.
  IF NOT EXISTS (SELECT FROM sloten() s WHERE s.client = p_client AND s.pid = pg_backend_pid()) THEN
    v_genomen := pg_try_advisory_lock(1262571092, p_client);
  END IF;
  IF NOT v_genomen THEN
    SELECT coalesce(m.naam, b.gebruiker::text), b.sinds, b.pid INTO houder, sinds, pid
      FROM bewerker b LEFT JOIN medewerker m ON m.gebruiker = b.gebruiker WHERE b.client = p_client;
    houder := coalesce(houder, '?');
    laatste := moet_zichtbaar_zijn(p_client);
    RETURN;
  END IF;
  BEGIN
    -- An edit of the holder before, if it is still under way, ends first.
    SELECT c.laatste INTO laatste FROM client c WHERE c.nummer = p_client FOR UPDATE;
    bewijs := gen_random_uuid();
    sinds := clock_timestamp();
    pid := pg_backend_pid();
    INSERT INTO bewerker AS b (client, pid, bewijs, gebruiker, sinds)
      VALUES (p_client, neem.pid, neem.bewijs, session_user, neem.sinds)
      ON CONFLICT (client) DO UPDATE SET pid = EXCLUDED.pid, bewijs = EXCLUDED.bewijs, gebruiker = EXCLUDED.gebruiker,
        sinds = EXCLUDED.sinds, gevraagd_door = NULL, gevraagd_om = NULL;
    PERFORM meld(p_client, 'genomen');
  EXCEPTION WHEN OTHERS OR query_canceled THEN
    -- A lock of the session outlives the transaction that failed.
    PERFORM pg_advisory_unlock(1262571092, p_client);
    RAISE;
  END;
END $$;

CREATE FUNCTION kantoor.laat_los(p_client integer, p_bewijs uuid) RETURNS void LANGUAGE plpgsql SECURITY DEFINER
  SET search_path = pg_catalog, kantoor, pg_temp AS $$
BEGIN
  DELETE FROM bewerker b WHERE b.client = p_client AND b.bewijs = p_bewijs AND b.pid = pg_backend_pid();
  IF FOUND THEN
    PERFORM pg_advisory_unlock(1262571092, p_client);
    PERFORM meld(p_client, 'los');
  END IF;
END $$;

-- Who edits a client now, if anybody does, and how far it is.
CREATE FUNCTION kantoor.wie(p_client integer, OUT houder text, OUT sinds timestamptz, OUT gevraagd_door text,
    OUT laatste bigint) LANGUAGE plpgsql SECURITY DEFINER SET search_path = pg_catalog, kantoor, pg_temp AS $$
BEGIN
  laatste := moet_zichtbaar_zijn(p_client);
  SELECT coalesce(m.naam, b.gebruiker::text), b.sinds, coalesce(v.naam, b.gevraagd_door::text)
    INTO houder, sinds, gevraagd_door
    FROM bewerker b LEFT JOIN medewerker m ON m.gebruiker = b.gebruiker
      LEFT JOIN medewerker v ON v.gebruiker = b.gevraagd_door
    WHERE b.client = p_client AND EXISTS (SELECT FROM sloten() s WHERE s.client = p_client AND s.pid = b.pid);
END $$;

-- Asks the holder to let go.
CREATE FUNCTION kantoor.vraag(p_client integer) RETURNS boolean LANGUAGE plpgsql SECURITY DEFINER
  SET search_path = pg_catalog, kantoor, pg_temp AS $$
BEGIN
  PERFORM moet_adviseur_zijn();
  PERFORM moet_zichtbaar_zijn(p_client);
  UPDATE bewerker b SET gevraagd_door = session_user, gevraagd_om = clock_timestamp() WHERE b.client = p_client;
  IF NOT FOUND THEN
    RETURN false;
  END IF;
  PERFORM pg_notify('kantoor_' || p_client, 'vraag ' || eigen_naam());
  RETURN true;
END $$;

CREATE FUNCTION kantoor.volg(p_client integer) RETURNS void LANGUAGE plpgsql SECURITY DEFINER
  SET search_path = pg_catalog, kantoor, pg_temp AS $$
BEGIN
  PERFORM moet_zichtbaar_zijn(p_client);
  DELETE FROM meelezer m WHERE m.client = p_client AND NOT EXISTS (SELECT FROM pg_stat_activity a WHERE a.pid = m.pid);
  INSERT INTO meelezer (client, pid) VALUES (p_client, pg_backend_pid()) ON CONFLICT DO NOTHING;
END $$;

CREATE FUNCTION kantoor.volg_niet(p_client integer) RETURNS void LANGUAGE sql SECURITY DEFINER
  SET search_path = pg_catalog, kantoor, pg_temp AS $$
  DELETE FROM meelezer m WHERE m.client = p_client AND m.pid = pg_backend_pid()
$$;

-- Clients by words, each the beginning of a word of theirs; what the session changed last comes first, then the newest.
-- A word that many have is soon found among the newest; one that is not found often enough there is had by few, and goes by
-- the index of the words. How many of the newest are looked at balances the two: with the root of fifty times the clients
-- both look at as many at worst. Compiling such a statement would take longer than running it.
CREATE FUNCTION kantoor.zoek_clienten(p_woorden text[], p_hoogstens integer)
  RETURNS TABLE (nummer integer, naam text, geboortedatum bigint, team text, gewijzigd timestamptz, gewijzigd_door text,
    eigen boolean, bewerker text, sinds timestamptz)
  LANGUAGE plpgsql STABLE SECURITY DEFINER SET search_path = pg_catalog, kantoor, pg_temp SET jit = off AS $$
DECLARE
  v_voorwaarden text;
  v_teams integer[];
  v_deel double precision;
  v_diep integer;
  v_gevonden integer[];
BEGIN
  SELECT string_agg(format('z.tekst LIKE %L', '% ' || regexp_replace(w, '([\\%_])', '\\\1', 'g') || '%'), ' AND ')
    INTO v_voorwaarden FROM unnest(p_woorden) w WHERE w <> '';
  SELECT array_agg(t.nummer) FILTER (WHERE t.eigen), avg(t.eigen::integer) INTO v_teams, v_deel
    FROM (SELECT a.nummer, pg_has_role(session_user, 'kantoor_beheerder', 'MEMBER')
        OR EXISTS (SELECT FROM lid l WHERE l.team = a.nummer AND l.gebruiker = session_user) AS eigen FROM kantoor.team a) t;
  SELECT sqrt(50 * greatest(v_deel * c.reltuples, 0)) INTO v_diep FROM pg_class c WHERE c.oid = 'client'::regclass;
  EXECUTE format($q$
    SELECT array_agg(n.nummer) FROM (
      SELECT g.nummer FROM unnest($1) t(team), LATERAL (SELECT k.nummer FROM (SELECT c.nummer, c.gewijzigd FROM client c
          WHERE c.team = t.team ORDER BY c.gewijzigd DESC LIMIT $2) k %1$s ORDER BY k.gewijzigd DESC LIMIT $3) g
      UNION
      (SELECT k.nummer FROM (SELECT c.nummer, c.gewijzigd FROM client c WHERE c.gewijzigd_door = session_user
          ORDER BY c.gewijzigd DESC LIMIT $2) k %1$s ORDER BY k.gewijzigd DESC LIMIT $3)) n$q$,
    coalesce(', LATERAL (SELECT FROM zoek z WHERE z.client = k.nummer AND ' || v_voorwaarden || ' OFFSET 0) z', ''))
    INTO v_gevonden USING v_teams, greatest(p_hoogstens, v_diep / greatest(cardinality(v_teams), 1)), p_hoogstens;
  IF v_voorwaarden IS NOT NULL AND coalesce(cardinality(v_gevonden), 0) < p_hoogstens THEN
    -- Who is in few teams has the index look at those alone: a word may be one that all the others have.
    EXECUTE format($q$
      WITH raak AS MATERIALIZED (%s)
      SELECT array_agg(n.nummer) FROM (SELECT c.nummer FROM raak r JOIN client c ON c.nummer = r.client
        ORDER BY (c.gewijzigd_door = session_user) DESC, c.gewijzigd DESC LIMIT $2) n$q$,
      CASE WHEN cardinality(v_teams) <= 4
        THEN 'SELECT z.client FROM unnest($1) t(team), LATERAL (SELECT z.client FROM zoek z WHERE z.team = t.team AND '
          || v_voorwaarden || ' OFFSET 0) z'
        ELSE 'SELECT z.client FROM zoek z WHERE ' || v_voorwaarden END)
      INTO v_gevonden USING v_teams, p_hoogstens;
  END IF;
  RETURN QUERY SELECT c.nummer, c.naam, c.geboortedatum, t.naam, c.gewijzigd, coalesce(m.naam, c.gewijzigd_door::text),
      c.gewijzigd_door = session_user, coalesce(w.naam, b.gebruiker::text), b.sinds
    FROM client c JOIN team t ON t.nummer = c.team LEFT JOIN medewerker m ON m.gebruiker = c.gewijzigd_door
      LEFT JOIN (SELECT e.* FROM bewerker e JOIN sloten() s ON s.client = e.client AND s.pid = e.pid) b ON b.client = c.nummer
      LEFT JOIN medewerker w ON w.gebruiker = b.gebruiker
    WHERE c.nummer = ANY (v_gevonden)
    ORDER BY (c.gewijzigd_door = session_user) DESC, c.gewijzigd DESC, c.nummer DESC LIMIT p_hoogstens;
END $$;

CREATE FUNCTION kantoor.geef_aan_team(p_client integer, p_team integer) RETURNS void LANGUAGE plpgsql SECURITY DEFINER
  SET search_path = pg_catalog, kantoor, pg_temp AS $$
BEGIN
  IF NOT pg_has_role(session_user, 'kantoor_beheerder', 'MEMBER') THEN
    RAISE EXCEPTION 'not a manager' USING ERRCODE = 'insufficient_privilege';
  END IF;
  UPDATE client c SET team = p_team WHERE c.nummer = p_client;
  IF NOT FOUND THEN
    RAISE EXCEPTION 'no such client' USING ERRCODE = 'KT003';
  END IF;
  UPDATE zoek z SET team = p_team WHERE z.client = p_client;
END $$;
)sql";

}  // namespace brivane::dossier

-- The roles of a calendar database, which all databases of a server share. Nobody logs in as one of them: an operator's
-- login is a member of ferrowind_operator, a report's of ferrowind_reader. Everything belongs to ferrowind_owner; whoever
-- creates the database becomes its member, to check and change it.

DO $$
DECLARE
  wanted text;
BEGIN
  FOREACH wanted IN ARRAY ARRAY['ferrowind_owner', 'ferrowind_operator', 'ferrowind_reader'] LOOP
    IF NOT EXISTS (SELECT FROM pg_roles WHERE rolname = wanted) THEN
      BEGIN
        EXECUTE format('CREATE ROLE %I NOLOGIN', wanted);
      EXCEPTION WHEN duplicate_object OR unique_violation THEN
        NULL;  -- Another database was being created at the same time.
      END;
    END IF;
  END LOOP;
  -- Whoever creates a role is, on servers from version 16, a member that may only make others members.
  IF NOT pg_has_role('ferrowind_owner', CASE WHEN current_setting('server_version_num')::integer >= 160000
                                             THEN 'SET' ELSE 'MEMBER' END) THEN
    BEGIN
      EXECUTE format('GRANT ferrowind_owner TO %I', current_user);
    EXCEPTION WHEN insufficient_privilege THEN
      RAISE insufficient_privilege USING MESSAGE = format(
        '%I is no member of ferrowind_owner, and making it one takes a superuser: GRANT ferrowind_owner TO %1$I',
        current_user);
    END;
  END IF;
END $$;

-- Who may do what: operators call the procedures and read the dictionary, readers read the views of calendars and days, and
-- nobody else has any right. The procedures run with their owner's rights, so operators need none on a table. Which
-- currencies there are is decided by administrators, who are members of the owner: CldIUCurrency and CldIUConvention are for nobody else.
-- Downstream systems are readers: they get closed days and conventions by a call, and ask for business days and value dates. The
-- history names people: operators see it through CldGetHistory, to undo what went wrong, and no view of it is for readers.

REVOKE ALL ON SCHEMA ferrowind FROM PUBLIC;
REVOKE ALL ON ALL TABLES IN SCHEMA ferrowind FROM PUBLIC;
REVOKE ALL ON ALL ROUTINES IN SCHEMA ferrowind FROM PUBLIC;

GRANT USAGE ON SCHEMA ferrowind TO ferrowind_operator, ferrowind_reader;
GRANT EXECUTE ON PROCEDURE CldAllInfo, CldGetMain, CldIUMain, CldIUCelebrate, CldGetBook, CldIUBook, CldGetFingerprint,
  CldApplyPlan, CldUndo, CldGetHistory, CldGetAsOf, CldGetClosedDays, CldGetMarkedDays, CldGetCurrencies,
  CldGetContent, CldGetConventions
TO ferrowind_operator;
GRANT EXECUTE ON PROCEDURE CldGetClosedDays, CldGetConventions TO ferrowind_reader;
GRANT EXECUTE ON FUNCTION IsBusinessDay(text, date), IsBusinessDay(text[], date), AddBusinessDays(text, date, integer),
  AddBusinessDays(text[], date, integer), AdjustDate(text, date, text), AdjustDate(text[], date, text),
  SpotDate(text, date, boolean), ValueDate(text, date, text, boolean)
TO ferrowind_operator, ferrowind_reader;
GRANT SELECT ON DictionaryCcy TO ferrowind_operator;
GRANT SELECT ON CalendarList, CalendarDay TO ferrowind_reader;

-- The database itself belongs to whoever created it.
RESET ROLE;
DO $$
BEGIN
  EXECUTE format('REVOKE ALL ON DATABASE %I FROM PUBLIC', current_database());
  EXECUTE format('GRANT CONNECT ON DATABASE %I TO ferrowind_owner, ferrowind_operator, ferrowind_reader',
                 current_database());
END $$;
REVOKE ALL ON SCHEMA public FROM PUBLIC;

-- Anyone who may connect may otherwise fill the disk with large objects. Only a superuser can forbid it.
DO $$
BEGIN
  IF (SELECT rolsuper FROM pg_roles WHERE rolname = current_user) THEN
    REVOKE EXECUTE ON FUNCTION pg_catalog.lo_creat(integer), pg_catalog.lo_create(oid),
      pg_catalog.lo_from_bytea(oid, bytea) FROM PUBLIC;
  END IF;
END $$;

-- What the windows need before a calendar is chosen: calendars, holiday types, holiday rules, first weekday.
-- The cursors see the tables one moment after the other; none shows what another one must have.
CREATE PROCEDURE CldAllInfo(
  INOUT "RETURN_VALUE" integer DEFAULT NULL,
  INOUT "Calendars" refcursor DEFAULT 'Calendars',
  INOUT "Types" refcursor DEFAULT 'Types',
  INOUT "Rules" refcursor DEFAULT 'Rules',
  INOUT "Setting" refcursor DEFAULT 'Setting'
)
LANGUAGE plpgsql SECURITY DEFINER SET search_path = ferrowind, pg_temp
AS $$
BEGIN
  OPEN "Calendars" FOR
    SELECT ID1 AS "ID1", Year1 AS "Year1" FROM CldCalendar ORDER BY ID1, Year1;
  OPEN "Types" FOR
    SELECT TID1 AS "TID1", Description1 AS "Description1" FROM CldHolidayType ORDER BY TID1;
  OPEN "Rules" FOR
    SELECT ID2 AS "ID2", Name1 AS "Name1", Comment AS "Comment", TID1 AS "TID1", D1 AS "D1", MY AS "MY", MD AS "MD",
      WD AS "WD", Del AS "Del"
    FROM CldHoliday ORDER BY ID2;
  OPEN "Setting" FOR
    SELECT FirstDay AS "FirstDay" FROM CldSetting;
  "RETURN_VALUE" := 0;
END
$$;

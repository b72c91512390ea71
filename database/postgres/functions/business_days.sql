-- Questions about business days, as ferrowind/business_days answers them. They are for readers and fail with a state of the
-- class WD: WD001 a day that the answer depends on is not prepared, WD002 everything is closed for a year, or in the month that
-- must not be left, WD003 there is no calendar of that currency, WD004 no such question. Their plans are made once: the server would
-- otherwise make one for each question, which takes longer than to answer it.

-- The numbers of the currencies, each once, in their order. Refuses what no question can be about.
CREATE OR REPLACE FUNCTION AskedCalendars(ccys text[], day date) RETURNS integer[]
LANGUAGE plpgsql STABLE PARALLEL SAFE
AS $$
DECLARE
  ids integer[];
  missing text[];
BEGIN
  IF day NOT BETWEEN '0001-01-01' AND '9999-12-31' THEN
    RAISE EXCEPTION USING ERRCODE = 'WD004', MESSAGE = format('%s is not between 0001-01-01 and 9999-12-31', day);
  END IF;
  SELECT array_agg(CcyID ORDER BY place), array_agg(code ORDER BY place) FILTER (WHERE CcyID IS NULL) INTO ids, missing
  FROM (
    SELECT upper(written COLLATE "C") AS code, min(place) AS place FROM unnest(ccys) WITH ORDINALITY AS given (written, place)
    GROUP BY code
  ) AS asked LEFT JOIN DicCcy ON Ccy = code AND EXISTS (SELECT FROM CldDay WHERE ID1 = CcyID);
  IF missing IS NOT NULL THEN
    RAISE EXCEPTION USING ERRCODE = 'WD003', MESSAGE = format('There is no calendar of %s', coalesce(missing[1], 'null'));
  ELSIF ids IS NULL THEN
    RAISE EXCEPTION USING ERRCODE = 'WD004', MESSAGE = 'A joint calendar needs at least one currency';
  END IF;
  RETURN ids;
END
$$;

-- The days from `first` on to `last` of the same year, which may be the earlier one, that are not closed: open for all, or not
-- known of all. A year that is closed on weekends at most is not known, since nobody has entered its holidays, as
-- CldGetClosedDays tells; that is looked at once for all of its days. They come in that order, since each is looked up when the
-- one before was taken; whoever needs few limits them, and no more are.
CREATE OR REPLACE FUNCTION DaysNotClosed(ids integer[], first date, last date) RETURNS TABLE (day date, is_known boolean)
LANGUAGE sql STABLE PARALLEL SAFE
AS $$
  SELECT series.day, state.is_known
  FROM (
    SELECT first + CASE WHEN last < first THEN -1 ELSE 1 END * generate_series(0, abs(last - first)) AS day
  ) AS series CROSS JOIN LATERAL (
    SELECT count(*) = cardinality(ids) AND (
      SELECT count(*) = cardinality(ids) FROM unnest(ids) AS id
      -- In order, so that the server stops at the first one, mostly New Year's Day, and does not take in the year.
      WHERE (SELECT TID1 FROM CldDay WHERE ID1 = id AND Year1 = extract(year FROM first)::integer AND TID1 > 2
             ORDER BY Day1 LIMIT 1) IS NOT NULL
    ) AS is_known, bool_and(TID1 = 1) AS is_open
    FROM CldDay
    WHERE ID1 = ANY (ids) AND Year1 = extract(year FROM first)::integer AND Day1 = extract(doy FROM series.day)::integer
  ) AS state
  WHERE state.is_open OR NOT state.is_known
$$;

-- Names the first of the currencies whose day nobody has prepared.
CREATE OR REPLACE FUNCTION FailNotPrepared(ids integer[], day date) RETURNS void
LANGUAGE plpgsql STABLE PARALLEL SAFE
AS $$
BEGIN
  RAISE EXCEPTION USING ERRCODE = 'WD001', MESSAGE = format('%s %s is not prepared', (
    SELECT Ccy FROM unnest(ids) WITH ORDINALITY AS asked (id, place) JOIN DicCcy ON CcyID = id
    WHERE NOT EXISTS (SELECT FROM CldDay WHERE ID1 = id AND Year1 = extract(year FROM day)::integer AND TID1 > 2)
    ORDER BY place LIMIT 1), extract(year FROM day));
END
$$;

CREATE OR REPLACE FUNCTION FailNoBusinessDay(ids integer[], place text) RETURNS void
LANGUAGE plpgsql STABLE PARALLEL SAFE
AS $$
BEGIN
  RAISE EXCEPTION USING ERRCODE = 'WD002', MESSAGE = format('no business day of %s %s', (
    SELECT string_agg(Ccy, '+' ORDER BY n) FROM unnest(ids) WITH ORDINALITY AS asked (id, n) JOIN DicCcy ON CcyID = id), place);
END
$$;

-- Whether the day is open for all.
CREATE OR REPLACE FUNCTION IsOpenDay(ids integer[], day date) RETURNS boolean
LANGUAGE plpgsql STABLE PARALLEL SAFE
AS $$
DECLARE
  is_open boolean;
  is_prepared boolean;
BEGIN
  SELECT bool_and(TID1 = 1), count(*) = cardinality(ids) INTO is_open, is_prepared
  FROM CldDay
  WHERE ID1 = ANY (ids) AND Year1 = extract(year FROM day)::integer AND Day1 = extract(doy FROM day)::integer
    AND (SELECT entered.TID1 FROM CldDay AS entered
         WHERE entered.ID1 = CldDay.ID1 AND entered.Year1 = CldDay.Year1 AND entered.TID1 > 2
         ORDER BY entered.Day1 LIMIT 1) IS NOT NULL;
  IF NOT is_prepared THEN
    PERFORM FailNotPrepared(ids, day);
  END IF;
  RETURN is_open;
END
$$;

-- The first business day from `first` on to `last` of the same year, which may be the earlier one; null when there is none.
CREATE OR REPLACE FUNCTION FirstBusinessDay(ids integer[], first date, last date) RETURNS date
LANGUAGE plpgsql STABLE PARALLEL SAFE
AS $$
DECLARE
  found_day date;
  is_prepared boolean;
BEGIN
  SELECT day, is_known INTO found_day, is_prepared FROM DaysNotClosed(ids, first, last) LIMIT 1;
  IF NOT is_prepared THEN
    PERFORM FailNotPrepared(ids, found_day);
  END IF;
  RETURN found_day;
END
$$;

-- The count-th business day after the day, before it when count is negative.
CREATE OR REPLACE FUNCTION CountedBusinessDay(ids integer[], day date, count integer) RETURNS date
LANGUAGE plpgsql STABLE PARALLEL SAFE
AS $$
DECLARE
  longest_search constant integer := 366;
  step constant integer := sign(count);
  first date := day + step;
  last date;
  reached date := day;
  found_day date;
  is_prepared boolean;
BEGIN
  -- Year by year, and no further than needed.
  WHILE count <> 0 AND abs(first - reached) <= longest_search LOOP
    last := CASE step WHEN 1 THEN make_date(extract(year FROM first)::integer, 12, 31)
                      ELSE make_date(extract(year FROM first)::integer, 1, 1) END;
    FOR found_day, is_prepared IN SELECT d.day, d.is_known FROM DaysNotClosed(ids, first, last) AS d LIMIT abs(count::bigint) LOOP
      EXIT WHEN abs(found_day - reached) > longest_search;
      IF NOT is_prepared THEN
        PERFORM FailNotPrepared(ids, found_day);
      END IF;
      reached := found_day;
      count := count - step;
    END LOOP;
    first := last + step;
  END LOOP;
  IF count <> 0 THEN
    PERFORM FailNoBusinessDay(ids, format('within a year %s %s', CASE step WHEN 1 THEN 'after' ELSE 'before' END, reached::text));
  END IF;
  RETURN reached;
END
$$;

-- The first business day from the day on to `preferred`, else the first one back to `other`: the ends of what must not be left.
CREATE OR REPLACE FUNCTION BusinessDayWithin(ids integer[], day date, preferred date, other date) RETURNS date
LANGUAGE plpgsql STABLE PARALLEL SAFE
AS $$
DECLARE
  found_day date := coalesce(FirstBusinessDay(ids, day, preferred), FirstBusinessDay(ids, day, other));
BEGIN
  IF found_day IS NULL THEN
    PERFORM FailNoBusinessDay(ids, format('from %s to %s', least(preferred, other)::text, greatest(preferred, other)::text));
  END IF;
  RETURN found_day;
END
$$;

CREATE OR REPLACE FUNCTION LastDayOfMonth(day date) RETURNS date
LANGUAGE sql IMMUTABLE PARALLEL SAFE
AS $$
  SELECT make_date(extract(year FROM day)::integer, extract(month FROM day)::integer, 1)
    + make_interval(months => 1) - make_interval(days => 1)
$$;

-- The day when it is a business day, else where the convention moves it.
CREATE OR REPLACE FUNCTION AdjustedDay(ids integer[], day date, convention text) RETURNS date
LANGUAGE plpgsql STABLE PARALLEL SAFE
AS $$
DECLARE
  wanted constant text := upper(convention COLLATE "C");
  first_of_month constant date := day - (extract(day FROM day)::integer - 1);
  last_of_month constant date := LastDayOfMonth(day);
  is_late constant boolean := extract(day FROM day) > 15;
BEGIN
  IF wanted IN ('UNADJUSTED', 'NONE') THEN
    RETURN day;
  ELSIF wanted NOT IN ('FOLLOWING', 'F', 'MODIFIEDFOLLOWING', 'MF', 'MODIFIEDFOLLOWINGBIMONTHLY', 'MFBM', 'PRECEDING', 'P',
                       'MODIFIEDPRECEDING', 'MP', 'NEAREST', 'N') THEN
    RAISE EXCEPTION USING ERRCODE = 'WD004', MESSAGE = format('"%s" is no convention: Following, ModifiedFollowing, '
      'ModifiedFollowingBimonthly, Preceding, ModifiedPreceding, Nearest, Unadjusted', convention);
  END IF;
  IF IsOpenDay(ids, day) THEN
    RETURN day;
  END IF;
  RETURN CASE
    WHEN wanted IN ('FOLLOWING', 'F') THEN CountedBusinessDay(ids, day, 1)
    WHEN wanted IN ('MODIFIEDFOLLOWING', 'MF') THEN BusinessDayWithin(ids, day, last_of_month, first_of_month)
    WHEN wanted IN ('MODIFIEDFOLLOWINGBIMONTHLY', 'MFBM') THEN BusinessDayWithin(ids, day,
      CASE WHEN is_late THEN last_of_month ELSE first_of_month + 14 END,
      CASE WHEN is_late THEN first_of_month + 15 ELSE first_of_month END)
    WHEN wanted IN ('PRECEDING', 'P') THEN CountedBusinessDay(ids, day, -1)
    WHEN wanted IN ('MODIFIEDPRECEDING', 'MP') THEN BusinessDayWithin(ids, day, first_of_month, last_of_month)
    ELSE CountedBusinessDay(ids, day, CASE WHEN extract(dow FROM day) IN (0, 1) THEN 1 ELSE -1 END)
  END;
END
$$;

-- Whether the day is open for the currency, for all of several.
CREATE OR REPLACE FUNCTION IsBusinessDay(ccys text[], day date) RETURNS boolean
LANGUAGE plpgsql STABLE STRICT PARALLEL SAFE SECURITY DEFINER
SET search_path = ferrowind, pg_temp SET plan_cache_mode = force_generic_plan
AS $$
BEGIN
  RETURN IsOpenDay(AskedCalendars(ccys, day), day);
END
$$;

CREATE OR REPLACE FUNCTION IsBusinessDay(ccy text, day date) RETURNS boolean
LANGUAGE plpgsql STABLE STRICT PARALLEL SAFE SECURITY DEFINER
SET search_path = ferrowind, pg_temp SET plan_cache_mode = force_generic_plan
AS $$
BEGIN
  RETURN IsBusinessDay(ARRAY[ccy], day);
END
$$;

-- The count-th business day after the day, before it when count is negative; with 0 the day as it is.
CREATE OR REPLACE FUNCTION AddBusinessDays(ccys text[], day date, count integer) RETURNS date
LANGUAGE plpgsql STABLE STRICT PARALLEL SAFE SECURITY DEFINER
SET search_path = ferrowind, pg_temp SET plan_cache_mode = force_generic_plan
AS $$
BEGIN
  RETURN CountedBusinessDay(AskedCalendars(ccys, day), day, count);
END
$$;

CREATE OR REPLACE FUNCTION AddBusinessDays(ccy text, day date, count integer) RETURNS date
LANGUAGE plpgsql STABLE STRICT PARALLEL SAFE SECURITY DEFINER
SET search_path = ferrowind, pg_temp SET plan_cache_mode = force_generic_plan
AS $$
BEGIN
  RETURN AddBusinessDays(ARRAY[ccy], day, count);
END
$$;

-- The day when it is a business day, else where the convention moves it.
CREATE OR REPLACE FUNCTION AdjustDate(ccys text[], day date, convention text) RETURNS date
LANGUAGE plpgsql STABLE STRICT PARALLEL SAFE SECURITY DEFINER
SET search_path = ferrowind, pg_temp SET plan_cache_mode = force_generic_plan
AS $$
BEGIN
  RETURN AdjustedDay(AskedCalendars(ccys, day), day, convention);
END
$$;

CREATE OR REPLACE FUNCTION AdjustDate(ccy text, day date, convention text) RETURNS date
LANGUAGE plpgsql STABLE STRICT PARALLEL SAFE SECURITY DEFINER
SET search_path = ferrowind, pg_temp SET plan_cache_mode = force_generic_plan
AS $$
BEGIN
  RETURN AdjustDate(ARRAY[ccy], day, convention);
END
$$;

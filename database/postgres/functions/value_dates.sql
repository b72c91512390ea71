-- On which days trades in a currency pair settle, as ValueDates of ferrowind/business_days tells.

-- What a pair, "EURUSD" or "EUR/USD", is counted by: the days to spot, the currencies whose business days count, those that are
-- open on a trade date, and those that are open where a trade settles.
CREATE OR REPLACE FUNCTION PairTerms(pair text, trade_date date, OUT name text, OUT spot_days integer, OUT counting integer[],
                                     OUT trading integer[], OUT settlement integer[])
LANGUAGE plpgsql STABLE PARALLEL SAFE
AS $$
DECLARE
  letters constant text := upper(pair COLLATE "C");
  base constant text := left(letters, 3);
  quote constant text := right(letters, 3);
  dollar integer;
  dollar_stops boolean;
BEGIN
  IF letters !~ '^[A-Z]{3}/?[A-Z]{3}$' THEN
    RAISE EXCEPTION USING ERRCODE = 'WD004', MESSAGE = format('"%s" is no currency pair, which is written EURUSD or EUR/USD', pair);
  ELSIF base = quote THEN
    RAISE EXCEPTION USING ERRCODE = 'WD004', MESSAGE = format('"%s" has the same currency twice', pair);
  END IF;
  name := base || '/' || quote;
  settlement := AskedCalendars(ARRAY[base, quote, 'USD'], trade_date);
  trading := settlement[1:2];
  dollar := settlement[CASE 'USD' WHEN base THEN 1 WHEN quote THEN 2 ELSE 3 END];

  spot_days := coalesce(
    (SELECT c.SpotDays FROM CldConvention c
     WHERE c.ID1 = least(trading[1], trading[2]) AND c.OtherID = greatest(trading[1], trading[2])),
    (SELECT d.SpotDays FROM DeliveredConventions() d
     WHERE d.Ccy = base AND d.OtherCcy = quote OR d.Ccy = quote AND d.OtherCcy = base),
    2);
  SELECT bool_or(coalesce(
    (SELECT c.DollarStops FROM CldConvention c WHERE c.ID1 = one.id AND c.OtherID = one.id),
    (SELECT d.DollarStops FROM DeliveredConventions() d WHERE d.Ccy = one.code AND d.OtherCcy IS NULL),
    0) = 1)
  INTO dollar_stops FROM unnest(trading, ARRAY[base, quote]) AS one (id, code);
  counting := array_remove(trading, dollar);
  IF dollar_stops THEN
    counting := counting || dollar;
  END IF;
END
$$;

-- Each currency counts for itself, and the later day holds.
CREATE OR REPLACE FUNCTION SpotFrom(started date, spot_days integer, counting integer[], settlement integer[]) RETURNS date
LANGUAGE plpgsql STABLE PARALLEL SAFE
AS $$
DECLARE
  spot date := started;
  id integer;
BEGIN
  FOREACH id IN ARRAY counting LOOP
    spot := greatest(spot, CountedBusinessDay(ARRAY[id], started, spot_days));
  END LOOP;
  RETURN AdjustedDay(settlement, spot, 'Following');
END
$$;

-- Months behind spot: from the last business day of a month to the last one of a month (end-end), else by Modified Following.
CREATE OR REPLACE FUNCTION MonthsAfterSpot(settlement integer[], spot date, months integer) RETURNS date
LANGUAGE plpgsql STABLE PARALLEL SAFE
AS $$
DECLARE
  same_day constant date := spot + make_interval(months => months);
  last_of_month constant date := LastDayOfMonth(same_day);
BEGIN
  IF FirstBusinessDay(settlement, LastDayOfMonth(spot), spot) = spot THEN
    RETURN BusinessDayWithin(settlement, last_of_month, last_of_month,
                             last_of_month - (extract(day FROM last_of_month)::integer - 1));
  END IF;
  RETURN AdjustedDay(settlement, same_day, 'ModifiedFollowing');
END
$$;

-- The n-th third Wednesday of March, June, September and December after the day.
CREATE OR REPLACE FUNCTION ThirdWednesdayAfter(day date, n integer) RETURNS date
LANGUAGE sql IMMUTABLE PARALLEL SAFE
AS $$
  SELECT wednesday
  FROM (
    SELECT first_day + 14 + (10 - extract(dow FROM first_day)::integer) % 7 AS wednesday
    FROM (
      SELECT (make_date(extract(year FROM day)::integer, 3, 1) + make_interval(months => 3 * quarter))::date AS first_day
      FROM generate_series(0, n + 4) AS quarter
    ) AS months
  ) AS wednesdays
  WHERE wednesday > day ORDER BY wednesday OFFSET n - 1 LIMIT 1
$$;

-- On which day a trade of that tenor settles. A trade date on which a currency of the pair is closed counts as the next day on
-- which both are open, unless it stays.
CREATE OR REPLACE FUNCTION ValueDate(pair text, trade_date date, tenor text, trade_date_stays boolean DEFAULT false) RETURNS date
LANGUAGE plpgsql STABLE STRICT PARALLEL SAFE SECURITY DEFINER
SET search_path = ferrowind, pg_temp SET plan_cache_mode = force_generic_plan
AS $$
DECLARE
  letters constant text := upper(tenor COLLATE "C");
  unit constant text := CASE
    WHEN letters IN ('ON', 'O/N') THEN 'ON'
    WHEN letters IN ('TN', 'T/N') THEN 'TN'
    WHEN letters IN ('SPOT', 'SP') THEN 'SPOT'
    WHEN letters IN ('SN', 'S/N') THEN 'SN'
    WHEN letters IN ('SW', 'S/W') THEN 'W'
    WHEN letters ~ '^IMM[1-4]$' THEN 'IMM'
    WHEN letters ~ '^0*[0-9]{1,5}[DWMY]$' THEN right(letters, 1) END;
  count constant integer := CASE
    WHEN letters ~ '^IMM' THEN right(letters, 1)::integer
    WHEN letters ~ '^[0-9]+.$' AND unit IS NOT NULL THEN left(letters, -1)::integer
    ELSE 1 END;
  -- A hundred years.
  most constant integer := CASE unit WHEN 'D' THEN 36525 WHEN 'W' THEN 5217 WHEN 'M' THEN 1200 WHEN 'Y' THEN 100 ELSE 4 END;
  terms record;
  started date := trade_date;
  overnight date;
  spot date;
BEGIN
  IF unit IS NULL OR count NOT BETWEEN 1 AND most THEN
    RAISE EXCEPTION USING ERRCODE = 'WD004', MESSAGE = format('"%s" is no tenor: ON, TN, SPOT, SN, SW, IMM1 to IMM4, or a number of '
      'days, weeks, months or years up to 100 years, as 10D, 2W, 3M, 1Y', tenor);
  END IF;
  terms := PairTerms(pair, trade_date);
  IF NOT trade_date_stays THEN
    started := AdjustedDay(terms.trading, trade_date, 'Following');
  END IF;
  IF unit IN ('ON', 'TN') THEN
    overnight := CountedBusinessDay(terms.settlement, started, 1);
    IF unit = 'ON' THEN
      RETURN overnight;
    ELSIF terms.spot_days < 2 THEN
      RETURN CountedBusinessDay(terms.settlement, overnight, 1);
    END IF;
  END IF;

  spot := SpotFrom(started, terms.spot_days, terms.counting, terms.settlement);
  IF unit = 'TN' AND overnight >= spot THEN
    RAISE EXCEPTION USING ERRCODE = 'WD004',
      MESSAGE = format('%s has no TN on that day: its ON settles on the spot date already', terms.name);
  END IF;
  RETURN CASE unit
    WHEN 'SN' THEN CountedBusinessDay(terms.settlement, spot, 1)
    WHEN 'D' THEN AdjustedDay(terms.settlement, spot + count, 'Following')
    WHEN 'W' THEN AdjustedDay(terms.settlement, spot + 7 * count, 'Following')
    WHEN 'M' THEN MonthsAfterSpot(terms.settlement, spot, count)
    WHEN 'Y' THEN MonthsAfterSpot(terms.settlement, spot, 12 * count)
    WHEN 'IMM' THEN AdjustedDay(terms.settlement, ThirdWednesdayAfter(spot, count), 'Following')
    ELSE spot END;
END
$$;

CREATE OR REPLACE FUNCTION SpotDate(pair text, trade_date date, trade_date_stays boolean DEFAULT false) RETURNS date
LANGUAGE plpgsql STABLE STRICT PARALLEL SAFE SECURITY DEFINER
SET search_path = ferrowind, pg_temp SET plan_cache_mode = force_generic_plan
AS $$
BEGIN
  RETURN ValueDate(pair, trade_date, 'SPOT', trade_date_stays);
END
$$;

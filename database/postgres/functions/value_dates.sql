-- On which days trades in a currency pair settle, as ValueDates of ferrowind/business_days tells.

-- What a pair, "EURUSD" or "EUR/USD", is counted by: the days to spot, which are the weekdays that the dollar counts; the currencies
-- whose business days count, and how many of each; those that are open on a trade date, and those that are open where a trade
-- settles. Whether they have calendars is not looked at; a currency that there is not is null.
CREATE OR REPLACE FUNCTION PairTerms(pair text, OUT name text, OUT codes text[], OUT spot_days integer, OUT counting integer[],
                                     OUT counts integer[], OUT trading integer[], OUT settlement integer[])
LANGUAGE plpgsql STABLE PARALLEL SAFE
AS $$
DECLARE
  letters constant text := upper(pair COLLATE "C");
  base constant text := left(letters, 3);
  quote constant text := right(letters, 3);
  base_id integer;
  quote_id integer;
  dollar_id integer;
  base_days integer;
  quote_days integer;
  base_stops integer;
  quote_stops integer;
BEGIN
  IF letters !~ '^[A-Z]{3}/?[A-Z]{3}$' THEN
    RAISE EXCEPTION USING ERRCODE = 'WD004', MESSAGE = format('"%s" is no currency pair, which is written EURUSD or EUR/USD', pair);
  ELSIF base = quote THEN
    RAISE EXCEPTION USING ERRCODE = 'WD004', MESSAGE = format('"%s" has the same currency twice', pair);
  END IF;
  name := base || '/' || quote;
  codes := ARRAY[base, quote, 'USD'];

  SELECT max(CcyID) FILTER (WHERE Ccy = base), max(CcyID) FILTER (WHERE Ccy = quote), max(CcyID) FILTER (WHERE Ccy = 'USD')
  INTO base_id, quote_id, dollar_id FROM DicCcy WHERE Ccy = ANY (codes);
  SELECT max(SpotDays) FILTER (WHERE base_id IN (ID1, OtherID) AND quote_id IN (ID1, OtherID)),
    max(SpotDays) FILTER (WHERE base_id IN (ID1, OtherID) AND dollar_id IN (ID1, OtherID)),
    max(SpotDays) FILTER (WHERE quote_id IN (ID1, OtherID) AND dollar_id IN (ID1, OtherID)),
    max(DollarStops) FILTER (WHERE ID1 = base_id), max(DollarStops) FILTER (WHERE ID1 = quote_id)
  INTO spot_days, base_days, quote_days, base_stops, quote_stops
  FROM CldConvention
  WHERE ID1 IN (base_id, quote_id, dollar_id) AND OtherID IN (base_id, quote_id, dollar_id);
  spot_days := coalesce(spot_days, DeliveredSpotDays(base, quote));
  -- A pair that nobody has named counts as its currencies do against the dollar.
  base_days := coalesce(spot_days, base_days, DeliveredSpotDays(base, 'USD'), 2);
  quote_days := coalesce(spot_days, quote_days, DeliveredSpotDays(quote, 'USD'), 2);
  spot_days := CASE 'USD' WHEN base THEN quote_days WHEN quote THEN base_days ELSE greatest(base_days, quote_days) END;
  trading := ARRAY[base_id, quote_id];
  settlement := CASE WHEN 'USD' IN (base, quote) THEN trading ELSE trading || dollar_id END;
  counting := array_remove(trading, dollar_id);
  counts := CASE 'USD' WHEN base THEN ARRAY[quote_days] WHEN quote THEN ARRAY[base_days] ELSE ARRAY[base_days, quote_days] END;
  IF 1 IN (coalesce(base_stops, DeliveredDollarStops(base)), coalesce(quote_stops, DeliveredDollarStops(quote))) THEN
    counting := counting || dollar_id;
    counts := counts || spot_days;
  END IF;
END
$$;

-- The count-th day from Monday to Friday behind the day. With 0 the last one up to it.
CREATE OR REPLACE FUNCTION CountedWeekday(day date, count integer) RETURNS date
LANGUAGE sql IMMUTABLE PARALLEL SAFE
AS $$
  -- From the Friday before a weekend, past the weekends that begin on the way.
  SELECT day - greatest(extract(isodow FROM day)::integer - 5, 0) + count
    + (least(extract(isodow FROM day)::integer, 5) - 1 + count) / 5 * 2
$$;

-- The spot date when it, and all that it depends on, lies within a week of the trade date and in the same year, and all of its
-- days are known: nearly always, by a single look at the days. Null when it does not, or anything is missing. Of each currency
-- a number has a bit for each of these days, the trade date's first, which is set when the day is closed. A day behind them
-- passes for open: a search that reaches one ends there, and is given up.
CREATE OR REPLACE FUNCTION NearSpot(trade_date date, trade_date_stays boolean, spot_days integer, counting integer[],
                                    counts integer[], settlement integer[]) RETURNS date
LANGUAGE plpgsql STABLE PARALLEL SAFE
AS $$
DECLARE
  last_seen constant integer := 7;
  of_year constant integer := extract(year FROM trade_date);
  first constant integer := extract(doy FROM trade_date);
  closed integer[];
  is_known boolean;
  day_count bigint;
  started integer := 0;
  closed_days integer;
  days_left integer;
  reached integer;
  spot integer;
BEGIN
  SELECT count(*), ARRAY[coalesce(bit_or(1 << (Day1 - first)) FILTER (WHERE ID1 = settlement[1] AND TID1 <> 1), 0),
                         coalesce(bit_or(1 << (Day1 - first)) FILTER (WHERE ID1 = settlement[2] AND TID1 <> 1), 0),
                         coalesce(bit_or(1 << (Day1 - first)) FILTER (WHERE ID1 = settlement[3] AND TID1 <> 1), 0)],
    NOT EXISTS (
      SELECT FROM unnest(settlement) AS one (id)
      WHERE (SELECT entered.TID1 FROM CldDay AS entered WHERE entered.ID1 = one.id AND entered.Year1 = of_year AND entered.TID1 > 2
             ORDER BY entered.Day1 LIMIT 1) IS NULL)
  INTO day_count, closed, is_known
  FROM CldDay
  WHERE ID1 = ANY (settlement) AND Year1 = of_year AND Day1 BETWEEN first AND first + last_seen;
  IF NOT is_known OR day_count <> cardinality(settlement) * (last_seen + 1) THEN
    RETURN NULL;
  END IF;

  WHILE NOT trade_date_stays AND (closed[1] | closed[2]) >> started & 1 = 1 LOOP
    started := started + 1;
  END LOOP;
  spot := greatest(started, CountedWeekday(trade_date + started, spot_days) - trade_date);
  FOR place IN 1 .. cardinality(counting) LOOP
    closed_days := closed[array_position(settlement, counting[place])];
    reached := started;
    days_left := counts[place];
    WHILE days_left > 0 LOOP
      reached := reached + 1;
      days_left := days_left - 1 + (closed_days >> reached & 1);
    END LOOP;
    spot := greatest(spot, reached);
  END LOOP;
  WHILE (closed[1] | closed[2] | closed[3]) >> spot & 1 = 1 LOOP
    spot := spot + 1;
  END LOOP;
  RETURN CASE WHEN spot <= last_seen THEN trade_date + spot END;
END
$$;

-- Each currency counts for itself, of the dollar's days at least its weekdays, and the latest day holds.
CREATE OR REPLACE FUNCTION SpotFrom(started date, spot_days integer, counting integer[], counts integer[], settlement integer[])
RETURNS date
LANGUAGE plpgsql STABLE PARALLEL SAFE
AS $$
DECLARE
  spot date := greatest(started, CountedWeekday(started, spot_days));
BEGIN
  FOR place IN 1 .. cardinality(counting) LOOP
    spot := greatest(spot, CountedBusinessDay(counting[place:place], started, counts[place]));
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
CREATE OR REPLACE FUNCTION PairValueDate(pair text, trade_date date, tenor text, trade_date_stays boolean) RETURNS date
LANGUAGE plpgsql STABLE PARALLEL SAFE
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
  terms := PairTerms(pair);
  IF unit NOT IN ('ON', 'TN') AND trade_date BETWEEN '1900-01-01' AND '3000-12-31' THEN
    spot := NearSpot(trade_date, trade_date_stays, terms.spot_days, terms.counting, terms.counts, terms.settlement);
  END IF;
  IF spot IS NULL THEN
    PERFORM AskedCalendars(terms.codes, trade_date);
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
    spot := SpotFrom(started, terms.spot_days, terms.counting, terms.counts, terms.settlement);
  END IF;
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

CREATE OR REPLACE FUNCTION ValueDate(pair text, trade_date date, tenor text, trade_date_stays boolean DEFAULT false) RETURNS date
LANGUAGE plpgsql STABLE STRICT PARALLEL SAFE SECURITY DEFINER
SET search_path = ferrowind, pg_temp SET plan_cache_mode = force_generic_plan
AS $$
BEGIN
  RETURN PairValueDate(pair, trade_date, tenor, trade_date_stays);
END
$$;

CREATE OR REPLACE FUNCTION SpotDate(pair text, trade_date date, trade_date_stays boolean DEFAULT false) RETURNS date
LANGUAGE plpgsql STABLE STRICT PARALLEL SAFE SECURITY DEFINER
SET search_path = ferrowind, pg_temp SET plan_cache_mode = force_generic_plan
AS $$
BEGIN
  RETURN PairValueDate(pair, trade_date, 'SPOT', trade_date_stays);
END
$$;

-- The days of the plan `days` for the year, in their order, or null when the text is no plan for that year; nothing that a
-- text can hold makes it fail. An item without dates has one row without Day1.
CREATE OR REPLACE FUNCTION PlannedDays(days text, of_year integer) RETURNS PlannedDay[]
LANGUAGE plpgsql STABLE
AS $$
DECLARE
  largest_size constant integer := 1048576;
  plan json;
  is_fit boolean;
  planned PlannedDay[];
BEGIN
  IF octet_length(days) > largest_size THEN
    RETURN NULL;
  END IF;
  plan := days::json;
  IF NOT IsListOfObjects(plan,
    '{"Name1": "text?", "TID1": "type", "Comment": "text?", "DayComment": "text?", "Dates": "list"}')
  THEN
    RETURN NULL;
  END IF;

  SELECT
    coalesce(bool_and(date.n IS NULL OR year.day IS NOT NULL), true) AND count(year.day) = count(DISTINCT year.day),
    coalesce(array_agg(ROW(item.n, item.value ->> 'Name1', item.value ->> 'TID1', NULL, item.value ->> 'Comment',
      item.value ->> 'DayComment', year.day)::PlannedDay ORDER BY item.n, date.n), '{}')
  INTO is_fit, planned
  FROM json_array_elements(plan) WITH ORDINALITY AS item (value, n)
    LEFT JOIN json_array_elements(item.value -> 'Dates') WITH ORDINALITY AS date (value, n) ON true
    LEFT JOIN (
      SELECT day, to_char(make_date(of_year, 1, 1) + (day - 1), 'YYYY-MM-DD') AS text
      FROM generate_series(1, make_date(of_year + 1, 1, 1) - make_date(of_year, 1, 1)) AS day
    ) AS year ON json_typeof(date.value) = 'string' AND year.text = date.value #>> '{}';
  RETURN CASE WHEN is_fit THEN planned END;
EXCEPTION
  -- No JSON, a character or a number that the server does not have, and lists within lists without end.
  WHEN data_exception OR program_limit_exceeded THEN
    RETURN NULL;
END
$$;

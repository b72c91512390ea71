-- Whether `given` is a JSON list of objects of which each has a known name of `shape` once at most and with a value of that
-- kind: "text", "text?" (may be missing or null), "type" (a rule's type, 1 to 4) or "list". May fail with a data exception on
-- what is no such list.
CREATE OR REPLACE FUNCTION IsListOfObjects(given json, shape json) RETURNS boolean
LANGUAGE sql STABLE
AS $$
  SELECT json_typeof(given) = 'array' AND coalesce(bool_and(item.is_fit), true)
  FROM (
    SELECT count(field.name) = count(DISTINCT field.name)
      AND coalesce(bool_and(CASE json_typeof(field.value)
        WHEN 'string' THEN shape ->> field.name IN ('text', 'text?')
        WHEN 'number' THEN shape ->> field.name = 'type' AND field.value::text IN ('1', '2', '3', '4')
        WHEN 'array' THEN shape ->> field.name = 'list'
        WHEN 'null' THEN shape ->> field.name = 'text?'
      END IS TRUE), true)
      AND count(field.name) FILTER (WHERE shape ->> field.name NOT LIKE '%?')
        = (SELECT count(*) FROM json_each_text(shape) AS wanted WHERE wanted.value NOT LIKE '%?')
      AS is_fit
    FROM json_array_elements(given) WITH ORDINALITY AS list (value, n)
      LEFT JOIN json_each(list.value) AS field (name, value) ON true
    GROUP BY list.n
  ) AS item
$$;

-- Texts that two contents have in common when, and as good as only when, they are equal. SHA-256, because a server that
-- keeps to the rules for federal cryptography refuses MD5.

CREATE OR REPLACE FUNCTION CalendarFingerprint(of_currency integer, of_year integer) RETURNS text
LANGUAGE sql STABLE
AS $$
  SELECT encode(sha256(convert_to(
    string_agg(concat_ws(',', d.TID1, d.ID2, quote_nullable(h.Name1), quote_nullable(d.Comment)), ';' ORDER BY d.Day1),
    'UTF8')), 'hex')
  FROM CldDay d LEFT JOIN CldHoliday h ON h.ID2 = d.ID2
  WHERE d.ID1 = of_currency AND d.Year1 = of_year
$$;

CREATE OR REPLACE FUNCTION BookFingerprint(of_currency integer) RETURNS text
LANGUAGE sql STABLE
AS $$
  SELECT encode(sha256(convert_to(concat_ws(';', quote_literal(b.Publisher), quote_literal(b.Document), b.FromYear,
    (SELECT string_agg(concat_ws(',', r.TID1, quote_literal(r.Name1), quote_literal(r.Expression), quote_nullable(r.Comment),
       quote_nullable(r.MovedName)), ';' ORDER BY r.Position)
     FROM CldRecurrence r WHERE r.ID1 = b.ID1)), 'UTF8')), 'hex')
  FROM CldBook b
  WHERE b.ID1 = of_currency
$$;

-- A sentence without a full stop for every setting of the server by which a crash of its machine could take changes that callers
-- were told are stored, or damage the database. Calls do the same with them.
SELECT format('The server has %s set to "%s": when its machine crashes, %s; correct it in %s', name, reset_val, harm,
              coalesce(sourcefile, 'the command that starts it, or the login''s settings'))
FROM pg_settings JOIN (VALUES
  ('fsync', '^off$', 'the database may be lost'), ('full_page_writes', '^off$', 'the database may be damaged'),
  ('synchronous_commit', '^(off|local|remote_write)$', 'changes may be lost that callers were told are stored')
) AS doubtful (parameter, value, harm) ON parameter = name AND reset_val ~ value
ORDER BY 1

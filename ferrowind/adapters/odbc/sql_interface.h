#pragma once

// The interface of ODBC, whose headers on Windows need the system's in front of them.
#ifdef _WIN32
#include <windows.h>
#endif

#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>

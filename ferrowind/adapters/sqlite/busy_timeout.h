#pragma once

#include <chrono>

namespace ferrowind::sqlite {

/// The time that a call waits for another program to release the database.
inline constexpr std::chrono::milliseconds kBusyTimeout{5000};

/// The longest time that a call may take once no other program keeps it waiting, as on a server. Delivered
/// procedures on sound files take a small part of it; a file from somewhere else may hold a procedure that
/// never comes to an end.
inline constexpr std::chrono::milliseconds kLongestCall{5000};

}  // namespace ferrowind::sqlite

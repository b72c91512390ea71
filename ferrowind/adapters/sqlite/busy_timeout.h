#pragma once

#include <chrono>

namespace ferrowind::sqlite {

/// The time that a call waits for another program to release the database.
inline constexpr std::chrono::milliseconds kBusyTimeout{5000};

}  // namespace ferrowind::sqlite

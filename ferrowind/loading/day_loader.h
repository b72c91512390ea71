#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "ferrowind/business_days/prepared_year.h"
#include "ferrowind/export.h"
#include "ferrowind/loading/loaded_days.h"
#include "ferrowind/platform/database/engine_registry.h"

/// Business days of a database, read once and again when they have changed.
namespace ferrowind::loading {

/// The business days of a database, in the memory of a program that asks for them, and again when they have
/// changed.
///
///     loading::DayLoader days(engines, "sqlite:calendars.db");
///     const auto now = days.Current();
///     now->calendars.Of("EUR").IsBusinessDay(2028y / 4 / 14);
///
/// Any number of threads may ask for `Current` and for what it gives, while one of them reloads: whoever has
/// the old days keeps them as long as he likes.
class FERROWIND_EXPORT DayLoader {
 public:
  /// Whether the loader also knows which rule closes a day, which `LoadedDays` tells then.
  enum class Names : std::uint8_t { kLeftOut, kLoaded };

  /// Reads all calendars and conventions of the database that `url` names, in the same calls with the names
  /// of closed days when they are wanted. `engines` must outlive the loader.
  /// The failures are those of the engine (a reader's rights are enough), and InvalidArgument for days that
  /// are no year's, which names currency and year.
  DayLoader(const platform::EngineRegistry& engines, std::string url, Names names = Names::kLeftOut);

  /// Never null.
  [[nodiscard]] std::shared_ptr<const LoadedDays> Current() const;

  /// Reads the database again, and says what is another than before; names of days count for nothing in that,
  /// but are taken too. After a failure, which is as that of the constructor, everything is as it was.
  /// Calendars that have not changed share their days with the old ones.
  DayChanges Reload();

 private:
  /// By the currencies' codes; the years of each ascend.
  using Years = std::map<std::string, std::vector<business_days::PreparedYear>, std::less<>>;
  struct Content;

  [[nodiscard]] Content Read() const;
  void Take(Content content, const DayChanges& changes);

  const platform::EngineRegistry& engines_;
  const std::string url_;
  const Names names_;
  /// Held while one reloads.
  std::mutex reloading_;
  /// What `current_` was made of; guarded by `reloading_`.
  Years years_;
  /// Guards the pointer below alone.
  mutable std::mutex taking_;
  std::shared_ptr<const LoadedDays> current_;
};

}  // namespace ferrowind::loading

#pragma once

#include <bitset>
#include <cstddef>
#include <cstdint>

namespace ferrowind::almanac {

/// What becomes of days that a person has made otherwise than planned (`ComparedDay::is_made_by_hand`).
enum class ExceptionHandling : std::uint8_t { kOverwrite, kKeep };

/// Which of the days that differ become others when a plan is applied.
class DayChoice {
 public:
  /// All of them, but those made by hand as that says; a way to handle them is a whole choice.
  // NOLINTNEXTLINE(google-explicit-constructor)
  DayChoice(ExceptionHandling exceptions) : exceptions_(exceptions) {}

  /// Chooses the day or leaves it out, whatever it is. Precondition, here and below: 1 to 366.
  void Decide(int day_of_year, bool is_chosen) {
    decided_.set(Place(day_of_year));
    chosen_.set(Place(day_of_year), is_chosen);
  }

  /// Whether the day, which differs, becomes another.
  [[nodiscard]] bool Takes(int day_of_year, bool is_made_by_hand) const {
    if (decided_.test(Place(day_of_year))) return chosen_.test(Place(day_of_year));
    return !is_made_by_hand || exceptions_ == ExceptionHandling::kOverwrite;
  }

 private:
  static constexpr std::size_t kPlaces = 367;
  [[nodiscard]] static std::size_t Place(int day_of_year) { return static_cast<std::size_t>(day_of_year); }

  ExceptionHandling exceptions_;
  std::bitset<kPlaces> decided_;
  std::bitset<kPlaces> chosen_;
};

}  // namespace ferrowind::almanac

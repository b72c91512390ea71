#include "ferrowind/almanac/equinox.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>

namespace ferrowind::almanac {
namespace {

constexpr int kFirstTabled = kFirstYear - 2;
constexpr int kLastTabled = kLastYear + 2;
constexpr double kJulianDateOfSerialZero = 2415018.5;
constexpr double kMinutesOfDay = 24 * 60;
constexpr double kSecondsOfDay = kMinutesOfDay * 60;

/// The moment of the mean equinox as a polynomial in thousands of years after 2000 (J. Meeus, Astronomical
/// Algorithms, chapter 27): Julian dates of dynamical time.
using Polynomial = std::array<double, 5>;
constexpr Polynomial kMeanVernal = {2451623.80984, 365242.37404, 0.05169, -0.00411, -0.00057};
constexpr Polynomial kMeanAutumnal = {2451810.21715, 365242.01767, -0.11575, 0.00337, 0.00078};

/// What the moon and the planets add to it: hundred thousandths of a day, phase in degrees, degrees a
/// century.
struct Perturbation {
  double amplitude;
  double phase;
  double rate;
};
constexpr std::array<Perturbation, 24> kPerturbations = {{
    {485, 324.96, 1934.136}, {203, 337.23, 32964.467}, {199, 342.08, 20.186},   {182, 27.85, 445267.112},
    {156, 73.14, 45036.886}, {136, 171.52, 22518.443}, {77, 222.54, 65928.934}, {74, 296.72, 3034.906},
    {70, 243.58, 9037.513},  {58, 119.81, 33718.147},  {52, 297.17, 150.678},   {50, 21.02, 2281.226},
    {45, 247.54, 29929.562}, {44, 325.15, 31555.956},  {29, 60.93, 4443.417},   {18, 155.12, 67555.328},
    {17, 288.79, 4562.452},  {16, 198.04, 62894.029},  {14, 199.76, 31436.921}, {12, 95.39, 14577.848},
    {12, 287.11, 31931.756}, {12, 320.81, 34777.259},  {9, 227.73, 1222.114},   {8, 15.45, 16859.074},
}};

double CosineOfDegrees(double degrees) { return std::cos(degrees * std::numbers::pi / 180); }

/// How many seconds dynamical time is ahead of the earth's turning. Measured until today, then the usual
/// forecast.
double SecondsAhead(int year) {
  if (year < 2005) return -3 + 0.66 * (year - 1900);
  const double years = year - 2000;
  if (year < 2050) return 62.92 + 0.32217 * years + 0.005589 * years * years;
  const double centuries = (year - 1820) / 100.0;
  const double parabola = -20 + 32 * centuries * centuries;
  return year < 2150 ? parabola - 0.5628 * (2150 - year) : parabola;
}

/// In days of UTC after the beginning of serial 0.
double MomentOf(Equinox equinox, int year) {
  const Polynomial& mean = equinox == Equinox::kVernal ? kMeanVernal : kMeanAutumnal;
  const double thousands = (year - 2000) / 1000.0;
  double date = 0;
  for (std::size_t i = mean.size(); i-- > 0;) date = date * thousands + mean[i];

  const double centuries = (date - 2451545.0) / 36525;
  const double anomaly = 35999.373 * centuries - 2.47;
  const double speed = 1 + 0.0334 * CosineOfDegrees(anomaly) + 0.0007 * CosineOfDegrees(2 * anomaly);
  double sum = 0;
  for (const Perturbation& term : kPerturbations) {
    sum += term.amplitude * CosineOfDegrees(term.phase + term.rate * centuries);
  }
  date += 0.00001 * sum / speed;
  return date - SecondsAhead(year) / kSecondsOfDay - kJulianDateOfSerialZero;
}

using Moments = std::array<double, kLastTabled - kFirstTabled + 1>;

Moments MomentsOf(Equinox equinox) {
  Moments moments{};
  for (int year = kFirstTabled; year <= kLastTabled; ++year) {
    moments[static_cast<std::size_t>(year - kFirstTabled)] = MomentOf(equinox, year);
  }
  return moments;
}

}  // namespace

std::int32_t DayOfEquinox(Equinox equinox, int year, int utc_offset_minutes) {
  // A year is planned in less time than one of these moments takes to compute.
  static const Moments vernal = MomentsOf(Equinox::kVernal);
  static const Moments autumnal = MomentsOf(Equinox::kAutumnal);
  const Moments& moments = equinox == Equinox::kVernal ? vernal : autumnal;
  const double utc = moments.at(static_cast<std::size_t>(year - kFirstTabled));
  return static_cast<std::int32_t>(std::floor(utc + utc_offset_minutes / kMinutesOfDay));
}

}  // namespace ferrowind::almanac

#pragma once

#include <array>
#include <optional>

namespace korventally {

/// The thresholds of one species and averaging period, ug/m**3. They are texts, because they reach
/// the engine exactly as the regulation is quoted here.
struct Limits {
  const char* naaqs;            ///< National Ambient Air Quality Standard
  const char* incrementClassI;  ///< PSD increments
  const char* incrementClassII;
  const char* silClassI;  ///< significant impact levels
  const char* silClassII;
};

/// An averaging period, as the options show it and as the case holds it.
struct AveragingPeriod {
  const char* caption;
  const char* hours;  ///< for annual the hours of a common year
};

inline constexpr AveragingPeriod kThreeHours{"3 Hour", "3"};
inline constexpr AveragingPeriod kDay{"24 Hour", "24"};
inline constexpr AveragingPeriod kAnnual{"Annual", "8760"};
/// The hours of an annual period in a leap year.
inline constexpr const char* kHoursOfLeapYear = "8784";

/// What the regulation says of one species. Everything that depends on a species is said here and
/// nowhere else: its name, its averaging periods and its limits. An option in the wizard names it.
struct Species {
  const char* name;  ///< in the case, and the caption of its option
  std::optional<Limits> threeHours;
  std::optional<Limits> day;
  Limits annual;
  /// What the user is told who has chosen a period that the species has no limits for.
  const char* refusal;

  /// None when the regulation has no limits for that period.
  constexpr const Limits* limitsFor(const AveragingPeriod& period) const {
    if (&period == &kThreeHours) return threeHours ? &*threeHours : nullptr;
    if (&period == &kDay) return day ? &*day : nullptr;
    return &annual;
  }
};

inline constexpr Species kSo2{
    .name = "SO2",
    .threeHours = Limits{"1300.0", "25.0", "512.0", "1.0", "25.0"},
    .day = Limits{"365.0", "5.0", "91.0", "0.2", "5.0"},
    .annual = {"80.0", "2.0", "20.0", "0.1", "1.0"},
    .refusal = "",
};
inline constexpr Species kPm10{
    .name = "PM10",
    .threeHours = {},
    .day = Limits{"150.0", "8.0", "30.0", "0.3", "5.0"},
    .annual = {"50.0", "4.0", "17.0", "0.2", "1.0"},
    .refusal = "PM10 may not be selected with a 3 HOUR averaging period.",
};
inline constexpr Species kNox{
    .name = "NOX",
    .threeHours = {},
    .day = {},
    .annual = {"100.0", "2.5", "25.0", "0.1", "1.0"},
    .refusal = "NOX must be selected with an ANNUAL averaging period.",
};

inline constexpr std::array kAllSpecies = {&kSo2, &kPm10, &kNox};

}  // namespace korventally

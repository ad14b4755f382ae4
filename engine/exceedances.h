// Counts the exceedances of a run and keeps those that the list file shows.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

#include "engine/averages.h"
#include "engine/control_file.h"

namespace korventally::engine {

inline constexpr std::size_t kMostExceedancesListed = 50;

/// What was judged at a receptor.
struct AtReceptor {
  std::uint64_t exceedances = 0;
  std::uint64_t significant = 0;
  Place highest{0, 0, -1};  ///< value: the highest total that was judged; below zero for none
  Place contribution;       ///< value: the facility's largest contribution to an exceedance, if any
};

struct Exceedances {
  std::uint64_t count = 0;
  std::uint64_t significant = 0;     ///< of those, with the facility at or above the SIL
  std::vector<Place> largest;        ///< value: the total; the largest first
  std::vector<Place> contributions;  ///< significant ones; value: the facility's, the largest first
  std::vector<AtReceptor> atReceptors;

  std::uint64_t receptors() const;  ///< with at least one exceedance
  /// The receptor's with the largest contribution at any exceedance; nothing when there is none.
  const AtReceptor* mostContributed() const;
};

/// Above the standard, or at or above the SIL, by more or less than the rounding of the arithmetic.
bool exceeds(double total, double standard);
bool reaches(double contribution, double sil);

/// Takes the averages in the order of their blocks, and hands every exceedance on as it is found.
class ExceedanceCount {
 public:
  using Sink = std::function<void(const Place&)>;

  /// All of these must outlive this.
  ExceedanceCount(const Case& theCase, const Averages& averages, const Sink& sink);

  void judge(const Place& place);
  Exceedances finish();

 private:
  const Case& case_;
  const Averages& averages_;
  const Sink& sink_;
  Exceedances result_;
};

}  // namespace korventally::engine

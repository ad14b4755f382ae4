#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <set>
#include <string>

#include "case/basModule.h"
#include "limits/species.h"

namespace korventally::testing {
namespace {

/// A row of the guide's table.
std::string rowOf(const Species& species, const AveragingPeriod& period, const Limits& limits) {
  std::string row = "|";
  for (const char* cell : {species.name, period.caption, limits.naaqs, limits.incrementClassI,
                           limits.incrementClassII, limits.silClassI, limits.silClassII}) {
    row += std::string(" ") + cell + " |";
  }
  return row;
}

std::set<std::string> rowsOfGuide() {
  std::set<std::string> rows;
  std::ifstream page(KORVENTALLY_GUIDE "/limits.md");
  for (std::string line; std::getline(page, line);) {
    const bool isHead = line.starts_with("| Species |") || line.starts_with("|---");
    if (line.starts_with('|') && !isHead) rows.insert(line);
  }
  return rows;
}

TEST(Limits, AreAllInTheGuideAndNoOthers) {
  std::set<std::string> expected;
  for (const Species* species : kAllSpecies) {
    for (const AveragingPeriod* period : {&kThreeHours, &kDay, &kAnnual}) {
      const Limits* limits = species->limitsFor(*period);
      if (limits != nullptr) expected.insert(rowOf(*species, *period, *limits));
    }
  }
  EXPECT_EQ(rowsOfGuide(), expected);
}

TEST(Limits, OfTheBoxesAreThoseOfTheGuide) {
  std::ifstream file(KORVENTALLY_GUIDE "/fields.md");
  const std::string page{std::istreambuf_iterator<char>(file), {}};
  for (const std::string& limit :
       {"| " + std::to_string(kLongestText) + " characters; must exist",
        "(Up to " + std::to_string(kLongestGroupName) + " chars.)",
        "| 0 to " + std::to_string(kMostOtherGroups) + "; empty is 0",
        "| 1 to " + std::string(kLongestRunLength, '9') + ", and not less"}) {
    EXPECT_NE(page.find(limit), page.npos) << limit;
  }
}

}  // namespace
}  // namespace korventally::testing

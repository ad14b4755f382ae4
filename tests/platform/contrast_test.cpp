#include "platform/contrast.h"

#include <gtest/gtest.h>

#include "platform/color.h"

namespace korventally::testing {
namespace {

TEST(Contrast, IsThatOfTheAccessibilityGuidelines) {
  constexpr std::uint32_t kBlack = 0;
  constexpr std::uint32_t kGrey = 0x767676;
  const struct {
    std::uint32_t one, other;
    double ratio;
  } rows[] = {{kBlack, colors::kWhite, 21},          {colors::kBlue, kBlack, 2.44},
              {colors::kBlue, colors::kWhite, 8.59}, {kGrey, colors::kWhite, 4.54},
              {colors::kNavy, colors::kWhite, 16.0}, {kGrey, kGrey, 1}};
  for (const auto& row : rows) {
    EXPECT_NEAR(contrastRatio(row.one, row.other), row.ratio, 0.01);
    EXPECT_NEAR(contrastRatio(row.other, row.one), row.ratio, 0.01);
  }
}

}  // namespace
}  // namespace korventally::testing

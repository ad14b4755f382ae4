#include "limits/limits.h"

#include <gtest/gtest.h>

namespace korventally::testing {
namespace {

TEST(Limits, AreTheTextsOfTheRegulation) {
  const struct {
    const char *species, *hours, *naaqs, *psdClassI, *psdClassII, *silClassI, *silClassII;
  } rows[] = {
      {"SO2", "3", "1300.0", "25.0", "512.0", "1.0", "25.0"},
      {"SO2", "24", "365.0", "5.0", "91.0", "0.2", "5.0"},
      {"SO2", "8760", "80.0", "2.0", "20.0", "0.1", "1.0"},
      {"SO2", "8784", "80.0", "2.0", "20.0", "0.1", "1.0"},
      {"PM10", "24", "150.0", "8.0", "30.0", "0.3", "5.0"},
      {"PM10", "8760", "50.0", "4.0", "17.0", "0.2", "1.0"},
      {"PM10", "3", "50.0", "4.0", "17.0", "0.2", "1.0"},
      {"NOX", "8784", "100.0", "2.5", "25.0", "0.1", "1.0"},
      {"NOX", "3", "100.0", "2.5", "25.0", "0.1", "1.0"},
      {"so2", "24", "100.0", "2.5", "25.0", "0.1", "1.0"},
  };
  for (const auto& row : rows) {
    const auto expectLimits = [&](const char* area, const char* standard, const char* limit,
                                  const char* sil) {
      SCOPED_TRACE(::testing::Message() << row.species << ' ' << row.hours << ' ' << area);
      AnalysisCase theCase;
      theCase.Species = row.species;
      theCase.AveragingHours = row.hours;
      theCase.AreaClass = area;
      theCase.Standard = standard;
      theCase.StandardLimit = theCase.SilLimit = "edited";
      DeriveLimits(theCase);
      EXPECT_EQ(theCase.StandardLimit, limit);
      EXPECT_EQ(theCase.SilLimit, sil);
      theCase.AreaClass = theCase.Standard = "";
      EXPECT_TRUE(recogniseLimits(theCase));
      EXPECT_EQ(theCase.AreaClass, area == std::string("Class I") ? area : "Class II");
      EXPECT_EQ(theCase.Standard, standard);
    };
    expectLimits("Class I", "NAAQS", row.naaqs, row.silClassI);
    expectLimits("Class II", "NAAQS", row.naaqs, row.silClassII);
    expectLimits("Class I", "PSD", row.psdClassI, row.silClassI);
    expectLimits("Class II", "PSD", row.psdClassII, row.silClassII);
    expectLimits("class i", "PSD", row.psdClassII, row.silClassII);
  }
}

TEST(Limits, AreRecognisedAsNumbersAndOnlyBothTogether) {
  const struct {
    const char *limit, *sil, *recognised;
  } rows[] = {{"91", "5.00", "Class II PSD"},
              {"365", ".2", "Class I NAAQS"},
              {"91.0", "0.2", " "},
              {"91.0 ", "5.0", " "},
              {"91.0", "", " "},
              {"", "", " "}};
  for (const auto& row : rows) {
    AnalysisCase theCase;
    theCase.Species = "SO2";
    theCase.AveragingHours = "24";
    theCase.StandardLimit = row.limit;
    theCase.SilLimit = row.sil;
    EXPECT_EQ(recogniseLimits(theCase), row.recognised != std::string(" "));
    EXPECT_EQ(theCase.AreaClass + " " + theCase.Standard, row.recognised) << row.limit;
    EXPECT_EQ(theCase.StandardLimit, row.limit);
  }
}

}  // namespace
}  // namespace korventally::testing

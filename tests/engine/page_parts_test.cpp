// What the page's drawings are made of, worked out by hand.
#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <string>
#include <utility>
#include <vector>

#include "engine/page/bar_parts.h"
#include "engine/page/html.h"
#include "engine/page/limit_classes.h"
#include "engine/page/map_frame.h"
#include "engine/page/scale.h"
#include "engine/page/series_path.h"
#include "engine/page/time_ticks.h"
#include "engine/system_files.h"

namespace korventally::engine {
namespace {

TEST(PageText, HoldsNothingThatABrowserTakesForMarkup) {
  const struct {
    const char *text, *shown;
  } rows[] = {{"<A&B>\"", "&lt;A&amp;B&gt;&quot;"},
              {"a;b 'c' d", "a;b 'c' d"},
              {"1 ug/m**3", "1 ug/m**3"},
              {"a\tb\x7F",
               "a\xEF\xBF\xBD"
               "b\xEF\xBF\xBD"}};
  for (const auto& row : rows) EXPECT_EQ(escaped(row.text), row.shown);
  EXPECT_EQ(sentence("<1 ug/m**3, 2 g/m**3"), "&lt;1 \xC2\xB5g/m\xC2\xB3, 2 g/m\xC2\xB3");
}

// Names are bytes of the code page: of UTF-8 here, of another one on Windows.
TEST(PageText, IsUtf8WhateverTheNamesAre) {
  const std::string none = "\xEF\xBF\xBD";
  if (utf8FromText("\xE9") == "\xC3\xA9") {
    EXPECT_EQ(escaped("Caf\xE9 <"), "Caf\xC3\xA9 &lt;");
    return;
  }
  const struct {
    std::string text, shown;
  } rows[] = {
      {"\xC3\xA9\xE2\x82\xAC\xF0\x9F\x8F\xAD", "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x8F\xAD"},
      {"Caf\xE9", "Caf" + none},
      {"\xE9<", none + "&lt;"},
      {"\xC0\xAF", none + none},             // longer than needed
      {"\xE0\x80\xAF", none + none + none},  // the same
      {"\xED\xA0\x80", none + none + none},  // half of a pair
      {"\xF4\x90\x80\x80", none + none + none + none},
      {"\xE2\x82", none + none},  // cut short
  };
  for (const auto& row : rows) EXPECT_EQ(escaped(row.text), row.shown);
}

TEST(PageScale, NamesRoundValues) {
  const struct {
    double low, high;
    int most;
    std::vector<std::string> texts;
  } rows[] = {
      {0, 10, 5, {"0", "2", "4", "6", "8", "10"}},
      {-1250, 1250, 6, {"-1000", "-500", "0", "500", "1000"}},
      {0.31, 0.92, 4, {"0.4", "0.6", "0.8"}},
      {4123456, 4123461, 5, {"4123456", "4123457", "4123458", "4123459", "4123460", "4123461"}},
      {7, 7, 5, {}},
      {1e15, 1e15 + 0.125, 5, {}},
  };
  for (const auto& row : rows) {
    const Ticks ticks = ticksBetween(row.low, row.high, row.most);
    std::vector<std::string> texts;
    for (const double value : ticks.values) texts.push_back(ticks.text(value));
    EXPECT_EQ(texts, row.texts) << row.low;
  }
  for (const auto& [atLeast, step] :
       {std::pair(1.0, 1.0), {1.01, 2}, {2.5, 5}, {7, 10}, {0.03, 0.05}, {1000, 1000}}) {
    EXPECT_DOUBLE_EQ(roundStep(atLeast), step);
  }
}

// With 92 units of room at the left the map is 532 wide, 484 of them between the outermost
// receptors; 968 m there are 0.5 units each.
TEST(PageMap, PutsReceptorsWhereTheyAreAndToScale) {
  const struct {
    Extent extent;
    double unitsPerMetre, height, x, y, bar;  // where the place with the smallest X and Y lies
  } rows[] = {
      {{0, 968, 0, 968}, 0.5, 532, 116, 516, 200},
      {{-484, 484, 1000, 1484}, 0.5, 290, 116, 274, 200},
      {{0, 484, 0, 968}, 0.5, 532, 237, 516, 200},
      {{0, 968, 7, 7}, 0.5, 265.8, 116, 140.9, 200},
      {{7, 7, 0, 968}, 0.5, 532, 358, 516, 200},
      {{7, 7, 8, 8}, 4.84, 532, 358, 274, 20},
      {{0, 1200, 0, 1200}, 484.0 / 1200, 532, 116, 516, 200},  // a quarter is 329.8 m
  };
  for (const auto& row : rows) {
    const MapFrame frame = mapFrame(row.extent, 92);
    EXPECT_NEAR(frame.unitsPerMetre, row.unitsPerMetre, 1e-9);
    EXPECT_NEAR(frame.height, row.height, 1e-9);
    EXPECT_NEAR(barMetres(frame), row.bar, 1e-9);
    EXPECT_NEAR(frame.x(row.extent.minX), row.x, 1e-9);
    EXPECT_NEAR(frame.y(row.extent.minY), row.y, 1e-9);
    // One scale for both axes.
    EXPECT_NEAR(frame.x(row.extent.minX + 10) - row.x, 10 * row.unitsPerMetre, 1e-9);
    EXPECT_NEAR(row.y - frame.y(row.extent.minY + 10), 10 * row.unitsPerMetre, 1e-9);
  }
}

TEST(PageMap, ColoursByTheSideOfTheLimit) {
  const LimitClasses classes(91, 221.9943);
  const struct {
    double total;
    std::size_t index;
    const char* text;
  } rows[] = {
      {0, 0, "0 to 22.75"},       {22.75, 0, "0 to 22.75"},        {22.76, 1, "22.75 to 45.5"},
      {91, 3, "68.25 to 91"},     {91.00000001, 3, "68.25 to 91"}, {91.001, 4, "91 to 136.5"},
      {136.6, 5, "136.5 to 182"}, {221.9943, 6, "182 to 227.5"}};
  for (const auto& row : rows) {
    EXPECT_EQ(classes.classOf(row.total), row.index) << row.total;
    EXPECT_EQ(classes.text(row.index), row.text);
  }
  EXPECT_EQ(classes.text(7), "");  // the highest total is below it
  // Far below the limit the colours still tell totals apart; nothing lies above it.
  const LimitClasses low(100, 7.5);
  EXPECT_EQ(low.text(3), "6 to 8");
  EXPECT_EQ(low.classOf(7.5), 3u);
  EXPECT_EQ(low.text(4), "");
  EXPECT_EQ(LimitClasses(100, 0).classOf(0), 0u);
}

// Groups of one block and one receptor, in ug/m**3, the first one is all of them.
struct Stack {
  std::vector<double> groups;
  double background;
  std::vector<std::string> styles;
  std::vector<double> values;
};

TEST(PageBars, AreStackedUpToTheTotal) {
  const Stack rows[] = {
      {{10, 2, 3, 4}, 5, {"facility", "g0", "g1", "background", "leftover"}, {2, 4, 3, 5, 1}},
      {{10, 0, 10}, 0, {"g0"}, {10}},
      {{10, 4}, 0, {"facility", "leftover"}, {4, 6}},
      // Six of eight have a colour.
      {{40, 1, 2, 9, 3, 8, 4, 7, 5, 1},
       0,
       {"facility", "g0", "g1", "g2", "g3", "g4", "g5", "rest"},
       {1, 9, 8, 7, 5, 4, 3, 3}},
      // More than the total: nothing is left over.
      {{10, 6, 7}, 1, {"facility", "g0", "background"}, {6, 7, 1}},
  };
  for (const Stack& row : rows) {
    Case theCase;
    theCase.scale = 1;
    theCase.background = row.background;
    const Blocks blocks{0, 1, 1};
    std::vector<GroupSums> groups(row.groups.size());
    for (std::size_t i = 0; i < groups.size(); ++i) groups[i].sums = {row.groups[i]};
    const Averages averages(theCase, blocks, groups, 1, {1});
    const Place place{0, 0, averages.total(0, 0, 0)};
    std::vector<std::string> styles;
    std::vector<double> values;
    for (const BarPart& part :
         partsOf(theCase, averages, colouredGroups(averages, {place}), place)) {
      styles.push_back(part.style);
      values.push_back(part.value);
    }
    EXPECT_EQ(styles, row.styles);
    EXPECT_EQ(values, row.values);
    const double beyond = std::max(0.0, -averages.leftOver(0, 0));
    EXPECT_DOUBLE_EQ(std::accumulate(values.begin(), values.end(), 0.0), place.value + beyond);
  }
}

TEST(PageSeries, IsDrawnInStepsOrInStrokes) {
  const Scale y{0, 2, 100, 0};
  const struct {
    std::vector<double> values;
    double width;
    const char* path;
  } rows[] = {
      {{1, 2}, 20, "M0,50H10V0H20"},
      {{2}, 20, "M0,0H20"},
      // Two values in each unit: their range, and where the unit before ended.
      {{0, 2, 1, 1}, 2, "M0.5,100V0M1.5,50V0"},
      {{1, 1, 1, 1}, 2, "M0.5,50.4V49.6M1.5,50.4V49.6"},
      {{}, 20, ""},
  };
  for (const auto& row : rows) {
    const Scale x{0, static_cast<double>(row.values.size()), 0, row.width};
    EXPECT_EQ(coursePath(row.values, x, y), row.path);
  }
  const struct {
    std::vector<bool> marked;
    double width;
    std::vector<double> ends;
  } marks[] = {
      {{true, true, false, true}, 40, {0, 20, 30, 40}},
      // Half a unit each, drawn as one.
      {{true, false, false, false, false, true, false, true}, 4, {0, 1, 2.5, 4.5}},
      {{false, false}, 4, {}},
  };
  for (const auto& row : marks) {
    std::vector<double> ends;
    for (const Piece& piece :
         markedPieces(row.marked, {0, static_cast<double>(row.marked.size()), 0, row.width})) {
      ends.insert(ends.end(), {piece.begin, piece.end});
    }
    EXPECT_EQ(ends, row.ends);
  }
}

TEST(PageSeries, NamesRoundDates) {
  const struct {
    int year, month, day, hour;
    Hour hours;
    std::vector<std::string> texts;
  } rows[] = {
      {2009, 1, 31, 22, 4, {"01-31 22", "01-31 23", "02-01 00", "02-01 01", "02-01 02"}},
      {2009, 1, 12, 5, 48, {"01-12 12", "01-13 00", "01-13 12", "01-14 00"}},
      {2009, 1, 12, 0, 168, {"01-13", "01-15", "01-17", "01-19"}},
      {2009, 1, 14, 0, 19 * 24, {"01-16", "01-21", "01-26", "02-01"}},  // and no 01-31
      {2009, 1, 1, 0, 8760, {"2009-01", "2009-04", "2009-07", "2009-10", "2010-01"}},
      {2008, 12, 31, 0, 5 * 8760, {"2009", "2010", "2011", "2012", "2013"}},
      {1901, 6, 1, 0, 50 * 8766, {"1910", "1920", "1930", "1940", "1950"}},
      {2009, 1, 1, 1, 1, {"01-01 01", "01-01 02"}},
  };
  for (const auto& row : rows) {
    const Hour start = *hourFromDate(row.year, row.month, row.day, row.hour);
    std::vector<std::string> texts;
    for (const TimeTick& tick : timeTicks(start, start + row.hours, 5)) texts.push_back(tick.text);
    EXPECT_EQ(texts, row.texts) << row.hours;
  }
}

}  // namespace
}  // namespace korventally::engine

// The page of whole runs: what it shows, and of what.
#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "tests/engine/study.h"

namespace korventally::engine {
namespace {

std::string pageOf(const Study& study) {
  completedList(study);
  return study.read("out.lst.html");
}

std::size_t countOf(const std::string& text, const std::string& what) {
  std::size_t count = 0;
  for (std::size_t at = text.find(what); at != text.npos; at = text.find(what, at + 1)) ++count;
  return count;
}

// Receptor A averages 10, 12; B averages 20, 9. FACILITY at A 3, 0.9; at B 1, 5.
Study& fill(Study& study) {
  writeMicro(study, "all.con", {{9, 20}, {10, 21}, {11, 19}, {12, 9}, {12, 10}, {12, 8}});
  writeMicro(study, "group_2.con", {{3, 1}, {3, 2}, {3, 0}, {0.9, 5}, {0.9, 5}, {0.9, 5}});
  writeMicro(study, "group_3.con", {{7, 19}, {7, 19}, {7, 19}, {11.1, 4}, {11.1, 4}, {11.1, 4}});
  return study;
}

// Marks of the map by shape, bars, and exceedances in time.
const char* const kCounted[] = {"<use href=\"#o\"", "<use href=\"#e\"", "<use href=\"#s\"",
                                "class=\"total\"", "<path class=\"above\""};

struct Shown {
  std::vector<std::pair<std::size_t, const char*>> lines;  // of the control file, changed
  std::vector<std::string> says;
  std::vector<std::size_t> counts;  // of kCounted
};

TEST(Page, ShowsWhatTheRunCameTo) {
  const Shown rows[] = {
      {{{15, "9.5"}},
       {"<h1>2 significant exceedances</h1><p>ALL_SOURCES is above 9.5 \xC2\xB5g/m\xC2\xB3 in 3 of "
        "4 averages judged, at 2 of 2 receptors. To 2 of these FACILITY contributes the "
        "significant impact level of 1.0 \xC2\xB5g/m\xC2\xB3 or more. Its largest contribution to "
        "an exceedance is 3.0000 \xC2\xB5g/m\xC2\xB3, at receptor A (X 100.0, Y 200.0), first "
        "hour 2009-01-01 00, of a total of 10.0000 \xC2\xB5g/m\xC2\xB3. No average was left "
        "out.</p>",
        "No warnings.", ">B: 20.0000</text>", "limit 9.5</text>", "SIL 1.0</text>"},
       {0, 0, 2, 3, 1}},
      {{{15, "9.5"}, {19, "4"}}, {"<h1>3 exceedances, none significant</h1>"}, {0, 2, 0, 3, 1}},
      {{{15, "9.5"}, {21, "T"}},
       {"<h1>1 significant exceedance</h1>", "Left out as rank 1: 2 averages, the highest",
        "<circle class=\"left-out\"", ">A: 10.0000</text>"},
       {1, 0, 1, 1, 1}},
      {{{15, "20"}},
       {"<h1>No exceedance</h1><p>None of the 4 averages judged exceeds: ALL_SOURCES is nowhere "
        "above 20 ",
        "Nothing exceeds: these are the highest totals", ">B: 20.0000</text>",
        ">1  B  2009-01-01 00  <tspan"},
       {2, 0, 0, 2, 0}},
      {{{14, "8760"}, {15, "14"}},
       {"annual average: limit 14",
        "<h2>1 warning</h2><ul><li>The annual average covers 6 hours, "
        "which is less than a year.</li></ul>"},
       {1, 0, 1, 1, 1}},
  };
  for (const Shown& row : rows) {
    Study study;
    for (const auto& [line, value] : row.lines) study.line(line) = value;
    const std::string page = pageOf(fill(study));
    expectSays(page, row.says);
    std::vector<std::size_t> counts;
    for (const char* each : kCounted) counts.push_back(countOf(page, each));
    EXPECT_EQ(counts, row.counts);
    // Nothing to load, nothing to run.
    for (const char* none : {"<script", "http:", "https:", "url(", "src=", "@import", "data:"}) {
      expectSilent(page, none);
    }
  }
}

TEST(Page, TakesAnyNameForText) {
  Study study;
  study.line(2) = "</title><b>";
  study.line(9) = "<A&B>\"";
  study.line(11) = "<i>";
  study.write("receptors.dat", "1 2 <b>&\n3 4 B\"\n");
  const std::string page = pageOf(study);
  expectSays(page, {"<title>&lt;/title&gt;&lt;b&gt;: ", ">&lt;A&amp;B&gt;&quot;</th>",
                    "</i> &lt;i&gt;</li>", "<title>&lt;b&gt;&amp;: 10.0000</title>"});
  for (const char* raw : {"<A&B", "<b>&:", "<i></li>"}) expectSilent(page, raw);
}

TEST(Page, ShowsASingleReceptorAndASingleAverage) {
  Study study;
  study.write("receptors.dat", "1e6 -2.5 ALONE\n");
  for (const char* name : {"all.con", "group_2.con", "group_3.con"}) {
    writeMicro(study, name, std::vector<std::vector<double>>(6, {9}));
  }
  study.line(14) = "6";
  const std::string page = pageOf(study);
  expectSays(page, {">ALONE: 9.0000</text>", "<path class=\"course\" d=\"M", ">20 m</text>"});
  EXPECT_EQ(countOf(page, "<use href=\"#s\""), 1u);
  for (const char* none : {"\"nan", "-nan", ",nan", "Mnan", "inf\"", "inf,"})
    expectSilent(page, none);
}

// 70 x 70 receptors, 50 m apart: too many to draw. The last one is the worst.
TEST(Page, DrawsWhatMattersOfTooManyReceptors) {
  const struct {
    int exceeding;
    std::size_t stars, fewestOthers, mostOthers;
  } rows[] = {{350, 351, 900, 1600}, {2500, 2000, 0, 0}};
  for (const auto& row : rows) {
    Study study;
    std::string receptors, values;
    for (int i = 0; i < 4900; ++i) {
      receptors += std::to_string(50 * (i % 70)) + " " + std::to_string(50 * (i / 70)) + " R" +
                   std::to_string(i) + "\n";
      values += i == 4899 ? "9E-5 " : i < row.exceeding ? "2E-5 " : "1E-6 ";
    }
    study.write("receptors.dat", receptors);
    for (const char* name : {"all.con", "group_2.con", "group_3.con"}) {
      study.writeHours(name, std::vector<std::string>(3, values));
    }
    study.line(4) = "3";
    const std::string page = pageOf(study);
    EXPECT_EQ(countOf(page, "<use href=\"#s\""), row.stars);
    const std::size_t others = countOf(page, "<use href=\"#o\"");
    EXPECT_GE(others, row.fewestOthers);
    EXPECT_LE(others, row.mostOthers);
    const std::string drawn = std::to_string(others + row.stars);
    expectSays(page,
               {"Drawn are " + drawn.substr(0, 1) + "," + drawn.substr(1) + " of 4,900 receptors",
                ">R4899: 90.0000</text>"});
    EXPECT_LT(page.size(), 2000000u);
  }
}

TEST(Page, MarksCalmAndMissingHours) {
  Study study;
  for (const char* name : {"all.con", "group_2.con", "group_3.con"}) {
    study.writeHours(name, {"9E-6 1E-6", "calm", "calm", "1E-6 1E-6", "missing", "1E-6 1E-6"});
  }
  const std::string page = pageOf(study);
  expectSays(page, {"Below the axis: 2 hours calm, 1 hour missing.", "calm hours, upper row"});
  EXPECT_EQ(countOf(page, "<rect class=\"calm\""), 1u);
  EXPECT_EQ(countOf(page, "<rect class=\"missing\""), 1u);
}

}  // namespace
}  // namespace korventally::engine

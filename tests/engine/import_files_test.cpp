// What an import refuses, and with which words; and how it tells calm hours from hours of zeros.
#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "tests/engine/imports.h"
#include "tests/engine/model_files.h"

namespace korventally::engine {
namespace {

using Arguments = std::vector<std::string>;

// Nothing is left of an import that fails.
void expectRefused(Imports& imports, const Arguments& arguments, const std::string& words) {
  const std::string sentence = imports.run(arguments);
  EXPECT_NE(sentence.find(words), std::string::npos) << words << "\n  but " << sentence;
  EXPECT_FALSE(imports.hasFolder()) << words;
}

TEST(ImportRefuses, WhatIsNoHourlyConcentration) {
  struct Row {
    Arguments arguments;
    std::string words;
  };
  for (const Row& row : {
           Row{{"=refuse/dry_deposition_only.pst"},
               "The file refuse/dry_deposition_only.pst holds deposition without concentration"},
           Row{{"=refuse/month_averages.pst"}, "holds MONTH averages instead of hours"},
           Row{{"=averages/all_24.pst"}, "holds 24-HR averages instead of hours"},
           Row{{"=averages/all_period.pst"}, "holds PERIOD averages instead of hours"},
           Row{{"=refuse/plotfile_24h_first.plt"}, "holds each receptor's highest values"},
           Row{{"=refuse/header_only.pst"}, "has a header and no rows"},
           Row{{"=receptors/all.pst"},
               "The file receptors/all.pst, line 21, column 16 has stars in place of a coordinate"},
           Row{{"=credit/all.pst"},
               "The file credit/all.pst, line 21, column 30: the value -0.00375 is negative"},
           Row{{"=gap/all.pst"}, "line 225 goes on with 2010-07-16 01 behind 2010-07-13 24"},
           Row{{"=plot/ERRORS.OUT"}, "is no row of a dispersion model's hourly output"},
           Row{{"=plot/all.pst", "=noheader/all.pst"},
               "Group ALL has hours twice: plot/all.pst, line 432 ends with 2010-07-17 24, and "
               "noheader/all.pst, line 1 begins with 2010-07-16 01."},
           Row{{"=plot/facility.pst", "=offclock/all.pst"},
               "Group FACILITY (plot/facility.pst, line 9) begins with 2010-07-16 01, but group "
               "ALL (offclock/all.pst, line 9) with 2010-07-16 10."},
           Row{{"=plot/all.pst", "=plot/other1.pst"},
               "There is no group \"FACILITY\" in the files"},
           Row{{"=plot/facility.pst", "=plot/other1.pst"}, "they hold FACILITY, OTHER1. Say with"},
           Row{{"=plot/all.pst", "--only", "ALL,X"}, "There is no group \"X\" (--only)"},
           Row{{"=tall/all.pst", "=plot/facility.pst"},
               "has 9 receptors, but the file tall/all.pst "
               "has 4."},
           Row{{"=unform/all.bin"}, "is unformatted and does not tell its receptors"},
           Row{{"=unform/all.bin", "--receptors", "=tall/all.pst"},
               "record 1 has 9 values, which do not fit the 4 receptors"},
           Row{{"=plot/all.pst", "--calms", "=plot/aermod.inp"}, "is neither a model's message"},
           Row{{"=plot/nothing.pst"}, "cannot be opened"},
           Row{{}, "No file of a dispersion model is given."},
           Row{{"=plot/all.pst", "--units", "x"}, "There is no option \"--units\"."},
           Row{{"=plot/all.pst", "--unit", "mg"}, "--unit takes ug/m3 or g/m3, not \"mg\"."},
           Row{{"=plot/all.pst", "--all"}, "Nothing follows the option --all."},
           Row{{"=plot/all.pst", "--all", "FACILITY"}, "--all and --facility name one group"},
       }) {
    Imports imports;
    expectRefused(imports, row.arguments, row.words);
  }
}

// One thing wrong in a file that is right otherwise. Its rows begin on line 9, nine to an hour.
TEST(ImportRefuses, AFileWithAFault) {
  using Rows = std::vector<std::string>;
  struct Fault {
    std::function<void(Rows&)> spoil;
    std::string words;
  };
  const auto put = [](std::size_t row, std::size_t column, const std::string& text) {
    return [=](Rows& rows) { rows[row].replace(column - 1, text.size(), text); };
  };
  for (const Fault& fault : {
           Fault{put(20, 30, "*************"), "line 29, column 30 has stars in place of a value"},
           Fault{put(20, 30, "          NaN"), "line 29, column 30: \"NaN\" is no number."},
           Fault{put(11, 2, "   -501.00000"),
                 "line 20 has receptor 3 at -501.00000, 500.00000 GRD, but line 11 has it at "
                 "-500.00000, 500.00000 GRD."},
           Fault{put(11, 44, "    9.00"), "line 20 gives receptor 3 other heights than line 11"},
           Fault{put(11, 100, "GRID"), "line 20 has receptor 3 at -500.00000, 500.00000 GRID"},
           Fault{put(11, 100, "   "), "receptor 3 at -500.00000, 500.00000, but line 11 has it at"},
           Fault{put(9, 90, "10071625"), "line 18: \"10071625\" is no hour"},
           Fault{put(9, 90, "10071601"),
                 "line 19 has receptor 1 at 500.00000, -500.00000 GRD, but line 9"},
           Fault{[](Rows& rows) { rows.pop_back(); },
                 ": 8 rows of ALL 10071724 instead of 9, one for each receptor. Was the file cut"},
           Fault{[](Rows& rows) { rows.erase(rows.begin() + 12); },
                 "line 21 has receptor 4 at 346.41016, -200.00000 RING, but line 12"},
           Fault{[](Rows& rows) { rows.erase(rows.begin() + 9, rows.begin() + 18); },
                 "line 18 goes on with 2010-07-16 03 behind 2010-07-16 01 of group ALL: a gap of 1 "
                 "hour."},
           Fault{[](Rows& rows) {
                   std::rotate(rows.begin() + 9, rows.begin() + 18, rows.begin() + 27);
                   rows.erase(rows.begin(), rows.begin() + 9);
                 },
                 "line 18 goes on with 2010-07-16 02 behind 2010-07-16 03 of group ALL: a step"},
           Fault{[](Rows& rows) {
                   rows.insert(rows.begin() + 18, rows.begin() + 9, rows.begin() + 18);
                 },
                 "line 27 goes on with 2010-07-16 02 behind 2010-07-16 02 of group ALL: this hour "
                 "comes twice."},
           Fault{[](Rows& rows) { rows[30].resize(80); }, "line 39 is cut short"},
           Fault{[](Rows& rows) { rows[30] += "x"; }, "line 39 has receptor 4 at"},
       }) {
    Imports imports;
    ModelText text("plot/all.pst");
    fault.spoil(text.rows);
    imports.write("own.pst", text.text());
    expectRefused(imports, {"@own.pst"}, fault.words);
  }
  const std::string whole = ModelText("plot/all.pst").text();
  const std::string binary = readTestData("unform/all.bin");
  std::string damaged = binary, negative = binary;
  damaged[96 + 92] ^= 1;
  negative[96 + 20 + 16 + 7] ^= char(0x80);
  ModelText four("deposition/all.pst");
  four.header.clear();
  struct Row {
    std::string bytes, words;
  };
  for (const Row& row :
       {Row{whole.substr(0, whole.size() - 1), "line 440 has no line end: the file was cut short."},
        Row{"", "is empty."}, Row{four.text(), "has 4 values in a row and no header that tells"},
        Row{binary.substr(0, 1000), "record 11 ends early: the file was cut short."},
        Row{binary.substr(0, 962), "record 11 ends early: the file was cut short."},
        Row{damaged, "record 2 does not end with its own length"},
        Row{negative, "record 2, receptor 3 has a value that is negative, an"}}) {
    Imports imports;
    imports.write("own", row.bytes);
    expectRefused(imports, {"@own", "--receptors", "=plot/all.pst"}, row.words);
  }
}

TEST(ImportRefuses, AGroupThatEndsEarlier) {
  Imports imports;
  ModelText text("plot/facility.pst");
  text.rows.resize(47 * 9);
  imports.write("short.pst", text.text());
  expectRefused(imports, {"=plot/all.pst", "@short.pst"},
                "Group FACILITY (short.pst, line 423) ends with 2010-07-17 23, but group ALL "
                "(plot/all.pst, line 432) with 2010-07-17 24.");
}

TEST(ImportRefuses, CalmHoursOfAnotherRun) {
  Imports imports;
  imports.write("message", "MX I440  1  CHKCLM: Calm Hour Identified at   2010071605\n");
  expectRefused(imports, {"=plot/all.pst", "--calms", "@message"},
                "message, line 1 calls 2010-07-16 05 calm, but group ALL has a value above zero");
  const std::string surface = readTestData("plot/met_48h.SFC");
  imports.write("short", surface.substr(0, surface.find("2010  7 17 198 20")));
  expectRefused(imports, {"=plot/all.pst", "--calms", "@short"},
                "belongs to another run: it has the hours 2010-07-16 01 to 2010-07-17 19");
  imports.write("broken", surface + "2010  7 18 199  1 x\n");
  expectRefused(imports, {"=plot/all.pst", "--calms", "@broken"},
                "broken, line 50 is no hour of a surface file.");
  expectRefused(imports, {"=plot/all.pst", "--calms", "@broken", "--zero-hours", "calm"},
                "--zero-hours cannot be given beside it");
}

// An hour of a surface file with one quantity out of its limits.
TEST(CalmHours, FollowTheModelsLimits) {
  struct Row {
    std::size_t field;
    std::string value, mark;
  };
  ModelText zeros("plot/all.pst");
  for (std::string& row : zeros.rows) row.replace(29, 13, "      0.00000");
  for (const Row& row :
       {Row{16, "0.00", "calm"}, Row{16, "90.0", "missing"}, Row{16, "89.9", ""},
        Row{16, "-0.1", "missing"}, Row{17, "900.1", "missing"}, Row{17, "900.0", ""},
        Row{17, "-9.0", "missing"}, Row{17, "-8.9", ""}, Row{19, "900.1", "missing"},
        Row{19, "0.0", "missing"}, Row{12, "-99991.", "missing"}, Row{12, "-99990.", ""},
        Row{8, "-1.0", ""}, Row{10, "-1.0", ""}, Row{11, "90001.", "missing"},
        Row{11, "-1.", "missing"}, Row{7, "-0.1", "missing"}, Row{7, "9.0", "missing"},
        Row{7, "8.9", ""}}) {
    Imports imports;
    imports.write("zeros.pst", zeros.text());
    std::string surface = "a header\n";
    for (int hour = 1; hour <= 48; ++hour) {
      std::vector<std::string> fields = {"2010",
                                         "7",
                                         hour > 24 ? "17" : "16",
                                         "197",
                                         std::to_string((hour - 1) % 24 + 1),
                                         "1.0",
                                         "0.1",
                                         "0.5",
                                         "0.005",
                                         "100.",
                                         "50.",
                                         "10.",
                                         "0.1",
                                         "1.0",
                                         "0.2",
                                         "2.0",
                                         "180.",
                                         "10.",
                                         "288.",
                                         "2."};
      if (hour == 5) fields[row.field - 1] = row.value;
      for (const std::string& field : fields) surface += " " + field;
      surface += "\n";
    }
    imports.write("met.sfc", surface);
    ASSERT_EQ(imports.run({"@zeros.pst", "--calms", "@met.sfc"}), "") << row.field;
    const Arguments expected =
        row.mark.empty() ? Arguments{} : Arguments{"2010 07 16 05 " + row.mark};
    EXPECT_EQ(imports.marks("ALL.con"), expected) << row.field << " " << row.value;
  }
}

TEST(ZeroHours, AreCalmOnlyWhenTheyAreFewOrNamed) {
  struct Row {
    Arguments arguments;
    std::size_t marked;
    std::string words;
  };
  const Arguments night = {"=night/all.pst", "=night/facility.pst", "=night/other1.pst"};
  const auto with = [](Arguments all, const Arguments& more) {
    all.insert(all.end(), more.begin(), more.end());
    return all;
  };
  for (const Row& row : {
           Row{{"=plot/all.pst"}, 4, "taken for calm, because they are few"},
           Row{with(night, {"--calms", "=night/ERRORS.OUT"}), 4, "count as valid: 21."},
           Row{with(night, {"--zero-hours", "calm"}), 25, "(--zero-hours calm)"},
           Row{with(night, {"--zero-hours", "valid"}), 0, "(--zero-hours valid)"},
           Row{{"=tall/all.pst", "--calms", "=tall/ERRORS.OUT"}, 4, "count as valid: 18."},
       }) {
    Imports imports;
    ASSERT_EQ(imports.run(row.arguments), "");
    EXPECT_EQ(imports.marks("ALL.con").size(), row.marked);
    EXPECT_NE(imports.report().find(row.words), std::string::npos) << imports.report();
  }
  Imports imports;
  expectRefused(
      imports, night,
      "25 of 48 hours are zero everywhere, up to 12 in a row. Calm hours, or no emission?");
}

// 480 hours of one receptor, of which some are zero: a tenth may be, and a day on end.
TEST(ZeroHours, AreFewUpToATenthAndADay) {
  const auto write = [](Imports& imports, int every, int inARow) {
    std::string text;
    char row[128];
    for (int hour = 0; hour < 480; ++hour) {
      const bool zero = hour < inARow || (every > 0 && hour % every == 0);
      std::snprintf(row, sizeof row,
                    " %13.5f %13.5f %13.5f %8.2f %8.2f %8.2f  %6s  %-8s  %08d  %-8s\n", 1.0, 2.0,
                    zero ? 0.0 : 1.0, 0.0, 0.0, 0.0, "1-HR", "ALL",
                    10010100 + hour / 24 * 100 + hour % 24 + 1, "");
      text += row;
    }
    imports.write("own.pst", text);
  };
  for (const auto& [every, inARow, refused] : {std::tuple{10, 0, false}, std::tuple{10, 2, true},
                                               std::tuple{0, 24, false}, std::tuple{0, 25, true}}) {
    Imports imports;
    write(imports, every, inARow);
    EXPECT_EQ(!imports.run({"@own.pst"}).empty(), refused) << every << " " << inARow;
  }
}

}  // namespace
}  // namespace korventally::engine

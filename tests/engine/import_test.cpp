// What an import makes of a model's files: values, hours, names, a case that runs.
#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "engine/engine.h"
#include "engine/import/case_file.h"
#include "engine/import/fixed_value.h"
#include "engine/import/imported_study.h"
#include "engine/import/model_value.h"
#include "engine/import/receptor_names.h"
#include "engine/system_files.h"
#include "tests/engine/imports.h"
#include "tests/engine/model_files.h"

namespace korventally::engine {
namespace {

const std::vector<std::string> kPlot = {"=plot/all.pst", "=plot/facility.pst", "=plot/other1.pst"};

std::vector<std::string> with(std::vector<std::string> more, const std::vector<std::string>& all) {
  more.insert(more.end(), all.begin(), all.end());
  return more;
}

TEST(ModelValue, IsCopiedDigitByDigit) {
  struct Row {
    std::string field, micrograms, grams;
    double number;
  };
  for (const Row& row :
       {Row{"   1398.53468", " 1398.53468E-06", " 1398.53468", 1398.53468},
        Row{"      0.00000", " 0.00000E-06", " 0.00000", 0},
        Row{"     -0.00000", " 0.00000E-06", " 0.00000", 0},
        Row{" 0.139853E+04", " 0.139853E-02", " 0.139853E+04", 1398.53},
        Row{" 0.282465-103", " 0.282465E-109", " 0.282465-103", 0.282465e-103},
        Row{" 0.100000E+07", " 0.100000E+01", " 0.100000E+07", 1e6},
        Row{"9999999.99999", " 9999999.99999E-06", " 9999999.99999", 9999999.99999}}) {
    std::string micrograms, grams;
    double number = -1;
    EXPECT_EQ(copyValue(row.field, ValueUnit::kMicrograms, micrograms, number), ValueFault::kNone);
    EXPECT_EQ(copyValue(row.field, ValueUnit::kGrams, grams, number), ValueFault::kNone);
    EXPECT_EQ(micrograms, row.micrograms);
    EXPECT_EQ(grams, row.grams);
    EXPECT_EQ(number, row.number);
  }
  for (const auto& [field, fault] : {std::pair{"*************", ValueFault::kStars},
                                     std::pair{"     -0.00001", ValueFault::kNegative},
                                     std::pair{"          NaN", ValueFault::kNoNumber},
                                     std::pair{"      0.0x000", ValueFault::kNoNumber},
                                     std::pair{"       .00000x", ValueFault::kNoNumber},
                                     std::pair{"             ", ValueFault::kNoNumber}}) {
    std::string line;
    double number = 7;
    EXPECT_EQ(copyValue(field, ValueUnit::kMicrograms, line, number), fault) << field;
    EXPECT_EQ(line, "");
    EXPECT_EQ(number, 7);
  }
}

// One byte after the other is another one: eight at once must see it as one at a time would.
TEST(ModelValue, TakesNoOtherByteForADigit) {
  for (const std::string field : {"   1398.53468", "      0.00000", "1234567.89012"}) {
    for (std::size_t place = 0; place < field.size(); ++place) {
      for (int byte = 1; byte < 256; ++byte) {
        std::string changed = field, line;
        changed[place] = static_cast<char>(byte);
        const FixedValue value = fixedValue(changed.data());
        const std::size_t first = changed.find_first_not_of(' ');
        bool isFixed = first < 7 && changed[7] == '.';
        for (std::size_t i = first; i < changed.size(); ++i) {
          isFixed = isFixed && (i == 7 || (changed[i] >= '0' && changed[i] <= '9'));
        }
        ASSERT_EQ(value.digits >= 0, isFixed) << changed << place;
        if (!isFixed) continue;
        EXPECT_EQ(value.blanks, first);
        changed.erase(7, 1);
        EXPECT_EQ(value.digits, std::stoll(changed.substr(first)));
      }
    }
  }
}

TEST(ReceptorNames, AreTheNetworksAndANumber) {
  using Names = std::vector<std::string>;
  const auto names = [](const Names& networks) {
    std::vector<ModelPlace> places;
    for (const std::string& network : networks) places.push_back({"0", "0", network});
    return receptorNames(places);
  };
  EXPECT_EQ(names({"GRD", "", "GRD", "RING", ""}), (Names{"GRD1", "R1", "GRD2", "RING1", "R2"}));
  EXPECT_EQ(names({"R", ""}), (Names{"R1", "R2"}));
  EXPECT_EQ(names({"A", "A1", "A,"}), (Names{"R1", "R2", "R3"}));
  const Names many(20000, "NETWORK1");
  EXPECT_EQ(names(many).back(), "R20000");
}

TEST(ConcentrationFileNames, SuitEveryFileSystem) {
  ImportedStudy study;
  for (const char* name : {"ALL", "all", "A/B", "Nul", "COM1", "LPT", "100%"}) {
    study.groups.push_back({name, {}, {}, {}});
  }
  EXPECT_EQ(concentrationFileNames(study),
            (std::vector<std::string>{"ALL.con", "all_2.con", "A_B.con", "_Nul.con", "_COM1.con",
                                      "LPT.con", "100_.con"}));
}

TEST(Import, MakesConcentrationFilesReceptorsAndACase) {
  Imports imports;
  ASSERT_EQ(imports.run(with(kPlot, {"--calms", "=plot/ERRORS.OUT"})), "");
  EXPECT_TRUE(
      imports.result("FACILITY.con")
          .starts_with("# KorvenTally import: group FACILITY, g/m**3, hours counted 1 to 24\n"
                       "# receptors: GRD1 GRD2 GRD3 GRD4 RING1 RING2 RING3 R1 R2\n"
                       "2010 07 16 01 0.00000E-06 0.00000E-06 "));
  for (const char* name : {"ALL.con", "FACILITY.con", "OTHER1.con"}) {
    EXPECT_EQ(imports.marks(name),
              (std::vector<std::string>{"2010 07 16 20 calm", "2010 07 16 24 calm",
                                        "2010 07 17 11 missing", "2010 07 17 24 calm"}));
    EXPECT_EQ(imports.values(name).size(), 48u);
  }
  EXPECT_NE(imports.result("receptors.dat").find("     -0.00000     400.00000  RING3\n"),
            std::string::npos);
  std::string control;
  const auto path = [&](const char* name) {
    return textFromPath(imports.study().path("out") / name);
  };
  for (const std::string& value :
       {path("korventally.lst"), std::string("SO2"),    std::string("2010,07,16,01"),
        std::string("48"),       std::string("3"),      path("ALL.con"),
        std::string("ALL"),      path("FACILITY.con"),  std::string("FACILITY"),
        path("OTHER1.con"),      std::string("OTHER1"), std::string("1000000.0,0.0"),
        std::string("0"),        std::string("3"),      std::string("1300.0"),
        std::string("1"),        path("receptors.dat"), std::string("1"),
        std::string("1.0"),      std::string("2"),      std::string("F"),
        std::string("0")}) {
    control += std::string(29, ' ') + ":" + value + "\r\n";
  }
  EXPECT_EQ(imports.result("case.inp"), control);
  EXPECT_EQ(imports.result("import.txt"), imports.report());
  EXPECT_EQ(imports.report().find("longer"), std::string::npos);
  imports.folder += std::string(132 - path("receptors.dat").size(), 'x');
  ASSERT_EQ(imports.run(with(kPlot, {"--calms", "=plot/ERRORS.OUT"})), "");
  EXPECT_EQ(imports.report().find("longer"), std::string::npos);
  imports.folder += "x";
  ASSERT_EQ(imports.run(with(kPlot, {"--calms", "=plot/ERRORS.OUT"})), "");
  EXPECT_NE(imports.report().find("up to 132 characters, and some of these are longer"),
            std::string::npos);
}

// The model's own highest 3-hour average of all sources, and its place.
TEST(Import, MakesACaseThatTheEngineCompletes) {
  Imports imports;
  ASSERT_EQ(imports.run(with(kPlot, {"--calms", "=plot/ERRORS.OUT"})), "");
  const Result result = runCase(imports.study().path("out/case.inp"));
  EXPECT_EQ(result.sentence, "");
  double highest = 0;
  for (const ModelRow& row : readModelRows("averages/all_3.pst")) {
    highest = std::max(highest, std::stod(row.value));
  }
  const std::string list = imports.result("korventally.lst");
  const std::size_t line = list.find("  ALL            1st ");
  ASSERT_NE(line, list.npos) << list;
  EXPECT_NEAR(std::stod(list.substr(line + 21)), highest, 1e-4);
}

// Other forms of the very same run.
TEST(Import, GivesTheSameBytesForTheSameValues) {
  Imports plot;
  ASSERT_EQ(plot.run(with(kPlot, {"--calms", "=plot/ERRORS.OUT"})), "");
  const std::vector<std::string> calms = {"--calms", "=plot/ERRORS.OUT"};
  ModelText old("plot/all.pst"), stripped("plot/all.pst");
  for (std::string& row : old.rows) row.erase(51, 18);  // ZHILL and ZFLAG
  // Nine to an hour: of each receptor every other row.
  for (std::size_t i = 1; i < stripped.rows.size(); i += 2) {
    stripped.rows[i].erase(stripped.rows[i].find_last_not_of(' ') + 1);
  }
  const std::string first = old.text(), second = stripped.text();
  std::string windows;
  for (const char c : readTestData("plot/all.pst"))
    windows += c == '\n' ? "\r\n" : std::string(1, c);
  const std::vector<std::string> others = {"=plot/facility.pst", "=plot/other1.pst"};
  for (const auto& [arguments, own] :
       {std::pair{std::vector<std::string>{"=noheader/all.pst", "=noheader/facility.pst",
                                           "=noheader/other1.pst"},
                  std::string()},
        std::pair{std::vector<std::string>{"=onefile/three_groups.pst"}, std::string()},
        std::pair{with({"@own.pst"}, others), first}, std::pair{with({"@own.pst"}, others), second},
        std::pair{with({"@own.pst"}, others), windows}}) {
    Imports imports;
    imports.write("own.pst", own);
    ASSERT_EQ(imports.run(with(arguments, calms)), "") << arguments.front();
    for (const char* name : {"ALL.con", "FACILITY.con", "OTHER1.con", "receptors.dat"}) {
      EXPECT_EQ(imports.result(name), plot.result(name)) << arguments.front();
    }
  }
  Imports surface;
  ASSERT_EQ(surface.run(with(kPlot, {"--calms", "=plot/met_48h.SFC"})), "");
  EXPECT_EQ(surface.result("ALL.con"), plot.result("ALL.con"));
}

// The unformatted files have all digits: the others may differ from them by their rounding.
TEST(Import, GivesTheSameValuesWithinWhatWasPrinted) {
  struct Row {
    std::vector<std::string> exact, printed;
    double absolute, relative;
  };
  const std::vector<std::string> binary = {"=unform/all.bin", "=unform/facility.bin",
                                           "=unform/other1.bin", "--receptors", "=plot/all.pst"};
  for (const Row& row :
       {Row{binary, kPlot, 0.5000001e-5, 0},
        Row{binary, {"=exp/all.pst", "=exp/facility.pst", "=exp/other1.pst"}, 0, 0.5000001e-5},
        Row{{"=onefile/two_groups_unform.bin", "--receptors", "=plot/all.pst"}, binary, 0, 0},
        Row{binary, {"=onefile/two_groups_three_averages.pst"}, 0.5000001e-5, 0},
        Row{{"=deposition-unform/all.bin", "--receptors", "=plot/all.pst"},
            {"=deposition/all.pst"},
            0.5000001e-5,
            0},
        Row{{"=deposition-unform/all.bin", "--receptors", "=plot/all.pst"},
            {"=deposition-exp/all.pst"},
            0,
            0.5000001e-5}}) {
    Imports exact, printed;
    ASSERT_EQ(exact.run(with(row.exact, {"--zero-hours", "valid"})), "");
    ASSERT_EQ(printed.run(with(row.printed, {"--zero-hours", "valid"})), "");
    const auto one = exact.values("ALL.con"), other = printed.values("ALL.con");
    ASSERT_EQ(one.size(), 48u);
    ASSERT_EQ(other.size(), 48u);
    for (std::size_t hour = 0; hour < one.size(); ++hour) {
      ASSERT_EQ(one[hour].size(), 9u);
      ASSERT_EQ(other[hour].size(), 9u);
      for (std::size_t i = 0; i < 9; ++i) {
        // Six digits behind "0.": half a unit of the last is at most so much of the value.
        const double room = row.absolute + 10 * row.relative * one[hour][i] + 1e-15;
        ASSERT_NEAR(one[hour][i], other[hour][i], room) << row.printed.front() << " " << hour;
      }
    }
  }
}

TEST(Import, JoinsFilesOfOneGroupInAnyOrder) {
  Imports whole, joined;
  ASSERT_EQ(whole.run({"=century/all.pst", "--zero-hours", "calm"}), "");
  EXPECT_NE(whole.result("ALL.con").find("\n1999 12 31 24 "), std::string::npos);
  EXPECT_NE(whole.result("ALL.con").find("\n2000 01 01 01 "), std::string::npos);
  EXPECT_NE(whole.report().find("1999-12-30 01  2000-01-02 24       96"), std::string::npos);
  ModelText later("century/all.pst"), earlier = later;
  const std::size_t place = 9 * 40;
  earlier.rows.resize(place);
  later.rows.erase(later.rows.begin(), later.rows.begin() + place);
  joined.write("2.pst", later.text());
  joined.write("1.pst", earlier.text());
  ASSERT_EQ(joined.run({"@2.pst", "@1.pst", "--zero-hours", "calm"}), "");
  EXPECT_EQ(joined.result("ALL.con"), whole.result("ALL.con"));
}

TEST(Import, TakesTheGroupsThatItIsTold) {
  Imports imports;
  ASSERT_EQ(imports.run({"=onefile/three_groups.pst", "--only", "OTHER1,FACILITY", "--all",
                         "FACILITY", "--facility", "OTHER1"}),
            "");
  EXPECT_EQ(imports.result("ALL.con"), "");
  const std::string control = imports.result("case.inp");
  EXPECT_LT(control.find(":ALL_FACILITY\r\n"), control.find(":OTHER1\r\n"));
  EXPECT_NE(imports.report().find("left out: group ALL, 432 rows"), std::string::npos);
  EXPECT_EQ(imports.marks("FACILITY.con").size(), 4u);  // ALL tells that three more are not calm
  ASSERT_EQ(imports.run({"=onefile/two_groups_three_averages.pst"}), "");
  EXPECT_NE(imports.report().find("left out: 24-HR averages, 36 rows"), std::string::npos);
  EXPECT_NE(imports.report().find("left out: 3-HR averages, 288 rows"), std::string::npos);
  ASSERT_EQ(imports.run({"=offclock/all.pst", "--unit", "g/m3"}), "");
  EXPECT_EQ(imports.result("ALL.con").find("E-06"), std::string::npos);
  EXPECT_NE(imports.report().find("No control file"), std::string::npos);
}

// Bytes of the system's code page; the case must name the very files that were written.
TEST(Import, TakesNamesWithLettersOfTheCodePage) {
  Imports imports;
  ModelText text("plot/other1.pst");
  for (std::string& row : text.rows) row.replace(79, 8, "\x8AUMAVA  ");
  imports.write("other.pst", text.text());
  ASSERT_EQ(imports.run({"=plot/all.pst", "=plot/facility.pst", "@other.pst"}), "");
  EXPECT_NE(imports.result("case.inp").find("\x8AUMAVA.con\r\n"), std::string::npos);
  EXPECT_EQ(runCase(imports.study().path("out/case.inp")).sentence, "");
}

TEST(Import, TellsHowFarItIs) {
  Imports imports;
  const ModelText one("century/all.pst");
  ModelText many = one;
  many.rows.clear();
  char date[32];
  for (int hour = 0; hour < 700; ++hour) {
    std::snprintf(date, sizeof date, "1001%02d%02d", hour / 24 + 1, hour % 24 + 1);
    for (int copy = 0; copy < 9; ++copy) many.rows.push_back(one.rows[copy]);
    for (int copy = 0; copy < 9; ++copy) many.rows.end()[-1 - copy].replace(89, 8, date);
  }
  imports.write("many.pst", many.text());
  imports.interval = imports.interval.zero();
  // A busy machine may look away for as long as one import takes.
  for (int tries = 0; tries < 100 && imports.progress().empty(); ++tries) {
    ASSERT_EQ(imports.run({"@many.pst", "--zero-hours", "valid"}), "");
  }
  ASSERT_FALSE(imports.progress().empty());
  for (const std::string& line : imports.progress()) {
    EXPECT_TRUE(line.starts_with("Reading: ") && line.ends_with(" %")) << line;
    EXPECT_LT(std::stoi(line.substr(9)), 100) << line;
  }
}

// Of each kind of difference between all sources and the groups: what it may mean.
TEST(Import, SaysWhatTheGroupsLeaveOver) {
  struct Row {
    std::vector<std::string> arguments;
    std::string meaning;
  };
  const ModelText all("plot/all.pst");
  ModelText more = all, same = all, twice = all;
  for (std::size_t i = 0; i < all.rows.size(); ++i) {
    const std::string hour = all.rows[i].substr(89, 8);
    const bool calm =
        hour == "10071620" || hour == "10071624" || hour == "10071711" || hour == "10071724";
    char text[16];
    std::snprintf(text, sizeof text, "%13.5f",
                  std::stod(all.rows[i].substr(29, 13)) + (calm ? 0 : 12.5));
    more.rows[i].replace(29, 13, text);
    for (ModelText* file : {&same, &twice}) {
      file->rows[i].replace(79, 8, file == &same ? "FACILITY" : "OTHER1  ");
    }
  }
  Imports imports;
  imports.write("more.pst", more.text());
  imports.write("same.pst", same.text());
  imports.write("twice.pst", twice.text());
  for (const Row& row : {Row{kPlot, "Sources that are in no group, or a background inside"},
                         Row{{"=plot/all.pst", "@same.pst"}, "The groups account for all sources."},
                         Row{{"@more.pst", "@same.pst"}, "12.50000 to 12.50000 ug/m**3; in all"},
                         Row{{"@more.pst", "@same.pst"}, "It is the same at every receptor"},
                         Row{{"=plot/all.pst", "@same.pst", "@twice.pst"},
                             "The groups are more than all sources"}}) {
    ASSERT_EQ(imports.run(row.arguments), "");
    EXPECT_NE(imports.report().find(row.meaning), std::string::npos)
        << row.meaning << imports.report();
  }
}

}  // namespace
}  // namespace korventally::engine

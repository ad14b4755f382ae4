// Files that count the hours of a day from 0 to 23 and from 1 to 24.
#include "engine/clock.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/engine/study.h"

namespace korventally::engine {
namespace {

// Hours around midnight, from 19 h of 1 January on; the sixth is named as told.
std::string hoursAround(const std::string& midnight, int hours) {
  std::string text;
  for (int i = 0; i < hours; ++i) {
    const std::string hour = i < 5   ? "1 " + std::to_string(19 + i)
                             : i > 5 ? "2 " + std::to_string(i - 5)
                                     : midnight;
    text += "2009 1 " + hour + " 1E-05 0\n";
  }
  return text;
}

std::string dayFrom(int first) {
  std::string text;
  for (int i = first; i < first + 24; ++i) text += "2009 1 1 " + std::to_string(i) + " 1 1\n";
  return text;
}

struct Count {
  const char* midnight;  // in both files
  int hours;             // in the files
  const char *start, *run, *averaging;
  std::vector<std::string> says;
};

const char* const kOn = "\r\n\r\nJUDGEMENT";  // directly behind the line on the averages

const Count kCounts[] = {
    {"1 24",
     12,
     "2009,01,01,22",
     "6",
     "3",
     {"12 hours (2009-01-01 19 to 2009-01-02 06), 2 receptors\r\n",
      "  hours counted 1 to 24; no hour marked",
      std::string("2 averages of 3 hours, 2009-01-01 22 to 2009-01-02 03") + kOn,
      "   2  A                100.0     200.0  2009-01-02 01     3        10.0000"}},
    {"1 24",
     12,
     "2009,01,01,24",
     "6",
     "3",
     {"Start (year-month-day hour):  2009-01-01 24\r\n",
      "  Off the clock: the first average begins at hour 24.\r\n"
      "  To have calendar days and their parts, start the run at hour 01, or a multiple of the "
      "averaging period later.\r\n",
      "   1  A                100.0     200.0  2009-01-01 24     3        10.0000"}},
    {"2 0",
     12,
     "2009,01,01,22",
     "6",
     "3",
     {"hours counted 0 to 23; ", "begins at hour 22.", "start the run at hour 00, or"}},
    {"2 0",
     12,
     "2009,01,02,00",
     "6",
     "3",
     {std::string("2009-01-02 00 to 2009-01-02 05") + kOn,
      "   2  A                100.0     200.0  2009-01-02 03"}},
    {"2 0",
     12,
     "2009,01,01,24",
     "5",
     "5",
     {std::string("1 average of 5 hours, 2009-01-02 00 to 2009-01-02 04") + kOn}},
    {"2 0", 12, "2009,01,01,20", "10", "5", {"Averages of so many hours do not fit into days."}},
    {"1 24", 12, "2009,01,01,19", "12", "8760", {std::string("(annual)") + kOn}},
    // Either way of counting would fit, and for one of them 19, 20, 21 are an eighth of a day.
    {"",
     5,
     "2009,01,01,19",
     "3",
     "3",
     {"hours counted 0 to 23 or 1 to 24, both would fit; ",
      std::string("2009-01-01 19 to 2009-01-01 21") + kOn}},
    {"",
     5,
     "2009,01,01,20",
     "3",
     "3",
     {"begins at hour 20.", "start the run at hour 00 (counted 0 to 23) or 01 (1 to 24), or a"}},
};

// Two groups of 10 ug/m**3 at one receptor, and what the files say of midnight.
Study& fill(Study& study, const std::string& all, const std::string& facility) {
  study.write("all.con", all);
  study.write("group_2.con", facility);
  return study;
}

TEST(Clock, IsToldAndDecidesWhereDaysBegin) {
  for (const Count& count : kCounts) {
    Study study(2);
    const std::string hours = hoursAround(count.midnight, count.hours);
    study.line(3) = count.start;
    study.line(4) = count.run;
    study.line(12) = count.averaging;
    EXPECT_EQ(fill(study, hours, hours).run().sentence, "");
    const std::string list = study.read("out.lst");
    for (const std::string& says : count.says)
      EXPECT_NE(list.find(says), list.npos) << says << list;
  }
}

TEST(Clock, OfAllFilesIsOne) {
  const std::string from0 = hoursAround("2 0", 12), from1 = hoursAround("1 24", 12);
  const struct {
    std::string all, facility;
    const char *start, *file, *says;  // `says` goes on behind the name of `file`
  } rows[] = {
      {from1, from0, "2009,01,01,19", "all.con", " counts the hours of a day from 1 to 24, but"},
      {from0, from1, "2009,01,01,19", "all.con", " counts the hours of a day from 0 to 23, but"},
      {from0, "2009 1 1 0 1 1\n2009 1 1 24 1 1\n", "2009,01,01,19", "group_2.con",
       ", line 2 has an hour 24, but line 1 an hour 0; a file counts the hours of a day either "
       "from "
       "0 to 23 or from 1 to 24."},
      {from1, hoursAround("1 24", 6) + "2009 1 2 0 1 1\n", "2009,01,01,19", "group_2.con",
       ", line 7 has an hour 0, but line 6 an hour 24; a file"},
      {from1 + "2009 1 2 6 1 1\n", from1, "2009,01,01,19", "all.con",
       ", line 13 repeats the hour 2009-01-02 06."},
      {dayFrom(1), from1, "2009,01,01,00", "all.con",
       " holds the hours 2009-01-01 01 to 2009-01-01 24, but the run needs 2008-12-31 24 to "
       "2009-01-01 05. The file counts the hours of a day from 1 to 24: a day begins at hour 1."},
      {dayFrom(0), from0, "2009,01,01,19", "all.con",
       " holds the hours 2009-01-01 00 to 2009-01-01 23, but the run needs 2009-01-01 19 to "
       "2009-01-02 00. The file counts the hours of a day from 0 to 23: a day begins at hour 0."},
      {"# year of two digits\n10 1 1 0 1 1\n", from1, "2009,01,01,19", "all.con",
       ", line 2 gives the year as 10; it must be 1900 or later, in four digits."},
  };
  for (const auto& row : rows) {
    Study study(2);
    study.line(3) = row.start;
    const std::string sentence = fill(study, row.all, row.facility).run().sentence;
    EXPECT_EQ(sentence.find("The file " + study.text(row.file) + row.says), 0u) << sentence;
  }
  // A file that does not show how it counts goes with the others.
  Study study(3);
  study.line(3) = "2009,01,01,19";
  study.line(4) = "3";
  study.write("group_3.con", hoursAround("", 5));
  EXPECT_EQ(fill(study, hoursAround("", 5), from1).run().sentence, "");
}

}  // namespace
}  // namespace korventally::engine

#include "engine/text.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "engine/columns.h"

namespace korventally::engine {
namespace {

TEST(Text, WholeNumbersAreDigitsOnlyAndFitAnyCounter) {
  EXPECT_EQ(parseWhole("0"), 0);
  EXPECT_EQ(parseWhole("007"), 7);
  EXPECT_EQ(parseWhole("999999999"), 999999999);
  for (const char* bad : {"", " 1", "1 ", "+1", "-1", "1.0", "1e3", "1234567890", "4294967297"}) {
    EXPECT_EQ(parseWhole(bad), std::nullopt) << bad;
  }
}

TEST(Text, DecimalsFillTheWholeTextAndAreFinite) {
  EXPECT_EQ(parseDecimal("91.0"), 91.0);
  EXPECT_EQ(parseDecimal(".5"), 0.5);
  EXPECT_EQ(parseDecimal("-3e2"), -300.0);
  for (const char* bad : {"", " 1", "1 ", "+1", "1,5", "1.2.3", "nan", "inf", "1e999", "0x1p3"}) {
    EXPECT_EQ(parseDecimal(bad), std::nullopt) << bad;
  }
}

TEST(Text, ModelsMayLeaveOutTheLetterAndGoBelowTheSmallestNumber) {
  const std::string nines(400, '9');
  const std::pair<std::string, double> rows[] = {
      {"0.282465-103", 0.282465e-103},
      {"-1.5+101", -1.5e101},
      {"1.5E-05", 1.5e-5},
      {"1e-310", 1e-310},
      {"0.1-322", 1e-323},
      {"0.1-323", 0},
      {"1e-400", 0},
      {"0.1-999", 0},
      {"1e-99999999999999999999", 0},
      {"0." + std::string(400, '0') + "7", 0},
      {nines + "e-400", 1},
  };
  for (const auto& [text, number] : rows) EXPECT_EQ(parseModelNumber(text), number) << text;
  for (const std::string& bad :
       {std::string("1e400"), nines, nines + "e-5", std::string("0.5-99"), std::string("5-103"),
        std::string("0.5-1x3"), std::string("0.5--03"), std::string("1e99999999999999999999"),
        std::string(""), std::string("1.0D-05"), std::string("2.+-12")}) {
    EXPECT_EQ(parseModelNumber(bad), std::nullopt) << bad;
  }
}

TEST(Text, QuotedTextStaysInsideOneSentence) {
  EXPECT_EQ(inQuotes("a\r\nRUN COMPLETED\t\x7F"), "\"a??RUN COMPLETED??\"");
  EXPECT_EQ(inQuotes(std::string(261, 'x')), "\"" + std::string(260, 'x') + "...\"");
  EXPECT_EQ(inQuotes(std::string(260, 'x')), "\"" + std::string(260, 'x') + "\"");
}

TEST(Text, NumbersInWords) {
  EXPECT_EQ(counted(1, "hour"), "1 hour");
  EXPECT_EQ(counted(0, "hour"), "0 hours");
  EXPECT_EQ(grouped(999), "999");
  EXPECT_EQ(grouped(1000), "1,000");
  EXPECT_EQ(grouped(1234567), "1,234,567");
}

TEST(Columns, NumbersKeepTheirWidth) {
  EXPECT_EQ(fixed(91.00004, 4), "91.0000");
  EXPECT_EQ(fixed(12345.67894, 4), "12345.6789");
  EXPECT_EQ(fixed(123456.789, 4), "123456.789");
  EXPECT_EQ(fixed(-1234567.8, 1, 9), "-1234568");
  EXPECT_EQ(fixed(12345678901.0, 4), "1.2346E+10");
  EXPECT_EQ(fixed(1234.5678, 3, 8), "1234.568");
  EXPECT_EQ(fixed(12345.678, 3, 8), "12345.68");
  EXPECT_EQ(fixed(123456789.0, 3, 8), "1.23E+08");
  EXPECT_EQ(fixed(-0.00004, 4), "0.0000");
  EXPECT_EQ(fixed(-0.00006, 4), "-0.0001");
  EXPECT_EQ(shortest(91.0), "91");
  EXPECT_EQ(shortest(0.2), "0.2");
}

TEST(Columns, NumbersShowOnWhichSideOfTheirLimitTheyAre) {
  const struct {
    double number, limit;
    const char* text;
  } rows[] = {
      {91.5, 91, "91.5000"},
      {5, 5, "5.0000"},
      {5.00004, 5, "5.00004"},
      {4.99999996, 5, "4.99999996"},
      {5.000000003, 5, "5.0000"},  // no more than rounding
      {0.0996, 0.1, "0.0996"},
      {0.0999999, 0.1, "0.0999999"},
      {0.12346, 0.123465, "0.12346"},  // four decimals would put it above
      {0.12345, 0.12345, "0.12345"},
      {2.0000001e-8, 2e-8, "2.0000001e-08"},
      {123456789.25, 123456789, "123456789.2500"},
      {9.7 * 3 / 3 + 2e-15, 9.7, "9.7000"},
  };
  for (const auto& row : rows) EXPECT_EQ(figure(row.number, row.limit), row.text) << row.number;
}

TEST(Columns, LongTextContinuesOnLinesOfItsOwn) {
  const std::string word(45, 'x'), longWord(120, 'y');
  const std::vector<std::string> two{"  " + word + " " + word + " abcdef", "    g"};
  EXPECT_EQ(wrapped(word + " " + word + " abcdef g"), two);
  const std::vector<std::string> long_{"  a", "    " + longWord, "    b"};
  EXPECT_EQ(wrapped("a " + longWord + " b"), long_);
}

}  // namespace
}  // namespace korventally::engine

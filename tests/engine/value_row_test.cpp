#include "engine/value_row.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "engine/line_reader.h"

namespace korventally::engine {
namespace {

// A row as the reader of a file hands it over: between readable bytes that look like values too,
// and not a byte more of them than that.
class Row {
 public:
  explicit Row(const std::string& values) : size_(values.size()) {
    std::string around;
    while (around.size() < LineReader::kPadding) around += "1.00000 ";
    const std::string text = around + values + "\n" + around;
    text_.assign(text.begin(), text.end());
  }

  std::string_view values() const { return {&text_[LineReader::kPadding], size_}; }

 private:
  std::size_t size_;
  std::vector<char> text_;
};

std::string formatted(std::mt19937& random, const std::string& format) {
  std::uniform_real_distribution<double> exponent(-30, 4);
  const double value = random() % 8 == 0 ? 0 : std::pow(10, exponent(random));
  char text[400];
  std::snprintf(text, sizeof text, format.c_str(), value);
  return text;
}

// The C library's strtod is the independent judge: both must round correctly.
TEST(ValueRow, ReadsEveryFormatExactlyAsTheCLibraryDoes) {
  const char* formats[] = {"%.5E",     "%.5e",      "%.1E",    "%.7E",  "%.8E",     "%.6f",
                           "%.5f",     "%13.5f",    "%.12f",   "%.17g", "%g",       "%.13f",
                           "%020.5f",  "%.3E",      "%.1f",    "%.6G",  "%.5fE-06", "%.5fE-17",
                           "%.2fe-00", "%.12fE-06", "%.6fE+01"};
  const std::string separators[] = {" ",
                                    "   ",
                                    "\t",
                                    ",",
                                    ", ",
                                    " ,",
                                    "\t ,\t",
                                    std::string(25, ' '),
                                    "," + std::string(70, ' ')};
  std::mt19937 random(42);
  const auto oneOf = [&](const auto& choices) { return choices[random() % std::size(choices)]; };
  for (int round = 0; round < 4000; ++round) {
    std::string line;
    std::vector<double> expected;
    // Mostly one form, as in real files, with a stranger now and then.
    const unsigned strangers = round % 3 == 0 ? 8 : 100;
    const char* format = oneOf(formats);
    std::string separator = oneOf(separators);
    for (int i = 0; i < 60; ++i) {
      if (random() % strangers == 0) format = oneOf(formats);
      const std::string value = formatted(random, format);
      line += (random() % strangers == 0 ? oneOf(separators) : separator) + value;
      expected.push_back(std::strtod(value.c_str(), nullptr));
    }
    std::vector<double> sums(expected.size(), 0.0);
    ValueRow row;
    ASSERT_TRUE(row.addTo(sums, Row(line).values())) << line;
    ASSERT_EQ(sums, expected) << line;
    ASSERT_TRUE(row.addTo(sums, Row(line + " \t").values())) << line;
    for (double& value : expected) value += value;
    ASSERT_EQ(sums, expected) << line;
  }
}

struct BadRow {
  const char* values;  // two are expected
  const char* says;
};

const BadRow kBadRows[] = {
    {"", " holds 0 values instead of 2, one for each receptor"},
    {" 1.00000E-05", " holds 1 value instead of 2, one for each receptor"},
    {" 1.00000E-05 ", " holds 1 value instead of 2, one for each receptor"},
    {" 1 2 3", " holds 3 values instead of 2, one for each receptor"},
    {" 1.00000E-05 1.00000E-05 x", ", value 3 is \"x\", which is not a number"},
    {" 1.00000E-05 1.0000xE-05", ", value 2 is \"1.0000xE-05\", which is not a number"},
    {" 1.00000E-05 1.00000E,05", ", value 2 is \"1.00000E\", which is not a number"},
    {" 1.00000E-05 0.00000E,05", ", value 2 is \"0.00000E\", which is not a number"},
    {" 1.00000E-05 1.00000E-0x", ", value 2 is \"1.00000E-0x\", which is not a number"},
    {" 1.00000E-05 1,00000E-05", " holds 3 values instead of 2, one for each receptor"},
    {" 1.00000E-05 1.00000D-05", ", value 2 is \"1.00000D-05\", which is not a number"},
    {" 1.00000E-05;1.00000E-05", ", value 1 is \"1.00000E-05;1.00000E-05\", which is not a number"},
    {" 1.00000E-05+1.0000E-05", ", value 1 is \"1.00000E-05+1.0000E-05\", which is not a number"},
    {" 1.00000E-05 -1.00000E-5", ", value 2 is \"-1.00000E-5\", which is negative"},
    {" -0.5 1", ", value 1 is \"-0.5\", which is negative"},
    {" 1 nan", ", value 2 is \"nan\", which is not a number"},
    {" 1 NaN", ", value 2 is \"NaN\", which is not a number"},
    {" inf 1", ", value 1 is \"inf\", which is not a number"},
    {" 1 -inf", ", value 2 is \"-inf\", which is not a number"},
    {" 1 +1", ", value 2 is \"+1\", which is not a number"},
    {" 1 0x10", ", value 2 is \"0x10\", which is not a number"},
    {" 1 1e400", ", value 2 is \"1e400\", which is not a number"},
    {" 1 1.1e9", ", value 2 is \"1.1e9\", which is larger than any concentration"},
    {" 1.00000E-05 1.00000E+12",
     ", value 2 is \"1.00000E+12\", which is larger than any concentration"},
    {" 1.5000E-06 1.5000E-", ", value 2 is \"1.5000E-\", which is not a number"},
    {" 1.5000E-06 1.5000E-061.5", ", value 2 is \"1.5000E-061.5\", which is not a number"},
    {" 1.5000E-061.5", ", value 1 is \"1.5000E-061.5\", which is not a number"},
    {" 1.5000E-06 1.5000EE06", ", value 2 is \"1.5000EE06\", which is not a number"},
    {" 1.5000E-06 1.5000E-06E-06", ", value 2 is \"1.5000E-06E-06\", which is not a number"},
    {" 1.5000E-06 1.5-000E-06", ", value 2 is \"1.5-000E-06\", which is not a number"},
    {" 1.5000E-06 E-06", ", value 2 is \"E-06\", which is not a number"},
    {" 1.5000E-06 1.50 00E-06", " holds 3 values instead of 2, one for each receptor"},
    {",,1", ", value 1 is \"\", which is not a number"},
    {" 1,,2", ", value 2 is \"\", which is not a number"},
    {" 1,2,", ", value 3 is \"\", which is not a number"},
    {" 1.00000 1.00000x", ", value 2 is \"1.00000x\", which is not a number"},
    {" 1.0.00000 1.00000", ", value 1 is \"1.0.00000\", which is not a number"},
    {" 1.2.345 7", ", value 1 is \"1.2.345\", which is not a number"},
    {" 1.00.000 1.00000", ", value 1 is \"1.00.000\", which is not a number"},
    {" 1.00000 1..00000", ", value 2 is \"1..00000\", which is not a number"},
    {" 1.00000 1..0000", ", value 2 is \"1..0000\", which is not a number"},
    {" 1.00000.0 1", ", value 1 is \"1.00000.0\", which is not a number"},
    {" 1.00000 1.111:1", ", value 2 is \"1.111:1\", which is not a number"},
    {" 1.00000;1.00000", ", value 1 is \"1.00000;1.00000\", which is not a number"},
    {" 1.00000 1/0.00000", ", value 2 is \"1/0.00000\", which is not a number"},
    {" 1.00000 -1.00000", ", value 2 is \"-1.00000\", which is negative"},
    {" 1.00000 1000000001.00000",
     ", value 2 is \"1000000001.00000\", which is larger than any concentration"},
    {" 1.00000 9999999999999999.00000",
     ", value 2 is \"9999999999999999.00000\", which is larger than any concentration"},
    {" 1.0 1000000001.0", ", value 2 is \"1000000001.0\", which is larger than any concentration"},
    {" 1 18446744073709551617",
     ", value 2 is \"18446744073709551617\", which is larger than any concentration"},
    {",1.00000, ,1.00000", ", value 2 is \"\", which is not a number"},
    {",1.00000,                                                                 ,1.00000",
     ", value 2 is \"\", which is not a number"},
    {",1.0000,,1.0000", ", value 2 is \"\", which is not a number"},
    {",1.00000 ,,1.00000", ", value 2 is \"\", which is not a number"},
    {",1.00000,1.00000, ", ", value 3 is \"\", which is not a number"},
    {" 1 \x01", ", value 2 is \"?\", which is not a number"},
};

TEST(ValueRow, RefusesWhatIsNotTwoConcentrationsAndSaysWhy) {
  // With values in front that take each of the ways through the code, and end at every place.
  const char* const alike[] = {" 1.00000E-05", "  1.00000E-05", ",1.00000", " 2.5000", "  2.5"};
  // An exponent is learnt from values of two widths.
  const std::string widths = " 12.5000E-06 1.2500E-06";
  for (const BadRow& bad : kBadRows) {
    SCOPED_TRACE(bad.values);
    EXPECT_EQ(explainValues(bad.values, 2), bad.says);
    for (const std::string before : alike) {
      std::string values;
      for (std::size_t count = 0; count < 40; ++count, values += before) {
        std::vector<double> sums(count + 2);
        ValueRow row;
        EXPECT_FALSE(row.addTo(sums, Row(values + bad.values).values())) << values;
      }
    }
    for (std::string values = widths; values.size() < 400; values += " 12.5000E-06") {
      std::vector<double> sums((values.size() - widths.size()) / 12 + 4);
      ValueRow row;
      EXPECT_FALSE(row.addTo(sums, Row(values + bad.values).values())) << values;
    }
  }
}

// What looks like the exponent that was learnt up to its last digit has a value of its own.
TEST(ValueRow, KeepsOtherExponentsApart) {
  std::string values = " 12.5000E-06 1.2500E-06";
  for (int i = 0; i < 40; ++i)
    values += i == 21 ? " 37.5000E-05" : i == 30 ? " 1.5000E-6" : " 1.5000E-06";
  std::vector<double> sums(42);
  ValueRow row;
  ASSERT_TRUE(row.addTo(sums, Row(values).values()));
  EXPECT_EQ(sums[23], 37.5e-5);
  EXPECT_EQ(sums[32], 1.5e-6);
  EXPECT_EQ(sums[41], 1.5e-6);
}

// One way of reading leaves what stands behind its last value to the next one.
TEST(ValueRow, RefusesOtherSeparatorsWhereOneFormFollowsAnother) {
  std::string values = " 1.00000 1.0E-05 1.0E-05 1.0E-05";
  for (int i = 0; i < 16; ++i) values += "\v1.00000";
  double sums[20] = {};
  ValueRow row;
  EXPECT_FALSE(row.addTo(sums, Row(values).values()));
}

TEST(ValueRow, TakesTheEdgesOfTheRange) {
  double sums[11] = {};
  ValueRow row;
  const Row values(
      " 1e9 -0.0 9.99999E+07 1.00000E-105 .5 5. 1000000000.0 000000000.1 0.28246-103 1.00000E-400 "
      "1.00000E-01");
  ASSERT_TRUE(row.addTo(sums, values.values()));
  EXPECT_EQ(sums[0], 1e9);
  EXPECT_EQ(sums[1], 0.0);
  EXPECT_EQ(sums[2], 99999900.0);
  EXPECT_EQ(sums[3], 1e-105);
  EXPECT_EQ(sums[4] + sums[5], 5.5);
  EXPECT_EQ(sums[6], 1e9);
  EXPECT_EQ(sums[7], 0.1);
  EXPECT_EQ(sums[8], 0.28246e-103);
  EXPECT_EQ(sums[9], 0.0);
  EXPECT_EQ(sums[10], 0.1);
}

}  // namespace
}  // namespace korventally::engine

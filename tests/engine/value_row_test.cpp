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

// A row as the reader of a file hands it over: a line end and readable bytes follow.
class Row {
 public:
  explicit Row(const std::string& values)
      : size_(values.size()), text_(values + "\n" + std::string(LineReader::kPadding, '7')) {}

  std::string_view values() const { return std::string_view(text_).substr(0, size_); }

 private:
  std::size_t size_;
  std::string text_;
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
  const char* formats[] = {"%.5E", "%.5e", "%.1E", "%.7E", "%.8E", "%.6f", "%.17g", "%g", "%.3E"};
  const char* separators[] = {" ", "   ", "\t", ",", ", ", " ,", "\t ,\t"};
  std::mt19937 random(42);
  for (int round = 0; round < 2000; ++round) {
    std::string line;
    std::vector<double> expected;
    const char* format = formats[random() % std::size(formats)];
    for (int i = 0; i < 20; ++i) {
      // Mostly one shape, as in real files, with a stranger now and then.
      if (random() % 10 == 0) format = formats[random() % std::size(formats)];
      const std::string value = formatted(random, format);
      line += separators[random() % 5 == 0 ? random() % std::size(separators) : 0] + value;
      expected.push_back(std::strtod(value.c_str(), nullptr));
    }
    std::vector<double> sums(20, 0.0);
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
    {",,1", ", value 1 is \"\", which is not a number"},
    {" 1,,2", ", value 2 is \"\", which is not a number"},
    {" 1,2,", ", value 3 is \"\", which is not a number"},
    {" 1 \x01", ", value 2 is \"?\", which is not a number"},
};

TEST(ValueRow, RefusesWhatIsNotTwoConcentrationsAndSaysWhy) {
  for (const BadRow& bad : kBadRows) {
    SCOPED_TRACE(bad.values);
    const Row values(bad.values);
    // Also with the shape of " 1.00000E-05" in mind, which takes the other way through the code.
    for (const bool warm : {false, true}) {
      ValueRow row;
      double one[1] = {};
      if (warm) {
        ASSERT_TRUE(row.addTo(one, Row(" 1.00000E-05").values()));
      }
      double sums[2] = {};
      EXPECT_FALSE(row.addTo(sums, values.values()));
    }
    EXPECT_EQ(explainValues(values.values(), 2), bad.says);
  }
}

TEST(ValueRow, TakesTheEdgesOfTheRange) {
  double sums[4] = {};
  ValueRow row;
  ASSERT_TRUE(row.addTo(sums, Row(" 1e9 -0.0 9.99999E+07 1.00000E-105").values()));
  EXPECT_EQ(sums[0], 1e9);
  EXPECT_EQ(sums[1], 0.0);
  EXPECT_EQ(sums[2], 99999900.0);
  EXPECT_EQ(sums[3], 1e-105);
}

}  // namespace
}  // namespace korventally::engine

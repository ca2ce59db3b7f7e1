// Numbers out of text, their types and their display templates; what is stored is in evaluator_test.cpp.
#include "values/numbers.h"

#include <gtest/gtest.h>

#include "platform/runtime_error.h"
#include "platform/text.h"
#include "support/rows.h"
#include "values/field_types.h"
#include "values/templates.h"

namespace {

// The number that a text reads as, or the error that it throws.
std::string Read(const std::string& text, char separator) {
  try {
    return WriteNumber(ReadNumber(text, separator), '.');
  } catch (const RuntimeError& error) {
    return "error " + std::to_string(error.Number);
  }
}

TEST(NumbersTest, ReadsTheLongestLeadingNumber) {
  const std::string zeros(400, '0');
  for (const auto& [text, number] : Rows(R"( => 0 | abc => 0 | 12abc => 12 |   -3.5 kg => -3.5 | +7 => 7 | --7 => 0
- 7 => 0 | .5 => 0.5 | 5. => 5 | . => 0 | 1.2.3 => 1.2 | 1,000 => 1 | 1e3 => 1000 | 1E+2x => 100 | 1.5E-07 => 1.5E-07
2e => 2 | 2e+ => 2 | 0x10 => 0 | 1d3 => 1 | inf => 0 | nan => 0 | 1 000 => 1 | 1e-999 => 0 | 0e999 => 0
0.0001e3 => 0.1 | 1e999 => error 6 | -2e308 => error 6 | 1e99999999999999999999 => error 6 | 0.01e312 => error 6
0.)" + zeros + "1 => 0 | 1" + zeros + "e-400 => 1 | 1" +
                                         zeros + " => error 6 | 0." + zeros + "1e50 => 0")) {
    EXPECT_EQ(Read(text, '.'), number) << text;
  }
  EXPECT_EQ(Read("\t1", '.'), "0");
  for (const auto& [text, number] : Rows(" -1,5  => -1.5 | abc => error 13 |  => error 13 | 12abc => error 13 | "
                                         "1.5 => error 13 | 1,5,5 => error 13 | - => error 13")) {
    EXPECT_EQ(Read(text, ','), number) << text;
  }
  EXPECT_EQ(WriteNumber(0.5, ',') + SignedText(53) + SignedText(0) + SignedText(-1), "0,5 53 0-1");
}

// As a short and a long whole number, and as a record's.
TEST(NumbersTest, ReadsWholeNumbersWithinTheirType) {
  for (const auto& [text, numbers] :
       Rows(R"(0.5 => 0 0 0 | 0.9 => 1 1 0 | 1.5 => 2 2 2 | -2 => -2 -2 0 | 32767 => 32767 32767 32767
32767.4 => 32767 32767 32767 | 32767.5 => 0 32768 32768 | -32768 => -32768 -32768 0 | 40000 => 0 40000 32768
-2147483648 => 0 -2147483648 0 | 2147483648 => 0 0 32768 | 1e999 => 0 0 32768 | -1e999 => 0 0 0)")) {
    EXPECT_EQ(std::to_string(LeadingInt16(text)) + " " + std::to_string(LeadingInt32(text)) + " " +
                  std::to_string(LeadingRecordNumber(text)),
              numbers)
        << text;
  }
}

TEST(NumbersTest, KnowTheirTypes) {
  for (const auto& [type, told] : Rows(R"(interest => INTRATE ###0.00% number |   => DOUBLE  | CALC =>   |  => DOUBLE 
dollar => DOLLAR ###,###,##0.00 number | Byte => BYTE  number | LONG => LONG ##,###,###,##0 number
INTRATE => INTRATE  number | INTEGER => INTEGER ######0 number | SINGLE => SINGLE ###,##0.0 number
DOUBLE => DOUBLE ###,###,###,##0.000 number | ODDS => ODDS ##0.0% number | ODDSPM => ODDSPM ###0.0% number)")) {
    EXPECT_EQ(StorageType(type) + " " + Global::DefaultTemplate(type) + (IsNumberType(type) ? " number" : ""), told)
        << type;
  }
}

// The stored text and the template, and what is shown.
TEST(NumbersTest, AreShownUnderTemplates) {
  for (const auto& [given, shown] : Rows(R"(1234567.891 ###,###,##0.00 => 1,234,567.89 | 2.675 0.00 => 2.68
-0.004 0.00 => 0.00 | 999.995 0.00 => 1000.00 | 0 # =>  | 3 #.## => 3. | 12345 0 => 12345 | 12 0,000 => 0,012
55% ##0.0% => 55.0% | 0.5 %0 => %50 | 0.5 0%.00 => 50%.00 | 1234.5 #,#%## => 123,4%50 | 0.05 #%# => %5 | 0 #%# => % | .5 0.00 => 0.50
0.1234 0.0%0# => 12.3%4 | 0.5 0.% => 50.% | 0.005 0%% => 50%% | 1e5 #,##0 => 100,000 | 1.25 0.0#0 => 1.250
1E-400 0.0 => 0.0 | -1E-400 #0 => 0 | 1E+400 0.0 => 1E+400 | 1E+20 #,##0 => 100,000,000,000,000,000,000 | 1.5E-07 0.0000000# => 0.00000015 | 1.2 0.0.0 => 1.20
0E+2000000000 0.0 => 0.0 | -0E-2000000000% 0.0# => 0.0 | RED 0.00 => RED | inf 0.00 => inf |  0.00 =>  | 12abc 0.00 => 12abc
5  => 5 | 5   => 5)")) {
    const auto [stored, display_template] = Halves(given, ' ');
    EXPECT_EQ(FormatByTemplate(stored, display_template, '.'), shown) << given;
  }
  EXPECT_EQ(FormatByTemplate("1234,5", "###.##0.00", ','), "1.234,50");
  EXPECT_EQ(FormatValue("12.50", "DOLLAR", ""), "12.50");
  EXPECT_EQ(FormatValue("1234", "DOLLAR", "#,##0"), "1,234");
}

}  // namespace

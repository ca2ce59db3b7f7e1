// Numbers out of text, their types and their display templates; what is stored is in evaluator_test.cpp.
#include "values/numbers.h"

#include "platform/runtime_error.h"
#include "platform/text.h"
#include "support/rows.h"
#include "values/field_types.h"
#include "values/templates.h"

namespace {

// The number that a text reads as, or the error that it throws.
template <char kSeparator>
std::string Read(const std::string& text) {
  try {
    return WriteNumber(ReadNumber(text, kSeparator), '.');
  } catch (const RuntimeError& error) {
    return "error " + std::to_string(error.Number);
  }
}

TEST(NumbersTest, AreReadFromTheStartOfATextAndWithinTheirType) {
  const std::string zeros(400, '0');
  ExpectRows(R"( => 0 | abc => 0 | 12abc => 12 |   -3.5 kg => -3.5 | +7 => 7 | --7 => 0
- 7 => 0 | .5 => 0.5 | 5. => 5 | . => 0 | 1.2.3 => 1.2 | 1,000 => 1 | 1e3 => 1000 | 1E+2x => 100 | 1.5E-07 => 1.5E-07
2e => 2 | 2e+ => 2 | 0x10 => 0 | 1d3 => 1 | inf => 0 | nan => 0 | 1 000 => 1 | 1e-999 => 0 | 0e999 => 0
0.0001e3 => 0.1 | 1e999 => error 6 | -2e308 => error 6 | 1e99999999999999999999 => error 6 | 0.01e312 => error 6
0.)" + zeros + "1 => 0 | 1" +
                 zeros + "e-400 => 1 | 1" + zeros + " => error 6 | 0." + zeros + "1e50 => 0",
             Read<'.'>);
  EXPECT_EQ(Read<'.'>("\t1"), "0");
  ExpectRows(R"( -1,5  => -1.5 | abc => error 13 |  => error 13 | 12abc => error 13
1.5 => error 13 | 1,5,5 => error 13 | - => error 13)",
             Read<','>);
  EXPECT_EQ(WriteNumber(0.5, ',') + SignedText(53) + SignedText(0) + SignedText(-1), "0,5 53 0-1");
  // As a short and a long whole number, and as a record's.
  ExpectRows(R"(0.5 => 0 0 0 | 0.9 => 1 1 0 | 1.5 => 2 2 2 | -2 => -2 -2 0 | 32767 => 32767 32767 32767
32767.4 => 32767 32767 32767 | 32767.5 => 0 32768 32768 | -32768 => -32768 -32768 0 | 40000 => 0 40000 32768
-2147483648 => 0 -2147483648 0 | 2147483648 => 0 0 32768 | 1e999 => 0 0 32768 | -1e999 => 0 0 0)",
             [](const std::string& text) {
               return std::to_string(LeadingInt16(text)) + " " + std::to_string(LeadingInt32(text)) + " " +
                      std::to_string(LeadingRecordNumber(text));
             });
}

// What the help page's examples do not show; those of the types are there.
TEST(NumbersTest, AreShownUnderTemplatesAndByTheirTypes) {
  ExpectRows(R"(1234567.891 ###,###,##0.00 => 1,234,567.89 | 2.675 0.00 => 2.68
-0.004 0.00 => 0.00 | 999.995 0.00 => 1000.00 | 0 # =>  | 3 #.## => 3. | 12345 0 => 12345 | 12 0,000 => 0,012
55% ##0.0% => 55.0% | 0.5 %0 => %50 | 0.5 0%.00 => 50%.00 | 1234.5 #,#%## => 123,4%50 | 0.05 #%# => %5 | 0 #%# => %
0.1234 0.0%0# => 12.3%4 | 0.5 0.% => 50.% | 0.005 0%% => 50%% | 1e5 #,##0 => 100,000 | 1.25 0.0#0 => 1.250
.5 0.00 => 0.50 | 1E-400 0.0 => 0.0 | -1E-400 #0 => 0 | 1E+400 0.0 => 1E+400 | 1.5E-07 0.0000000# => 0.00000015
1E+20 #,##0 => 100,000,000,000,000,000,000 | 1.2 0.0.0 => 1.20 | 0E+2000000000 0.0 => 0.0 | -0E-2000000000% 0.0# => 0.0
RED 0.00 => RED | inf 0.00 => inf |  0.00 =>  | 12abc 0.00 => 12abc | 5  => 5 | 5   => 5)",
             ' ', [](const std::string& stored, const std::string& display_template) {
               return FormatByTemplate(stored, display_template, '.');
             });
  ExpectRows(R"(interest => INTRATE ###0.00% number |   => DOUBLE  | CALC =>   |  => DOUBLE 
dollar => DOLLAR ###,###,##0.00 number | Byte => BYTE  number | INTRATE => INTRATE  number)",
             [](const std::string& type) {
               return StorageType(type) + " " + Global::DefaultTemplate(type) + (IsNumberType(type) ? " number" : "");
             });
  EXPECT_EQ(FormatByTemplate("1234,5", "###.##0.00", ',') + FormatValue("1234", "DOLLAR", "#,##0"), "1.234,501,234");
}

}  // namespace

// Numbers out of text.
#include "values/numbers.h"

#include <gtest/gtest.h>

#include "platform/runtime_error.h"

namespace {

TEST(NumbersTest, ReadsTheLongestLeadingNumber) {
  struct Row {
    const char* Text;
    double Number;
  };
  const Row rows[] = {{"", 0},        {"abc", 0},   {"12abc", 12}, {"  -3.5 kg", -3.5}, {"+7", 7},
                      {"--7", 0},     {"- 7", 0},   {".5", 0.5},   {"5.", 5},           {".", 0},
                      {"1.2.3", 1.2}, {"1,000", 1}, {"1e3", 1000}, {"1E+2x", 100},      {"1.5E-07", 1.5e-07},
                      {"2e", 2},      {"2e+", 2},   {"0x10", 0},   {"1d3", 1},          {"inf", 0},
                      {"nan", 0},     {"1 000", 1}, {"1e-999", 0}, {"0e999", 0},        {"0.0001e3", 0.1},
                      {"\t1", 0}};
  for (const Row& row : rows) EXPECT_EQ(LeadingNumber(row.Text), row.Number) << row.Text;
  EXPECT_EQ(LeadingNumber("0." + std::string(400, '0') + "1"), 0);
  EXPECT_EQ(LeadingNumber("1" + std::string(400, '0') + "e-400"), 1);
}

TEST(NumbersTest, RefusesWhatIsTooLarge) {
  for (const std::string& text :
       {std::string("1e999"), std::string("-2e308"), std::string(400, '9'), std::string("1e99999999999999999999")}) {
    try {
      LeadingNumber(text);
      ADD_FAILURE() << text;
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number, 6);
    }
  }
}

TEST(NumbersTest, ReadsWholeNumbersWithinTheirType) {
  EXPECT_EQ(LeadingInt16("0.5"), 0);
  EXPECT_EQ(LeadingInt16("1.5"), 2);
  EXPECT_EQ(LeadingInt16("32767.5"), 0);
  EXPECT_EQ(LeadingInt16("-32768"), -32768);
  EXPECT_EQ(LeadingInt16("1e999"), 0);
  EXPECT_EQ(LeadingInt32("-2147483648"), -2147483647 - 1);
  EXPECT_EQ(LeadingInt32("2147483648"), 0);
  EXPECT_EQ(LeadingRecordNumber("0.5"), 0);
  EXPECT_EQ(LeadingRecordNumber("-1e999"), 0);
  EXPECT_EQ(LeadingRecordNumber("32767.4"), kLastRecord);
  EXPECT_EQ(LeadingRecordNumber("1e999"), kPastLastRecord);
  EXPECT_EQ(LeadingRecordNumber("32767"), kLastRecord);
  EXPECT_EQ(LeadingRecordNumber("40000"), kPastLastRecord);
  EXPECT_EQ(LeadingRecordNumber("-2"), 0);
}

TEST(NumbersTest, QuotesNumbersWithTheirSign) {
  EXPECT_EQ(SignedText(53), " 53");
  EXPECT_EQ(SignedText(0), " 0");
  EXPECT_EQ(SignedText(-3), "-3");
}

}  // namespace

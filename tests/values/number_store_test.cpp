// Stored texts of typed numbers, and their display templates.
#include "values/number_store.h"

#include "platform/program.h"
#include "platform/runtime_error.h"
#include "support/fresh_test.h"
#include "values/field_types.h"
#include "values/numbers.h"
#include "values/templates.h"

namespace {

class NumberStoreTest : public FreshTest {
 protected:
  static std::string Stored(std::string text, const std::string& type, bool quiet = true) {
    const bool stored = Global::StoreNumberByType(text, type, '.', quiet);
    return stored ? text : "failed:" + text;
  }
};

TEST_F(NumberStoreTest, StoresEachType) {
  struct Row {
    const char* Type;
    const char* Typed;
    const char* Stored;
  };
  const Row rows[] = {
      {"byte", "255", "255"},
      {"BYTE", "255.5", "failed:"},
      {"BYTE", "256", "failed:"},
      {"BYTE", "-1", "failed:"},
      {"INTEGER", "", "0"},
      {"INTEGER", "abc", "0"},
      {"INTEGER", "12abc", "12"},
      {"INTEGER", "1,000", "1"},
      {"INTEGER", "2.5", "2"},
      {"INTEGER", "3.5", "4"},
      {"INTEGER", "-2.5", "-2"},
      {"INTEGER", "32767.4", "32767"},
      {"INTEGER", "32768", "failed:"},
      {"INTEGER", "-32768.5", "-32768"},
      {"LONG", "2147483647", "2147483647"},
      {"LONG", "-2147483649", "failed:"},
      {"SINGLE", "0.1", "0.1"},
      {"SINGLE", "16777217", "1.677722E+07"},
      {"SINGLE", "3.4028235E38", "3.402823E+38"},
      {"SINGLE", "3.4028236E38", "failed:"},
      {"DOUBLE", ".5", "0.5"},
      {"DOUBLE", "-3", "-3"},
      {"DOUBLE", "-0", "0"},
      {"DOUBLE", "1e20", "1E+20"},
      {"DOUBLE", "0.00000015", "1.5E-07"},
      {"DOUBLE", "123456789012345.6", "123456789012346"},
      {"DOUBLE", "1e999", "failed:"},
      {"DOLLAR", "12.345", "12.34"},
      {"DOLLAR", "12.355", "12.36"},
      {"DOLLAR", "12.5", "12.50"},
      {"DOLLAR", "-0.05", "-0.05"},
      {"DOLLAR", "0.001", "0"},
      {"DOLLAR", "", "0"},
      {"DOLLAR", "1234567", "1234567.00"},
      {"DOLLAR", "21474836.47", "21474836.47"},
      {"DOLLAR", "21474836.48", "failed:"},
      {"DOLLAR", "-21474836.48", "-21474836.48"},
      {"DOLLAR", "-21474836.49", "failed:"},
      {"DOLLAR", "30,000,000", "30.00"},
      {"ODDS", "0.5", "50%"},
      {"ODDS", "0.55", "55%"},
      {"ODDS", "0.333333333333333", "33.33334%"},
      {"ODDS", "1", "100%"},
      {"ODDS", "1.5", "100%"},
      {"ODDS", "-0.1", "100%"},
      {"ODDSPM", "-0.2", "-20%"},
      {"ODDSPM", "-1", "-100%"},
      {"ODDSPM", "-1.2", "100%"},
      {"INTRATE", "0.035", "3.5%"},
      {"INTRATE", "-0.05", "0"},
      {"INTRATE", "", "0%"},
  };
  for (const Row& row : rows) EXPECT_EQ(Stored(row.Typed, row.Type), row.Stored) << row.Type << " " << row.Typed;
}

TEST_F(NumberStoreTest, SaysWhatItRefuses) {
  user.Reads("Failed to store number 256 due to error # 6: Overflow", Icon::Exclamation);
  EXPECT_EQ(Stored("256", "BYTE", false), "failed:");
  user.Reads("Failed to round your number to pennies due to error # 6", Icon::Exclamation);
  user.Reads("Failed to store number 30000000 due to error # 6: Overflow", Icon::Exclamation);
  EXPECT_EQ(Stored("30000000", "DOLLAR", false), "failed:");
  user.Reads(
      "Invalid odds value 150% is replaced with 100%.  (For odds, please type numbers followed by a percent sign or "
      "type a fractional amount.)",
      Icon::Exclamation);
  EXPECT_EQ(Stored("1.5", "ODDS", false), "100%");
  user.Reads(
      "Invalid odds value -120% is replaced with 100%.  (Type a positive or negative number followed by a percent "
      "sign or type a fractional amount.)",
      Icon::Exclamation);
  EXPECT_EQ(Stored("-1.2", "ODDSPM", false), "100%");
  user.Reads(
      "Invalid interest value -5% is replaced with 0.  (For interest, type a positive numbers followed by a percent "
      "sign or type a fractional amount.)",
      Icon::Exclamation);
  EXPECT_EQ(Stored("-0.05", "INTRATE", false), "0");
  EXPECT_THROW(Stored("1", "INTEREST"), ProgramEnded);
  EXPECT_THROW(Stored("1", ""), ProgramEnded);
}

TEST_F(NumberStoreTest, AsksAboutHighInterestEvenWhenQuiet) {
  const std::string question = "Are you sure that you want to use an interest rate greater than 100%?";
  user.Answers(question, Answer::Yes, Icon::None, Buttons::YesNo);
  EXPECT_EQ(Stored("1.5", "INTRATE"), "150%");
  user.Answers(question, Answer::No, Icon::None, Buttons::YesNo);
  EXPECT_EQ(Stored("1.5", "INTRATE"), "0");
  user.Answers(question, Answer::No, Icon::None, Buttons::YesNo);
  {
    const Global::InterestQuestionOnce once;
    EXPECT_EQ(Stored("1.5", "INTRATE"), "0");
    EXPECT_EQ(Stored("2.5", "INTRATE"), "0");  // the answer holds
  }
  user.Answers(question, Answer::Yes, Icon::None, Buttons::YesNo);
  EXPECT_EQ(Stored("2.5", "INTRATE"), "250%");
}

TEST_F(NumberStoreTest, KnowsTheTypes) {
  EXPECT_EQ(StorageType("interest"), "INTRATE");
  EXPECT_EQ(StorageType(" "), "DOUBLE");
  EXPECT_EQ(StorageType("dollar"), "DOLLAR");
  EXPECT_EQ(StorageType("CALC"), "");
  EXPECT_TRUE(IsNumberType("Byte"));
  EXPECT_TRUE(IsNumberType("INTRATE"));
  EXPECT_FALSE(IsNumberType(""));
  EXPECT_EQ(Global::DefaultTemplate("interest"), "###0.00%");
  EXPECT_EQ(Global::DefaultTemplate("LONG"), "##,###,###,##0");
  EXPECT_EQ(Global::DefaultTemplate("INTRATE"), "");
  EXPECT_EQ(Global::DefaultTemplate("BYTE"), "");
}

TEST_F(NumberStoreTest, ShowsValuesUnderTemplates) {
  struct Row {
    const char* Stored;
    const char* Template;
    const char* Shown;
  };
  const Row rows[] = {
      {"1234567.891", "###,###,##0.00", "1,234,567.89"},
      {"2.675", "0.00", "2.68"},
      {"-2.675", "0.00", "-2.68"},
      {"-0.004", "0.00", "0.00"},
      {"999.995", "0.00", "1000.00"},
      {"0", "#", ""},
      {"0.5", "#.##", ".5"},
      {"3", "#.##", "3."},
      {"7", "000", "007"},
      {"12345", "0", "12345"},
      {"12", "0,000", "0,012"},
      {"55%", "##0.0%", "55.0%"},
      {"55%", "0.00", "0.55"},
      {"0.5", "%0", "%50"},
      {"0.5", "0%.00", "50%.00"},
      {"1234.5", "#,#%##", "123,4%50"},
      {"0.05", "#%#", "%5"},
      {"0.1234", "0.0%0#", "12.3%4"},
      {"0.5", "0.%", "50.%"},
      {"0.005", "0%%", "50%%"},
      {"1e5", "#,##0", "100,000"},
      {"1E+20", "#,##0", "100,000,000,000,000,000,000"},
      {"1.5E-07", "0.0000000#", "0.00000015"},
      {"0E+2000000000", "0.0", "0.0"},
      {"-0E-2000000000%", "0.0#", "0.0"},
      {"1.25", "0.0#0", "1.250"},
      {"1.2", "0.0.0", "1.20"},
      {"?", "0.00", "?"},
      {"RED", "0.00", "RED"},
      {"", "0.00", ""},
      {"12abc", "0.00", "12abc"},
      {"5", "", "5"},
      {"5", " ", "5"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(FormatByTemplate(row.Stored, row.Template, '.'), row.Shown) << row.Stored << " under " << row.Template;
  }
  EXPECT_EQ(FormatByTemplate("1234,5", "###.##0.00", ','), "1.234,50");
  EXPECT_EQ(FormatValue("12.50", "DOLLAR", ""), "12.50");
  EXPECT_EQ(FormatValue("1234", "DOLLAR", "#,##0"), "1,234");
}

TEST_F(NumberStoreTest, ReadsAndWritesWithAComma) {
  EXPECT_EQ(ReadNumber(" -1,5 ", ','), -1.5);
  for (const char* text : {"abc", "", "12abc", "1.5", "1,5,5", "-"}) {
    try {
      ReadNumber(text, ',');
      ADD_FAILURE() << text;
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number, 13) << text;
    }
  }
  EXPECT_EQ(WriteNumber(0.5, ','), "0,5");
  std::string text = "12,345";
  EXPECT_TRUE(Global::StoreNumberByType(text, "DOLLAR", ',', false));
  EXPECT_EQ(text, "12,34");
  text = "abc";
  user.Reads("Failed to store number abc due to error # 13: Type mismatch", Icon::Exclamation);
  EXPECT_FALSE(Global::StoreNumberByType(text, "ODDS", ',', false));
  EXPECT_EQ(text, "");
}

}  // namespace

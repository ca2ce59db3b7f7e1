// A machine with a decimal comma: templates, and the dialogs for values and formulas.
#include "document/file_handles.h"
#include "platform/files.h"
#include "platform/headless/machine.h"
#include "reports/item_values_report.h"
#include "scenarios/fact_form_test.h"
#include "values/templates.h"

namespace {

using Names = std::vector<std::string>;

class CommaTest : public FactFormTest {
 protected:
  void SetUp() override {
    FactFormTest::SetUp();
    Machine::SetDecimalSeparator(',');
    TheDocument.Things[1].Values[1].Text = "PRICE:12,50";
  }
  void TearDown() override {
    Machine::SetDecimalSeparator('.');
    FactFormTest::TearDown();
  }
};

TEST_F(CommaTest, ShowsValuesUnderDefaultAndFixedTemplates) {
  EXPECT_EQ(Global::LocaliseTemplate("###,###,##0.00"), "###.###.##0.00");
  EXPECT_EQ(Global::LocaliseTemplate(" "), " ");
  const std::array<const char*, 4> rows[] = {
      {"1234567", "LONG", "", "1.234.567"},
      {"5", "INTEGER", "", "5"},
      {"1234,5", "DOLLAR", "", "1.234,50"},
      {"1234,5678", "DOUBLE", "", "1.234,568"},
      {"12,5%", "ODDS", "", "12,5%"},
      {"1234567,5", "DOUBLE", "#,##0", "1.234.568"},
      {"1234,5", "DOLLAR", "#,##0.0", "1.234,5"},
      {"1234,5", "DOLLAR", "###.##0.00", "1.234,50"},
      {"1.5", "DOUBLE", "0.00", "1.5"},
  };
  for (const auto& [stored, type, format, shown] : rows) EXPECT_EQ(FormatValue(stored, type, format), shown) << stored;
}

TEST_F(CommaTest, ValuesAndFormulasAreTypedWithAComma) {
  Use([this] {
    user.Types(IDC_DataBox, "12,345 * 2");
    user.Picks(IDC_FieldNameCombo, "QTY: Quantity");
    user.Types(IDC_DataBox, "2");
    user.Presses(Key::Enter);
    EXPECT_EQ(user.SeesEntries(IDC_FormulaList), (Names{"TOTAL: 49,38"}));
    user.Picks(IDC_FieldNameCombo, "PRICE: Price of one");
    EXPECT_EQ(user.Sees(IDC_DataBox), "24,69");
    user.Types(IDC_DataBox, "1.5");
    Refuses("Failed to store number 1.5 due to error # 13: Type mismatch");
    user.Presses(Key::Enter);
    EXPECT_EQ(user.Sees(IDC_DataBox), "1.5");
    user.Types(IDC_DataBox, "24,69");
    DefinesFormula(IDC_AddFormulaItem, [this] {
      EXPECT_EQ(user.Sees(IDC_TemplateBox), "###.###.###.##0.000");
      user.Types(IDC_NameBox, "big");
      user.Types(IDC_DescriptionBox, "In thousandths");
      user.Picks(IDC_FieldTypeCombo, "LONG");
      user.Types(IDC_FormulaBox, "[PRICE] / 0,001");
      user.Clicks(IDC_OKButton);
    });
    EXPECT_EQ(user.SeesEntries(IDC_FormulaList), (Names{"TOTAL: 49,38", "BIG: 24.690"}));
    user.Clicks(IDC_OKButton);
  });
  EXPECT_EQ(SlotsOf(1), "COLOUR:red|PRICE:24,69|QTY:2||||||||");
}

TEST_F(CommaTest, ReportsAddUpWithAComma) {
  TheDocument.Things[2].Values[0].Text = "PRICE:1234,50";
  Files::Open(kPrintFileHandle, "R.PRN", Files::Mode::Output);
  WriteItemValuesReport(0, {1});
  Files::Close(kPrintFileHandle);
  const std::string report = TestFiles::Get("R.PRN").value_or("");
  EXPECT_NE(report.find("\r\nTotal                            1.247,00"), std::string::npos) << report;
}

}  // namespace

// The help pages tell the truth: their worked examples are computed, and the data file they show is loaded and
// saved again.
#include "document/document.h"
#include "document/find.h"
#include "document/names.h"
#include "support/fresh_test.h"
#include "values/evaluator.h"
#include "values/field_types.h"
#include "values/templates.h"

namespace {

// Everything that stands between two marks.
std::vector<std::string> Between(const std::string& text, const std::string& before, const std::string& after) {
  std::vector<std::string> pieces;
  for (std::size_t at = text.find(before), end = 0; at != std::string::npos; at = text.find(before, end)) {
    end = text.find(after, at += before.size());
    pieces.push_back(text.substr(at, end - at));
  }
  return pieces;
}

// The text of a piece of a page: without tags, entities as characters.
std::string Plain(std::string text) {
  for (const std::string& tag : Between(text, "<", ">")) text = Replaced(text, "<" + tag + ">", "");
  return Replaced(Replaced(Replaced(text, "&lt;", "<"), "&gt;", ">"), "&amp;", "&");
}

std::string PageText(const std::string& name) { return Replaced(SourceFile("help/" + name), "\r", ""); }

// Checks the cells of each row in all tables of a class with that many columns; headings are left out.
template <class Check>
void CheckRows(const std::string& page, const std::string& table_class, std::size_t columns, Check check) {
  std::size_t rows = 0;
  for (const std::string& table : Between(PageText(page), "<table class=\"" + table_class + "\">", "</table>")) {
    for (const std::string& row : Between(table, "<tr>", "</tr>")) {
      std::vector<std::string> cells = Between(row, "<td>", "</td>");
      if (cells.empty()) continue;
      for (std::string& cell : cells) cell = Plain(cell);
      ASSERT_EQ(cells.size(), columns) << row;
      check(cells);
      ++rows;
    }
  }
  EXPECT_GT(rows, 8U) << table_class;
}

class HelpPagesTest : public FreshTest {};

TEST_F(HelpPagesTest, CalculationsAndFormulasComeOutAsTheySay) {
  const FieldSlots slots = SlotsOf("PRICE:12.50|QTY:4|CHANCE:55%|WEIGHT:0.75");
  CheckRows("Larkspur_Formulas.htm", "checked", 4, [&](const auto& cells) {
    std::string expression = Global::ExpandFieldReferences(cells[0], slots);
    const std::string result = Global::EvaluateExpression(expression, StorageType(cells[1]), true);
    EXPECT_EQ(result, cells[2]) << cells[0];
    EXPECT_EQ(FormatValue(result, cells[1], ""), cells[3]) << cells[0];
  });
  CheckRows("Larkspur_Formulas.htm", "checked-formats", 3,
            [](const auto& cells) { EXPECT_EQ(FormatByTemplate(cells[0], cells[1], '.'), cells[2]) << cells[1]; });
}

TEST_F(HelpPagesTest, FindsWhatItSays) {
  ASSERT_TRUE(Loads(SourceFile("samples/Household.FIL")));
  const auto places = Parts("Everything/Names/Notes/Values/Categories", "/");
  const auto signs = Parts("is/is not/less than/at most/more than/at least/is empty/is not empty", "/");
  const auto number_of = [](const std::vector<std::string>& all, const std::string& text) {
    return text.empty() ? 0 : std::find(all.begin(), all.end(), text) - all.begin();
  };
  CheckRows("Larkspur_FindForm.htm", "checked-find", 6, [&](const auto& cells) {
    const auto place = static_cast<FindPlace>(number_of(places, cells[1]));
    const auto sign = static_cast<Comparison>(number_of(signs, cells[3]));
    std::string found;
    for (const Hit& hit : FindThings({cells[0], place, {cells[2], sign, cells[4]}})) {
      found += (found.empty() ? "" : ", ") + JoinUnderscoredWords(TheDocument.Things[hit.Record].NAME);
    }
    EXPECT_EQ(found, cells[5]) << cells[0] << cells[2];
  });
}

TEST_F(HelpPagesTest, TheDataFileLoadsAndIsSavedAsItStands) {
  const auto examples = Between(PageText("Larkspur_DataFile.htm"), "<pre id=\"example-file\">", "</pre>");
  const std::string bytes = Replaced(Plain(examples.at(0)), "\n", "\r\n");
  EXPECT_TRUE(Loads(bytes));
  EXPECT_EQ(Saved(), bytes);
}

}  // namespace

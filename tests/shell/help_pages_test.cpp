// The help pages tell the truth: their worked examples are computed, and the data file they show is loaded and
// saved again.
#include "document/document.h"
#include "document/find.h"
#include "document/names.h"
#include "document/reader.h"
#include "support/fresh_test.h"
#include "support/rows.h"
#include "values/evaluator.h"
#include "values/field_types.h"
#include "values/templates.h"

namespace {

std::string ReadPage(const std::string& name) {
  std::string text = SourceFile("help/" + name);
  std::erase(text, '\r');
  return text;
}

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

// The rows of all tables of a class with that many columns, headings left out.
std::vector<std::vector<std::string>> RowsOf(const std::string& table_class, std::size_t columns,
                                             const std::string& name = "Larkspur_Formulas.htm") {
  std::vector<std::vector<std::string>> rows;
  const std::string page = ReadPage(name);
  for (const std::string& table : Between(page, "<table class=\"" + table_class + "\">", "</table>")) {
    for (const std::string& row : Between(table, "<tr>", "</tr>")) {
      std::vector<std::string> cells = Between(row, "<td>", "</td>");
      for (std::string& cell : cells) cell = Plain(cell);
      EXPECT_TRUE(cells.empty() || cells.size() == columns) << row;
      if (cells.size() == columns) rows.push_back(cells);
    }
  }
  return rows;
}

class HelpPagesTest : public FreshTest {};

TEST_F(HelpPagesTest, CalculationsAndFormulasComeOutAsTheySay) {
  const std::array<FieldValueSlot, kFieldValues> slots = {
      {{"PRICE:12.50"}, {"QTY:4"}, {"CHANCE:55%"}, {"WEIGHT:0.75"}}};
  const auto rows = RowsOf("checked", 4);
  EXPECT_GT(rows.size(), 40U);
  for (const auto& row : rows) {
    std::string expression = Global::ExpandFieldReferences(row[0], slots);
    const std::string result = Global::EvaluateExpression(expression, StorageType(row[1]), true);
    EXPECT_EQ(result, row[2]) << row[0];
    EXPECT_EQ(FormatValue(result, row[1], ""), row[3]) << row[0];
  }
}

TEST_F(HelpPagesTest, FindsWhatItSays) {
  TestFiles::Put("Household.FIL", SourceFile("samples/Household.FIL"));
  ASSERT_TRUE(LoadFilerFile("Household.FIL"));
  const std::vector<std::string> places = {"Everything", "Names", "Notes", "Values", "Categories"};
  const std::vector<std::string> signs = {"is",        "is not",   "less than", "at most",
                                          "more than", "at least", "is empty",  "is not empty"};
  const auto number_of = [](const std::vector<std::string>& all, const std::string& text) {
    return std::find(all.begin(), all.end(), text) - all.begin();
  };
  const auto rows = RowsOf("checked-find", 6, "Larkspur_FindForm.htm");
  EXPECT_GT(rows.size(), 10U);
  for (const auto& row : rows) {
    FindRequest request{row[0], static_cast<FindPlace>(number_of(places, row[1])), {row[2], Comparison::Is, row[4]}};
    if (!row[3].empty()) request.Value.How = static_cast<Comparison>(number_of(signs, row[3]));
    std::string found;
    for (const Hit& hit : FindThings(request)) {
      found += (found.empty() ? "" : ", ") + JoinUnderscoredWords(TheDocument.Things[hit.Record].NAME);
    }
    EXPECT_EQ(found, row[5]) << row[0] << row[2];
  }
}

TEST_F(HelpPagesTest, FormatsShowWhatTheySay) {
  const auto rows = RowsOf("checked-formats", 3);
  EXPECT_GT(rows.size(), 8U);
  for (const auto& row : rows) EXPECT_EQ(FormatByTemplate(row[0], row[1], '.'), row[2]) << row[1];
}

TEST_F(HelpPagesTest, TheDataFileLoadsAndIsSavedAsItStands) {
  const auto examples = Between(ReadPage("Larkspur_DataFile.htm"), "<pre id=\"example-file\">", "</pre>");
  const std::string bytes = Replaced(Plain(examples.at(0)), "\n", "\r\n");
  TestFiles::Put("Example.FIL", bytes);
  MakeNew();
  ASSERT_TRUE(LoadFilerFile(InFolder("Example.FIL")));
  EXPECT_EQ(TheDocument.Things.Count(), 3);
  EXPECT_EQ(Saved("Again.FIL"), bytes);
}

}  // namespace

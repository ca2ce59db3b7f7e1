// The help pages tell the truth: their worked examples are computed, and the data file they show is loaded and
// saved again.
#include <fstream>
#include <iterator>

#include "document/document.h"
#include "document/file_handles.h"
#include "document/reader.h"
#include "document/writer.h"
#include "platform/files.h"
#include "support/fresh_test.h"
#include "values/evaluator.h"
#include "values/field_types.h"
#include "values/templates.h"

namespace {

std::string ReadPage(const std::string& name) {
  std::ifstream file(FILER_SOURCE_DIR "/help/" + name, std::ios::binary);
  std::string text{std::istreambuf_iterator<char>(file), {}};
  std::erase(text, '\r');
  return text;
}

// What stands between two marks from a place on, which moves behind it; nothing when there is no more.
std::string Between(const std::string& text, const std::string& before, const std::string& after, std::size_t& at) {
  const std::size_t first = text.find(before, at);
  const std::size_t end = first == std::string::npos ? first : text.find(after, first + before.size());
  at = end;
  if (end == std::string::npos) return {};
  return text.substr(first + before.size(), end - first - before.size());
}

// The text of a piece of a page: without tags, entities as characters.
std::string Plain(const std::string& piece) {
  std::string text;
  bool in_tag = false;
  for (const char each : piece) {
    if (each == '<') in_tag = true;
    if (!in_tag) text += each;
    if (each == '>') in_tag = false;
  }
  const std::pair<std::string, std::string> entities[] = {{"&lt;", "<"}, {"&gt;", ">"}, {"&amp;", "&"}};
  for (const auto& [entity, character] : entities) {
    for (auto at = text.find(entity); at != std::string::npos; at = text.find(entity, at + 1)) {
      text.replace(at, entity.size(), character);
    }
  }
  return text;
}

// The rows of all tables of a class, headings left out.
std::vector<std::vector<std::string>> RowsOf(const std::string& page, const std::string& table_class) {
  std::vector<std::vector<std::string>> rows;
  std::size_t table_at = 0;
  for (;;) {
    const std::string table = Between(page, "<table class=\"" + table_class + "\">", "</table>", table_at);
    if (table_at == std::string::npos) return rows;
    for (std::size_t row_at = 0;;) {
      const std::string row = Between(table, "<tr>", "</tr>", row_at);
      if (row_at == std::string::npos) break;
      std::vector<std::string> cells;
      for (std::size_t cell_at = 0;;) {
        const std::string cell = Between(row, "<td>", "</td>", cell_at);
        if (cell_at == std::string::npos) break;
        cells.push_back(Plain(cell));
      }
      if (!cells.empty()) rows.push_back(cells);
    }
  }
}

class HelpPagesTest : public FreshTest {};

TEST_F(HelpPagesTest, CalculationsAndFormulasComeOutAsTheySay) {
  std::array<FieldValueSlot, kFieldValues> slots{};
  slots[0].Text = "PRICE:12.50";
  slots[1].Text = "QTY:4";
  slots[2].Text = "CHANCE:55%";
  slots[3].Text = "WEIGHT:0.75";
  const auto rows = RowsOf(ReadPage("Larkspur_Formulas.htm"), "checked");
  EXPECT_GT(rows.size(), 40U);
  for (const auto& row : rows) {
    SCOPED_TRACE(row[0]);
    ASSERT_EQ(row.size(), 4U);
    std::string expression = Global::ExpandFieldReferences(row[0], slots);
    ASSERT_FALSE(expression.empty());
    const std::string result = Global::EvaluateExpression(expression, StorageType(row[1]), true);
    EXPECT_EQ(result, row[2]);
    EXPECT_EQ(FormatValue(result, row[1], ""), row[3]);
  }
}

TEST_F(HelpPagesTest, FormatsShowWhatTheySay) {
  const auto rows = RowsOf(ReadPage("Larkspur_Formulas.htm"), "checked-formats");
  EXPECT_GT(rows.size(), 8U);
  for (const auto& row : rows) {
    ASSERT_EQ(row.size(), 3U);
    EXPECT_EQ(FormatByTemplate(row[0], row[1], '.'), row[2]) << row[0] << " under " << row[1];
  }
}

TEST_F(HelpPagesTest, TheDataFileLoadsAndIsSavedAsItStands) {
  std::size_t at = 0;
  const std::string shown =
      Plain(Between(ReadPage("Larkspur_DataFile.htm"), "<pre id=\"example-file\">", "</pre>", at));
  std::string bytes;
  for (const char each : shown) bytes += each == '\n' ? std::string("\r\n") : std::string(1, each);
  TestFiles::Put("Example.FIL", bytes);
  MakeNew();
  ASSERT_TRUE(LoadFilerFile(InFolder("Example.FIL")));
  EXPECT_EQ(TheDocument.Things.Count(), 3);
  Files::Open(kDataFileHandle, InFolder("Again.FIL"), Files::Mode::Output);
  SaveFilerFile(kDataFileHandle);
  Files::Close(kDataFileHandle);
  EXPECT_EQ(TestFiles::Get("Again.FIL"), bytes);
  MakeNew();
}

}  // namespace

// The item values report: see item_values_report.h.
#include "reports/item_values_report.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>
#include <utility>

#include "document/document.h"
#include "document/fact_values.h"
#include "document/names.h"
#include "platform/locale.h"
#include "platform/references.h"
#include "platform/text.h"
#include "reports/item_list_report.h"
#include "reports/print_file.h"
#include "values/evaluator.h"
#include "values/field_types.h"
#include "values/numbers.h"
#include "values/templates.h"

namespace {

// As the header's "L=31" tells the viewer.
constexpr std::size_t kNameWidth = 31;

// A column is as wide as its title, so that no two are cut to the same words, but for long ones.
constexpr std::size_t kWholeTitle = 16;

// A column: how its values are shown, and what they come to.
class Column {
 public:
  Column(std::string name, std::string title, std::string type, std::string format)
      : Name(std::move(name)), Title(std::move(title)), type_(std::move(type)), format_(std::move(format)) {}

  std::string Name;
  std::string Title;
  std::vector<std::string> Cells;

  // The next thing's value; one that is no number is shown, but does not count.
  void Add(std::string_view stored) {
    Cells.push_back(Shown(stored));
    const auto number = StoredNumber(stored, separator_);
    if (!number) return;
    least_ = count_ == 0 ? *number : std::min(least_, *number);
    most_ = count_ == 0 ? *number : std::max(most_, *number);
    sum_ += *number;
    ++count_;
  }

  // Total, count, minimum and maximum, in this order.
  void AddTotals() {
    Cells.push_back(std::isfinite(sum_) ? Shown(WriteNumber(sum_, separator_)) : "?");
    Cells.push_back(std::to_string(count_));
    for (const double number : {least_, most_}) {
      Cells.push_back(count_ == 0 ? std::string() : Shown(WriteNumber(number, separator_)));
    }
  }

  std::size_t Width() const {
    std::size_t width = std::max(CountCharacters(Name), std::min(CountCharacters(Title), kWholeTitle));
    for (const std::string& cell : Cells) width = std::max(width, CountCharacters(cell));
    return width;
  }

 private:
  std::string Shown(std::string_view stored) const { return FormatValue(stored, type_, format_); }

  std::string type_;
  std::string format_;
  char separator_ = DecimalSeparator();
  int count_ = 0;
  double sum_ = 0, least_ = 0, most_ = 0;
};

// The table while it is written: the columns' widths are known.
class Table {
 public:
  explicit Table(const std::vector<Column>& columns) : columns_(columns) {
    for (const Column& column : columns) widths_.push_back(column.Width());
  }

  void WriteHeadings() const {
    WriteRow({}, [](const Column& column) { return std::string_view(column.Name); });
    WriteRow({}, [](const Column& column) { return std::string_view(column.Title); });
  }

  void WriteCells(std::string_view name, std::size_t row) const {
    WriteRow(name, [row](const Column& column) { return std::string_view(column.Cells[row]); });
  }

 private:
  template <class TextOf>
  void WriteRow(std::string_view name, TextOf text_of) const {
    std::string line = FirstCharacters(name, kNameWidth);
    line.append(kNameWidth - CountCharacters(line), ' ');
    for (std::size_t index = 0; index < columns_.size(); ++index) {
      std::string_view text = text_of(columns_[index]);
      std::string cut;
      if (text.size() > widths_[index]) text = cut = FirstCharacters(text, widths_[index]);
      text = TrimRight(text);
      line.append(2 + widths_[index] - CountCharacters(text), ' ').append(text);
    }
    PrintLine({line});
  }

  const std::vector<Column>& columns_;
  std::vector<std::size_t> widths_;
};

std::vector<int> ThingsInCategories(std::int32_t category_mask) {
  std::vector<int> records;
  for (int record = 1; record <= TheDocument.Things.Count(); ++record) {
    if (IsInCategories(TheDocument.Things[record], category_mask)) records.push_back(record);
  }
  return records;
}

std::vector<Column> ComputeColumns(const std::vector<int>& fields, const std::vector<int>& records) {
  std::vector<Column> columns;
  InterestQuestion question;
  for (const int number : fields) {
    const FieldDefinition& field = TheDocument.Fields[number];
    Column& column = columns.emplace_back(field.Keyword, field.Title, field.Type, "");
    for (const int record : records) column.Add(ValueOf(TheDocument.Things[record].Values, field.Keyword));
  }
  for (int number = 1; number <= TheDocument.Formulas.Count(); ++number) {
    const FormulaDefinition& formula = TheDocument.Formulas[number];
    if (!IsNumberType(formula.Type)) continue;
    Column& column = columns.emplace_back(formula.Name, formula.Title, formula.Type, formula.Format);
    for (const int record : records) column.Add(FormulaResult(formula, TheDocument.Things[record].Values, question));
  }
  for (Column& column : columns) column.AddTotals();
  return columns;
}

}  // namespace

void WriteItemValuesReport(std::int32_t category_mask, const std::vector<int>& fields) {
  if (TheDocument.Things.Count() == 0) return;
  const std::vector<int> records = ThingsInCategories(category_mask);
  const std::vector<Column> columns = ComputeColumns(fields, records);
  const Table table(columns);
  PrintFrame("LARKSPUR V1.0 REPORT T=2,H=2,L=31,G=0", "Larkspur Selected Numbers Report");
  PrintLine({});
  table.WriteHeadings();
  std::size_t row = 0;
  for (const int record : records) table.WriteCells(JoinUnderscoredWords(TheDocument.Things[record].NAME), row++);
  PrintLine({});
  for (const char* total : {"Total", "Count", "Minimum", "Maximum"}) table.WriteCells(total, row++);
}

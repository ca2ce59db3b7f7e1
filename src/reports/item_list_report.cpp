// The item list report: see item_list_report.h.
#include "reports/item_list_report.h"

#include <algorithm>
#include <cassert>
#include <string>

#include "document/document.h"
#include "document/names.h"
#include "platform/references.h"
#include "platform/text.h"
#include "reports/print_file.h"
#include "values/evaluator.h"
#include "values/templates.h"

namespace {

constexpr int kWidth = 75;

void WriteValues(const ThingRecord& thing) {
  for (const FieldValueSlot& slot : thing.Values) {
    if (slot.Text.empty()) continue;
    const std::string keyword(slot.Keyword());
    WriteWrapped(keyword.empty() ? slot.Text : keyword + ": " + std::string(slot.Value()), kWidth);
  }
}

void WriteFormulas(const ThingRecord& thing, InterestQuestion& question) {
  for (int number = 1; number <= TheDocument.Formulas.Count(); ++number) {
    const FormulaDefinition& formula = TheDocument.Formulas[number];
    const std::string result = FormulaResult(formula, thing.Values, question);
    if (result.empty()) continue;
    PrintLine({" ", formula.Name, ": ", FormatValue(result, formula.Type, formula.Format)});
  }
}

// What a thing's categories are tested with. For the last one these are the bits of categories 16 to 32: it is
// named for things in any of them, as it always was.
std::int32_t TestValue(int category) {
  constexpr std::int32_t kLastTestValue = -32768;
  return category == kCategories ? kLastTestValue : CategoryBit(category);
}

void WriteCategories(std::int32_t categories) {
  std::string list;
  for (int number = 1; number <= kCategories; ++number) {
    if ((categories & TestValue(number)) == 0) continue;
    list += list.empty() ? "Classification: " : ", ";
    list += TheDocument.CategoryNames[number];
  }
  if (!list.empty()) WriteWrapped(list, kWidth);
}

void WriteThing(const ThingRecord& thing, InterestQuestion& question) {
  PrintLine({});
  PrintLine({JoinUnderscoredWords(thing.NAME)});
  WriteValues(thing);
  WriteFormulas(thing, question);
  WriteCategories(thing.CATBITMAP);
  if (thing.NOTE.empty()) return;
  PrintLine({" Note:"});
  WriteWrapped(thing.NOTE, kWidth);
}

}  // namespace

void WriteItemListReport(std::int32_t category_mask) {
  if (TheDocument.Things.Count() == 0) return;
  InterestQuestion question;
  PrintFrame("LARKSPUR V1.0 REPORT T=2,G=0", "Larkspur Object List report");
  for (int record = 1; record <= TheDocument.Things.Count(); ++record) {
    const ThingRecord& thing = TheDocument.Things[record];
    if (IsInCategories(thing, category_mask)) WriteThing(thing, question);
  }
}

void WriteWrapped(std::string_view text, int width) {
  assert(width >= 1);
  const auto most = static_cast<std::size_t>(width);
  while (text.size() >= most) {
    const auto blank = text.substr(0, most).rfind(' ');
    std::size_t taken = blank == std::string_view::npos ? WholeBytes(text, most) : blank + 1;
    if (taken == 0) taken = most;  // there is no room for a single reference
    PrintLine({" ", TrimRight(text.substr(0, taken))});
    text.remove_prefix(taken);
  }
  PrintLine({" ", text});
}

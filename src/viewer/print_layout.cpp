// Dividing a report into pages: see print_layout.h.
#include "viewer/print_layout.h"

#include <algorithm>
#include <utility>

#include "platform/printing.h"
#include "platform/references.h"

namespace {

constexpr double kSmallestText = 7;
constexpr double kStep = 0.5;
constexpr int kFooterRows = 2;  // an empty one, and the page number

Sheet Fitting(const ReportText& text, Sheet sheet) {
  const double wanted = sheet.TextSize;
  while (sheet.Columns() < text.Widest() && sheet.TextSize > kSmallestText) sheet.TextSize -= kStep;
  if (sheet.Columns() < text.Widest()) sheet.TextSize = wanted;
  return sheet;
}

int Parts(Index whole, int part) { return static_cast<int>(std::max<Index>(1, (whole + part - 1) / part)); }

}  // namespace

PrintLayout::PrintLayout(const ReportText& text, std::string name, const Sheet& sheet)
    : text_(text), name_(std::move(name)), sheet_(Fitting(text, sheet)) {
  first_ = CutFor(text, std::max(1, sheet_.Rows() - kFooterRows), sheet_.Columns());
  FindStarts();
  const Index down = Parts(text.Count() - first_.HeadRows, first_.Rows - first_.HeadRows);
  pages_ = static_cast<int>(std::min<Index>(kAllPages, Across() * down));
}

// A page ends behind the last whole column on it, where the headings show columns that fill more than half of it.
void PrintLayout::FindStarts() {
  const std::vector<Index> edges = ColumnEdges(text_);
  const Index room = first_.Columns - first_.LeftColumns;
  const Index end = std::max(text_.Widest(), first_.Left + 1);
  starts_ = {first_.Left};
  while (starts_.back() + room < end) {
    const Index last = starts_.back() + room;
    const auto behind = std::upper_bound(edges.begin(), edges.end(), last);
    const bool breaks = behind != edges.begin() && *(behind - 1) - starts_.back() > room / 2;
    starts_.push_back(breaks ? *(behind - 1) : last);
  }
  starts_.push_back(starts_.back() + room);
}

Page PrintLayout::PageAt(int number) const {
  PageCut cut = first_;
  const int index = std::clamp(number, 1, pages_) - 1;
  const auto beside = static_cast<std::size_t>(index % Across());
  cut.Top += Index{index / Across()} * (cut.Rows - cut.HeadRows);
  cut.Left = starts_[beside];
  const auto width = static_cast<int>(starts_[beside + 1] - cut.Left);
  Page page;
  for (const Piece& piece : PiecesOf(text_, cut)) {
    const bool moves = piece.At.Column == cut.LeftColumns && !KeepsStill(text_, cut, piece.At.Row);
    const std::string_view part = moves ? piece.Text.substr(0, static_cast<std::size_t>(width)) : piece.Text;
    if (!part.empty()) page.Runs.push_back({piece.At, text_.Shown(part)});
  }
  cut.Columns = cut.LeftColumns + width;
  page.Rules = GridOf(text_, cut);
  if (text_.Header().Headings > 0 && cut.HeadRows > 0) page.Rules.push_back({{0, cut.HeadRows}, cut.Columns, false});
  const int footer = sheet_.Rows() - 1;
  const std::string count = "Page " + std::to_string(index + 1) + " of " + std::to_string(pages_);
  const int room = first_.Columns - static_cast<int>(count.size());
  if (room > 2) page.Runs.push_back({{0, footer}, FirstCharacters(name_, static_cast<std::size_t>(room - 2))});
  page.Runs.push_back({{std::max(0, room), footer}, count});
  return page;
}

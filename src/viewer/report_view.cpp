// The report in the window: scrolling, and the page that is drawn. See report_view.h.
#include "viewer/report_view.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace {

int AsInt(Index value) { return static_cast<int>(std::clamp<Index>(value, 0, std::numeric_limits<int>::max())); }

bool In(const Place& place, const std::pair<Place, Place>& range) {
  return place >= range.first && place < range.second;
}

}  // namespace

void ReportView::SetText(ReportText text, bool keep_place) {
  text_ = std::move(text);
  const PageCut before = cut_;
  cut_ = CutFor(text_, before.Rows, before.Columns);
  if (keep_place) {
    cut_.Top = before.Top;
    cut_.Left = before.Left;
  }
  Clamp();
  anchor_ = caret_ = {};
  caret_set_ = false;
  CountHits();
}

void ReportView::Resize(int columns, int rows) {
  const PageCut before = cut_;
  cut_ = CutFor(text_, rows, columns);
  // What is at the beginning stays there when the head begins or ceases to stay.
  if (before.Top > before.HeadRows) cut_.Top = before.Top;
  if (before.Left > before.LeftColumns) cut_.Left = before.Left;
  Clamp();
}

void ReportView::Clamp() {
  const Index last_top = text_.Count() - (cut_.Rows - cut_.HeadRows);
  const Index last_left = text_.Widest() - (cut_.Columns - cut_.LeftColumns);
  cut_.Top = std::max<Index>(cut_.HeadRows, std::min(cut_.Top, last_top));
  cut_.Left = std::max<Index>(cut_.LeftColumns, std::min(cut_.Left, last_left));
}

ReportView::Extent ReportView::Across() const {
  return {AsInt(text_.Widest() - cut_.LeftColumns), cut_.Columns - cut_.LeftColumns,
          AsInt(cut_.Left - cut_.LeftColumns)};
}

ReportView::Extent ReportView::Down() const {
  return {AsInt(text_.Count() - cut_.HeadRows), cut_.Rows - cut_.HeadRows, AsInt(cut_.Top - cut_.HeadRows)};
}

void ReportView::ScrollTo(Surface::Bar bar, int position) {
  if (bar == Surface::Bar::Across) {
    cut_.Left = cut_.LeftColumns + position;
  } else {
    cut_.Top = cut_.HeadRows + position;
  }
  Clamp();
}

void ReportView::ScrollBy(Surface::Bar bar, Index cells) {
  (bar == Surface::Bar::Across ? cut_.Left : cut_.Top) += cells;
  Clamp();
}

void ReportView::Show(const Place& place) {
  const Index rows = cut_.Rows - cut_.HeadRows;
  const Index columns = cut_.Columns - cut_.LeftColumns;
  if (place.Line >= cut_.HeadRows) cut_.Top = std::clamp(cut_.Top, place.Line - rows + 1, place.Line);
  if (place.Column >= cut_.LeftColumns) cut_.Left = std::clamp(cut_.Left, place.Column - columns + 1, place.Column);
  // No Clamp: behind the longest line there is room for the caret.
}

// How far the lines in view reach, for the End key.
Index ReportView::EndInView() const {
  Index end = 0;
  const Index last = std::min(text_.Count(), cut_.Top + cut_.Rows - cut_.HeadRows);
  for (Index line = cut_.Top; line < last; ++line) end = std::max(end, LengthOf(line));
  return end;
}

void ReportView::ScrollFor(const KeyPress& key) {
  const Index page = std::max(1, cut_.Rows - cut_.HeadRows - 1);
  const auto down = [this](Index cells) { ScrollBy(Surface::Bar::Down, cells); };
  const auto across = [this](Index cells) { ScrollBy(Surface::Bar::Across, cells); };
  switch (key.What) {
    case Key::Left:
      return across(-1);
    case Key::Right:
      return across(1);
    case Key::Up:
      return down(-1);
    case Key::Down:
      return down(1);
    case Key::PageUp:
      return down(-page);
    case Key::PageDown:
      return down(page);
    case Key::Home:
      if (key.Control) down(-text_.Count());
      return across(-text_.Widest());
    case Key::End:
      if (key.Control) return down(text_.Count());
      return across(EndInView() - (cut_.Columns - cut_.LeftColumns) - cut_.Left);
    default:
      return;
  }
}

Page ReportView::BuildPage() const {
  Page page;
  // One row and column more, which show in part at the right and below.
  PageCut cut = cut_;
  ++cut.Rows;
  ++cut.Columns;
  for (const Piece& piece : PiecesOf(text_, cut)) AddRuns(page, piece);
  page.Rules = GridOf(text_, cut);
  page.HeadRows = cut.HeadRows;
  page.LeftColumns = cut.LeftColumns;
  while (KeepsStill(text_, cut, page.LeftFrom)) ++page.LeftFrom;
  page.Caret = CellOf(caret_);
  page.ShowsCaret = caret_set_ && page.Caret.Row >= 0;
  return page;
}

// Splits a piece where its look changes.
void ReportView::AddRuns(Page& page, const Piece& piece) const {
  std::size_t cells = piece.Text.size();
  const auto selection = Selection();
  const Index end = LengthOf(piece.From.Line);
  // The end of a selected line is a blank: otherwise an empty one would not show that it is selected.
  if (In({piece.From.Line, end}, selection) && piece.From.Column + static_cast<Index>(cells) == end) ++cells;
  if (cells == 0) return;
  std::vector<Ink> inks(cells, Ink::Plain);
  const std::string_view line = text_.Line(piece.From.Line);
  const auto window_end = static_cast<std::size_t>(piece.From.Column) + cells;
  for (std::size_t at = finder_.In(text_, line, 0); at < window_end;
       at = finder_.In(text_, line, at + static_cast<std::size_t>(finder_.Length()))) {
    for (auto column = static_cast<Index>(at); column < static_cast<Index>(at) + finder_.Length(); ++column) {
      const Index index = column - piece.From.Column;
      if (index >= 0 && index < static_cast<Index>(inks.size())) inks[static_cast<std::size_t>(index)] = Ink::Hit;
    }
  }
  for (std::size_t index = 0; index < inks.size(); ++index) {
    const Place place{piece.From.Line, piece.From.Column + static_cast<Index>(index)};
    if (In(place, selection)) inks[index] = Ink::Selected;
  }
  for (std::size_t first = 0, last = 0; first < inks.size(); first = last) {
    while (last < inks.size() && inks[last] == inks[first]) ++last;
    std::string text = text_.Shown(piece.Text.substr(first, last - first));
    if (last > piece.Text.size()) text += ' ';
    page.Runs.push_back({{piece.At.Column + static_cast<int>(first), piece.At.Row}, std::move(text), inks[first]});
  }
}

// Where a place is shown; row -1 when it is not.
Cell ReportView::CellOf(const Place& place) const {
  Cell cell{0, -1};
  const Index row = place.Line < cut_.HeadRows ? place.Line : place.Line - cut_.Top + cut_.HeadRows;
  if (place.Line >= cut_.HeadRows && row < cut_.HeadRows) return cell;
  const bool stays = place.Column < cut_.LeftColumns || KeepsStill(text_, cut_, AsInt(row));
  const Index column = stays ? place.Column : place.Column - cut_.Left + cut_.LeftColumns;
  if (row > cut_.Rows || column > cut_.Columns || (!stays && column < cut_.LeftColumns)) return cell;
  return {AsInt(column), AsInt(row)};
}

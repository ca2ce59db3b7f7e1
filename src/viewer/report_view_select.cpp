// The report in the window: selecting and finding. See report_view.h.
#include <algorithm>
#include <cctype>

#include "viewer/report_view.h"

namespace {

bool IsWordPart(char each) {
  return std::isalnum(static_cast<unsigned char>(each)) != 0 || static_cast<unsigned char>(each) >= 128 ||
         each == kFarCharacter;
}

}  // namespace

std::pair<Place, Place> ReportView::Selection() const { return std::minmax(anchor_, caret_); }

Index ReportView::LengthOf(Index line) const {
  return line >= 0 && line < text_.Count() ? static_cast<Index>(text_.Line(line).size()) : 0;
}

Place ReportView::FirstInView() const { return InText({cut_.Top, cut_.Left == cut_.LeftColumns ? 0 : cut_.Left}); }

Place ReportView::InText(Place place) const {
  place.Line = std::clamp<Index>(place.Line, 0, std::max<Index>(0, text_.Count() - 1));
  place.Column = std::clamp<Index>(place.Column, 0, LengthOf(place.Line));
  return place;
}

Place ReportView::PlaceAt(const Cell& cell) const {
  Place place{cell.Row < cut_.HeadRows ? cell.Row : cut_.Top + cell.Row - cut_.HeadRows, cell.Column};
  if (cell.Column >= cut_.LeftColumns && !KeepsStill(text_, cut_, cell.Row)) {
    place.Column = cell.Column - cut_.LeftColumns + cut_.Left;
  }
  // Below the last line is its end.
  if (place.Line >= text_.Count()) return InText({text_.Count() - 1, LengthOf(text_.Count() - 1)});
  return InText(place);
}

void ReportView::Press(const MousePress& press) {
  if (press.What == MousePress::Act::Drag) return DragTo(press.At);
  caret_ = PlaceAt(press.At);
  if (!press.Shift) anchor_ = caret_;
  caret_set_ = true;
  if (press.What == MousePress::Act::DoubleClick) SelectWord();
}

// Over the edges of what moves, the report scrolls. A selection that began in the head may stay there.
void ReportView::DragTo(const Cell& cell) {
  Cell inside = cell;
  if (anchor_.Line >= cut_.HeadRows) {
    if (cell.Row < cut_.HeadRows) ScrollBy(Surface::Bar::Down, cell.Row - cut_.HeadRows);
    inside.Row = std::max(cell.Row, cut_.HeadRows);
  }
  if (cell.Row >= cut_.Rows) ScrollBy(Surface::Bar::Down, cell.Row - cut_.Rows + 1);
  if (cell.Column >= cut_.Columns) ScrollBy(Surface::Bar::Across, cell.Column - cut_.Columns + 1);
  if (cell.Column < 0) ScrollBy(Surface::Bar::Across, cell.Column);
  inside.Row = std::clamp(inside.Row, 0, cut_.Rows - 1);
  inside.Column = std::clamp(inside.Column, 0, cut_.Columns);
  caret_ = PlaceAt(inside);
}

void ReportView::SelectWord() {
  if (text_.Count() == 0) return;
  const std::string_view line = text_.Line(caret_.Line);
  const auto part_at = [line](Index column) {
    return column >= 0 && column < static_cast<Index>(line.size()) &&
           IsWordPart(line[static_cast<std::size_t>(column)]);
  };
  while (part_at(anchor_.Column - 1)) --anchor_.Column;
  while (part_at(caret_.Column)) ++caret_.Column;
}

void ReportView::Press(const KeyPress& key) {
  if (key.Shift) {
    MoveCaret(key);
  } else {
    ScrollFor(key);
  }
}

void ReportView::MoveCaret(const KeyPress& key) {
  if (!caret_set_) anchor_ = caret_ = FirstInView();
  caret_set_ = true;
  const Index page = std::max(1, cut_.Rows - cut_.HeadRows - 1);
  Place to = caret_;
  if (key.What == Key::Up) --to.Line;
  if (key.What == Key::Down) ++to.Line;
  if (key.What == Key::PageUp) to.Line -= page;
  if (key.What == Key::PageDown) to.Line += page;
  if (key.What == Key::Home) to = {key.Control ? 0 : to.Line, 0};
  if (key.What == Key::End) {
    if (key.Control) to.Line = text_.Count() - 1;
    to.Column = LengthOf(to.Line);
  }
  if (key.What == Key::Left && --to.Column < 0 && to.Line > 0) to = {to.Line - 1, LengthOf(to.Line - 1)};
  if (key.What == Key::Right && ++to.Column > LengthOf(to.Line) && to.Line + 1 < text_.Count()) to = {to.Line + 1, 0};
  caret_ = InText(to);
  Show(caret_);
}

void ReportView::SelectAll() {
  anchor_ = {};
  caret_ = InText({text_.Count() - 1, LengthOf(text_.Count() - 1)});
  caret_set_ = true;
}

std::string ReportView::SelectedText() const {
  const auto [first, last] = Selection();
  std::string text;
  for (Index line = first.Line; line <= last.Line && line < text_.Count(); ++line) {
    const Index begin = line == first.Line ? first.Column : 0;
    const Index end = line == last.Line ? last.Column : LengthOf(line);
    text.append(
        text_.TextOf(text_.Line(line).substr(static_cast<std::size_t>(begin), static_cast<std::size_t>(end - begin))));
    if (line < last.Line) text.append("\r\n");
  }
  return text;
}

void ReportView::Seek(std::string_view sought) {
  finder_ = Finder(sought);
  CountHits();
  const Place from = caret_set_ ? Selection().first : FirstInView();
  SelectNone();
  if (finder_.Empty() || hits_ == 0) return;
  std::optional<Place> hit = finder_.Next(text_, from);
  if (!hit) hit = finder_.Next(text_, {});
  if (hit) Found(*hit);
}

void ReportView::FindNext() {
  if (hits_ == 0) return;
  std::optional<Place> hit = finder_.Next(text_, caret_set_ ? Selection().second : FirstInView());
  if (!hit) hit = finder_.Next(text_, {});
  Found(*hit);
}

void ReportView::FindPrevious() {
  if (hits_ == 0) return;
  std::optional<Place> hit = finder_.Previous(text_, caret_set_ ? Selection().first : FirstInView());
  if (!hit) hit = finder_.Previous(text_, {text_.Count(), 0});
  Found(*hit);
}

void ReportView::Found(const Place& hit) {
  anchor_ = hit;
  caret_ = {hit.Line, hit.Column + finder_.Length()};
  caret_set_ = true;
  // In the middle when it was out of view, so that what stands around it is seen too.
  const Index rows = cut_.Rows - cut_.HeadRows;
  const Index columns = cut_.Columns - cut_.LeftColumns;
  const auto outside = [](Index where, Index first, Index room) { return where < first || where >= first + room; };
  if (hit.Line >= cut_.HeadRows && outside(hit.Line, cut_.Top, rows)) cut_.Top = hit.Line - rows / 2;
  if (hit.Column >= cut_.LeftColumns && outside(caret_.Column, cut_.Left, columns + 1)) {
    cut_.Left = hit.Column - columns / 2;
  }
  Clamp();
  Show(caret_);
  Show(hit);
  hit_number_ = finder_.CountIn(text_, text_.Body().substr(0, text_.OffsetOf(caret_)));
}

void ReportView::CountHits() {
  hits_ = finder_.CountIn(text_, text_.Body());
  hit_number_ = 0;
}

// The report as it is seen in the window: what part of it is in view, what is selected and what was found. Measured in
// cells; the window only draws the pages made here and hands on what the user does.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "platform/page.h"
#include "platform/surface.h"
#include "viewer/finder.h"
#include "viewer/page_cut.h"
#include "viewer/report_text.h"

class ReportView {
 public:
  // Shows another report from its beginning, or, to keep the place, from the line and column in view now. Nothing is
  // selected; what was sought is sought in the new one.
  void SetText(ReportText text, bool keep_place);
  const ReportText& Text() const { return text_; }

  void Resize(int columns, int rows);
  Page BuildPage() const;

  // What the scroll bars show: `Range` lines or columns that move, `Shown` of them in view, from `Position` on.
  struct Extent {
    int Range = 0, Shown = 1, Position = 0;
  };
  Extent Across() const;
  Extent Down() const;
  void ScrollTo(Surface::Bar bar, int position);
  void ScrollBy(Surface::Bar bar, Index cells);

  // Keys scroll; with Shift they move the end of the selection, which begins where it began last, at the place clicked
  // last, or at the first one in view.
  void Press(const KeyPress& key);
  void Press(const MousePress& press);

  void SelectAll();
  void SelectNone() { anchor_ = caret_; }
  bool HasSelection() const { return anchor_ != caret_; }
  std::string SelectedText() const;  // lines parted by CR LF

  // Starts seeking a text, from the beginning of the selection on; empty text ends it.
  void Seek(std::string_view sought);
  // Selects the next hit, or the one before; round the end when there is none.
  void FindNext();
  void FindPrevious();
  bool Seeks() const { return !finder_.Empty(); }
  std::size_t HitCount() const { return hits_; }
  std::size_t HitNumber() const { return hit_number_; }  // of the hit found last, from 1; 0 when there is none

 private:
  std::pair<Place, Place> Selection() const;  // first and last
  Place FirstInView() const;
  Place PlaceAt(const Cell& cell) const;
  Place InText(Place place) const;
  Index LengthOf(Index line) const;
  void Clamp();
  void ScrollFor(const KeyPress& key);
  void MoveCaret(const KeyPress& key);
  void DragTo(const Cell& cell);
  void SelectWord();
  void Show(const Place& place);
  void Select(const Place& first, const Place& last);
  void Found(const Place& hit);
  void CountHits();
  Index EndInView() const;
  void AddRuns(Page& page, const Piece& piece) const;
  Cell CellOf(const Place& place) const;

  ReportText text_;
  PageCut cut_;
  Place anchor_, caret_;    // the selection's ends; alike when nothing is selected
  bool caret_set_ = false;  // by a click, a key or a hit
  Finder finder_;
  std::size_t hits_ = 0, hit_number_ = 0;
};

// The surface, in memory: it remembers what it shows and has room for so many cells of text of 10 points.
#include "platform/surface.h"

#include <algorithm>
#include <utility>

#include "platform/headless/internals.h"
#include "platform/headless/machine.h"

namespace {

Cell room{80, 25};

int Fits(double cells, double text_size) { return std::max(1, static_cast<int>(cells * 10 / text_size)); }

}  // namespace

void Machine::SetSurface(int columns, int rows) { room = {columns, rows}; }

int Surface::Columns() const { return Fits(room.Column, PeerOf().TextSize); }
int Surface::Rows() const { return Fits(room.Row, PeerOf().TextSize); }
void Surface::SetTextSize(double points) { PeerOf().TextSize = points; }
double Surface::TextSize() const { return PeerOf().TextSize; }

void Surface::Show(Page page) {
  PeerOf().Shown = std::move(page);
  PeerOf().OnPaper = false;
}

void Surface::ShowOnPaper(Page page, const Sheet& /*sheet*/, const PaperView& /*view*/) {
  PeerOf().Shown = std::move(page);
  PeerOf().OnPaper = true;
}

double Surface::Width() const { return 400; }
double Surface::Height() const { return 300; }

void Surface::SetScroll(Bar bar, int range, int shown, int position) {
  PeerOf().Bars[bar] = {range, shown, std::clamp(position, 0, std::max(0, range - shown))};
}

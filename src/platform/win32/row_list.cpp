// The row list on Windows: a list view that keeps no rows of its own.
#include <algorithm>
#include <string>

#include "platform/lists.h"
#include "platform/win32/internals.h"
#include "platform/win32/wide.h"

void Control::Peer::BeginRowList() {
  ChangeStyle(LVS_OWNERDATA | LVS_NOSORTHEADER, 0);
  const DWORD style = LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER;
  Send(LVM_SETEXTENDEDLISTVIEWSTYLE, style, style);
  Send(LVM_SETUNICODEFORMAT, TRUE);
}

// The last column takes what the others leave, so that nothing is to be scrolled across.
void Control::Peer::SizeColumns() const {
  RECT inside{};
  GetClientRect(Window, &inside);
  LONG left = inside.right;
  for (std::size_t column = 0; column < Percents.size(); ++column) {
    const bool last = column + 1 == Percents.size();
    const LONG width = last ? left : inside.right * Percents[column] / 100;
    Send(LVM_SETCOLUMNWIDTH, column, MAKELPARAM(width, 0));
    left -= width;
  }
}

void Control::Peer::RowListNotified(const NMHDR& header) {
  const auto& list = static_cast<const RowList&>(*Self);
  if (header.code == LVN_GETDISPINFOW) {
    const LVITEMW& item = reinterpret_cast<const NMLVDISPINFOW&>(header).item;
    if ((item.mask & LVIF_TEXT) == 0 || item.cchTextMax <= 0 || !list.CellText) return;
    lstrcpynW(item.pszText, Wide(list.CellText(item.iItem, item.iSubItem)).c_str(), item.cchTextMax);
  } else if (header.code == NM_DBLCLK && reinterpret_cast<const NMITEMACTIVATE&>(header).iItem >= 0) {
    Raise(list.DoubleClick);
  }
}

void RowList::SetColumns(const std::vector<Column>& columns) {
  Peer& peer = PeerOf();
  for (const Column& each : columns) {
    std::wstring title = Wide(each.Title);
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_SUBITEM;
    column.pszText = title.data();
    column.iSubItem = static_cast<int>(peer.Percents.size());
    peer.Send(LVM_INSERTCOLUMNW, peer.Percents.size(), reinterpret_cast<LPARAM>(&column));
    peer.Percents.push_back(each.Percent);
  }
  peer.SizeColumns();
}

void RowList::SetRows(int count) {
  Peer& peer = PeerOf();
  Select(-1);
  peer.Rows = count;
  peer.Send(LVM_SETITEMCOUNT, static_cast<WPARAM>(count));
  if (count > 0) peer.Send(LVM_ENSUREVISIBLE, 0, FALSE);
  peer.SizeColumns();  // the scroll bar may have come or gone
  InvalidateRect(peer.Window, nullptr, TRUE);
}

int RowList::Rows() const { return PeerOf().Rows; }

int RowList::Selected() const {
  return static_cast<int>(PeerOf().Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

void RowList::Select(int row) {
  const bool one = row >= 0 && row < Rows();
  LVITEMW item{};
  item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
  item.state = one ? item.stateMask : 0;
  // Of all rows, when none is meant.
  PeerOf().Send(LVM_SETITEMSTATE, static_cast<WPARAM>(one ? row : -1), reinterpret_cast<LPARAM>(&item));
  if (one) PeerOf().Send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
}

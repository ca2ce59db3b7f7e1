// The check list on Windows: a list view with check boxes and one column.
#include "platform/lists.h"
#include "platform/win32/internals.h"
#include "platform/win32/silence.h"
#include "platform/win32/wide.h"

namespace {

// Natively, a check mark is the number of a state image.
constexpr UINT kUnchecked = 1;
constexpr UINT kChecked = 2;

UINT ImageOf(UINT state) { return (state & LVIS_STATEIMAGEMASK) >> 12; }

void SetImage(const Control::Peer& peer, int position, UINT image) {
  LVITEMW item{};
  item.stateMask = LVIS_STATEIMAGEMASK;
  item.state = INDEXTOSTATEIMAGEMASK(image);
  peer.Send(LVM_SETITEMSTATE, static_cast<WPARAM>(position), reinterpret_cast<LPARAM>(&item));
}

}  // namespace

void CheckList::Fill(const std::vector<std::string>& entries) {
  Peer& peer = PeerOf();
  const Silence silence(peer);
  const bool visible = Visible();
  if (visible) peer.Send(WM_SETREDRAW, FALSE);
  peer.Send(LVM_DELETEALLITEMS);
  peer.Ticks.assign(entries.size(), false);
  std::wstring text;
  for (std::size_t index = 0; index < entries.size(); ++index) {
    text = Wide(entries[index]);
    LVITEMW item{};
    item.mask = LVIF_TEXT;
    item.iItem = static_cast<int>(index);
    item.pszText = text.data();
    peer.Send(LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    SetImage(peer, item.iItem, kUnchecked);
  }
  if (visible) {
    peer.Send(WM_SETREDRAW, TRUE);
    InvalidateRect(peer.Window, nullptr, TRUE);
  }
  peer.After(WM_SIZE);  // a scroll bar may have come or gone
}

int CheckList::Count() const { return static_cast<int>(PeerOf().Ticks.size()); }

std::string CheckList::EntryText(int position) const {
  if (position < 0 || position >= Count()) return {};
  for (std::size_t size = 256;; size *= 2) {
    std::wstring text(size, L'\0');
    LVITEMW item{};
    item.pszText = text.data();
    item.cchTextMax = static_cast<int>(size);
    const LRESULT length =
        PeerOf().Send(LVM_GETITEMTEXTW, static_cast<WPARAM>(position), reinterpret_cast<LPARAM>(&item));
    if (static_cast<std::size_t>(length) + 1 >= size) continue;
    text.resize(static_cast<std::size_t>(length));
    return Bytes(text);
  }
}

bool CheckList::Checked(int position) const {
  if (position < 0 || position >= Count()) return false;
  return PeerOf().Ticks[static_cast<std::size_t>(position)];
}

void CheckList::SetChecked(int position, bool checked) {
  if (position < 0 || position >= Count() || Checked(position) == checked) return;
  {
    const Silence silence(PeerOf());
    SetImage(PeerOf(), position, checked ? kChecked : kUnchecked);
  }
  const std::function<void(int)> item_check = ItemCheck;
  if (item_check) item_check(position);
}

void Control::Peer::Notified(const NMHDR& header) {
  if (What == Kind::RowList) return RowListNotified(header);
  if (What != Kind::CheckList || header.code != LVN_ITEMCHANGED) return;
  const auto& change = reinterpret_cast<const NMLISTVIEW&>(header);
  const UINT before = ImageOf(change.uOldState);
  const UINT after = ImageOf(change.uNewState);
  if ((change.uChanged & LVIF_STATE) == 0 || before == after || before == 0 || after == 0) return;
  Ticks[static_cast<std::size_t>(change.iItem)] = after == kChecked;
  if (Silent > 0) return;
  const std::function<void(int)> item_check = static_cast<CheckList*>(Self)->ItemCheck;
  if (item_check) item_check(change.iItem);
}

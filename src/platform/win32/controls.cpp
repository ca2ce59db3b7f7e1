// The plain controls on Windows, and what they tell.
#include "platform/controls.h"

#include <algorithm>
#include <vector>

#include "platform/win32/internals.h"
#include "platform/win32/silence.h"
#include "platform/win32/wide.h"

namespace {

// The option buttons of the group that a control stands in, itself included: from the last control
// before it that begins a group up to the next one that does.
std::vector<HWND> GroupOf(HWND option) {
  const auto begins = [](HWND window) { return (GetWindowLongW(window, GWL_STYLE) & WS_GROUP) != 0; };
  HWND first = option;
  while (!begins(first)) {
    HWND before = GetWindow(first, GW_HWNDPREV);
    if (before == nullptr) break;
    first = before;
  }
  std::vector<HWND> group;
  for (HWND each = first; each != nullptr && (each == first || !begins(each)); each = GetWindow(each, GW_HWNDNEXT)) {
    if ((SendMessageW(each, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) != 0) group.push_back(each);
  }
  return group;
}

}  // namespace

void Control::SetBold(bool bold) {
  if (bold == Bold()) return;
  Form::Peer& form = Owner().PeerOf();
  PeerOf().Bold = bold;
  const LRESULT plain = SendMessageW(form.Window, WM_GETFONT, 0, 0);
  PeerOf().Send(WM_SETFONT, bold ? reinterpret_cast<WPARAM>(form.Bold()) : static_cast<WPARAM>(plain), TRUE);
}

bool Control::Bold() const { return PeerOf().Bold; }

void Label::SetTabStop(bool stop) { PeerOf().ChangeStyle(stop ? WS_TABSTOP : 0, stop ? 0 : WS_TABSTOP); }
bool Label::TabStop() const { return (GetWindowLongW(PeerOf().Window, GWL_STYLE) & WS_TABSTOP) != 0; }

void Label::SetBorder(bool border) {
  if (border == Border()) return;
  PeerOf().ChangeStyle(border ? WS_BORDER : 0, border ? 0 : WS_BORDER);
  SetWindowPos(PeerOf().Window, nullptr, 0, 0, 0, 0,
               SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  InvalidateRect(PeerOf().Window, nullptr, TRUE);
}

bool Label::Border() const { return (GetWindowLongW(PeerOf().Window, GWL_STYLE) & WS_BORDER) != 0; }

void TextBox::SetReadOnly(bool read_only) { PeerOf().Send(EM_SETREADONLY, read_only ? TRUE : FALSE); }
bool TextBox::ReadOnly() const { return (GetWindowLongW(PeerOf().Window, GWL_STYLE) & ES_READONLY) != 0; }
void TextBox::SetTextLimit(int bytes) {
  PeerOf().TextLimit = bytes;
  PeerOf().Send(EM_SETLIMITTEXT, static_cast<WPARAM>(bytes));
}
void TextBox::SelectAll() { PeerOf().Send(EM_SETSEL, 0, -1); }

void TextBox::SelectText(int first, int last) {
  Peer::Mark(PeerOf().Window, first, last);
  PeerOf().Send(EM_SCROLLCARET);
}

void Button::SetBackColor(::BackColor color) {
  PeerOf().Back = color;
  InvalidateRect(PeerOf().Window, nullptr, TRUE);
}

::BackColor Button::BackColor() const { return PeerOf().Back; }

bool OptionButton::Checked() const { return PeerOf().Checked; }

void OptionButton::SetChecked(bool checked) {
  if (checked == Checked()) return;
  if (checked) {
    PeerOf().CheckInGroup();
    Raise(Click);
  } else {
    PeerOf().Checked = false;
    PeerOf().Send(BM_SETCHECK, BST_UNCHECKED);
  }
}

void Control::Peer::CheckInGroup() {
  for (HWND each : GroupOf(Window)) {
    SendMessageW(each, BM_SETCHECK, each == Window ? BST_CHECKED : BST_UNCHECKED, 0);
    Control* other = Owner->PeerOf().Find(GetDlgCtrlID(each));
    if (other != nullptr && other->PeerOf().What == Kind::OptionButton) other->PeerOf().Checked = each == Window;
  }
}

void Control::Peer::Commanded(int code) {
  if (Silent > 0) return;
  switch (What) {
    case Kind::Label:
      if (code == STN_CLICKED || code == STN_DBLCLK) Raise(static_cast<Label*>(Self)->Click);
      break;
    case Kind::Picture:
      if (code == STN_CLICKED) Raise(static_cast<Picture*>(Self)->Click);
      if (code == STN_DBLCLK) Raise(static_cast<Picture*>(Self)->DoubleClick);
      break;
    case Kind::TextBox:
      if (code == EN_CHANGE) TextMayHaveChanged();
      break;
    case Kind::Button:
    case Kind::OptionButton:
      ButtonCommanded(code);
      break;
    case Kind::ListBox:
      if (code == LBN_SELCHANGE) SelectionMayHaveMoved();
      if (code == LBN_SETFOCUS) Owner->PeerOf().FocusMoved(Self);
      if (code == LBN_DBLCLK) Raise(static_cast<ListBox*>(Self)->DoubleClick);
      break;
    case Kind::ComboBox:
    case Kind::DropDownList:
      ComboCommanded(code);
      break;
    default:
      break;
  }
}

// Enter and Esc come here too, whatever the button's state.
void Control::Peer::ButtonCommanded(int code) {
  if (code != BN_CLICKED || !TakesInput()) return;
  if (What == Kind::Button) {
    Raise(static_cast<Button*>(Self)->Click);
  } else if (!Checked) {
    CheckInGroup();
    Raise(static_cast<OptionButton*>(Self)->Click);
  }
}

// An edit field also tells when a text was replaced by itself.
void Control::Peer::TextMayHaveChanged() {
  std::string text = TextOfWindow(Window);
  const auto limit = static_cast<std::size_t>(TextLimit);
  if (limit > 0 && text.size() > std::max(limit, Told.size())) {
    // Natively, a character that takes many bytes counts as one.
    text.resize(WholeBytes(text, limit));
    const Silence silence(*this);
    SetWindowTextW(Window, Wide(text).c_str());
    Send(EM_SETSEL, text.size(), static_cast<LPARAM>(text.size()));
  }
  if (text == Told) return;
  Told = std::move(text);
  if (What == Kind::TextBox) {
    Raise(static_cast<TextBox*>(Self)->Change);
  } else {
    // Natively, the entry picked before stays selected under another text.
    SendMessageW(DropList(), LB_SETCURSEL, static_cast<WPARAM>(-1), 0);
    Selected = -1;
    Raise(static_cast<ComboBox*>(Self)->Change);
  }
}

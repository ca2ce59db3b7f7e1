// What a control is made of on Windows: the native window, and copies of what it shows.
#pragma once

#include <windows.h>
// After windows.h, on which it builds.
#include <commctrl.h>

#include <memory>
#include <string>
#include <vector>

#include "platform/controls.h"
#include "platform/lists.h"

class Photo;
class SurfaceWork;

struct Control::Peer {
  using Kind = Control::Kind;

  Control* Self = nullptr;
  Form* Owner = nullptr;
  int Id = 0;
  Kind What = Kind::Label;
  HWND Window = nullptr;
  WNDPROC Native = nullptr;  // the control's own procedure, where ours stands before it
  int Silent = 0;            // native notifications are our own doing and no events

  std::string Told;                // text box, combo: the text as the program knows it
  int Selected = -1;               // lists: the selection as the program knows it
  bool Checked = false;            // option button, likewise
  int TextLimit = 0;               // text box: in bytes; 0 for none
  std::vector<ListEntry> Entries;  // lists: a copy, for asking the native one takes long
  std::vector<bool> Ticks;         // check list: a copy, for asking the native one takes long
  bool Bold = false;
  ::BackColor Back = ::BackColor::ButtonFace;
  std::shared_ptr<Photo> Shown;       // picture; null when empty
  std::shared_ptr<SurfaceWork> Work;  // surface
  std::vector<int> Percents;          // row list: how wide the columns are
  int Rows = 0;                       // row list

  bool TakesInput() const;  // visible and enabled
  bool TakesFocus() const;  // the same, and of a kind that can
  bool DropsDown() const { return What == Kind::ComboBox || What == Kind::DropDownList; }
  bool HoldsEntries() const { return DropsDown() || What == Kind::ListBox; }
  bool MultiLine() const;
  LRESULT Send(UINT message, WPARAM first = 0, LPARAM second = 0) const {
    return SendMessageW(Window, message, first, second);
  }
  void ChangeStyle(DWORD add, DWORD remove) const;
  HWND EditField() const;                            // the edit field of a combo
  HWND DropList() const;                             // the list of a drop-down
  static void Mark(HWND edit, int first, int last);  // bytes of what the edit field holds

  // What the native control tells.
  void Commanded(int code);
  void Notified(const NMHDR& header);
  void DroppedUp();  // some time after a combo's list was closed

  void ButtonCommanded(int code);
  void ComboCommanded(int code);
  void TextMayHaveChanged();
  void SelectionMayHaveMoved();
  void CheckInGroup();  // option button: natively, the others of its group go out

  void BeginRowList();
  void SizeColumns() const;
  void RowListNotified(const NMHDR& header);

  // Draws what the native control cannot; false for all other controls.
  bool Paint() const;

  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM first, LPARAM second);
  bool Intercept(UINT message, WPARAM first, LPARAM second, LRESULT& result);
  void After(UINT message);
};

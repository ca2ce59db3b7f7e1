// The Windows platform from inside: what forms are made of, and how messages find them.
#pragma once

#include <windows.h>
// After windows.h, on which it builds.
#include <commctrl.h>

#include <exception>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/form.h"
#include "platform/win32/control_peer.h"
#include "platform/win32/layout.h"

// Where a form stood on the screen when it was there last.
struct StoodAt {
  RECT Rect;
  bool Maximized;
};
class Drops;

struct Form::Peer {
  Form* Self = nullptr;
  int Template = 0;
  HWND Window = nullptr;
  HACCEL Accelerators = nullptr;
  HFONT BoldFont = nullptr;
  HWND TipWindow = nullptr;
  std::map<int, Control*> Controls;
  std::map<int, std::string> MenuTexts;
  int EntriesCount = 0;               // of SetMenuEntries
  std::shared_ptr<Drops> TakesDrops;  // null: no file may be dropped
  Layout Sizes;
  const Control* Below = nullptr;
  std::optional<StoodAt> Stood;

  Control* Focus = nullptr;  // has the focus, or gets it back when the form becomes active
  Form* Disabled = nullptr;  // the form below, while this one is modal above it
  bool Shown = false;
  bool Appearing = false;  // moves of the focus are not told yet
  bool Modal = false;
  bool Closed = false;
  bool ToActivate = false;      // became the active form, and Form_Activate did not run yet
  int Runs = 0;                 // how often its message loop was begun
  bool Running = false;         // it is in its message loop
  std::vector<Event> Deferred;  // for when no mouse button is held down
  std::exception_ptr Carried;   // what a handler threw, until the message loop takes it up

  Control* Find(int id) const;  // nullptr when there is none
  void Make(int template_id);
  void AddMenu();
  void Place(HWND owner) const;
  void Load();
  void Appear(Form* owner);
  void GiveFirstFocus();
  void Loop();
  void RunDeferred();
  void Unload(UnloadMode mode);
  void Gone();  // closed and off the screen, without asking
  void Activate();
  void GiveFocusBack() const;
  void FocusMoved(Control* control);
  void Carry(std::exception_ptr failure);
  void RethrowCarried();
  HFONT Bold();
  void TakeDrops();
  HWND Tips();  // the window of the tool tips, made when the first one is set
  void RemakeFonts();

  // Runs what may throw inside of a window procedure, through which no exception may pass.
  template <typename Act>
  void Guard(Act act) noexcept {
    try {
      act();
    } catch (...) {
      Carry(std::current_exception());
    }
  }

  static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM first, LPARAM second);
  bool Handle(UINT message, WPARAM first, LPARAM second, LRESULT& result);
  void Command(int id, int code);
  void CloseBox();
  bool MayShutDown();
};

// The forms on the screen, the topmost last.
std::vector<Form*>& OpenForms();
Form* TopmostForm();  // nullptr when there is none

// Hands a message to where it belongs, by way of the topmost form's accelerators and keys.
void Dispatch(MSG& message);

// Throws what a handler of an open form threw inside of a window procedure, if any.
void RethrowCarried();

// The topmost form is active again after a box above it: it is told, before the call returns.
void ReactivateTopmost();

std::string TextOfWindow(HWND window);
inline void Raise(const Event& event) {
  const Event kept = event;  // its handler may set it anew
  if (kept) kept();
}

// Ends the program for a fault of its own making: a control or template that is not there.
[[noreturn]] void Fault(const std::string& what);

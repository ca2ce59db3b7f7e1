// Files dragged over a form and dropped on it.
#pragma once

#include <windows.h>
// After windows.h, on which it builds.
#include <oleidl.h>

#include "platform/win32/internals.h"

// Lets files be dropped on the form for as long as it lives.
class Drops {
 public:
  explicit Drops(Form::Peer& form);
  ~Drops();
  Drops(const Drops&) = delete;
  Drops& operator=(const Drops&) = delete;
  IDropTarget& Target() const { return *target_; }

 private:
  HWND window_;
  IDropTarget* target_;
};

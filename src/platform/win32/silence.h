// Keeps what the program itself does to a control apart from what the user does.
#pragma once

#include "platform/win32/internals.h"

// Native notifications are no events as long as one of these lives.
class Silence {
 public:
  explicit Silence(Control::Peer& peer) : peer_(peer) { ++peer_.Silent; }
  ~Silence() { --peer_.Silent; }
  Silence(const Silence&) = delete;
  Silence& operator=(const Silence&) = delete;

 private:
  Control::Peer& peer_;
};

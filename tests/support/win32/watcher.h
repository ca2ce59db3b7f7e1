// Watches for what comes up before a test's person - message boxes, input boxes, file dialogs, forms -
// and answers it from the queue of expectations, from within the message loop of whatever came.
#pragma once

#include <windows.h>

#include <string_view>

class Watcher {
 public:
  Watcher();
  ~Watcher();
  Watcher(const Watcher&) = delete;
  Watcher& operator=(const Watcher&) = delete;

 private:
  HWND window_ = nullptr;
};

// Replaces the text of an edit field as typing does.
void TypeInto(HWND edit, std::string_view text);

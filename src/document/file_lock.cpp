// The lock on the document's file: see file_lock.h.
#include "document/file_lock.h"

#include <exception>

#include "document/document.h"
#include "platform/file_handles.h"
#include "platform/files.h"
#include "shell/messages.h"

void RetakeFileLock(const std::string& file_name) {
  if (!TheDocument.Writable || file_name.empty()) return;
  try {
    Files::Open(kLockHandle, file_name, Files::Mode::Lock);
    TheDocument.LockHeld = true;
  } catch (const std::exception&) {
    TheDocument.LockHeld = false;
  }
}

void TakeFileLock(const std::string& file_name) {
  RetakeFileLock(file_name);
  if (!TheDocument.Writable || TheDocument.LockHeld) return;
  Global::Say(
      "I have loaded the plan file, but I cannot lock it for writing.  If you make changes, you must save to a "
      "different file.",
      Icon::Exclamation);
  TheDocument.Writable = false;
}

void ReleaseFileLock() {
  if (!TheDocument.LockHeld) return;
  TheDocument.LockHeld = false;
  try {
    Files::Close(kLockHandle);
  } catch (const std::exception&) {
    // Nothing was written through it that could be lost.
  }
}

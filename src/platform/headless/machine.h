// The machine that the in-memory platform plays: what a test may set up on it, look at, and break.
// Files live in a tree of their own: case-insensitive, with "C:\" as its only drive.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/printing.h"
#include "platform/registry.h"

namespace Machine {

void SetDecimalSeparator(char separator);
void SetFirstWeekday(int weekday);  // 0 is Sunday
void SetToday(int year, unsigned month, unsigned day);
void SetEnvironment(const std::string& name, const std::optional<std::string>& value);  // nothing: not defined
void SetCommandLine(const std::string& text);
void SetProgramFolder(const std::string& folder);
void SetCurrentFolder(const std::string& folder);  // need not exist: the system does not see to it either

// Programs. A start succeeds for a file of the machine's disk (".exe" may be left out).
std::vector<std::string> StartedPrograms();  // the command lines since the last call
void FailStart(
    std::optional<int> error);  // every start fails with that error, or gives no process (0); nothing: none does

// The registry.
void SetRegistryValue(RegistryRoot root, const std::string& key, const std::string& name, const std::string& text,
                      unsigned long type = kRegistryText);
void RemoveRegistryKey(RegistryRoot root, const std::string& key);  // with all keys below it
void FailRegistryReads(bool fail);                                  // values are there, but cannot be read

// The printer: its paper, the pages that the user chooses in its dialog (nothing: cancels it), and how many sheets it
// has. Without one, printing fails.
struct Printer {
  Sheet Paper;
  std::optional<PrintRange> Chosen;
  std::size_t PaperLeft = 1000;
};
void SetPrinter(const std::optional<Printer>& with);
std::vector<Page> PrintedPages();  // by jobs that came to their end, since the last call

// How many cells of text in its usual size there is room for on a surface; 80 by 25 until it is set.
void SetSurface(int columns, int rows);

// Files, by full name or relative to the current folder. None of these counts as a file call, and
// none minds read-only flags or handles. Putting a file into a folder that is missing throws.
void PutFile(const std::string& name, std::string_view bytes);
void PutRealFile(const std::string& name, const std::string& real_path);  // the bytes of a file of the real disk
std::optional<std::string> FileBytes(const std::string& name);            // nothing when there is no such file
void SetReadOnly(const std::string& name, bool read_only);
void MakeFolder(const std::string& name);
void RemoveFolder(const std::string& name);                   // with all that is in it
std::vector<std::string> FilesIn(const std::string& folder);  // names without the folder, sorted
void HoldByOther(const std::string& name, bool against_readers);
void ReleaseByOther();
void LosePower();  // files lose what was written and not flushed

// Faults. Each Open, AtEnd, ReadLine, Write, WriteLine, Flush, Erase, Rename and Exists is a file call, and so
// is a Close that has written bytes to settle. The n-th call from now on (1 is the next) fails with the
// error of that system code: once, or with all that follow it. A Write that fails leaves half of its
// bytes in the file, and a Flush or Close that fails loses half of what was written since the last one.
void FailFileCall(int nth, unsigned long system_code, bool permanent);

// The file calls since ClearFaults was last called.
int FileCallCount();

// No faults, unlimited space, and the count at 0.
void ClearFaults();

// Lets the files grow by that many bytes more; what exceeds it is refused as by a full disk (code 112).
void DiskSpace(std::size_t bytes);

}  // namespace Machine

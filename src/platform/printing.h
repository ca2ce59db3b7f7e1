// Printing: choosing a printer, and handing it pages. Failures throw RuntimeError 482 (printer error).
#pragma once

#include <memory>
#include <string>

#include "platform/page.h"

// The sheet of the printer chosen last in this run of the program, of the default printer otherwise, and of paper in
// common use when there is none. The text size is as in Sheet.
Sheet PrinterSheet();

// Which pages to print, counted from 1.
struct PrintRange {
  int First = 1;
  int Last = 1;
};

// Shows the system's print dialog for that many pages. False when the user cancelled. When the dialog has changed
// the paper, PrinterSheet tells; a range of "all" reaches up to kAllPages.
inline constexpr int kAllPages = 9999999;
bool ChoosePrinter(int pages, PrintRange& range);

// A job on the chosen printer, printed when End was called and thrown away when it is destroyed without.
class PrintJob {
 public:
  // The title is what the system's list of jobs shows. Check Cancelled afterwards.
  PrintJob(const std::string& title, const Sheet& sheet);
  ~PrintJob();
  PrintJob(const PrintJob&) = delete;
  PrintJob& operator=(const PrintJob&) = delete;

  // The user gave the job up, in a dialog of the printer's own.
  bool Cancelled() const;
  void Print(const Page& page);
  void End();

 private:
  struct Peer;
  std::unique_ptr<Peer> peer_;
};

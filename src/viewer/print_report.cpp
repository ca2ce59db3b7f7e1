// Printing a report: see print_report.h.
#include "viewer/print_report.h"

#include <algorithm>

#include "platform/printing.h"
#include "shell/messages.h"
#include "viewer/print_layout.h"

void PrintReport(const ReportText& text, const std::string& name) {
  try {
    PrintRange range;
    if (!ChoosePrinter(PrintLayout(text, name, PrinterSheet()).Pages(), range)) return;
    const PrintLayout layout(text, name, PrinterSheet());  // of the printer chosen, which may have other paper
    const int last = std::min(range.Last, layout.Pages());
    if (range.First > last) return;
    PrintJob job(name, layout.Paper());
    if (job.Cancelled()) return;
    for (int number = std::max(1, range.First); number <= last; ++number) job.Print(layout.PageAt(number));
    job.End();
  } catch (const RuntimeError& error) {
    Global::Say("Failed to print " + name + Global::DueToError(error), Icon::Exclamation);
  }
}

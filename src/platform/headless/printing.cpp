// The printer of the in-memory machine: it keeps what was printed.
#include "platform/printing.h"

#include <utility>

#include "platform/headless/machine.h"
#include "platform/runtime_error.h"

namespace {

std::optional<Machine::Printer> printer;
std::vector<Page> printed;

}  // namespace

void Machine::SetPrinter(const std::optional<Printer>& with) { printer = with; }
std::vector<Page> Machine::PrintedPages() { return std::exchange(printed, {}); }

Sheet PrinterSheet() { return printer ? printer->Paper : Sheet(); }

bool ChoosePrinter(int /*pages*/, PrintRange& range) {
  if (!printer) throw RuntimeError(kPrinterError);
  if (!printer->Chosen) return false;
  range = *printer->Chosen;
  return true;
}

struct PrintJob::Peer {
  std::vector<Page> Pages;
};

PrintJob::PrintJob(const std::string& /*title*/, const Sheet& /*sheet*/) : peer_(std::make_unique<Peer>()) {}
PrintJob::~PrintJob() = default;
bool PrintJob::Cancelled() const { return false; }

void PrintJob::Print(const Page& page) {
  if (!printer || peer_->Pages.size() >= printer->PaperLeft) throw RuntimeError(kPrinterError);
  peer_->Pages.push_back(page);
}

void PrintJob::End() { printed = std::move(peer_->Pages); }

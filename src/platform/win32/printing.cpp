// Printing on Windows, through the system's print dialog.
#include "platform/printing.h"

#include <windows.h>
// After windows.h, on which they build.
#include <cderr.h>
#include <commdlg.h>

#include <algorithm>
#include <iterator>
#include <memory>

#include "platform/runtime_error.h"
#include "platform/win32/page_draw.h"
#include "platform/win32/wide.h"

namespace {

constexpr double kMargin = 36;  // points
constexpr WORD kLastPage = 0xFFFF;

[[noreturn]] void FailPrinting() { throw RuntimeError(kPrinterError); }

struct DeviceCloser {
  using pointer = HDC;
  void operator()(HDC device) const { DeleteDC(device); }
};
using Device = std::unique_ptr<HDC, DeviceCloser>;

// The printer chosen last and its settings, as the dialog wants them back; null: the default ones.
HGLOBAL chosen_mode = nullptr;
HGLOBAL chosen_names = nullptr;

PRINTDLGW DialogWith(DWORD flags) {
  PRINTDLGW dialog{};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = GetActiveWindow();
  dialog.Flags = flags;
  return dialog;
}

void FindDefaultPrinter() {
  if (chosen_names != nullptr) return;
  PRINTDLGW dialog = DialogWith(PD_RETURNDEFAULT | PD_NOWARNING);
  if (!PrintDlgW(&dialog)) return;
  chosen_mode = dialog.hDevMode;
  chosen_names = dialog.hDevNames;
}

// The chosen printer, or null when there is none.
Device OpenPrinterDevice() {
  FindDefaultPrinter();
  if (chosen_names == nullptr) return nullptr;
  const auto* names = static_cast<const DEVNAMES*>(GlobalLock(chosen_names));
  const auto* mode = chosen_mode == nullptr ? nullptr : static_cast<const DEVMODEW*>(GlobalLock(chosen_mode));
  const auto* text = reinterpret_cast<const wchar_t*>(names);
  Device device(CreateDCW(text + names->wDriverOffset, text + names->wDeviceOffset, nullptr, mode));
  if (mode != nullptr) GlobalUnlock(chosen_mode);
  GlobalUnlock(chosen_names);
  return device;
}

// A4, or Letter where that is in use.
Sheet CommonSheet() {
  Sheet sheet;
  wchar_t paper[8] = L"";
  GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_IPAPERSIZE, paper, static_cast<int>(std::size(paper)));
  if (paper[0] == L'1') {
    sheet.Width = 612;
    sheet.Height = 792;
  }
  return sheet;
}

double PointsOf(HDC device, int what, int dots_per_inch) {
  return GetDeviceCaps(device, what) * 72.0 / std::max(1, GetDeviceCaps(device, dots_per_inch));
}

}  // namespace

Sheet PrinterSheet() {
  const Device device = OpenPrinterDevice();
  if (!device || GetDeviceCaps(device.get(), PHYSICALWIDTH) <= 0) return CommonSheet();
  Sheet sheet;
  HDC printer = device.get();
  sheet.Width = PointsOf(printer, PHYSICALWIDTH, LOGPIXELSX);
  sheet.Height = PointsOf(printer, PHYSICALHEIGHT, LOGPIXELSY);
  const double left = PointsOf(printer, PHYSICALOFFSETX, LOGPIXELSX);
  const double top = PointsOf(printer, PHYSICALOFFSETY, LOGPIXELSY);
  sheet.Left = std::max(kMargin, left);
  sheet.Top = std::max(kMargin, top);
  sheet.Right = std::max(kMargin, sheet.Width - left - PointsOf(printer, HORZRES, LOGPIXELSX));
  sheet.Bottom = std::max(kMargin, sheet.Height - top - PointsOf(printer, VERTRES, LOGPIXELSY));
  return sheet;
}

bool ChoosePrinter(int pages, PrintRange& range) {
  PRINTDLGW dialog = DialogWith(PD_NOWARNING | PD_ALLPAGES | PD_NOSELECTION | PD_USEDEVMODECOPIESANDCOLLATE);
  dialog.hDevMode = chosen_mode;
  dialog.hDevNames = chosen_names;
  dialog.nMinPage = 1;
  dialog.nMaxPage = static_cast<WORD>(std::min<int>(pages, kLastPage));
  dialog.nFromPage = 1;
  dialog.nToPage = dialog.nMaxPage;
  dialog.nCopies = 1;
  if (!PrintDlgW(&dialog)) {
    if (CommDlgExtendedError() != 0) FailPrinting();
    return false;
  }
  chosen_mode = dialog.hDevMode;
  chosen_names = dialog.hDevNames;
  range = {1, kAllPages};
  if ((dialog.Flags & PD_PAGENUMS) != 0) range = {dialog.nFromPage, dialog.nToPage};
  return true;
}

struct PrintJob::Peer {
  Device Printer;
  Sheet Paper;
  bool Started = false;
  bool Cancelled = false;
};

PrintJob::PrintJob(const std::string& title, const Sheet& sheet) : peer_(std::make_unique<Peer>()) {
  peer_->Paper = sheet;
  peer_->Printer = OpenPrinterDevice();
  if (!peer_->Printer) FailPrinting();
  const std::wstring name = Wide(title);
  DOCINFOW document{};
  document.cbSize = sizeof document;
  document.lpszDocName = name.c_str();
  peer_->Started = StartDocW(peer_->Printer.get(), &document) > 0;
  if (peer_->Started) return;
  // A printer into a file asks for its name, and may get none.
  const DWORD code = GetLastError();
  peer_->Cancelled = code == ERROR_CANCELLED || code == ERROR_PRINT_CANCELLED;
  if (!peer_->Cancelled) FailPrinting();
}

PrintJob::~PrintJob() {
  if (peer_->Started) AbortDoc(peer_->Printer.get());
}

bool PrintJob::Cancelled() const { return peer_->Cancelled; }

void PrintJob::Print(const Page& page) {
  HDC printer = peer_->Printer.get();
  if (StartPage(printer) <= 0) FailPrinting();
  const POINT corner{-GetDeviceCaps(printer, PHYSICALOFFSETX), -GetDeviceCaps(printer, PHYSICALOFFSETY)};
  DrawOnPaper(printer, page, peer_->Paper,
              {corner, GetDeviceCaps(printer, LOGPIXELSX) / 72.0, GetDeviceCaps(printer, LOGPIXELSY) / 72.0});
  if (EndPage(printer) <= 0) FailPrinting();
}

void PrintJob::End() {
  peer_->Started = false;
  if (EndDoc(peer_->Printer.get()) <= 0) FailPrinting();
}

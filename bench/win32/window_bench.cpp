// Times what the user waits for in real windows, on a document of 32767 things: filling the thing list next to a
// bare combo box, picking things, and saving next to one plain write of the same bytes.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "../generate.h"
#include "document/document.h"
#include "document/writer.h"
#include "mainwindow/main_form.h"
#include "mainwindow/main_ids.h"
#include "mainwindow/thing_list.h"
#include "platform/file_handles.h"
#include "platform/files.h"
#include "platform/win32/internals.h"
#include "platform/win32/wide.h"
#include "resource.h"
#include "values/numbers.h"

namespace {

constexpr int kRuns = 7;
constexpr int kPicks = 200;
const std::string kFile = "Large.FIL";

// Milliseconds that an act takes.
template <class Act>
double TimeOf(Act act) {
  const auto start = std::chrono::steady_clock::now();
  act();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

// Prints median, least and most, and returns the median.
double Report(const char* what, std::vector<double> times) {
  std::sort(times.begin(), times.end());
  const double median = times[times.size() / 2];
  std::printf("%-34s median %8.2f  min %8.2f  max %8.2f ms\n", what, median, times.front(), times.back());
  return median;
}

void ReportAim(const char* what, double measured, double aim) {
  std::printf("%-34s %.2f (aim: at most %.2f)%s\n", what, measured, aim, measured <= aim ? "" : "  MISSED");
}

void Pump() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

void Save() {
  Files::Open(kDataFileHandle, kFile, Files::Mode::Output);
  SaveFilerFile(kDataFileHandle);
  Files::Flush(kDataFileHandle);
  Files::Close(kDataFileHandle);
}

void WritePlainly(const std::string& bytes) {
  HANDLE file = CreateFileW(L"Plain.FIL", GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
  DWORD written = 0;
  WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
  FlushFileBuffers(file);
  CloseHandle(file);
}

std::string BytesOf(const std::string& name) {
  std::ifstream file(name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void TimeSaving() {
  Save();
  const std::string bytes = BytesOf(kFile);
  std::vector<double> saving;
  std::vector<double> writing;
  for (int run = 0; run < kRuns; ++run) {
    saving.push_back(TimeOf(Save));
    writing.push_back(TimeOf([&] { WritePlainly(bytes); }));
  }
  const double save = Report("saving", saving);
  ReportAim("saving / one write of the bytes", save / Report("one write of the bytes", writing), 3);
}

// What the least possible program does to show the same names.
void FillBareCombo(HWND combo, const std::vector<ListEntry>& entries) {
  SendMessageW(combo, WM_SETREDRAW, FALSE, 0);
  SendMessageW(combo, CB_RESETCONTENT, 0, 0);
  for (const ListEntry& entry : entries) {
    SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Wide(entry.Text).c_str()));
  }
  SendMessageW(combo, WM_SETREDRAW, TRUE, 0);
}

void TimeFilling(HWND window) {
  HWND combo = CreateWindowExW(0, L"COMBOBOX", L"", WS_CHILD | WS_VSCROLL | CBS_DROPDOWN | CBS_AUTOHSCROLL, 0, 0, 200,
                               200, window, nullptr, nullptr, nullptr);
  const std::vector<ListEntry> entries = ListThings({});
  const auto click_tab = [window](int id) {
    SendMessageW(window, WM_COMMAND, MAKEWPARAM(id, STN_CLICKED), reinterpret_cast<LPARAM>(GetDlgItem(window, id)));
    Pump();
  };
  std::vector<double> ours;
  std::vector<double> bare;
  std::vector<double> few;
  for (int run = 0; run < kRuns; ++run) {
    few.push_back(TimeOf([&] { click_tab(IDC_LetterLabel + ('X' - 'A')); }));
    ours.push_back(TimeOf([&] { click_tab(IDC_AllLabel); }));
    bare.push_back(TimeOf([&] { FillBareCombo(combo, entries); }));
  }
  DestroyWindow(combo);
  Report("a letter without things", few);
  const double fill = Report("all things into the list", ours);
  ReportAim("thing list / bare combo", fill / Report("all things into a bare combo", bare), 1.3);
}

void TimePicking(HWND window) {
  HWND combo = GetDlgItem(window, IDC_PersonCombo);
  std::vector<double> picks;
  std::vector<double> handled;
  for (int pick = 1; pick <= kPicks; ++pick) {
    const int position = static_cast<int>(static_cast<long long>(pick) * (kLastRecord - 1) / kPicks);
    picks.push_back(TimeOf([&] {
      handled.push_back(TimeOf([&] {
        SendMessageW(combo, CB_SETCURSEL, static_cast<WPARAM>(position), 0);
        SendMessageW(window, WM_COMMAND, MAKEWPARAM(IDC_PersonCombo, CBN_SELCHANGE), reinterpret_cast<LPARAM>(combo));
      }));
      Pump();
    }));
  }
  Report("picking a thing, handled", handled);
  ReportAim("picking a thing", Report("picking a thing, painted", picks), 16);
}

// Whoever answers the boxes of a command: types the answer, presses OK, and notes when each box came.
struct BoxAnswerer {
  std::string Answer;
  std::chrono::steady_clock::time_point Came;
};
BoxAnswerer answerer;

LRESULT CALLBACK AnswerBoxes(int code, WPARAM window, LPARAM details) {
  HWND box = reinterpret_cast<HWND>(window);
  if (code == HCBT_ACTIVATE && GetWindow(box, GW_OWNER) != nullptr && GetDlgItem(box, IDOK) != nullptr) {
    answerer.Came = std::chrono::steady_clock::now();
    if (GetDlgItem(box, IDC_AnswerBox) != nullptr) SetDlgItemTextW(box, IDC_AnswerBox, Wide(answerer.Answer).c_str());
    PostMessageW(box, WM_COMMAND, IDOK, 0);
  }
  return CallNextHookEx(nullptr, code, window, details);
}

// Times each command without the user's share: adding from OK in its box on, deleting up to what it says, and renaming
// likewise, with the making of its box.
void TimeCommands(HWND window) {
  const HHOOK hook = SetWindowsHookExW(WH_CBT, AnswerBoxes, nullptr, GetCurrentThreadId());
  const auto milliseconds = [](auto from, auto to) {
    return std::chrono::duration<double, std::milli>(to - from).count();
  };
  std::vector<double> adding, renaming, deleting;
  for (int run = 0; run < kRuns; ++run) {
    const auto command = [window](int id) {
      const auto start = std::chrono::steady_clock::now();
      SendMessageW(window, WM_COMMAND, MAKEWPARAM(id, 0), 0);
      Pump();
      return start;
    };
    answerer.Answer = "Added thing " + std::to_string(run);
    command(IDC_AddPersonItem);
    adding.push_back(milliseconds(answerer.Came, std::chrono::steady_clock::now()));
    answerer.Answer = "Renamed thing " + std::to_string(run);
    const auto renamed = command(IDC_RenameItem);
    renaming.push_back(milliseconds(renamed, answerer.Came));
    const auto deleted = command(IDC_DeletePersonItem);
    deleting.push_back(milliseconds(deleted, answerer.Came));
  }
  UnhookWindowsHookEx(hook);
  ReportAim("adding a thing, ms", Report("adding a thing", adding), 100);
  ReportAim("renaming a thing, ms", Report("renaming a thing, with its box", renaming), 100);
  ReportAim("deleting a thing, ms", Report("deleting a thing", deleting), 100);
}

}  // namespace

int main() {
  std::filesystem::create_directories("window_bench");
  std::filesystem::current_path("window_bench");
  GenerateDocument(kLastRecord, 1);
  // There are no photos: each would be missed, with a box that waits for an answer.
  for (int record = 1; record <= kLastRecord; ++record) TheDocument.Things.Writable(record).PICFILENAME.clear();
  TimeSaving();

  MainForm form(kFile);
  Report("the window with the document", {TimeOf([&] {
           form.Show();
           Pump();
         })});
  HWND window = form.PeerOf().Window;
  TimeFilling(window);
  TimePicking(window);
  TimeCommands(window);
}

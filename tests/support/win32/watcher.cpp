// Watches for what comes up before a test's person on real windows - message boxes, input boxes, file dialogs, forms -
// and tells the listener, from within the message loop of whatever came: by a timer.
#include <windows.h>
// After windows.h, on which it builds.
#include <commdlg.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/win32/internals.h"
#include "platform/win32/wide.h"
#include "resource.h"
#include "support/files.h"
#include "support/hands.h"
#include "support/listener.h"

namespace {

constexpr UINT kInterval = 5;                       // milliseconds
constexpr const wchar_t* kSeen = L"FilerTestSeen";  // a property of windows that were dealt with

UINT_PTR timer = 0;

std::string ClassOf(HWND window) {
  wchar_t name[64] = L"";
  GetClassNameW(window, name, static_cast<int>(std::size(name)));
  return Bytes(name);
}

bool MarkSeen(HWND window, int value) {
  HANDLE mark = reinterpret_cast<HANDLE>(static_cast<INT_PTR>(value));
  if (GetPropW(window, kSeen) == mark) return false;
  SetPropW(window, kSeen, mark);
  return true;
}

// The top dialog window of this thread that takes input, or null.
HWND TopDialog() {
  for (HWND each = nullptr; (each = FindWindowExW(nullptr, each, WC_DIALOG, nullptr)) != nullptr;) {
    const bool is_ours = GetWindowThreadProcessId(each, nullptr) == GetCurrentThreadId();
    if (is_ours && IsWindowVisible(each) && IsWindowEnabled(each)) return each;
  }
  return nullptr;
}

// The visible windows of a class in a dialog.
std::vector<HWND> Inside(HWND dialog, const std::string& class_name) {
  std::vector<HWND> windows;
  const auto add = [](HWND window, LPARAM result) -> BOOL {
    reinterpret_cast<std::vector<HWND>*>(result)->push_back(window);
    return TRUE;
  };
  EnumChildWindows(dialog, add, reinterpret_cast<LPARAM>(&windows));
  std::erase_if(windows, [&](HWND each) { return ClassOf(each) != class_name || !IsWindowVisible(each); });
  return windows;
}

Icon MeaningOf(HICON icon) {
  if (icon == nullptr) return Icon::None;
  if (icon == LoadIconW(nullptr, MAKEINTRESOURCEW(32516))) return Icon::Information;
  if (icon == LoadIconW(nullptr, MAKEINTRESOURCEW(32515))) return Icon::Exclamation;
  EXPECT_EQ(icon, LoadIconW(nullptr, MAKEINTRESOURCEW(32513))) << "A message box has an icon of no known meaning";
  return Icon::Critical;
}

void AnswerMessageBox(HWND box) {
  std::string text;
  Icon icon = Icon::None;
  for (HWND child : Inside(box, "Static")) {
    if ((GetWindowLongW(child, GWL_STYLE) & SS_TYPEMASK) == SS_ICON) {
      icon = MeaningOf(reinterpret_cast<HICON>(SendMessageW(child, STM_GETICON, 0, 0)));
    } else {
      text = TextOfWindow(child);
    }
  }
  const std::vector<HWND> shown = Inside(box, "Button");
  const bool yes_no = GetDlgCtrlID(shown.front()) == IDYES;
  const Buttons buttons = shown.size() == 1 ? Buttons::Ok : yes_no ? Buttons::YesNo : Buttons::OkCancel;
  const bool last = shown.size() > 1 && GetFocus() == shown.back();
  const Answer answer =
      Coming::Message(text, TextOfWindow(box), buttons, icon, last ? DefaultButton::Last : DefaultButton::First);
  const bool first = answer == Answer::Ok || answer == Answer::Yes;
  PostMessageW(first ? shown.front() : shown.back(), BM_CLICK, 0, 0);
}

// The field of a file dialog that takes the name; null when it has none.
HWND NameField(HWND dialog) {
  constexpr int kName = 0x480, kNameOfOtherDialogs = 0x3E9, kNameCombo = 0x47C;
  for (HWND field : Inside(dialog, "Edit")) {
    const int id = GetDlgCtrlID(field);
    if (id == kName || id == kNameOfOtherDialogs || GetDlgCtrlID(GetParent(field)) == kNameCombo) return field;
  }
  return nullptr;
}

// What is asked, in words.
void AnswerFileDialog(HWND dialog, HWND field) {
  std::string asked = TextOfWindow(dialog);
  for (HWND child : Inside(dialog, "ComboBox")) {
    const std::string text = TextOfWindow(child);
    if (text.find("(*.") != std::string::npos) asked += " | " + text;
  }
  if (!TextOfWindow(field).empty()) asked += " | " + TextOfWindow(field);
  wchar_t folder[MAX_PATH] = L"";
  SendMessageW(dialog, CDM_GETFOLDERPATH, std::size(folder), reinterpret_cast<LPARAM>(folder));
  if (TestFiles::Folder() != Bytes(folder)) asked += " | in " + Bytes(folder);
  if (TextOfWindow(GetDlgItem(dialog, IDOK)) == "&Save") asked += " | to write";
  const std::string name = Coming::FileDialog(asked);
  SendMessageW(field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(Wide(name).c_str()));
  PostMessageW(dialog, WM_COMMAND, name.empty() ? IDCANCEL : IDOK, 0);
}

void AnswerInputBox(const Form& form) {
  const auto control = [&form](int id) -> Control& { return *form.PeerOf().Find(id); };
  Control& box = control(IDC_AnswerBox);
  const std::string answer = Coming::Input(control(IDC_PromptLabel).Text(), form.Caption(), box.Text());
  if (!answer.empty()) Hands::Type(box, answer);
  Hands::Click(control(answer.empty() ? IDCANCEL : IDOK));
}

// What an action throws is carried to the form's message loop.
void UseForm(Form& form) {
  form.PeerOf().Guard([&form] {
    Coming::FormToUse(form);
    form.PeerOf().Gone();
  });
}

void CALLBACK Look(HWND /*window*/, UINT /*message*/, UINT_PTR /*id*/, DWORD /*time*/) {
  HWND dialog = TopDialog();
  if (dialog == nullptr) return;
  for (Form* form : OpenForms()) {
    const Form::Peer& peer = form->PeerOf();
    if (peer.Window != dialog) continue;
    if (!peer.Running || peer.Closed || peer.Carried || !MarkSeen(dialog, peer.Runs)) return;
    return peer.Template == IDD_InputBox ? AnswerInputBox(*form) : UseForm(*form);
  }
  if (!MarkSeen(dialog, 1)) return;
  HWND field = NameField(dialog);
  field != nullptr ? AnswerFileDialog(dialog, field) : AnswerMessageBox(dialog);
}

}  // namespace

void Hands::Begin() { timer = SetTimer(nullptr, 0, kInterval, Look); }
void Hands::End() { KillTimer(nullptr, timer); }

// The watcher over message boxes, input boxes, file dialogs and forms on real windows.
#include "support/win32/watcher.h"

#include <commdlg.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/win32/internals.h"
#include "platform/win32/wide.h"
#include "resource.h"
#include "support/files.h"
#include "support/listener.h"
#include "support/win32/pixels.h"

namespace {

constexpr UINT_PTR kTimer = 1;
constexpr UINT kInterval = 5;                       // milliseconds
constexpr const wchar_t* kSeen = L"FilerTestSeen";  // a property of windows that were dealt with
constexpr int kIconSide = 32;
constexpr int kFileNameCombo = 0x47C;
constexpr int kFileNameEdit = 0x480;

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
  HWND found = nullptr;
  EnumThreadWindows(
      GetCurrentThreadId(),
      [](HWND window, LPARAM result) -> BOOL {
        if (!IsWindowVisible(window) || !IsWindowEnabled(window) || ClassOf(window) != "#32770") return TRUE;
        *reinterpret_cast<HWND*>(result) = window;
        return FALSE;
      },
      reinterpret_cast<LPARAM>(&found));
  return found;
}

std::vector<HWND> Inside(HWND dialog) {
  std::vector<HWND> windows;
  EnumChildWindows(
      dialog,
      [](HWND window, LPARAM result) -> BOOL {
        reinterpret_cast<std::vector<HWND>*>(result)->push_back(window);
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&windows));
  return windows;
}

Icon MeaningOf(HICON icon) {
  if (icon == nullptr) return Icon::None;
  const struct {
    LPCWSTR Name;
    Icon Meaning;
  } rows[] = {{MAKEINTRESOURCEW(32516), Icon::Information},
              {MAKEINTRESOURCEW(32515), Icon::Exclamation},
              {MAKEINTRESOURCEW(32513), Icon::Critical}};
  const auto pixels_of = [](HICON which) {
    return PixelsOf(kIconSide, kIconSide, [which](HDC target) {
      DrawIconEx(target, 0, 0, which, kIconSide, kIconSide, 0, nullptr, DI_NORMAL);
    });
  };
  for (const auto& row : rows) {
    HICON known = LoadIconW(nullptr, row.Name);
    if (known == icon || pixels_of(known) == pixels_of(icon)) return row.Meaning;
  }
  ADD_FAILURE() << "A message box has an icon of no known meaning";
  return Icon::None;
}

HWND VisibleItem(HWND dialog, int id) {
  HWND item = GetDlgItem(dialog, id);
  return item != nullptr && IsWindowVisible(item) ? item : nullptr;
}

// What a message box says; false when the dialog is none.
bool ReadMessageBox(HWND box, std::string& text, Icon& icon) {
  bool is_box = false;
  for (HWND child : Inside(box)) {
    const std::string name = ClassOf(child);
    if (name == "Static" && (GetWindowLongW(child, GWL_STYLE) & SS_TYPEMASK) == SS_ICON) {
      if (IsWindowVisible(child)) icon = MeaningOf(reinterpret_cast<HICON>(SendMessageW(child, STM_GETICON, 0, 0)));
    } else if (name == "Static") {
      text = TextOfWindow(child);
      is_box = true;
    } else if (name != "Button") {
      return false;
    }
  }
  return is_box;
}

void AnswerMessageBox(HWND box, const std::string& text, Icon icon) {
  HWND ok = VisibleItem(box, IDOK), cancel = VisibleItem(box, IDCANCEL);
  HWND yes = VisibleItem(box, IDYES), no = VisibleItem(box, IDNO);
  const Buttons buttons = yes != nullptr                       ? Buttons::YesNo
                          : ok != nullptr && cancel != nullptr ? Buttons::OkCancel
                                                               : Buttons::Ok;
  const Answer answer = TheListener()->MessageCame(text, TextOfWindow(box), buttons, icon);
  HWND pressed = ok != nullptr ? ok : cancel;  // a single OK may have either id
  if (answer == Answer::Cancel) pressed = cancel;
  if (answer == Answer::Yes) pressed = yes;
  if (answer == Answer::No) pressed = no;
  PostMessageW(pressed, BM_CLICK, 0, 0);
}

// The field that takes the file name; null when the dialog has none.
HWND NameField(HWND dialog) {
  for (HWND child : Inside(dialog)) {
    const int id = GetDlgCtrlID(child);
    const int parent_id = GetDlgCtrlID(GetParent(child));
    const bool is_field = id == kFileNameEdit || id == kFileNameCombo || parent_id == kFileNameCombo || id == 0x3E9;
    if (ClassOf(child) == "Edit" && is_field) return child;
  }
  return nullptr;
}

// What a file dialog is asked for, in words.
std::string AskedOf(HWND dialog, HWND field) {
  std::string asked = TextOfWindow(dialog);
  for (HWND child : Inside(dialog)) {
    const std::string text = ClassOf(child) == "ComboBox" ? TextOfWindow(child) : "";
    if (text.find("(*.") != std::string::npos) asked += " | " + text;
  }
  if (field != nullptr && !TextOfWindow(field).empty()) asked += " | " + TextOfWindow(field);
  wchar_t text[MAX_PATH] = L"";
  SendMessageW(dialog, CDM_GETFOLDERPATH, std::size(text), reinterpret_cast<LPARAM>(text));
  const std::string folder = Bytes(text);
  if (!folder.empty() && TestFiles::Folder() != folder) asked += " | in " + folder;
  if (TextOfWindow(GetDlgItem(dialog, IDOK)) == "&Save") asked += " | to write";
  return asked;
}

void AnswerFileDialog(HWND dialog) {
  HWND field = NameField(dialog);
  const std::string name = TheListener()->FileDialogCame(TextOfWindow(dialog), AskedOf(dialog, field));
  if (field == nullptr) ADD_FAILURE() << "A dialog \"" << TextOfWindow(dialog) << "\" came that takes no file name";
  if (name.empty() || field == nullptr) {
    PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    return;
  }
  SendMessageW(field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(Wide(name).c_str()));
  PostMessageW(dialog, WM_COMMAND, IDOK, 0);
}

void AnswerInputBox(const Form& form) {
  HWND window = form.PeerOf().Window;
  HWND field = GetDlgItem(window, IDC_AnswerBox);
  const std::string answer = TheListener()->InputCame(TextOfWindow(GetDlgItem(window, IDC_PromptLabel)),
                                                      TextOfWindow(window), TextOfWindow(field));
  if (!answer.empty()) TypeInto(field, answer);
  SendMessageW(GetDlgItem(window, answer.empty() ? IDCANCEL : IDOK), BM_CLICK, 0, 0);
}

// Lets the person use the form; what an action throws is carried to the form's message loop.
void UseForm(Form& form) {
  Form::Peer& peer = form.PeerOf();
  peer.Guard([&] {
    TheListener()->FormCame(form);
    if (peer.Modal) {
      peer.Closed = true;
    } else {
      peer.Gone();
    }
  });
}

void Look() {
  HWND dialog = TopDialog();
  if (dialog == nullptr) return;
  for (Form* form : OpenForms()) {
    Form::Peer& peer = form->PeerOf();
    if (peer.Window != dialog) continue;
    if (!peer.Running || peer.Closed || peer.Carried || !MarkSeen(dialog, peer.Runs)) return;
    if (peer.Template == IDD_InputBox) {
      AnswerInputBox(*form);
    } else {
      UseForm(*form);
    }
    return;
  }
  std::string text;
  Icon icon = Icon::None;
  if (!MarkSeen(dialog, 1)) return;
  if (ReadMessageBox(dialog, text, icon)) {
    AnswerMessageBox(dialog, text, icon);
  } else {
    AnswerFileDialog(dialog);
  }
}

LRESULT CALLBACK WatcherProcedure(HWND window, UINT message, WPARAM first, LPARAM second) {
  if (message != WM_TIMER) return DefWindowProcW(window, message, first, second);
  Look();
  return 0;
}

}  // namespace

Watcher::Watcher() {
  WNDCLASSW kind{};
  kind.lpfnWndProc = WatcherProcedure;
  kind.hInstance = GetModuleHandleW(nullptr);
  kind.lpszClassName = L"FilerTestWatcher";
  RegisterClassW(&kind);
  window_ = CreateWindowW(kind.lpszClassName, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, kind.hInstance, nullptr);
  SetTimer(window_, kTimer, kInterval, nullptr);
}

Watcher::~Watcher() {
  KillTimer(window_, kTimer);
  DestroyWindow(window_);
}

void TypeInto(HWND edit, std::string_view text) {
  SendMessageW(edit, EM_SETSEL, 0, -1);
  SendMessageW(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(Wide(text).c_str()));
}

// Message and input boxes on Windows.
#include "platform/message.h"

#include <algorithm>

#include "platform/win32/internals.h"
#include "platform/win32/wide.h"
#include "resource.h"

namespace {

UINT FlagsOf(Buttons buttons, Icon icon) {
  constexpr UINT kButtons[] = {MB_OK, MB_OKCANCEL, MB_YESNO};
  constexpr UINT kIcons[] = {0, MB_ICONINFORMATION, MB_ICONEXCLAMATION, MB_ICONSTOP};
  return kButtons[static_cast<int>(buttons)] | kIcons[static_cast<int>(icon)];
}

Answer AnswerOf(int pressed, Buttons buttons) {
  switch (pressed) {
    case IDOK:
      return Answer::Ok;
    case IDCANCEL:
      return Answer::Cancel;
    case IDYES:
      return Answer::Yes;
    case IDNO:
      return Answer::No;
    default:
      // It could not be shown: take the answer that changes nothing.
      return buttons == Buttons::YesNo ? Answer::No : buttons == Buttons::OkCancel ? Answer::Cancel : Answer::Ok;
  }
}

class InputForm : public Form {
 public:
  InputForm(std::string_view prompt, std::string_view caption, std::string_view offered) : Form(IDD_InputBox) {
    SetCaption(caption);
    PromptLabel.SetText(prompt);
    GrowFor(prompt);
    AnswerBox.SetText(offered);
    OKButton.Click = [this] {
      Answer = AnswerBox.Text();
      Close();
    };
    CancelButton.Click = [this] { Close(); };
    if (const Form* below = TopmostForm()) HelpKey = below->HelpKey;
  }

  std::string Answer;

 private:
  void Form_Load() override {
    AnswerBox.SetFocus();
    AnswerBox.SelectAll();
  }
  void GrowFor(std::string_view prompt);

  Label PromptLabel{*this, IDC_PromptLabel};
  TextBox AnswerBox{*this, IDC_AnswerBox};
  Button OKButton{*this, IDC_OKButton};
  Button CancelButton{*this, IDC_CancelButton};
};

// Makes room for a prompt of more lines than the template has.
void InputForm::GrowFor(std::string_view prompt) {
  HWND form = PeerOf().Window;
  HWND label = PromptLabel.PeerOf().Window;
  RECT inside{};
  GetClientRect(label, &inside);
  RECT needed = inside;
  HDC screen = GetDC(label);
  HGDIOBJ font = SelectObject(screen, reinterpret_cast<HFONT>(SendMessageW(label, WM_GETFONT, 0, 0)));
  DrawTextW(screen, Wide(prompt).c_str(), -1, &needed, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX | DT_EXPANDTABS);
  SelectObject(screen, font);
  ReleaseDC(label, screen);
  const LONG growth = needed.bottom - inside.bottom;
  if (growth <= 0) return;
  constexpr UINT kFlags = SWP_NOZORDER | SWP_NOACTIVATE;
  SetWindowPos(label, nullptr, 0, 0, inside.right, needed.bottom, kFlags | SWP_NOMOVE);
  for (const Control* control :
       {static_cast<Control*>(&AnswerBox), static_cast<Control*>(&OKButton), static_cast<Control*>(&CancelButton)}) {
    RECT rect{};
    GetWindowRect(control->PeerOf().Window, &rect);
    MapWindowPoints(nullptr, form, reinterpret_cast<POINT*>(&rect), 2);
    SetWindowPos(control->PeerOf().Window, nullptr, rect.left, rect.top + growth, 0, 0, kFlags | SWP_NOSIZE);
  }
  RECT whole{};
  GetWindowRect(form, &whole);
  SetWindowPos(form, nullptr, 0, 0, whole.right - whole.left, whole.bottom - whole.top + growth, kFlags | SWP_NOMOVE);
}

}  // namespace

Answer MsgBox(std::string_view text, std::string_view caption, Buttons buttons, Icon icon,
              DefaultButton default_button) {
  const Form* owner = TopmostForm();
  UINT flags = FlagsOf(buttons, icon);
  if (default_button == DefaultButton::Last && buttons != Buttons::Ok) flags |= MB_DEFBUTTON2;
  if (owner == nullptr) flags |= MB_TASKMODAL | MB_SETFOREGROUND;
  const int pressed = MessageBoxW(owner == nullptr ? nullptr : owner->PeerOf().Window, Wide(text).c_str(),
                                  Wide(caption).c_str(), flags);
  ReactivateTopmost();
  return AnswerOf(pressed, buttons);
}

std::string InputBox(std::string_view prompt, std::string_view caption, std::string_view offered) {
  InputForm form(prompt, caption, offered);
  form.ShowModal();
  return form.Answer;
}

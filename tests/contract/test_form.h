// Two forms to try the platform on - one with every kind of control but a surface, one with a surface and without OK
// and Cancel - and what the tests of them share: all events come into one log, in their order.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <source_location>
#include <string>
#include <utility>

#include "contract/test_ids.h"
#include "platform/controls.h"
#include "platform/form.h"
#include "platform/lists.h"
#include "platform/surface.h"
#include "support/user.h"

// What the page does not have, and what only looks like a reference.
inline const std::string kFar = "&#937; &#8734; &#257; &#26085; &#128512; &#38;#937;";
inline std::string EventLog;
inline bool LogsFocus = false;  // GotFocus and LostFocus as well

inline void Log(const std::string& event) { EventLog += (EventLog.empty() ? "" : ", ") + event; }

// Acts, and compares all events that came of it; but those that a Does within has compared.
inline void Does(const std::function<void()>& act, const std::string& events,
                 const std::source_location& from = std::source_location::current()) {
  const testing::ScopedTrace trace(from.file_name(), static_cast<int>(from.line()), "");
  EventLog.clear();
  act();
  EXPECT_EQ(std::exchange(EventLog, {}), events);
}

class LoggingForm : public Form {
 public:
  LoggingForm(int template_id, std::string name) : Form(template_id), Template(template_id), Name(std::move(name)) {
    MenuClick = [this](int id) { Tell("Menu " + std::to_string(id)); };
    EnterKey = [this] { Tell("EnterKey"); };
    EscapeKey = [this] { Tell("EscapeKey"); };
    HelpKey = [this] { Tell("HelpKey"); };
  }
  void Tell(const std::string& event) const { Log(Name + event); }

  const int Template;
  const std::string Name;                   // opens what the form tells
  bool Refuses = false;                     // Form_QueryUnload cancels
  Event OnLoad;                             // in Form_Load
  std::map<Control*, std::string> Members;  // all controls, with the names they have in the log

 protected:
  void Form_Load() override {
    Tell("Load");
    if (OnLoad) OnLoad();
  }
  void Form_Activate() override { Tell("Activate"); }
  void Form_QueryUnload(bool& cancel, UnloadMode mode) override {
    Tell(mode == UnloadMode::ControlMenu ? "QueryUnload ControlMenu" : "QueryUnload Code");
    cancel = Refuses;
  }
  void Form_Unload() override { Tell("Unload"); }
};

// A control that tells of its events under its name, with what it then shows.
template <typename Kind>
struct Logging : Kind {
  Logging(LoggingForm& form, int id, const std::string& name) : Kind(form, id) {
    form.Members[this] = name;
    const auto tell = [&form, name](const std::string& event) { form.Tell(name + event); };
    this->GotFocus = [=] { LogsFocus ? tell(" got") : void(); };
    this->LostFocus = [=] { LogsFocus ? tell(" lost") : void(); };
    if constexpr (std::is_base_of_v<ListControl, Kind>) {
      this->Click = [=, this] { tell(" Click " + std::to_string(this->Selected()) + " " + this->Text()); };
    } else if constexpr (requires { this->Click; }) {
      this->Click = [=] { tell(" Click"); };
    }
    if constexpr (requires { this->Change; }) this->Change = [=, this] { tell(" Change " + this->Text()); };
    if constexpr (std::is_same_v<CheckList, Kind>) {
      this->ItemCheck = [=, this](int position) {
        tell(" ItemCheck " + std::to_string(position) + (this->Checked(position) ? " on" : " off"));
      };
    }
  }
};

class TestForm : public LoggingForm {
 public:
  TestForm() : LoggingForm(IDD_TestForm, "") {
    for (Button* button : std::initializer_list<Button*>{&OKButton, &CancelButton}) {
      button->Click = [this, tell = button->Click] {
        tell();
        Close();
      };
    }
  }

  Logging<Label> TitleLabel{*this, IDC_TitleLabel, "TitleLabel"};
  Logging<Label> HintLabel{*this, IDC_HintLabel, "HintLabel"};
  Logging<TextBox> LineBox{*this, IDC_LineBox, "LineBox"};
  Logging<TextBox> LinesBox{*this, IDC_LinesBox, "LinesBox"};
  Logging<Button> FirstButton{*this, IDC_FirstButton, "FirstButton"};
  Logging<OptionButton> RedOption{*this, IDC_RedOption, "RedOption"};
  Logging<OptionButton> GreenOption{*this, IDC_GreenOption, "GreenOption"};
  Logging<Button> SecondButton{*this, IDC_SecondButton, "SecondButton"};
  Logging<OptionButton> SmallOption{*this, IDC_SmallOption, "SmallOption"};
  Logging<OptionButton> LargeOption{*this, IDC_LargeOption, "LargeOption"};
  Logging<ComboBox> NameCombo{*this, IDC_NameCombo, "NameCombo"};
  Logging<DropDownList> KindDrop{*this, IDC_KindDrop, "KindDrop"};
  Logging<ListBox> EntryList{*this, IDC_EntryList, "EntryList"};
  Logging<CheckList> TickList{*this, IDC_TickList, "TickList"};
  Logging<Picture> PhotoPic{*this, IDC_PhotoPic, "PhotoPic"};
  Logging<Frame> GroupFrame{*this, IDC_GroupFrame, "GroupFrame"};
  Logging<Button> OKButton{*this, IDC_OKButton, "OKButton"};
  Logging<Button> CancelButton{*this, IDC_CancelButton, "CancelButton"};
};

class BareForm : public LoggingForm {
 public:
  BareForm() : LoggingForm(IDD_BareForm, "bare ") {}

  Logging<TextBox> BareBox{*this, IDC_BareBox, "BareBox"};
  Logging<Surface> TextSurface{*this, IDC_TextSurface, "TextSurface"};
};

class FormTest : public testing::Test {
 protected:
  ~FormTest() override { LogsFocus = false; }

  // Shows the form to the person, who acts and then closes it.
  void Use(LoggingForm& shown, const Event& acts) {
    user.UsesForm(shown.Template, [this, &shown, acts] {
      if (acts) acts();
      user.ClosesWindow();
    });
    shown.ShowModal();
  }
  void Use(const Event& acts) { Use(form, acts); }

  User user;
  TestForm form;
  BareForm bare;
};

// The same with the form on the screen, where the person acts on it at once.
class ShownFormTest : public FormTest {
 protected:
  ShownFormTest() { form.Show(); }
};

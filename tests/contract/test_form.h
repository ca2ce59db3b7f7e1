// A form with every kind of control to try the platform on, and what the tests of it share: all that happens comes into
// one log, in its order.
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

inline void Log(const std::string& event) { EventLog += (EventLog.empty() ? "" : ", ") + event; }

// Acts, and compares all that came of it; but what a Does within has compared.
inline void Does(const std::function<void()>& act, const std::string& events,
                 const std::source_location& from = std::source_location::current()) {
  const testing::ScopedTrace trace(from.file_name(), static_cast<int>(from.line()), "");
  EventLog.clear();
  act();
  EXPECT_EQ(std::exchange(EventLog, {}), events);
}

class TestForm : public Form {
 public:
  TestForm() : Form(IDD_TestForm) {
    MenuClick = [](int id) { Log("Menu " + std::to_string(id)); };
    CancelButton.Click = [this] { Close(); };
  }
  using Form::RemoveRows;

  bool Refuses = false;                     // Form_QueryUnload cancels
  bool LogsFocus = false;                   // GotFocus and LostFocus as well
  Event OnLoad, Acts;                       // in Form_Load; what the person does before closing it
  std::map<Control*, std::string> Members;  // all controls, with the names they have in the log

 private:
  void Form_Load() override {
    Log("Load");
    if (OnLoad) OnLoad();
  }
  void Form_Activate() override { Log("Activate"); }
  void Form_QueryUnload(bool& cancel, UnloadMode mode) override {
    Log(mode == UnloadMode::ControlMenu ? "QueryUnload ControlMenu" : "QueryUnload Code");
    cancel = Refuses;
  }
  void Form_Unload() override { Log("Unload"); }

  // A control that tells of its events under its name, with what it then shows.
  template <typename Kind>
  struct Logging : Kind {
    Logging(TestForm& form, int id, const std::string& name) : Kind(form, id) {
      form.Members[this] = name;
      this->GotFocus = [=, &form] { form.LogsFocus ? Log(name + " got") : void(); };
      this->LostFocus = [=, &form] { form.LogsFocus ? Log(name + " lost") : void(); };
      if constexpr (std::is_base_of_v<ListControl, Kind>) {
        this->Click = [=, this] { Log(name + " Click " + std::to_string(this->Selected()) + " " + this->Text()); };
      } else if constexpr (requires { this->Click; }) {
        this->Click = [=] { Log(name + " Click"); };
      }
      if constexpr (requires { this->Change; }) this->Change = [=, this] { Log(name + " Change " + this->Text()); };
      if constexpr (std::is_same_v<CheckList, Kind>) {
        this->ItemCheck = [=, this](int position) {
          Log(name + " ItemCheck " + std::to_string(position) + (this->Checked(position) ? " on" : " off"));
        };
      }
    }
  };

 public:
  Logging<Label> TitleLabel{*this, IDC_TitleLabel, "TitleLabel"};
  Logging<TextBox> LineBox{*this, IDC_LineBox, "LineBox"};
  Logging<TextBox> LinesBox{*this, IDC_LinesBox, "LinesBox"};
  Logging<OptionButton> RedOption{*this, IDC_RedOption, "RedOption"};
  Logging<OptionButton> GreenOption{*this, IDC_GreenOption, "GreenOption"};
  Logging<Button> FirstButton{*this, IDC_FirstButton, "FirstButton"};
  Logging<OptionButton> SmallOption{*this, IDC_SmallOption, "SmallOption"};
  Logging<OptionButton> LargeOption{*this, IDC_LargeOption, "LargeOption"};
  Logging<ComboBox> NameCombo{*this, IDC_NameCombo, "NameCombo"};
  Logging<DropDownList> KindDrop{*this, IDC_KindDrop, "KindDrop"};
  Logging<ListBox> EntryList{*this, IDC_EntryList, "EntryList"};
  Logging<CheckList> TickList{*this, IDC_TickList, "TickList"};
  Logging<Picture> ShownPic{*this, IDC_ShownPic, "ShownPic"};
  Logging<Frame> GroupFrame{*this, IDC_GroupFrame, "GroupFrame"};
  Logging<Surface> TextSurface{*this, IDC_TextSurface, "TextSurface"};
  Logging<Button> CancelButton{*this, IDC_CancelButton, "CancelButton"};
};

class FormTest : public testing::Test {
 protected:
  // Uses a form as the test says, and closes it; what boxes say goes to the log.
  struct Person : User {
    void BoxCame(const std::string& words) override { Log(words); }
    std::string ReplyTo(const std::string& /*words*/) override { return Reply; }
    void FormCame(Form& came) override {
      if (const Event acts = dynamic_cast<TestForm&>(came).Acts) acts();
      if (!came.Closed()) ClosesWindow();
    }
    std::string Reply = "cancel";
  };

  Person user;
  TestForm form;
};

// The same with the form on the screen, where the person acts on it at once.
class ShownFormTest : public FormTest {
 protected:
  ShownFormTest() { form.Show(); }
};

// A form with every kind of control to try the platform on, and what the tests of it share: all that happens comes into
// one log, in its order.
#pragma once

#include <gtest/gtest.h>

#include <functional>
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
    CancelButton.Click = [this] { Close(); };
  }
  using Form::RemoveRows;

  bool Refuses = false;  // Form_QueryUnload cancels
  Event OnLoad, Acts;    // in Form_Load; what the person does before closing it

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

 public:
  Label TitleLabel{*this, IDC_TitleLabel};
  TextBox LineBox{*this, IDC_LineBox};
  TextBox LinesBox{*this, IDC_LinesBox};
  OptionButton RedOption{*this, IDC_RedOption};
  OptionButton GreenOption{*this, IDC_GreenOption};
  Button FirstButton{*this, IDC_FirstButton};
  OptionButton SmallOption{*this, IDC_SmallOption};
  OptionButton LargeOption{*this, IDC_LargeOption};
  ComboBox NameCombo{*this, IDC_NameCombo};
  DropDownList KindDrop{*this, IDC_KindDrop};
  ListBox EntryList{*this, IDC_EntryList};
  CheckList TickList{*this, IDC_TickList};
  Picture ShownPic{*this, IDC_ShownPic};
  Frame GroupFrame{*this, IDC_GroupFrame};
  Surface TextSurface{*this, IDC_TextSurface};
  Button CancelButton{*this, IDC_CancelButton};
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

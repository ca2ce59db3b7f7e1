// Two forms to try the platform on: one with every kind of control, and one without OK and Cancel.
// They write down every event in the order in which it came.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "contract/test_ids.h"
#include "platform/controls.h"
#include "platform/form.h"
#include "platform/lists.h"

using Events = std::vector<std::string>;

class LoggingForm : public Form {
 public:
  using Form::Form;

  Events Log;            // all but the focus events
  Events FocusLog;       // the focus events
  bool Refuses = false;  // Form_QueryUnload cancels
  std::function<void()> OnLoad;
  std::function<void()> OnActivate;

  // What came since the last call.
  Events Came() { return std::exchange(Log, {}); }
  Events FocusCame() { return std::exchange(FocusLog, {}); }

 protected:
  void Form_Load() override {
    Log.push_back("Load");
    if (OnLoad) OnLoad();
  }
  void Form_Activate() override {
    Log.push_back("Activate");
    if (OnActivate) OnActivate();
  }
  void Form_QueryUnload(bool& cancel, UnloadMode mode) override {
    Log.push_back(mode == UnloadMode::ControlMenu ? "QueryUnload ControlMenu" : "QueryUnload Code");
    cancel = Refuses;
  }
  void Form_Unload() override { Log.push_back("Unload"); }

  Event Logs(const std::string& what) {
    return [this, what] { Log.push_back(what); };
  }
  void LogFocusOf(Control& control, const std::string& name) {
    control.GotFocus = [this, name] { FocusLog.push_back(name + " got"); };
    control.LostFocus = [this, name] { FocusLog.push_back(name + " lost"); };
  }
};

class TestForm : public LoggingForm {
 public:
  TestForm() : LoggingForm(IDD_TestForm) {
    TitleLabel.Click = Logs("TitleLabel Click");
    LineBox.Change = Logs("LineBox Change");
    LinesBox.Change = Logs("LinesBox Change");
    FirstButton.Click = Logs("FirstButton Click");
    SecondButton.Click = Logs("SecondButton Click");
    RedOption.Click = Logs("RedOption Click");
    GreenOption.Click = Logs("GreenOption Click");
    SmallOption.Click = Logs("SmallOption Click");
    LargeOption.Click = Logs("LargeOption Click");
    NameCombo.Change = [this] { Log.push_back("NameCombo Change " + NameCombo.Text()); };
    NameCombo.Click = [this] { Log.push_back("NameCombo Click " + NameCombo.Text()); };
    KindDrop.Click = [this] { Log.push_back("KindDrop Click " + KindDrop.Text()); };
    EntryList.Click = [this] { Log.push_back("EntryList Click " + std::to_string(EntryList.Selected())); };
    TickList.ItemCheck = [this](int position) {
      Log.push_back("TickList ItemCheck " + std::to_string(position) + (TickList.Checked(position) ? " on" : " off"));
    };
    PhotoPic.Click = Logs("PhotoPic Click");
    OKButton.Click = [this] {
      Log.push_back("OKButton Click");
      Close();
    };
    CancelButton.Click = [this] {
      Log.push_back("CancelButton Click");
      Close();
    };
    MenuClick = [this](int id) { Log.push_back("Menu " + std::to_string(id)); };
    EnterKey = Logs("EnterKey");
    EscapeKey = Logs("EscapeKey");
    HelpKey = Logs("HelpKey");
    LogFocusOf(LineBox, "LineBox");
    LogFocusOf(LinesBox, "LinesBox");
    LogFocusOf(FirstButton, "FirstButton");
    LogFocusOf(NameCombo, "NameCombo");
    LogFocusOf(EntryList, "EntryList");
  }

  Label TitleLabel{*this, IDC_TitleLabel};
  Label HintLabel{*this, IDC_HintLabel};
  TextBox LineBox{*this, IDC_LineBox};
  TextBox LinesBox{*this, IDC_LinesBox};
  Button FirstButton{*this, IDC_FirstButton};
  OptionButton RedOption{*this, IDC_RedOption};
  OptionButton GreenOption{*this, IDC_GreenOption};
  Button SecondButton{*this, IDC_SecondButton};
  OptionButton SmallOption{*this, IDC_SmallOption};
  OptionButton LargeOption{*this, IDC_LargeOption};
  ComboBox NameCombo{*this, IDC_NameCombo};
  DropDownList KindDrop{*this, IDC_KindDrop};
  ListBox EntryList{*this, IDC_EntryList};
  CheckList TickList{*this, IDC_TickList};
  Picture PhotoPic{*this, IDC_PhotoPic};
  Frame GroupFrame{*this, IDC_GroupFrame};
  Button OKButton{*this, IDC_OKButton};
  Button CancelButton{*this, IDC_CancelButton};
};

class BareForm : public LoggingForm {
 public:
  BareForm() : LoggingForm(IDD_BareForm) {
    BareBox.Change = Logs("BareBox Change");
    BareButton.Click = [this] {
      Log.push_back("BareButton Click");
      Close();
    };
    EnterKey = Logs("EnterKey");
    EscapeKey = Logs("EscapeKey");
  }

  TextBox BareBox{*this, IDC_BareBox};
  Button BareButton{*this, IDC_BareButton};
};

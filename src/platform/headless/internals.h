// The in-memory platform from inside: what forms and controls are made of, and the stage on which a
// test's person stands. Deliberately stupid: every property is a plain member.
#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/controls.h"
#include "platform/file_dialog.h"
#include "platform/form.h"
#include "platform/lists.h"
#include "platform/message.h"
#include "platform/surface.h"

struct SurfaceBar {
  int Range = 0, Shown = 1, Position = 0;
};

struct Control::Peer {
  using Kind = Control::Kind;

  Control* Self = nullptr;
  Form* Owner = nullptr;
  int Id = 0;
  Kind What = Kind::Label;
  std::string Text;
  bool Enabled = true;
  bool Visible = true;

  bool Bold = false;
  std::string Tip;
  bool Border = false;    // label
  bool TabStop = false;   // label
  bool ReadOnly = false;  // text box
  int TextLimit = 0;      // text box
  BackColor Back = BackColor::ButtonFace;
  bool Checked = false;   // option button
  int Group = 0;          // option button: those made one after another are one group
  bool Loaded = false;    // picture
  std::string PhotoName;  // picture: the file that was loaded, and what it held
  std::string PhotoBytes;
  std::vector<ListEntry> Entries;   // lists, the check list included
  int Selected = -1;                // lists
  std::vector<bool> Ticks;          // check list
  int MarkFirst = 0, MarkLast = 0;  // text box, combo: the marked part of the text
  double TextSize = 10;             // surface
  Page Shown;                       // surface
  bool OnPaper = false;             // surface
  bool EnteredBefore = false;       // combo
  std::map<Surface::Bar, SurfaceBar> Bars;
  int Rows = 0, Columns = 0;  // row list

  void MarkAll();
  void Entered();           // got the focus: a text box marks its text, a combo the first time
  bool TakesFocus() const;  // of a kind that can, visible and enabled
  bool Editable() const { return What == Kind::TextBox || What == Kind::ComboBox; }
  bool HasEntries() const;                         // any list, the check list included
  int PositionOf(const std::string& entry) const;  // the first of that text, -1 when there is none

  // What a person and the program's code do alike; each raises the control's event when something differs.
  void ChangeText(const std::string& text);
  void ChangeSelection(int position);
  void ChangeTick(int position, bool checked);
  void Check();                 // an option button
  void Click();                 // a label, button or picture; an option button checks
  void TurnWheel(int notches);  // over a drop-down; positive: towards the person
};

struct Form::Peer {
  Form* Self = nullptr;
  int Template = 0;
  std::string Caption;
  std::string PlaceText;
  std::map<int, Control*> Controls;
  std::vector<Control*> InOrder;  // as constructed: the tab order
  Control* Focus = nullptr;
  bool Shown = false;
  bool Modal = false;
  bool Closed = false;
  std::string ShutdownReason;
  std::vector<Event> Deferred;
  std::set<int> MenuGreyed;
  std::set<int> MenuTicked;
  std::map<int, std::string> MenuTexts;
  std::map<int, Follow> Follows;  // by control: nothing has a place here, but whoever looks can see where it would go
  int EntriesCount = 0;           // of SetMenuEntries

  Control* Find(int id) const;       // nullptr when there is none
  void MoveFocus(Control* control);  // raises LostFocus and GotFocus while the form is shown
  void LeaveUnreachable();           // moves the focus on from a control that was hidden or disabled
  void RunDeferred();                // when the person has done what there was to do
  void Load();
  void Appear();  // Form_Load, onto the stack, first focus, Form_Activate
  void Activate() { Self->Form_Activate(); }
  void Unload(UnloadMode mode);  // Form_QueryUnload, Form_Unload
  void Gone();                   // closed and off the stack, without asking
};

// The open forms, the topmost last.
std::vector<Form*>& OpenForms();

// Runs the topmost form's Form_Activate, after a box or form above it went.
void ActivateTopmost();

// Who answers boxes and uses forms; installed by the test's person. Without one, whatever comes up says so and
// aborts.
struct Stage {
  std::function<Answer(const std::string& text, const std::string& caption, Buttons buttons, Icon icon)> Message;
  DefaultButton Default = DefaultButton::First;  // of the message box that is up
  std::function<std::string(const std::string& prompt, const std::string& caption, const std::string& offered)> Input;
  std::function<std::string(const FileChoice& choice)> File;
  std::function<void(Form& form)> Use;  // acts on an open form; reports it when it stays open
};

Stage& CurrentStage();

// Has the stage choose a file: what ChooseFile does here.
std::string StageChooseFile(const FileChoice& choice);

// What each platform does for a test's person: the same acts and looks, in memory and on real windows. Whether
// an act can be done was looked at before.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/form.h"
#include "platform/lists.h"
#include "platform/surface.h"

namespace Hands {

// The listeners of a test are told of what comes up from now on; of nothing any more.
void Begin();
void End();

// What a control shows, read off the window itself.
struct Sight {
  std::string Text;
  bool Enabled = false, Visible = false, Bold = false, Focused = false;
  std::vector<std::string> Entries;  // lists
  int Selected = -1;                 // lists
  std::vector<std::string> Ticked;   // entries of a check list
  std::pair<int, int> Mark;          // of a box's text: from, up to
};
Sight LookAt(const Control& control);
Page PageOn(const Surface& surface);
int BarOn(const Surface& surface, Surface::Bar bar);  // -1 when there is nothing to scroll

std::vector<Form*> OpenForms();  // the topmost last
int TemplateOf(const Form& form);
// By how many percent of what the form grows the edges of its controls move; of those that do.
std::map<int, Follow> GrowthOf(const Form& form);
const std::map<int, Control*>& ControlsOf(const Form& form);

void MoveTo(Control& control);  // the focus, when it takes that
void Type(Control& box, const std::string& text);
void Click(Control& control);
void Select(ListControl& list, int position);
void TurnOver(CheckList& list, int position);
void Choose(Form& form, int item);
void Press(Form& form, const KeyPress& key);
void PressControl(Form& form, char letter);
void Drag(Surface& surface, Cell from, Cell to, bool shift);
void DoubleClick(Control& control, Cell at);  // a surface at a cell, or a picture
void TurnWheel(Control& control, int notches, bool shift, bool control_key);
void PageBar(Surface& surface, Surface::Bar bar, int pages);
void Close(Form& form);
bool Drop(Form& form, const std::string& file);  // by its full name; false when the pointer refuses it
void ShutDown(Form& form);                       // the system asks whether it may
void Settle();                                   // lets everything happen that an act set off

// The programs started and the pages printed since the last call, in words; only the in-memory machine knows.
std::vector<std::string> MachineNews();

}  // namespace Hands

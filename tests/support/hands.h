// What each platform does for a test's person: the same dozen of acts and looks, in memory and on real windows.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/form.h"
#include "platform/lists.h"
#include "platform/surface.h"

namespace Hands {

// What a control shows, read off the window itself.
struct Sight {
  std::string Text;
  bool Enabled = false, Visible = false, Bold = false, Focused = false;
  int Selected = -1;         // lists
  std::pair<int, int> Mark;  // of a box's text: from, up to
};
Sight LookAt(const Control& control);
bool Ticked(const CheckList& list, int position);
Page PageOn(const Surface& surface);
int BarOn(const Surface& surface, Surface::Bar bar);  // -1 when there is nothing to scroll

std::vector<Form*> OpenForms();  // the topmost last
int TemplateOf(const Form& form);
const std::map<int, Control*>& ControlsOf(const Form& form);

// The system is about to shut down and asks; true when the form has nothing against it.
void ShutDown(Form& form);

// The command lines of the programs started since the last call; only the in-memory machine knows.
std::vector<std::string> StartedPrograms();

}  // namespace Hands

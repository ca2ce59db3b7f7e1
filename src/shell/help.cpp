// Showing the help pages: see help.h.
#include "shell/help.h"

#include "platform/program.h"
#include "shell/file_form.h"
#include "shell/launch.h"
#include "shell/messages.h"

void Global::ShowHelpPage(const std::string& page) {
  std::string path = ProgramFolder() + "\\" + (page.empty() ? "Larkspur_Manual.htm" : page);
  std::string browser = ".HTM";
  if (APISubs::LaunchProgram(browser, path) >= 0) return;
  if (!Ask("I need a web browser to display the help, but your registry does not have an unambiguous reference to a "
           "single browser. Do you want to help me find your web browser so that I can open it?",
           Buttons::YesNo)) {
    return;
  }
  FileRequest request;
  request.Pattern = "*.exe";
  OpenForm(request).ShowModal();
  if (!request.Name.empty()) APISubs::LaunchProgram(request.Name, path);
}

Event Global::HelpOn(const char* page) {
  return [page] { ShowHelpPage(page); };
}

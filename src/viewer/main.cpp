// Starts the report viewer with the command line.
#include "platform/program.h"
#include "shell/messages.h"
#include "viewer/viewer_form.h"

int main() {
  Global::ProgramTitle = "Larkspur Report Viewer";
  ViewerForm form(CommandLineText());
  form.Run();
}

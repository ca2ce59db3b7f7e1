// Starts the main window with the command line.
#include "mainwindow/main_form.h"
#include "platform/program.h"

int main() {
  MainForm form(CommandLineText());
  form.Run();
}

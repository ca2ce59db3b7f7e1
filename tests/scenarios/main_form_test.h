// The main window in a person's hands: what its scenarios share.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "document/document.h"
#include "mainwindow/main_form.h"
#include "resource.h"
#include "support/fresh_test.h"

class MainFormTest : public FreshTest {
 protected:
  void SetUp() override;
  // Starts the program as with that command line.
  void Start(const std::string& command_line = "");
  // Leaves the window as it is and starts again.
  void TearDown() override;

  // Writes Home.FIL: five things in two rooms, categories 1, 3 and 32.
  static void PutHome();
  // Writes a settings file whose list holds these names.
  static void PutRecent(const std::vector<std::string>& names);

  std::vector<std::string> Listed() { return user.SeesEntries(IDC_PersonCombo); }
  // The bytes of a picture of 2 x 2 points.
  static std::string Bitmap();
  // The thing that is shown: name, note, links and ticks.
  std::string Shown();

  std::unique_ptr<MainForm> form;
};

// What the scenarios of the main window share: see main_form_test.h.
#include "scenarios/main_form_test.h"

#include "support/expectations.h"

void MainFormTest::SetUp() {
  FreshTest::SetUp();

}

void MainFormTest::Start(const std::string& command_line) {
  form = std::make_unique<MainForm>(command_line);
  form->Show();
}

void MainFormTest::TearDown() {
  form.reset();
  FreshTest::TearDown();
}

void MainFormTest::PutHome() {
  TestFiles::Put("Home.FIL", Lines({"LARKSPUR V5.0 FILER DATA",
                                    "[CATEGORIES]",
                                    "*1; NAME=Rooms",
                                    "*3; NAME=Tools & toys",
                                    "*32; NAME=On loan",
                                    "[FIELDS]",
                                    "NAME=PRICE; TITLE=Price; FIELDTYPE=DOLLAR",
                                    "[THINGS]",
                                    "*1; NAME=Big Red_Barn",
                                    "NOTE=It stands in the field.",
                                    "CATBITMAP=1",
                                    "*2; NAME=Garden Shed",
                                    "XREF1=1; XREF2=5",
                                    "CATBITMAP=1",
                                    "%PRICE=12.50",
                                    "*3; NAME=rake",
                                    "NOTE=Green~; caf\xE9",
                                    "XREF1=2",
                                    "CATBITMAP=4",
                                    "*4; NAME=Spade",
                                    "XREF1=2",
                                    "CATBITMAP=-2147483644",
                                    "*5; NAME=Zoo",
                                    "[END]"}));
}

void MainFormTest::PutRecent(const std::vector<std::string>& names) {
  std::vector<std::string> lines{"TORVANE V5.0 INI", "[TOP10FILES]"};
  for (const std::string& name : names) lines.push_back("*; NAME=" + name);
  TestFiles::Put("Torvane.INI", Lines(lines));
}

std::string MainFormTest::Bitmap() {
  const std::string header("BM\x46\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\x02\0\0\0\x02\0\0\0\x01\0\x18\0", 30);
  return header + std::string(24, '\0') + std::string(16, '\x7f');
}

std::string MainFormTest::Shown() {
  std::string text = user.Sees(IDC_PersonCombo) + "|" + user.Sees(IDC_NoteBox) + "|" +
                     user.SeesSelected(IDC_FatherCombo) + "|" + user.SeesSelected(IDC_MotherCombo) + "|";
  for (const std::string& category : user.SeesTicked(IDC_CatList)) text += category + ",";
  return text;
}

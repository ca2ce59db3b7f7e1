// What the system's file dialog is asked for.
#include "platform/headless/internals.h"
#include "resource.h"
#include "scenarios/main_form_test.h"

namespace {

class FileDialogTest : public MainFormTest {
 protected:
  // Browses in the file-name dialog that a menu entry opens, from a name typed there; cancels both.
  std::string Browses(int menu_id, const std::string& typed) {
    std::string asked;
    CurrentStage().File = [&asked](const FileChoice& choice) {
      asked = choice.Caption + "|" + choice.Folder + "|" + choice.Name + "|" + choice.Pattern + "|" +
              choice.PatternTitle + (choice.ForWriting ? "|to write" : "");
      return "";
    };
    user.UsesForm(IDD_FileForm, [this, typed] {
      if (!typed.empty()) user.Types(IDC_NameBox, typed);
      user.Clicks(IDC_BrowseButton);
      user.Clicks(IDC_CancelButton);
    });
    user.ChoosesMenu(menu_id);
    return asked;
  }
};

TEST_F(FileDialogTest, StartsWhereTheNameIs) {
  TestFiles::MakeFolder("data");
  TestFiles::Put("data\\Home.FIL", Lines({"LARKSPUR V5.0 FILER DATA", "[THINGS]", "NAME=Shed", "[END]"}));
  Start("/DIR=" + InFolder("data"));
  TheDocument.Things.SetCount(1);
  TheDocument.CurrentThing = 1;
  EXPECT_EQ(Browses(IDC_PhotoItem, ""), "Larkspur Filer Open|" + InFolder("data") + "||*.JPG|Photos");
  EXPECT_EQ(Browses(IDC_OpenItem, ""), "Larkspur Filer Open|" + InFolder("data") + "||*.FIL|Filer data files");
  EXPECT_EQ(Browses(IDC_SaveItem, ""),
            "Larkspur Filer Save|" + InFolder("data") + "|Filer001.FIL|*.FIL|Filer data files|to write");
  EXPECT_EQ(Browses(IDC_SaveItem, "C:\\D\\x.FIL"), "Larkspur Filer Save|C:\\D|x.FIL|*.FIL|Filer data files|to write");
}

}  // namespace

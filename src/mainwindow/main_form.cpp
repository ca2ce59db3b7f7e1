// MainForm: start-up, the command table, and what holds for all commands.
#include "mainwindow/main_form.h"

#include <initializer_list>
#include <utility>

#include "document/document.h"
#include "document/names.h"
#include "document/rescue.h"
#include "document/things.h"
#include "mainwindow/address_titles.h"
#include "mainwindow/command_line.h"
#include "mainwindow/main_ids.h"
#include "mainwindow/settings.h"
#include "platform/registry.h"
#include "resource.h"
#include "shell/file_names.h"
#include "shell/messages.h"

namespace {

constexpr std::size_t kLongestInCaption = 64;  // characters; a window of the usual width shows what follows as well

}  // namespace

std::span<const Command<MainForm>> MainForm::Commands() {
  using F = MainForm;
  // What does not store leaves the current thing alone, or does so when it comes to that.
  constexpr auto kNotStoring = [](int item, void (F::*handler)(), Button F::*button = nullptr) {
    return Command<F>{item, button, handler, nullptr, nullptr, false};
  };
  static constexpr Command<F> kCommands[] = {
      {IDC_NewItem, &F::NewButton, &F::NewItem_Click},
      {IDC_OpenItem, nullptr, &F::OpenItem_Click},
      {IDC_SaveItem, &F::SaveButton, &F::SaveItem_Click},
      {IDC_RecentItem, nullptr, &F::RecentItem_Click, nullptr, nullptr, true, kRecentFiles},
      {IDC_ExitItem, nullptr, &F::ExitItem_Click},
      {IDC_UndoItem, nullptr, &F::UndoItem_Click, &F::CanUndo, &F::UndoText, false},
      {IDC_RedoItem, nullptr, &F::RedoItem_Click, &F::CanRedo, &F::RedoText, false},
      {IDC_FindItem, nullptr, &F::Have<&F::Finder, &ThingFinder::FindItem_Click>},
      {IDC_FindNextItem, nullptr, &F::Have<&F::Finder, &ThingFinder::FindNextItem_Click>},
      {IDC_FindPreviousItem, nullptr, &F::Have<&F::Finder, &ThingFinder::FindPreviousItem_Click>},
      {IDC_AddPersonItem, &F::AddPersonButton, &F::AddPersonItem_Click},
      kNotStoring(IDC_DeletePersonItem, &F::DeletePersonItem_Click, &F::DeleteButton),
      {IDC_RenameItem, nullptr, &F::RenameItem_Click},
      {IDC_PhotoItem, &F::PhotoButton, &F::PhotoButton_Click},
      {IDC_RemovePhotoItem, nullptr, &F::RemovePhotoItem_Click},
      {IDC_DataItem, &F::DataButton, &F::DataButton_Click},
      {IDC_DefCatItem, &F::DefCatButton, &F::DefCatButton_Click},
      {IDC_TickAllItem, nullptr, &F::TickAllItem_Click, &F::CanTickAll},
      kNotStoring(IDC_AllNamesItem, &F::Have<&F::Picker, &ThingPicker::AllNamesItem_Click>),
      kNotStoring(IDC_StartingLetterItem, &F::Have<&F::Picker, &ThingPicker::StartingLetterItem_Click>),
      kNotStoring(IDC_AllCategoryItem, &F::Have<&F::Picker, &ThingPicker::AllCategoryItem_Click>),
      kNotStoring(IDC_SelCategoryItem, &F::Have<&F::Picker, &ThingPicker::SelCategoryItem_Click>),
      kNotStoring(IDC_GivenNameItem, &F::Have<&F::Picker, &ThingPicker::GivenNameItem_Click>),
      kNotStoring(IDC_SurnameOrderItem, &F::Have<&F::Picker, &ThingPicker::SurnameOrderItem_Click>),
      {IDC_GoXRef1Item, nullptr, &F::Have<&F::Finder, &ThingFinder::GoXRef1Item_Click>,
       &F::CanFind<&ThingFinder::CanGoXRef1>},
      {IDC_GoXRef2Item, nullptr, &F::Have<&F::Finder, &ThingFinder::GoXRef2Item_Click>,
       &F::CanFind<&ThingFinder::CanGoXRef2>},
      {IDC_LinksHereItem, nullptr, &F::Have<&F::Finder, &ThingFinder::LinksHereItem_Click>,
       &F::CanFind<&ThingFinder::HasLinksHere>},
      {IDC_BackItem, nullptr, &F::Have<&F::Finder, &ThingFinder::BackItem_Click>, &F::CanFind<&ThingFinder::CanGoBack>},
      {IDC_ForwardItem, nullptr, &F::Have<&F::Finder, &ThingFinder::ForwardItem_Click>,
       &F::CanFind<&ThingFinder::CanGoForward>},
      kNotStoring(IDC_AddressRepItem, &F::AddressRepItem_Click),
      kNotStoring(IDC_ItemValuesItem, &F::ItemValuesItem_Click),
      kNotStoring(IDC_DescendantItem, &F::DescendantItem_Click),
      kNotStoring(IDC_ManualItem, &F::ManualItem_Click, &F::HelpButton),
      kNotStoring(IDC_FilerHelpItem, &F::FilerHelpItem_Click),
      kNotStoring(IDC_AboutItem, &F::AboutItem_Click),
  };
  return kCommands;
}

MainForm::MainForm(std::string command_line) : Form(IDD_MainForm), command_line_(std::move(command_line)) {
  WireEvents();
}

MainForm::~MainForm() {
  Global::KeepDocument = nullptr;
  TheHistory.Changed = nullptr;
}

// Every event ends with the caption brought in line with the document.
Event MainForm::On(void (MainForm::*handler)()) {
  return [this, handler] {
    (this->*handler)();
    RefreshFrame();
  };
}

void MainForm::WireEvents() {
  // A command acts on what the thing list shows, whether or not the focus had to leave the list for it. Undo takes
  // that typing back.
  commands_.Before = [this](const Command<MainForm>& command) {
    if (command.Item != IDC_UndoItem) Picker.LeaveThingList();
    if (command.Stores) StoreEdits();
    return true;
  };
  commands_.After = [this] { RefreshFrame(); };
  OpenButton.Click = [this] { OpenButton_Click(); };
  ExitButton.Click = [this] { ExitButton_Click(); };
  KeyDown = [this](Key key) { return Picker.KeyDown(key); };
  EnterKey = [this] { Picker.EnterKey(); };
  EscapeKey = [this] { Picker.EscapeKey(); };
  HelpKey = [this] { commands_.Run(IDC_ManualItem); };
  MayDrop = [this](const std::string& file) {
    return IsDataFile(file) || (CurrentRecord() != nullptr && IsPicture(file));
  };
  Drop = [this](const std::string& file) {
    DropFile(file);
    RefreshFrame();
  };
  Picker.StoreEdits = [this] { StoreEdits(); };
  Picker.Picked = [this] {
    DisplayThing();
    TheDocument.PendingEdits = false;
    RefreshFrame();
  };
  Picker.Narrowed = On(&MainForm::Redisplay);
  Picker.Typed = [this] { RefreshFrame(); };
  NoteBox.Change = On(&MainForm::NoteBox_Change);
  NoteBox.LostFocus = [this] { Later(On(&MainForm::NoteBox_LostFocus)); };
  FatherCombo.Click = On(&MainForm::FatherCombo_Click);
  MotherCombo.Click = On(&MainForm::MotherCombo_Click);
  PhotoPic.DoubleClick = On(&MainForm::PhotoPic_DoubleClick);
  CatList.ItemCheck = [this](int position) {
    CatList_ItemCheck(position);
    RefreshFrame();
  };
}

void MainForm::RefreshFrame() {
  const Document& document = TheDocument;
  const bool modified = document.Modified || document.PendingEdits;
  std::string caption = Global::ProgramTitle;
  if (!document.ShownFileName.empty()) caption += " - " + ShortenedName(document.ShownFileName, kLongestInCaption);
  if (!document.Writable) caption += " (read only)";
  if (modified) caption += " *";
  if (caption != Caption()) SetCaption(caption);
  StatusLabel.SetText(Picker.Summary() + (document.Writable ? "" : " - read only"));
  ModifiedLabel.SetText(modified ? "Modified" : "");
  commands_.Refresh();
}

// The note, the photo and the category list share what the window gets larger; the letters spread over its width.
void MainForm::AnchorControls() {
  constexpr int kNote = 60;   // percent of the width
  constexpr int kPhoto = 60;  // percent of the height
  constexpr int kHalf = (kNote + 100) / 2;
  const auto anchor = [this](const Follow& follow, std::initializer_list<Control*> controls) {
    for (Control* control : controls) Anchor(*control, follow);
  };
  Picker.Spread([this](Label& tab, int left, int right) { Anchor(tab, {left, 0, right, 0}); });
  anchor({100, 0, 100, 0}, {&HelpButton, &ExitButton});
  anchor({0, 0, kNote, 0}, {&Picker.PersonCombo, &HintLabel});
  anchor({0, 0, kNote, 100}, {&NoteBox});
  anchor({0, 100, 0, 100}, {&FatherLabel, &MotherLabel});
  anchor({0, 100, kNote, 100}, {&FatherCombo, &MotherCombo});
  anchor({kNote, 0, 100, 0}, {&Picker.CategoryFilterLabel, &PhotoLabel});
  anchor({kNote, 0, 100, kPhoto}, {&PhotoPic});
  anchor({kNote, kPhoto, kHalf, kPhoto}, {&PhotoButton});
  anchor({kHalf, kPhoto, 100, kPhoto}, {&DataButton});
  anchor({kNote, kPhoto, 100, kPhoto}, {&CatLabel});
  anchor({kNote, kPhoto, 100, 100}, {&CatList});
  anchor({kNote, 100, 100, 100}, {&DefCatButton});
  anchor({0, 100, 100, 100}, {&StatusLabel});
  anchor({100, 100, 100, 100}, {&ModifiedLabel});
  MayShrink(60);
}

void MainForm::Form_Load() {
  TheDocument = {};
  TheHistory.Clear();
  Global::ProgramTitle = "Larkspur Filer";
  TheHistory.Changed = [this] { RefreshFrame(); };
  Global::KeepDocument = [this] {
    StoreEdits();
    if (TheDocument.Modified || Covered()) WriteRescueCopy();
  };
  Global::FillAddressTitles();
  PhotoButton.SetBackColor(DataButton.BackColor());
  HiddenPic.SetVisible(false);
  AnchorControls();
  SetPlace(Remembered("MainForm"));
  HintLabel.SetText(
      "There are no things yet.\r\n\r\nChoose Edit, Add Thing to add the first one, or File, Open to open a file.");
  MakeNew();
  TheStart = command_line_.empty() ? StartOptions{} : ParseCommandLine(command_line_);
  LoadSettings();
  ShowRecentFiles();
  TheDocument.Writable = true;
  if (!TheStart.StartFile.empty()) {
    LoadDocument(Global::FullFileName(TheStart.WorkingFolder, TheStart.StartFile), TheStart.StartFile);
  }
  RefreshFrame();
}

void MainForm::Form_Activate() {
  if (shown_before_ || dialog_open_) return;
  shown_before_ = true;
  Picker.PersonCombo.SetFocus();
  bool show = true;
  if (!TheDocument.DocumentOpen && TheRecentFiles.Count > 0) {
    OpenItem_Click();
    show = false;
  }
  if (!TheStart.StartThing.empty() && ShowStartThing()) show = true;
  if (show && TheDocument.Things.Count() > 0) {
    if (TheDocument.CurrentThing == 0) TheDocument.CurrentThing = 1;
    Redisplay();
  } else {
    DisplayThing();  // there may be things that could not be read to their end: the hint would be wrong
  }
  RefreshFrame();
}

// Makes the start thing the current one; a name that the document does not know is added to it. False
// when there is no such thing in the end.
bool MainForm::ShowStartThing() {
  StoreEdits();
  int record = FindThing(TheStart.StartThing);
  if (record == 0) {
    const std::string name = NormaliseName(TheStart.StartThing);
    if (name.empty()) return false;
    record = FindThing(name);
    if (record == 0) return AddThing(name) != 0;
  }
  TheDocument.CurrentThing = record;
  return true;
}

void MainForm::Form_QueryUnload(bool& cancel, UnloadMode mode) {
  if (mode == UnloadMode::Code) return;
  cancel = true;
  if (mode == UnloadMode::WindowsShutdown) {
    EndSession();
  } else {
    commands_.Run(IDC_ExitItem);
  }
}

void MainForm::Run() {
  Global::RunForm(*this, [this] { Show(); });
}

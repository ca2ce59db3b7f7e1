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
#include "mainwindow/file_names.h"
#include "mainwindow/settings.h"
#include "resource.h"
#include "shell/messages.h"

// A menu entry and the button of the same command.
struct MainForm::Command {
  int Item;
  Button MainForm::*ItsButton;
  void (MainForm::*Handler)();
};

std::span<const MainForm::Command> MainForm::Commands() {
  static constexpr Command kCommands[] = {
      {IDC_NewItem, &MainForm::NewButton, &MainForm::NewItem_Click},
      {IDC_OpenItem, &MainForm::OpenButton, &MainForm::OpenItem_Click},
      {IDC_SaveItem, &MainForm::SaveButton, &MainForm::SaveItem_Click},
      {IDC_ExitItem, &MainForm::ExitButton, &MainForm::ExitItem_Click},
      {IDC_AddPersonItem, &MainForm::AddPersonButton, &MainForm::AddPersonItem_Click},
      {IDC_DeletePersonItem, &MainForm::DeleteButton, &MainForm::DeletePersonItem_Click},
      {IDC_RenameItem, nullptr, &MainForm::RenameItem_Click},
      {IDC_PhotoItem, &MainForm::PhotoButton, &MainForm::PhotoButton_Click},
      {IDC_RemovePhotoItem, nullptr, &MainForm::RemovePhotoItem_Click},
      {IDC_DataItem, &MainForm::DataButton, &MainForm::DataButton_Click},
      {IDC_DefCatItem, &MainForm::DefCatButton, &MainForm::DefCatButton_Click},
      {IDC_AllNamesItem, nullptr, &MainForm::AllNamesItem_Click},
      {IDC_StartingLetterItem, nullptr, &MainForm::StartingLetterItem_Click},
      {IDC_AllCategoryItem, nullptr, &MainForm::AllCategoryItem_Click},
      {IDC_SelCategoryItem, nullptr, &MainForm::SelCategoryItem_Click},
      {IDC_GivenNameItem, nullptr, &MainForm::GivenNameItem_Click},
      {IDC_SurnameOrderItem, nullptr, &MainForm::SurnameOrderItem_Click},
      {IDC_AddressRepItem, nullptr, &MainForm::AddressRepItem_Click},
      {IDC_ItemValuesItem, nullptr, &MainForm::ItemValuesItem_Click},
      {IDC_DescendantItem, nullptr, &MainForm::DescendantItem_Click},
      {IDC_ManualItem, &MainForm::HelpButton, &MainForm::ManualItem_Click},
      {IDC_FilerHelpItem, nullptr, &MainForm::FilerHelpItem_Click},
      {IDC_AboutItem, nullptr, &MainForm::AboutItem_Click},
  };
  return kCommands;
}

MainForm::MainForm(std::string command_line)
    : Form(IDD_MainForm),
      NewButton(*this, IDC_NewButton),
      OpenButton(*this, IDC_OpenButton),
      SaveButton(*this, IDC_SaveButton),
      AddPersonButton(*this, IDC_AddPersonButton),
      DeleteButton(*this, IDC_DeleteButton),
      HelpButton(*this, IDC_HelpButton),
      ExitButton(*this, IDC_ExitButton),
      AllLabel(*this, IDC_AllLabel),
      PersonCombo(*this, IDC_PersonCombo),
      CategoryFilterLabel(*this, IDC_CategoryFilterLabel),
      HintLabel(*this, IDC_HintLabel),
      NoteBox(*this, IDC_NoteBox),
      FatherLabel(*this, IDC_FatherLabel),
      MotherLabel(*this, IDC_MotherLabel),
      FatherCombo(*this, IDC_FatherCombo),
      MotherCombo(*this, IDC_MotherCombo),
      PhotoLabel(*this, IDC_PhotoLabel),
      PhotoPic(*this, IDC_PhotoPic),
      HiddenPic(*this, IDC_HiddenPic),
      PhotoButton(*this, IDC_PhotoButton),
      DataButton(*this, IDC_DataButton),
      CatLabel(*this, IDC_CatLabel),
      CatList(*this, IDC_CatList),
      DefCatButton(*this, IDC_DefCatButton),
      command_line_(std::move(command_line)) {
  for (int index = 0; index < kLetters; ++index) {
    LetterLabel[static_cast<std::size_t>(index)] = std::make_unique<Label>(*this, IDC_LetterLabel + index);
  }
  WireEvents();
}

MainForm::~MainForm() { Global::KeepDocument = nullptr; }

// Every event ends with the caption brought in line with the document.
Event MainForm::On(void (MainForm::*handler)()) {
  return [this, handler] {
    (this->*handler)();
    RefreshFrame();
  };
}

// A command acts on what the thing list shows, whether or not the focus had to leave the list for it.
Event MainForm::OnCommand(void (MainForm::*handler)()) {
  return [this, handler] {
    LeaveThingList();
    (this->*handler)();
    RefreshFrame();
  };
}

void MainForm::WireEvents() {
  for (const Command& command : Commands()) {
    if (command.ItsButton != nullptr) (this->*command.ItsButton).Click = OnCommand(command.Handler);
  }
  OpenButton.Click = OnCommand(&MainForm::OpenButton_Click);
  ExitButton.Click = OnCommand(&MainForm::ExitButton_Click);
  MenuClick = [this](int id) { RunCommand(id); };
  EnterKey = On(&MainForm::Enter_Press);
  EscapeKey = On(&MainForm::Escape_Press);
  HelpKey = OnCommand(&MainForm::ManualItem_Click);
  AllLabel.Click = OnCommand(&MainForm::AllLabel_Click);
  for (int index = 0; index < kLetters; ++index) {
    LetterLabel[static_cast<std::size_t>(index)]->Click = [this, index] {
      LeaveThingList();
      LetterLabel_Click(index);
      RefreshFrame();
    };
  }
  CategoryFilterLabel.Click = OnCommand(&MainForm::CategoryFilterLabel_Click);
  PersonCombo.Click = On(&MainForm::PersonCombo_Click);
  PersonCombo.Change = [this] { PersonCombo_Change(); };
  PersonCombo.GotFocus = [this] { MarkShownName(); };
  PersonCombo.LostFocus = On(&MainForm::LeaveThingList);
  NoteBox.Change = On(&MainForm::NoteBox_Change);
  NoteBox.LostFocus = [this] { Later(On(&MainForm::NoteBox_LostFocus)); };
  FatherCombo.Click = MotherCombo.Click = On(&MainForm::LinkCombo_Click);
  PhotoPic.DoubleClick = On(&MainForm::PhotoPic_DoubleClick);
  CatList.ItemCheck = [this](int position) {
    CatList_ItemCheck(position);
    RefreshFrame();
  };
}

void MainForm::RunCommand(int id) {
  LeaveThingList();
  for (const Command& command : Commands()) {
    if (command.Item == id) (this->*command.Handler)();
  }
  RefreshFrame();
}

void MainForm::RefreshFrame() {
  const Document& document = TheDocument;
  std::string caption = Global::ProgramTitle;
  if (!document.ShownFileName.empty()) caption += " - " + document.ShownFileName;
  if (!document.Writable) caption += " (read only)";
  if (document.Modified || document.PendingEdits) caption += " *";
  if (caption != Caption()) SetCaption(caption);
}

// The note and the lists grow with the window; the photo keeps its corner.
void MainForm::AnchorControls() {
  for (Control* control : std::initializer_list<Control*>{&HelpButton, &ExitButton, &CategoryFilterLabel, &PhotoLabel,
                                                          &PhotoPic, &PhotoButton, &DataButton, &CatLabel}) {
    Anchor(*control, kEdgeTop | kEdgeRight);
  }
  Anchor(PersonCombo, kEdgeLeft | kEdgeTop | kEdgeRight);
  Anchor(HintLabel, kEdgeLeft | kEdgeTop | kEdgeRight);
  Anchor(NoteBox, kEdgeLeft | kEdgeTop | kEdgeRight | kEdgeBottom);
  for (Control* control : std::initializer_list<Control*>{&FatherCombo, &MotherCombo}) {
    Anchor(*control, kEdgeLeft | kEdgeRight | kEdgeBottom);
  }
  Anchor(FatherLabel, kEdgeLeft | kEdgeBottom);
  Anchor(MotherLabel, kEdgeLeft | kEdgeBottom);
  Anchor(CatList, kEdgeTop | kEdgeRight | kEdgeBottom);
  Anchor(DefCatButton, kEdgeRight | kEdgeBottom);
}

void MainForm::Form_Load() {
  TheDocument = {};
  Global::ProgramTitle = "Larkspur Filer";
  Global::KeepDocument = [this] {
    StoreEdits();
    if (TheDocument.Modified || Covered()) WriteRescueCopy();
  };
  Global::FillAddressTitles();
  PhotoButton.SetBackColor(DataButton.BackColor());
  HiddenPic.SetVisible(false);
  AnchorControls();
  HintLabel.SetText(
      "There are no things yet.\r\n\r\nChoose Edit, Add Thing to add the first one, or File, Open to open a file.");
  ShowTabs();
  MakeNew();
  ShowNameOrder();
  TheStart = command_line_.empty() ? StartOptions{} : ParseCommandLine(command_line_);
  LoadSettings();
  TheDocument.Writable = true;
  if (!TheStart.StartFile.empty()) {
    LoadDocument(Global::FullFileName(TheStart.WorkingFolder, TheStart.StartFile), TheStart.StartFile);
  }
  RefreshFrame();
}

void MainForm::Form_Activate() {
  if (shown_before_ || dialog_open_) return;
  shown_before_ = true;
  PersonCombo.SetFocus();
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
    ExitItem_Click();
  }
  RefreshFrame();
}

void MainForm::Run() {
  Global::RunForm(*this, [this] { Show(); });
}

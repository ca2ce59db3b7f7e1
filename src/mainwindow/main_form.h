// MainForm, the program's one main window: it owns the document's display and carries out the commands.
#pragma once

#include <span>
#include <string>

#include "document/history.h"
#include "mainwindow/flag_scope.h"
#include "mainwindow/main_ids.h"
#include "mainwindow/thing_finder.h"
#include "mainwindow/thing_picker.h"
#include "platform/controls.h"
#include "platform/form.h"
#include "platform/lists.h"
#include "resource.h"
#include "shell/commands.h"

struct ReportRequest;

class MainForm : public Form {
 public:
  // The command line: see command_line.h. It is read, and the file it names loaded, when the form is shown.
  explicit MainForm(std::string command_line);
  ~MainForm() override;
  // Shows the window and runs the program's events until the user leaves.
  void Run();
  // Clears the document and everything the window shows of it.
  void MakeNew();
  // Turns each line break of a text into "?" and says so; true when there was one.
  static bool ValidateText(std::string& text);
  // Empties the photo box.
  void ResetPicBox();
  // Starts the report viewer on a print file and says when that fails. A name with a blank is put into quotes.
  static void ShowReport(std::string& print_file_name);

 private:
  // main_form.cpp: start-up, and what holds for all commands
  static std::span<const Command<MainForm>> Commands();
  void Form_Load() override;
  void Form_Activate() override;
  void Form_QueryUnload(bool& cancel, UnloadMode mode) override;
  void Form_Unload() override;
  Event On(void (MainForm::*handler)());
  void WireEvents();
  void AnchorControls();
  void RefreshFrame();
  bool ShowStartThing();

  // main_form_file.cpp: the File menu
  void NewItem_Click();
  void OpenItem_Click() { OpenFile({}); }
  void RecentItem_Click();
  void SaveItem_Click();
  void ExitItem_Click();
  void OpenButton_Click() { commands_.Run(IDC_OpenItem); }
  void ExitButton_Click() { commands_.Run(IDC_ExitItem); }
  void OpenFile(const std::string& chosen);
  void DropFile(const std::string& name);
  void ShowRecentFiles();
  bool MayAbandon();
  bool KeepUnasked();
  bool MayExit();
  void EndSession();
  bool LoadDocument(const std::string& full_name, const std::string& name);

  // main_form_undo.cpp: Undo and Redo
  void UndoItem_Click();
  void RedoItem_Click();
  std::string UndoText() const;
  std::string RedoText() const;
  bool IsTyping() const { return TheDocument.PendingEdits || Picker.IsTyping(); }
  bool CanUndo() const { return IsTyping() || TheHistory.CanUndo(); }
  bool CanRedo() const { return !IsTyping() && TheHistory.CanRedo(); }
  void ShowStep();

  // main_form_edit.cpp: the Edit menu
  void AddPersonItem_Click();
  void DeletePersonItem_Click();
  void RenameItem_Click();
  void PhotoButton_Click();
  void UsePhoto(const std::string& name);
  void RemovePhotoItem_Click();
  void DataButton_Click();
  void DefCatButton_Click();
  void TickAllItem_Click();
  bool CanTickAll() const;

  // thing_picker.cpp, thing_finder.cpp: the View menu and finding
  template <auto Part, auto Handler>
  void Have() {
    ((this->*Part).*Handler)();
  }
  template <bool (ThingFinder::*Can)() const>
  bool CanFind() const {
    return (Finder.*Can)();
  }

  // main_form_report.cpp: the Report menu
  void AddressRepItem_Click();
  void ItemValuesItem_Click();
  void DescendantItem_Click();
  void MakeReport(int parts, void (*write)(const ReportRequest& request));

  // main_form_help.cpp: the Help menu
  void ManualItem_Click();
  void FilerHelpItem_Click();
  void AboutItem_Click();

  // main_form_thing.cpp: the current thing
  const ThingRecord* CurrentRecord() const;
  void StoreEdits();
  void MakeOneParagraph();
  void Redisplay();
  void FillLinkLists();
  void DisplayThing();
  void ShowPhoto();
  void PhotoPic_DoubleClick();
  void FillCategoryList();
  void NoteBox_Change();
  void NoteBox_LostFocus();
  void FatherCombo_Click() { LinkChosen(); }
  void MotherCombo_Click() { LinkChosen(); }
  void LinkChosen();
  void CatList_ItemCheck(int position);

  Button NewButton{*this, IDC_NewButton}, OpenButton{*this, IDC_OpenButton}, SaveButton{*this, IDC_SaveButton};
  Button AddPersonButton{*this, IDC_AddPersonButton}, DeleteButton{*this, IDC_DeleteButton};
  Button HelpButton{*this, IDC_HelpButton}, ExitButton{*this, IDC_ExitButton};
  ThingPicker Picker{*this};
  Label HintLabel{*this, IDC_HintLabel};
  TextBox NoteBox{*this, IDC_NoteBox};
  Label FatherLabel{*this, IDC_FatherLabel}, MotherLabel{*this, IDC_MotherLabel};
  DropDownList FatherCombo{*this, IDC_FatherCombo}, MotherCombo{*this, IDC_MotherCombo};
  Label PhotoLabel{*this, IDC_PhotoLabel};
  Picture PhotoPic{*this, IDC_PhotoPic}, HiddenPic{*this, IDC_HiddenPic};
  Button PhotoButton{*this, IDC_PhotoButton}, DataButton{*this, IDC_DataButton};
  Label CatLabel{*this, IDC_CatLabel};
  CheckList CatList{*this, IDC_CatList};
  Button DefCatButton{*this, IDC_DefCatButton};
  Label StatusLabel{*this, IDC_StatusLabel}, ModifiedLabel{*this, IDC_ModifiedLabel};

  ThingFinder Finder{Picker, FatherCombo, MotherCombo};
  std::string command_line_;
  CommandTable<MainForm> commands_{*this, Commands()};
  std::string rescue_name_;  // the rescue copy that goes when the Exit question is answered
  bool asking_to_exit_ = false;
  bool displaying_ = false;    // controls are being filled: their events are no edits
  bool showing_step_ = false;  // what Undo or Redo changed is being shown
  bool shown_before_ = false;
  bool dialog_open_ = false;
};

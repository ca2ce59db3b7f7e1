// MainForm, the program's one main window: it owns the document's display and carries out the commands.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "mainwindow/flag_scope.h"
#include "mainwindow/thing_list.h"
#include "platform/controls.h"
#include "platform/form.h"
#include "platform/lists.h"

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
  struct Command;
  static std::span<const Command> Commands();

  // main_form.cpp: start-up, and what holds for all commands
  void Form_Load() override;
  void Form_Activate() override;
  void Form_QueryUnload(bool& cancel, UnloadMode mode) override;
  Event On(void (MainForm::*handler)());
  Event OnCommand(void (MainForm::*handler)());
  void RunCommand(int id);
  void WireEvents();
  void AnchorControls();
  void RefreshFrame();
  bool ShowStartThing();

  // main_form_file.cpp: the File menu
  void NewItem_Click();
  void OpenItem_Click();
  void SaveItem_Click();
  void ExitItem_Click();
  void OpenButton_Click() { OpenItem_Click(); }
  void ExitButton_Click() { ExitItem_Click(); }
  bool MayAbandon();
  bool KeepUnasked();
  bool MayExit();
  void EndSession();
  bool LoadDocument(const std::string& full_name, const std::string& name);

  // main_form_list.cpp: the View menu, the letter tabs, the thing list
  void FillThingList(int selected);
  void FillLinkLists();
  void ShowTabs();
  void SetStartingLetter(const std::string& letter);
  void ClearStartingLetter();
  void ShowCategoryFilter();
  void ShowNameOrder();
  void Redisplay();
  void LetterLabel_Click(int index);
  void AllLabel_Click() { AllNamesItem_Click(); }
  void AllNamesItem_Click();
  void StartingLetterItem_Click();
  void AllCategoryItem_Click();
  void SelCategoryItem_Click() { PickCategory(nullptr); }
  void CategoryFilterLabel_Click() { PickCategory(&CategoryFilterLabel); }
  void PickCategory(const Control* below_label);
  void GivenNameItem_Click() { SetNameOrder(false); }
  void SurnameOrderItem_Click() { SetNameOrder(true); }
  void SetNameOrder(bool noun_order);
  void PersonCombo_Click();
  void PersonCombo_Change();
  void MarkShownName();
  void LeaveThingList();
  void Enter_Press();
  void Escape_Press();
  void PickThing(int record);
  void RestoreShownName();
  Label& TabOf(const std::string& letter);

  // main_form_edit.cpp: the Edit menu
  void AddPersonItem_Click();
  void DeletePersonItem_Click();
  void RenameItem_Click();
  void PhotoButton_Click();
  void RemovePhotoItem_Click();
  void DataButton_Click();
  void DefCatButton_Click();

  // main_form_report.cpp: the Report menu
  void AddressRepItem_Click();
  void ItemValuesItem_Click();
  void DescendantItem_Click();
  void MakeReport(int parts, void (*write)(const ReportRequest& request));

  // main_form_thing.cpp: the current thing
  ThingRecord* CurrentRecord() const;
  void StoreEdits();
  void DisplayThing();
  void ShowPhoto(ThingRecord& thing);
  void PhotoPic_DoubleClick();
  void FillCategoryList();
  void NoteBox_Change();
  void NoteBox_LostFocus();
  void LinkCombo_Click();
  void CatList_ItemCheck(int position);

  // main_form_help.cpp: the Help menu
  void ManualItem_Click();
  void FilerHelpItem_Click();
  void AboutItem_Click();

  Button NewButton, OpenButton, SaveButton, AddPersonButton, DeleteButton, HelpButton, ExitButton;
  Label AllLabel;
  std::array<std::unique_ptr<Label>, kLetters> LetterLabel;
  ComboBox PersonCombo;
  Label CategoryFilterLabel, HintLabel;
  TextBox NoteBox;
  Label FatherLabel, MotherLabel;
  DropDownList FatherCombo, MotherCombo;
  Label PhotoLabel;
  Picture PhotoPic, HiddenPic;
  Button PhotoButton, DataButton;
  Label CatLabel;
  CheckList CatList;
  Button DefCatButton;

  std::string command_line_;
  ThingListView view_;
  std::optional<std::string> typed_;  // what the user typed into the thing list, without what was offered
  std::string rescue_name_;           // the rescue copy that goes when the Exit question is answered
  bool asking_to_exit_ = false;
  bool displaying_ = false;  // controls are being filled: their events are no edits
  bool shown_before_ = false;
  bool dialog_open_ = false;
};

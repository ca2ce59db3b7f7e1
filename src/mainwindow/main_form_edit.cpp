// MainForm's Edit menu: adding, deleting and renaming things, their photo, and the categories.
#include <string>
#include <vector>

#include "document/document.h"
#include "document/fact_form.h"
#include "document/fact_values.h"
#include "document/names.h"
#include "document/things.h"
#include "mainwindow/cat_def_form.h"
#include "mainwindow/main_form.h"
#include "mainwindow/tick_all_form.h"
#include "platform/message.h"
#include "shell/file_form.h"
#include "shell/messages.h"
#include "shell/start_options.h"

void MainForm::AddPersonItem_Click() {
  const std::string name = NormaliseName(InputBox("Please type the name for the new object.", Global::ProgramTitle));
  if (name.empty()) return;
  if (FindThing(name) != 0) {
    Global::Say("Sorry, this object is already on file.", Icon::Exclamation);
    return;
  }
  if (AddThing(name) == 0) return;
  Redisplay();
  NoteBox.SetFocus();
}

void MainForm::DeletePersonItem_Click() {
  // What was typed belongs to the thing that goes, not to the one that takes its number.
  TheDocument.PendingEdits = false;
  if (CurrentRecord() == nullptr) {
    Global::Say("No record is displayed to delete.", Icon::Information);
    return;
  }
  DeleteThing(TheDocument.CurrentThing);
  Redisplay();
  RefreshFrame();
  // Not on the button: the next key would delete the next thing.
  if (TheDocument.Things.Count() == 0) {
    AddPersonButton.SetFocus();
  } else {
    Picker.PersonCombo.SetFocus();
  }
  Global::Say("Record deleted.", Icon::Information);
}

void MainForm::RenameItem_Click() {
  const ThingRecord* thing = CurrentRecord();
  if (thing == nullptr) {
    Global::Say("No thing is displayed to rename.", Icon::Exclamation);
    return;
  }
  const std::string name =
      NormaliseName(InputBox("Please type the new name for " + thing->NAME, Global::ProgramTitle, thing->NAME));
  if (name.empty()) return;
  if (HasNameOfOther(name, TheDocument.CurrentThing)) {
    Global::Say("Sorry, there is already a thing with that name on file.", Icon::Exclamation);
    return;
  }
  RenameThing(TheDocument.CurrentThing, name);
  Redisplay();
  RefreshFrame();
  Global::Say("Record renamed.", Icon::Information);
}

void MainForm::PhotoButton_Click() {
  const ThingRecord* thing = CurrentRecord();
  if (thing == nullptr) {
    Global::Say("First choose or add a thing, then click the button to select a portrait file.", Icon::Exclamation);
    return;
  }
  FileRequest request;
  request.Mode = FileRequest::Kind::Read;
  request.Folder = TheStart.WorkingFolder;
  request.Pattern = "*.JPG";
  request.Name = thing->PICFILENAME;
  request.OffersRecent = false;  // saved documents are no photos
  {
    const FlagScope scope(dialog_open_);
    FileForm(request).ShowModal();
  }
  if (!request.Name.empty()) UsePhoto(request.Name);
}

void MainForm::UsePhoto(const std::string& name) {
  SetPhoto(TheDocument.CurrentThing, name);
  Redisplay();
}

void MainForm::RemovePhotoItem_Click() {
  const ThingRecord* thing = CurrentRecord();
  if (thing == nullptr || thing->PICFILENAME.empty()) {
    Global::Say("No photo is displayed to remove.", Icon::Information);
    return;
  }
  SetPhoto(TheDocument.CurrentThing, "");
  Redisplay();
}

void MainForm::DataButton_Click() {
  if (CurrentRecord() == nullptr) {
    Global::Say("First choose or add a thing, then click the MORE button.", Icon::Exclamation);
    return;
  }
  FactForm().ShowModal();
  // Renaming and deleting fields change things even when the dialog is cancelled.
  ThingDataChanged = false;
  Redisplay();
}

void MainForm::DefCatButton_Click() {
  CatDefForm form;
  form.ShowModal();
  if (!form.Accepted) return;
  Picker.CategoriesRenamed();
  FillCategoryList();
  Redisplay();
}

bool MainForm::CanTickAll() const {
  return !Picker.PersonCombo.Entries().empty() && TheDocument.CategoryNames.Highest() > 0;
}

void MainForm::TickAllItem_Click() {
  TickAllForm form;
  form.ShowModal();
  if (form.Category == 0) return;
  std::vector<int> records;
  for (const ListEntry& entry : Picker.PersonCombo.Entries()) records.push_back(entry.Data);
  const std::string things =
      std::to_string(records.size()) + (records.size() == 1 ? " listed thing" : " listed things");
  const std::string category = "\"" + TheDocument.CategoryNames[form.Category] + "\"";
  const std::string question = form.On ? "Do you want to tick " + category + " for " + things + "?"
                                       : "Do you want to take the tick of " + category + " away from " + things + "?";
  if (!Global::Ask(question, Buttons::OkCancel)) return;
  TickAll(records, form.Category, form.On);
  Redisplay();
}

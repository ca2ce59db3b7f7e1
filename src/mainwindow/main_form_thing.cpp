// MainForm's current thing: its display, and the step that stores what was typed.
#include <algorithm>
#include <utility>
#include <vector>

#include "document/document.h"
#include "document/things.h"
#include "mainwindow/main_form.h"
#include "platform/files.h"
#include "platform/text.h"
#include "shell/file_names.h"
#include "shell/launch.h"
#include "shell/messages.h"
#include "shell/start_options.h"
#include "values/numbers.h"

const ThingRecord* MainForm::CurrentRecord() const {
  const RecordTable<ThingRecord>& things = TheDocument.Things;
  return things.Holds(TheDocument.CurrentThing) ? &things[TheDocument.CurrentThing] : nullptr;
}

namespace {

// A text with each line break turned into "?".
std::string OneParagraph(const std::string& text) {
  std::string one_paragraph;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool is_break = text[at] == '\r' || text[at] == '\n';
    if (text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n') ++at;
    one_paragraph += is_break ? '?' : text[at];
  }
  return one_paragraph;
}

}  // namespace

bool MainForm::ValidateText(std::string& text) {
  std::string one_paragraph = OneParagraph(text);
  if (one_paragraph == text) return false;
  text = std::move(one_paragraph);
  Global::Say(
      "Your text has some line breaks in it.  Sorry, but we only permit you to enter one paragraph here.  The line "
      "breaks will be removed and replaced with question marks.",
      Icon::Exclamation);
  return true;
}

void MainForm::StoreEdits() {
  if (!TheDocument.PendingEdits) return;
  TheDocument.PendingEdits = false;
  const ThingRecord* thing = CurrentRecord();
  if (thing == nullptr) return;
  // All is stored before anything is said: Windows may end while the box is up.
  std::string note = NoteBox.Text();
  // A list without a selection stands for a link that the lists cannot show: it is left as it is.
  const auto chosen = [](const DropDownList& list, std::int16_t link) {
    return list.Selected() >= 0 ? static_cast<std::int16_t>(list.SelectedData()) : link;
  };
  ::StoreEdits(TheDocument.CurrentThing, {std::string(Trim(OneParagraph(note))), chosen(FatherCombo, thing->XREF1),
                                          chosen(MotherCombo, thing->XREF2)});
  if (!ValidateText(note)) return;
  const FlagScope scope(displaying_);
  NoteBox.SetText(note);
}

// Of what was typed into the note, without a word about it.
void MainForm::MakeOneParagraph() {
  const FlagScope scope(displaying_);
  NoteBox.SetText(OneParagraph(NoteBox.Text()));
}

void MainForm::Redisplay() {
  const FlagScope scope(displaying_);
  Picker.FillThingList(TheDocument.CurrentThing);
  FillLinkLists();
  DisplayThing();
}

void MainForm::FillLinkLists() {
  if (AreLinks(FatherCombo.Entries(), Picker.NounOrder())) return;
  std::vector<ListEntry> links = ListLinks(Picker.NounOrder());
  FatherCombo.Fill(links);
  MotherCombo.Fill(std::move(links));
}

namespace {

// The entry that stands for a link: record i is at position i, behind the empty entry.
int LinkPosition(int link) {
  if (link == 0) return 0;
  return TheDocument.Things.Holds(link) ? link : -1;
}

}  // namespace

void MainForm::DisplayThing() {
  const FlagScope scope(displaying_);
  const ThingRecord* thing = CurrentRecord();
  if (thing != nullptr) TheDocument.Visited.Visit(TheDocument.CurrentThing);
  const bool empty = TheDocument.Things.Count() == 0;
  NoteBox.SetVisible(!empty);
  HintLabel.SetVisible(empty);
  NoteBox.SetEnabled(thing != nullptr);
  FatherCombo.SetEnabled(thing != nullptr);
  MotherCombo.SetEnabled(thing != nullptr);
  CatList.SetEnabled(thing != nullptr);
  const ThingRecord nothing;
  const ThingRecord& shown = thing != nullptr ? *thing : nothing;
  NoteBox.SetText(shown.NOTE);
  FatherCombo.Select(LinkPosition(shown.XREF1));
  MotherCombo.Select(LinkPosition(shown.XREF2));
  for (int position = 0; position < CatList.Count(); ++position) {
    CatList.SetChecked(position, (shown.CATBITMAP & CategoryBit(position + 1)) != 0);
  }
  const bool has_values = std::any_of(shown.Values.begin(), shown.Values.end(),
                                      [](const FieldValueSlot& slot) { return !slot.Text.empty(); });
  DataButton.SetBackColor(has_values ? BackColor::Marked : BackColor::ButtonFace);
  if (thing == nullptr || thing->PICFILENAME.empty()) {
    ResetPicBox();
  } else {
    ShowPhoto();
  }
}

void MainForm::ResetPicBox() { PhotoPic.Clear(); }

namespace {

// The first of a photo's places that has it; where none has, the error is that of the working folder.
std::string PhotoFile(const std::string& name) {
  const std::string& folder = TheStart.WorkingFolder;
  for (const std::string& place : PhotoPlaces(name, Global::FullFileName(folder, TheDocument.FileName), folder)) {
    if (Files::Exists(place)) return place;
  }
  return Global::FullFileName(folder, name);
}

}  // namespace

void MainForm::ShowPhoto() {
  const ThingRecord& thing = *CurrentRecord();
  try {
    HiddenPic.Load(PhotoFile(thing.PICFILENAME));
    PhotoPic.ShowFrom(HiddenPic);
  } catch (const RuntimeError& error) {
    ResetPicBox();
    if (showing_step_) return;  // a link that Undo has brought back is not given up again
    const std::string text = "I am unable to load the photo file for " + thing.NAME + ", due to error #" +
                             SignedText(error.Number) + ". The picture file link will be removed.";
    SetPhoto(TheDocument.CurrentThing, "");
    Global::Say(text, Icon::Exclamation);
  }
}

void MainForm::PhotoPic_DoubleClick() {
  std::string file = PhotoPic.FileName();
  if (file.empty()) return;
  std::string program = file.substr(std::min(file.find_last_of(".\\"), file.size()));
  if (!APISubs::IsRegistered(program)) {
    Global::Say("I cannot open the photo " + file + " because no program is registered for files of its type.",
                Icon::Exclamation);
    return;
  }
  APISubs::LaunchProgram(program, file);
}

// Entry k is category k, so that the list's positions need no table; unused numbers show no text.
void MainForm::FillCategoryList() {
  const FlagScope scope(displaying_);
  std::vector<std::string> names;
  for (int number = 1; number <= TheDocument.CategoryNames.Highest(); ++number) {
    names.push_back(TheDocument.CategoryNames[number]);
  }
  CatList.Fill(names);
}

void MainForm::NoteBox_Change() {
  if (!displaying_) TheDocument.PendingEdits = true;
}

void MainForm::NoteBox_LostFocus() {
  std::string note = NoteBox.Text();
  if (!ValidateText(note)) return;
  const FlagScope scope(displaying_);
  NoteBox.SetText(note);
}

void MainForm::LinkChosen() {
  if (!displaying_) TheDocument.PendingEdits = true;
}

void MainForm::CatList_ItemCheck(int position) {
  if (displaying_) return;
  const int category = position + 1;
  if (CurrentRecord() == nullptr || TheDocument.CategoryNames[category].empty()) {
    const FlagScope scope(displaying_);
    CatList.SetChecked(position, !CatList.Checked(position));
    return;
  }
  StoreEdits();  // what was typed is a step of its own
  Tick(TheDocument.CurrentThing, category, CatList.Checked(position));
}

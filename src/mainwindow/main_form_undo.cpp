// MainForm's Undo and Redo.
#include <string>

#include "mainwindow/main_form.h"
#include "platform/references.h"

namespace {

// A menu entry of a step: long names are cut, and an ampersand in them is no access key.
std::string EntryOf(const char* verb, std::string title, const char* key) {
  constexpr std::size_t kLongest = 50;
  if (CountCharacters(title) > kLongest) title = FirstCharacters(title, kLongest - 3) + "...";
  std::string entry = verb;
  if (!title.empty()) entry += ' ';
  for (std::size_t at = 0, size = 1; at < title.size(); at += size) {
    const ShownCharacter shown = CharacterAt(title, at);
    size = shown.Bytes;
    if (shown.Code == '&') entry += '&';
    entry += shown.Code == '\t' ? " " : title.substr(at, size);
  }
  return entry + '\t' + key;
}

}  // namespace

std::string MainForm::UndoText() const {
  return EntryOf("&Undo", IsTyping() ? "Typing" : TheHistory.UndoTitle(), "Ctrl+Z");
}

std::string MainForm::RedoText() const { return EntryOf("&Redo", CanRedo() ? TheHistory.RedoTitle() : "", "Ctrl+Y"); }

void MainForm::UndoItem_Click() {
  if (Picker.IsTyping()) {
    Picker.EscapeKey();
    return;
  }
  // What was typed is stored as a step of its own, which Redo brings back.
  if (TheDocument.PendingEdits) MakeOneParagraph();
  StoreEdits();
  if (TheHistory.Undo()) ShowStep();
}

void MainForm::RedoItem_Click() {
  if (TheHistory.Redo()) ShowStep();
}

void MainForm::ShowStep() {
  const FlagScope scope(showing_step_);
  Picker.CategoriesRenamed();
  FillCategoryList();
  Redisplay();
}

// The commands of a window: one table of menu entries, buttons and handlers, so that what an entry says and whether it
// can be chosen cannot drift apart from what it does.
#pragma once

#include <functional>
#include <span>
#include <string>

#include "platform/controls.h"
#include "platform/form.h"

// One command of the form F.
template <class F>
struct Command {
  int Item;                                  // the menu entry
  Button F::*ItsButton;                      // the button of the same command; null for none
  void (F::*Handler)();                      //
  bool (F::*Enabled)() const = nullptr;      // null: always
  std::string (F::*Text)() const = nullptr;  // what the entry says; null: what the template says
  bool Stores = true;                        // what is being edited is stored before the handler runs
  int Entries = 1;                           // so many menu entries, from Item on; the handler asks which
};

// Runs the commands of a form from its menu and its buttons.
template <class F>
class CommandTable {
 public:
  CommandTable(F& form, std::span<const Command<F>> commands) : form_(form), commands_(commands) {
    for (const Command<F>& command : commands_) {
      if (command.ItsButton != nullptr) (form_.*command.ItsButton).Click = [this, &command] { Run(command); };
    }
    form_.MenuClick = [this](int id) { Run(id); };
  }

  // Comes before each command; false keeps it from running.
  std::function<bool(const Command<F>& command)> Before;
  Event After;

  void Run(int id) {
    for (const Command<F>& command : commands_) {
      if (id < command.Item || id >= command.Item + command.Entries) continue;
      chosen_ = id - command.Item;
      Run(command);
    }
  }

  // Which of a command's entries was chosen, from 0.
  int Chosen() const { return chosen_; }

  // Brings the entries and buttons in line with what can be done now.
  void Refresh() {
    for (const Command<F>& command : commands_) {
      if (command.Enabled != nullptr) {
        const bool enabled = (form_.*command.Enabled)();
        form_.SetMenuEnabled(command.Item, enabled);
        if (command.ItsButton != nullptr) (form_.*command.ItsButton).SetEnabled(enabled);
      }
      if (command.Text != nullptr) form_.SetMenuText(command.Item, (form_.*command.Text)());
    }
  }

 private:
  void Run(const Command<F>& command) {
    if (Before && !Before(command)) return;
    (form_.*command.Handler)();
    if (After) After();
  }

  F& form_;
  int chosen_ = 0;
  std::span<const Command<F>> commands_;
};

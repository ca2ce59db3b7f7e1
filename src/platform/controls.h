// The plain controls: label, text box, button, option button, picture, frame.
#pragma once

#include "platform/control.h"

// Static text, which may be clicked.
class Label : public Control {
 public:
  Label(Form& owner, int id) : Control(owner, id, Kind::Label) {}
  void SetTabStop(
      bool stop);  // whether it can have the focus, which a label cannot unless said; its form takes the keys
  bool TabStop() const;
  void SetBorder(bool border);  // a single line around it
  bool Border() const;
  Event Click;
};

// A box for typed text: one line, or several when the template says so. Lines are parted by CR LF;
// soft wraps are never part of the text. There is no limit to the length unless one is set.
class TextBox : public Control {
 public:
  TextBox(Form& owner, int id) : Control(owner, id, Kind::TextBox) {}
  void SetReadOnly(bool read_only);
  bool ReadOnly() const;
  void SetTextLimit(int bytes);  // for typing only; 0 = none
  void SelectAll();
  void SelectText(int first, int last);  // marks bytes [first, last) of the text and puts the caret behind them
  Event Change;
};

class Button : public Control {
 public:
  Button(Form& owner, int id) : Control(owner, id, Kind::Button) {}
  void SetBackColor(BackColor color);
  ::BackColor BackColor() const;
  Event Click;
};

// One of a group of choices; the template's groups make the others of the group go out.
class OptionButton : public Control {
 public:
  OptionButton(Form& owner, int id) : Control(owner, id, Kind::OptionButton) {}
  bool Checked() const;
  void SetChecked(bool checked);  // true raises Click when it was not checked
  Event Click;
};

// Shows a photo, scaled to the box with its proportions kept and centred. The second click of a double click raises
// DoubleClick in place of Click.
class Picture : public Control {
 public:
  Picture(Form& owner, int id) : Control(owner, id, Kind::Picture) {}
  // Shows the picture in a file. Throws 53, 76, 75 or 70 when it cannot be read and 481 when it is no
  // picture the system knows; the box is then empty. The file is not held open. Decoding may take a second, with a
  // wait cursor; when the box holds that file already, of the same size and time of change, nothing is read.
  void Load(const std::string& name);
  void ShowFrom(const Picture& other);  // shows what another box holds, without decoding it again
  void Clear();
  bool Empty() const;
  std::string FileName() const;  // as it was given to Load, also to that of the other box; empty for an empty box
  Event Click;
  Event DoubleClick;
};

// A titled border around other controls. It owns none of them.
class Frame : public Control {
 public:
  Frame(Form& owner, int id) : Control(owner, id, Kind::Frame) {}
};

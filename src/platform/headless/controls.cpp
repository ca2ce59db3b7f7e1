// The plain controls, in memory.
#include "platform/controls.h"

#include <algorithm>

#include "platform/files.h"
#include "platform/headless/internals.h"
#include "platform/runtime_error.h"

void Control::SetBold(bool bold) { PeerOf().Bold = bold; }
bool Control::Bold() const { return PeerOf().Bold; }

void Control::SetToolTip(const std::string& text) { PeerOf().Tip = text; }
std::string Control::ToolTip() const { return PeerOf().Tip; }
void Label::SetTabStop(bool stop) { PeerOf().TabStop = stop; }
bool Label::TabStop() const { return PeerOf().TabStop; }
void Label::SetBorder(bool border) { PeerOf().Border = border; }
bool Label::Border() const { return PeerOf().Border; }

void TextBox::SetReadOnly(bool read_only) { PeerOf().ReadOnly = read_only; }
bool TextBox::ReadOnly() const { return PeerOf().ReadOnly; }
void TextBox::SetTextLimit(int bytes) { PeerOf().TextLimit = bytes; }

// What a person types replaces everything anyway.
void TextBox::SelectAll() { PeerOf().MarkAll(); }

void TextBox::SelectText(int first, int last) {
  PeerOf().MarkFirst = first;
  PeerOf().MarkLast = last;
}

void Button::SetBackColor(::BackColor color) { PeerOf().Back = color; }
::BackColor Button::BackColor() const { return PeerOf().Back; }

bool OptionButton::Checked() const { return PeerOf().Checked; }

void OptionButton::SetChecked(bool checked) {
  if (checked) {
    PeerOf().Check();
  } else {
    PeerOf().Checked = false;
  }
}

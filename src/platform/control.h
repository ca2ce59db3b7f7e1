// A control of a form: what all kinds share. Controls are members of their form, made and destroyed
// with it; each binds to the window that the form's template holds under its id.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

class Form;

// A handler for an event; empty means that nobody listens.
using Event = std::function<void()>;

// The few colours a control's background may have, taken from the user's system colours.
enum class BackColor { ButtonFace, Marked };

// Every setter may be called from the form's constructor on. Changing a control from code raises the
// same event as the user's own change, at once and before the setter returns: a text only when it
// differs from the old one, a list's selection or a check mark likewise.
class Control {
 public:
  struct Peer;

  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  int Id() const;
  Form& Owner() const;

  std::string Text() const;  // caption of a label, button or frame; contents of a text box or combo
  void SetText(std::string_view text);

  bool Enabled() const;
  void SetEnabled(bool enabled);
  bool Visible() const;  // as set, whether or not the form is on the screen
  void SetVisible(bool visible);

  void SetBold(bool bold);
  bool Bold() const;

  // A line that comes up while the mouse rests on the control; empty for none.
  void SetToolTip(const std::string& text);
  std::string ToolTip() const;

  void SetFocus();  // nothing happens when the control is hidden or disabled
  bool HasFocus() const;

  Event GotFocus;
  Event LostFocus;

  Peer& PeerOf() const { return *peer_; }  // for the platform only

 protected:
  enum class Kind {
    Label,
    TextBox,
    Button,
    OptionButton,
    ComboBox,
    DropDownList,
    ListBox,
    CheckList,
    Picture,
    Frame,
    Surface,
    RowList
  };

  // Binds to the template's control of that id; a missing one is a fault of the program and ends it.
  Control(Form& owner, int id, Kind kind);
  virtual ~Control();

 private:
  std::unique_ptr<Peer> peer_;
};

// A form: a window made from a dialog template, with its controls as members and one handler an
// event. The window exists, hidden, from the constructor on, so that controls can be set before it
// is shown.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/control.h"

// Why a form is about to go.
enum class UnloadMode { ControlMenu, Code, WindowsShutdown };

// Keys that a form can be told of. Help is F1.
enum class Key { Enter, Escape, Left, Right, Up, Down, PageUp, PageDown, Home, End, Help, Space };

// How far the sides of a control go when the form grows: in percent of what the form gets wider (Left, Right) and
// higher (Top, Bottom).
struct Follow {
  int Left = 0;
  int Top = 0;
  int Right = 0;
  int Bottom = 0;
};

class Form {
 public:
  struct Peer;

  // The number names the dialog template (and the menu and accelerators of the same number, where there are any).
  explicit Form(int template_id);
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  // Runs Form_Load, shows the form over the active one, which is disabled meanwhile, and returns when
  // it was closed. Enter clicks the button with id 1, Esc and the close box the one with id 2.
  // What a handler throws comes out here, after the form has gone.
  void ShowModal();

  // Makes ShowModal place the form below a control of another form instead of centring it.
  void PlaceBelow(const Control& control);

  // Runs Form_Load and shows the form; returns at once. For the main window, once. What Form_Load throws comes out
  // here; the form is then closed.
  void Show();

  // True while another form stands above this one.
  bool Covered() const;

  // Runs the program's events until the form is closed. What a handler throws comes out here; the
  // form is still there then, and the call may be made again.
  void RunUntilClosed();

  // Closes the form, asking Form_QueryUnload first.
  void Close();
  bool Closed() const;

  // Where the window stands, as a text to keep, and to give to a form that is not shown yet: it then appears there, as
  // far as the screens of today have room. For forms that can be resized; otherwise, and for any other text, nothing
  // comes of it.
  std::string Place() const;
  void SetPlace(std::string_view place);

  std::string Caption() const;
  void SetCaption(std::string_view caption);

  // Runs the event when what the user is doing now is done: a box shown while a click moves the focus would
  // swallow that click.
  void Later(Event event);

  // What Windows shows, in plain ASCII, while the form keeps it from ending; empty for nothing.
  void SetShutdownReason(std::string_view reason);

  // Menu entries, by id. Separators and unknown ids are left alone.
  void SetMenuEnabled(int id, bool enabled);
  bool MenuEnabled(int id) const;
  void SetMenuChecked(int id, bool checked);
  bool MenuChecked(int id) const;
  void SetMenuText(int id, std::string_view text);  // "&" and tab as in a template; the template's own comes first
  std::string MenuText(int id) const;               // as set last, empty before

  // Puts entries with the ids first, first + 1, ... above the entry `before`, and a separator behind them, in place of
  // those that the last call put there.
  void SetMenuEntries(int first, int before, const std::vector<std::string>& texts);

  // The entry or accelerator was chosen; only enabled entries are told of.
  std::function<void(int id)> MenuClick;

  // One file, by its full name, is dragged over the form, which no other form covers: whether it may be dropped, which
  // the pointer shows; and it was dropped there, as with Later. Several at once never may, nor may anything else.
  std::function<bool(const std::string& file)> MayDrop;
  std::function<void(const std::string& file)> Drop;

  // Enter or Esc was pressed and the form has no button with id 1 or 2 to take it.
  Event EnterKey;
  Event EscapeKey;

  // F1 was pressed, in whichever control, and is no accelerator of the form; holding it down tells of it once.
  Event HelpKey;

  // One of the other keys was pressed, without Ctrl and Alt; true keeps it from the control that has the focus.
  std::function<bool(Key)> KeyDown;

  Peer& PeerOf() const { return *peer_; }  // for the platform only

 protected:
  virtual void Form_Load() {}
  virtual void Form_Activate() {}  // each time the form becomes the active one, dialogs above it included
  virtual void Form_QueryUnload(bool& /*cancel*/, UnloadMode /*mode*/) {}
  virtual void Form_Unload() {}

  // Says how a control follows the form's size; the others stay where they are. A form with at least one such control
  // can be resized, but never below its template's size, or `units` (dialog units) lower where MayShrink says so. It
  // opens no larger than the screen has room.
  void Anchor(Control& control, const Follow& follow);
  void MayShrink(int units);

  // Takes out of the form what lies between the tops of two controls: `next` and all that stands at its height or
  // below moves up to where `first` is, and the form gets lower by as much. For rows whose controls are hidden,
  // before the form is shown; not for forms that can be resized.
  void RemoveRows(const Control& first, const Control& next);

 private:
  friend struct Peer;
  std::unique_ptr<Peer> peer_;
};

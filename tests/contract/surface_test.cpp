// What surface.h and clipboard.h promise, in memory and on real windows alike.
#include "platform/surface.h"

#include <gtest/gtest.h>

#include "contract/test_form.h"
#include "platform/clipboard.h"
#include "platform/controls.h"
#include "platform/runtime_error.h"
#include "support/user.h"

namespace {

using Bar = Surface::Bar;

class SurfaceForm : public LoggingForm {
 public:
  SurfaceForm() : LoggingForm(IDD_SurfaceForm) {
    const auto number = [](int value) { return std::to_string(value); };
    TextSurface.Scroll = [this, number](Bar bar, int position) {
      Log.push_back((bar == Bar::Down ? "down " : "across ") + number(position));
    };
    TextSurface.KeyDown = [this, number](const KeyPress& key) {
      Log.push_back("key " + number(static_cast<int>(key.What)) + (key.Shift ? " shift" : "") +
                    (key.Control ? " control" : ""));
    };
    TextSurface.Mouse = [this, number](const MousePress& press) {
      const char* const names[] = {"press ", "drag ", "double "};
      Log.push_back(names[static_cast<int>(press.What)] + number(press.At.Column) + "," + number(press.At.Row) +
                    (press.Shift ? " shift" : ""));
    };
    TextSurface.Wheel = [this, number](const WheelTurn& turn) {
      Log.push_back("wheel " + number(turn.Cells) + (turn.Across ? " across" : "") + (turn.Control ? " control" : ""));
    };
    TextSurface.CopyKey = Logs("copy");
    TextSurface.SelectAllKey = Logs("all");
    TextSurface.Resize = Logs("resize");
    CancelButton.Click = [this] { Close(); };
    LogFocusOf(TextSurface, "TextSurface");
  }

  TextBox SideBox{*this, IDC_SideBox};
  Surface TextSurface{*this, IDC_TextSurface};
  Button CancelButton{*this, IDC_CancelButton};
};

class SurfaceTest : public testing::Test {
 protected:
  void Use(const std::function<void()>& acts) {
    user.UsesForm(IDD_SurfaceForm, [this, acts] {
      form.Came();
      acts();
      user.Clicks(IDC_CancelButton);
    });
    form.ShowModal();
  }

  SurfaceForm form;
  User user;
};

TEST_F(SurfaceTest, ShowsThePageItWasGivenLastAndRoomFollowsTheTextSize) {
  Page page;
  page.Runs = {{{2, 1}, "text", Ink::Hit}};
  page.HeadRows = 1;
  form.TextSurface.Show(page);
  Use([&] {
    EXPECT_EQ(user.SeesPage(IDC_TextSurface).Runs.at(0).Text, "text");
    EXPECT_EQ(user.SeesPage(IDC_TextSurface).HeadRows, 1);
    EXPECT_EQ(form.TextSurface.TextSize(), 10);
    const int columns = form.TextSurface.Columns(), rows = form.TextSurface.Rows();
    EXPECT_GE(columns, 10);
    EXPECT_GE(rows, 3);
    form.TextSurface.SetTextSize(20);
    EXPECT_NEAR(form.TextSurface.Columns(), columns / 2, 2);
    EXPECT_NEAR(form.TextSurface.Rows(), rows / 2, 1);
    form.TextSurface.SetTextSize(4000);
    EXPECT_EQ(form.TextSurface.Columns(), 1);
    EXPECT_EQ(form.TextSurface.Rows(), 1);
    form.TextSurface.ShowOnPaper(Page(), Sheet());
    EXPECT_TRUE(user.SeesPage(IDC_TextSurface).Runs.empty());
    EXPECT_EQ(form.Came(), Events{});
  });
}

TEST_F(SurfaceTest, ScrollBarsMoveByTheProgramOnlyAndAskFirst) {
  Use([&] {
    form.TextSurface.SetScroll(Bar::Down, 100, 11, 20);
    form.TextSurface.SetScroll(Bar::Across, 50, 50, 0);
    EXPECT_EQ(form.Came(), Events{});
    EXPECT_EQ(user.SeesBar(IDC_TextSurface, Bar::Down), 20);
    EXPECT_EQ(user.SeesBar(IDC_TextSurface, Bar::Across), -1);
    user.PagesBar(IDC_TextSurface, Bar::Down, 1);
    EXPECT_EQ(user.SeesBar(IDC_TextSurface, Bar::Down), 20);
    form.TextSurface.SetScroll(Bar::Down, 100, 11, 85);
    user.PagesBar(IDC_TextSurface, Bar::Down, 1);
    form.TextSurface.SetScroll(Bar::Down, 100, 11, 89);
    user.PagesBar(IDC_TextSurface, Bar::Down, 1);  // at the end already
    EXPECT_EQ(form.Came(), (Events{"down 30", "down 89"}));
    form.TextSurface.SetScroll(Bar::Down, 100, 11, 1000);
    EXPECT_EQ(user.SeesBar(IDC_TextSurface, Bar::Down), 89);
    form.TextSurface.SetScroll(Bar::Across, 200, 101, 0);
    user.PagesBar(IDC_TextSurface, Bar::Across, 1);
    EXPECT_EQ(form.Came(), Events{"across 99"});
  });
}

TEST_F(SurfaceTest, MouseIsToldInCellsAndTakesTheFocus) {
  Use([&] {
    user.MovesTo(IDC_SideBox);
    user.Drags(IDC_TextSurface, {3, 2}, {5, 1});
    EXPECT_TRUE(user.SeesFocusOn(IDC_TextSurface));
    user.Drags(IDC_TextSurface, {4, 0}, {4, 0}, true);
    user.Drags(IDC_TextSurface, {0, 0}, {-2, -1});
    user.DoubleClicks(IDC_TextSurface, {7, 0});
    EXPECT_EQ(form.Came(), (Events{"press 3,2", "drag 5,1", "press 4,0 shift", "press 0,0", "drag -2,-1", "press 7,0",
                                   "double 7,0"}));
  });
}

TEST_F(SurfaceTest, WheelIsToldByCellsOrNotches) {
  Use([&] {
    user.TurnsWheel(IDC_TextSurface, 2);
    user.TurnsWheel(IDC_TextSurface, -1, true);
    user.TurnsWheel(IDC_TextSurface, -1, false, true);
    EXPECT_EQ(form.Came(), (Events{"wheel 6", "wheel -3 across", "wheel -1 control"}));
  });
}

TEST_F(SurfaceTest, KeysAreToldWhileItHasTheFocus) {
  Use([&] {
    user.MovesTo(IDC_TextSurface);
    user.Presses(Key::Down);
    user.Presses(KeyPress{Key::Home, false, true});
    user.Presses(KeyPress{Key::Left, true, false});
    user.PressesControl('C');
    user.PressesControl('A');
    const auto name = [](Key key) { return "key " + std::to_string(static_cast<int>(key)); };
    EXPECT_EQ(form.Came(),
              (Events{name(Key::Down), name(Key::Home) + " control", name(Key::Left) + " shift", "copy", "all"}));
    EXPECT_TRUE(user.SeesFocusOn(IDC_TextSurface));
    form.KeyDown = [](Key key) { return key == Key::Up; };
    user.Presses(Key::Up);  // the form kept it
    EXPECT_EQ(form.Came(), Events{});
  });
  EXPECT_EQ(form.FocusCame().at(0), "TextSurface got");
}

TEST_F(SurfaceTest, WhatAHandlerThrowsComesOut) {
  form.TextSurface.Wheel = [](const WheelTurn&) { throw RuntimeError(kPermissionDenied); };
  user.UsesForm(IDD_SurfaceForm, [&] { user.TurnsWheel(IDC_TextSurface, 1); });
  EXPECT_THROW(form.ShowModal(), RuntimeError);
}

TEST(ClipboardTest, HoldsTextOfTheSystemsCharacterSet) {
  SetClipboardText("old");
  SetClipboardText("caf\xE9\r\nline");
  EXPECT_EQ(ClipboardText(), "caf\xE9\r\nline");
  SetClipboardText("");
  EXPECT_EQ(ClipboardText(), "");
}

}  // namespace

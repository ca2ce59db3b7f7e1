// Rows taken out of a form, as it then stands on the screen.
#include <gtest/gtest.h>

#include "contract/test_form.h"
#include "platform/win32/internals.h"

namespace {

class RowsForm : public TestForm {
 public:
  using Form::RemoveRows;
};

// The control's place within the form.
RECT PlaceOf(const Control& control) {
  RECT rect{};
  GetWindowRect(control.PeerOf().Window, &rect);
  MapWindowPoints(nullptr, control.Owner().PeerOf().Window, reinterpret_cast<POINT*>(&rect), 2);
  return rect;
}

TEST(FormRowsTest, WhatStandsBelowMovesUpAndTheFormGetsLower) {
  RowsForm form;
  const RECT inside_before = [&] {
    RECT rect{};
    GetClientRect(form.PeerOf().Window, &rect);
    return rect;
  }();
  const RECT label = PlaceOf(form.HintLabel), lines = PlaceOf(form.LinesBox), button = PlaceOf(form.FirstButton),
             ok = PlaceOf(form.OKButton);
  const LONG height = button.top - lines.top;
  form.RemoveRows(form.LinesBox, form.FirstButton);
  EXPECT_EQ(PlaceOf(form.HintLabel).top, label.top);
  EXPECT_EQ(PlaceOf(form.FirstButton).top, lines.top);
  EXPECT_EQ(PlaceOf(form.FirstButton).left, button.left);
  EXPECT_EQ(PlaceOf(form.OKButton).bottom, ok.bottom - height);
  RECT inside{};
  GetClientRect(form.PeerOf().Window, &inside);
  EXPECT_EQ(inside.bottom, inside_before.bottom - height);
  EXPECT_EQ(inside.right, inside_before.right);
}

}  // namespace

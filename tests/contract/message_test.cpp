// What message and input boxes promise, and that a test's person notices what nobody expected.
#include "platform/message.h"

#include <gtest/gtest-spi.h>

#include "contract/test_form.h"
#include "support/expectations.h"

namespace {

using MessageTest = FormTest;

TEST_F(MessageTest, BoxesShowTheirTextAsItStandsAndAnswerWithTheButton) {
  for (const auto& [buttons, answer] : {std::pair(Buttons::Ok, Answer::Ok),
                                        {Buttons::OkCancel, Answer::Ok},
                                        {Buttons::OkCancel, Answer::Cancel},
                                        {Buttons::YesNo, Answer::Yes},
                                        {Buttons::YesNo, Answer::No}}) {
    for (const std::string text : {"Two lines,\r\none of them caf\xE9.", "Fish & Chips && more", kFar.c_str()}) {
      user.Answers(text, answer, Icon::Critical, buttons);
      EXPECT_EQ(MsgBox(text, "Caption & " + kFar, buttons, Icon::Critical), answer);
      EXPECT_EQ(Expected().LastCaption, "Caption & " + kFar);
    }
  }
  for (const std::string text : {"  caf\xE9 & b  ", kFar.c_str(), ""}) {
    user.AnswersInput("Name of\r\nthe thing & all:", text);
    EXPECT_EQ(InputBox("Name of\r\nthe thing & all:", "Caption", "offered " + text), text);
    EXPECT_EQ(Expected().LastOffered + Expected().LastCaption, "offered " + text + "Caption");
  }
}

TEST_F(MessageTest, WhatNobodyExpectedFailsTheTest) {
  const std::pair<Event, const char*> rows[] = {
      {[&] { EXPECT_EQ(MsgBox("all\r\nis lost", "T", Buttons::OkCancel), Answer::Cancel); }, "all\r\nis lost"},
      {[&] { EXPECT_EQ(MsgBox("sure?", "T", Buttons::YesNo), Answer::No); }, "sure?"},
      {[&] { EXPECT_EQ(InputBox("name:", "T", "offered"), ""); }, "name:"},
      {[&] { user.Reads("words", Icon::None), MsgBox("others", "T"); }, "words"},
      {[&] { user.Reads("text", Icon::Critical), MsgBox("text", "T"); }, "critical"},
      {[&] { user.Answers("text", Answer::Yes, Icon::None, Buttons::Ok), MsgBox("text", "T"); }, "Yes"},
      {[&] { user.Reads("never", Icon::None), Expected().Finish(), Expected().Start(); }, "never"},
      {[&] { user.UsesForm(IDD_TestForm, [] {}), form.ShowModal(); }, "5000"},
      {[&] { Use([&] { form.LineBox.SetVisible(false), user.Types(IDC_LineBox, "x"); }); }, "5012"},
      {[&] { Use([&] { form.FirstButton.SetEnabled(false), user.Clicks(IDC_FirstButton); }); }, "5014"},
      {[&] { Use([&] { form.SetMenuEnabled(IDC_GreyItem, false), user.ChoosesMenu(IDC_GreyItem); }); }, "5042"}};
  for (const auto& [act, words] : rows) EXPECT_NONFATAL_FAILURE(act(), words);
}

}  // namespace

// What message and input boxes promise, and that a person's queue of expectations sees what comes.
#include "platform/message.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "contract/test_form.h"
#include "support/expectations.h"
#include "support/user.h"

namespace {

class MessageTest : public testing::Test {
 protected:
  User user;
};

TEST_F(MessageTest, EveryButtonAnswers) {
  const struct {
    Buttons Offer;
    Answer Press;
  } rows[] = {{Buttons::Ok, Answer::Ok},
              {Buttons::OkCancel, Answer::Ok},
              {Buttons::OkCancel, Answer::Cancel},
              {Buttons::YesNo, Answer::Yes},
              {Buttons::YesNo, Answer::No}};
  for (const auto& row : rows) {
    for (const Icon icon : {Icon::None, Icon::Information, Icon::Exclamation, Icon::Critical}) {
      user.Answers("Really?", row.Press, icon, row.Offer);
      EXPECT_EQ(MsgBox("Really?", "Larkspur", row.Offer, icon), row.Press);
      EXPECT_EQ(Expected().LastCaption, "Larkspur");
    }
  }
}

TEST_F(MessageTest, TextIsShownAsItStands) {
  for (const std::string text : {"Two lines,\r\none of them caf\xE9.", "Fish & Chips && more", "100%s <<x>>"}) {
    user.Reads(text, Icon::None);
    MsgBox(text, "Caption & caf\xE9");
    EXPECT_EQ(Expected().LastCaption, "Caption & caf\xE9");
  }
}

TEST_F(MessageTest, BoxesStandAboveAForm) {
  TestForm form;
  form.FirstButton.Click = [&] {
    if (MsgBox("Rename?", "Larkspur", Buttons::YesNo) == Answer::Yes) {
      form.HintLabel.SetText(InputBox("New name:", "Larkspur", "old"));
    }
  };
  user.UsesForm(IDD_TestForm, [&] {
    user.Answers("Rename?", Answer::Yes, Icon::None, Buttons::YesNo);
    user.AnswersInput("New name:", "new");
    form.Came();
    user.Clicks(IDC_FirstButton);
    EXPECT_EQ(form.Came(), (Events{"Activate", "Activate"}));
    EXPECT_TRUE(Expected().Empty());
    EXPECT_EQ(user.Sees(IDC_HintLabel), "new");
    EXPECT_TRUE(user.SeesFocusOn(IDC_FirstButton));
    user.Clicks(IDC_OKButton);
  });
  form.ShowModal();
}

TEST_F(MessageTest, InputComesBackAsTyped) {
  user.AnswersInput("Name of\r\nthe thing & all:", "  caf\xE9 & b  ");
  EXPECT_EQ(InputBox("Name of\r\nthe thing & all:", "Larkspur", "offered \xE9"), "  caf\xE9 & b  ");
  EXPECT_EQ(Expected().LastOffered, "offered \xE9");
  EXPECT_EQ(Expected().LastCaption, "Larkspur");
  user.AnswersInput("Name:", "");
  EXPECT_EQ(InputBox("Name:", "Larkspur", "offered"), "");
  user.AnswersInput("Name:", "x");
  EXPECT_EQ(InputBox("Name:", "Larkspur"), "x");
  EXPECT_EQ(Expected().LastOffered, "");
}

TEST_F(MessageTest, UnexpectedBoxesFailWithTheirTextAndAreClosed) {
  Answer answer = Answer::Ok;
  EXPECT_NONFATAL_FAILURE(answer = MsgBox("Oh dear,\r\nall is lost", "T", Buttons::OkCancel),
                          "Oh dear,\r\nall is lost");
  EXPECT_EQ(answer, Answer::Cancel);
  EXPECT_NONFATAL_FAILURE(answer = MsgBox("Sure?", "T", Buttons::YesNo), "Sure?");
  EXPECT_EQ(answer, Answer::No);
  EXPECT_NONFATAL_FAILURE(answer = MsgBox("Done", "T"), "Done");
  EXPECT_EQ(answer, Answer::Ok);
  std::string typed = "x";
  EXPECT_NONFATAL_FAILURE(typed = InputBox("Name:", "T", "offered"), "Name:");
  EXPECT_EQ(typed, "");
}

TEST_F(MessageTest, WrongWordsIconAndButtonsFail) {
  user.Reads("expected words", Icon::None);
  EXPECT_NONFATAL_FAILURE(MsgBox("other words", "T"), "expected words");
  user.Reads("text", Icon::Critical);
  EXPECT_NONFATAL_FAILURE(MsgBox("text", "T", Buttons::Ok, Icon::Information), "critical");
  user.Answers("text", Answer::Ok, Icon::None, Buttons::OkCancel);
  EXPECT_NONFATAL_FAILURE(MsgBox("text", "T"), "OK/Cancel");
  user.Answers("text", Answer::Yes, Icon::None, Buttons::Ok);
  EXPECT_NONFATAL_FAILURE(MsgBox("text", "T"), "has no button Yes");
  user.AnswersInput("prompt", "x");
  EXPECT_NONFATAL_FAILURE(MsgBox("text", "T"), "an input box \"prompt\"");
  EXPECT_EQ(InputBox("prompt", "T"), "x");
}

TEST_F(MessageTest, ExpectationsThatNeverCameFail) {
  user.Reads("never shown", Icon::None);
  EXPECT_NONFATAL_FAILURE(Expected().Finish(), "never came: a message box (OK, no icon) \"never shown\"");
  user.UsesForm(IDD_BareForm, [] {});
  EXPECT_NONFATAL_FAILURE(Expected().Finish(), "never came: form 5001");
}

}  // namespace

// What the plain controls promise beyond what stories show: odd texts, events exactly once and only when something
// differs, what is counted in bytes, groups of options, the focus, pictures that are none.
#include "platform/controls.h"

#include "contract/error_of.h"
#include "contract/test_form.h"
#include "platform/message.h"
#include "support/files.h"

namespace {

TEST_F(ShownFormTest, TextsComeBackByteForByte) {
  std::string high, words, many;
  for (int byte = 0xA0; byte <= 0xFF; ++byte) high += static_cast<char>(byte);
  while (words.size() < 2000) words += "many words that wrap ";
  while (many.size() < 40000) many += "a line that is short enough\r\n";
  for (Control* control :
       std::initializer_list<Control*>{&form.TitleLabel, &form.FirstButton, &form.RedOption, &form.GroupFrame,
                                       &form.LineBox, &form.LinesBox, &form.NameCombo}) {
    SCOPED_TRACE(control->Id());
    std::vector<std::string> texts = {"plain",    "",  "Fish & Chips && more", " caf\xE9 ", high, "tab\tbed",
                                      "100%s %d", kFar};
    // Lines are parted by CR LF, and long ones stay whole.
    if (control == &form.LinesBox)
      texts.insert(texts.end(), {"first\r\n\r\n  third\r\n", std::string(1000, 'w'), words, many});
    if (control == &form.LineBox) texts.emplace_back(40000, 'y');
    const bool is_typed = control == &form.LineBox || control == &form.LinesBox || control == &form.NameCombo;
    for (const std::string& text : texts) {
      const std::string tip = text.substr(0, 200);
      control->SetText(text);
      control->SetToolTip(tip);
      EXPECT_EQ(control->Text() + control->ToolTip(), text + tip);
      control->SetText("-");
      if (is_typed) user.Enters(control->Id(), text);
      EXPECT_EQ(control->Text(), is_typed ? text : "-");
    }
  }
}

TEST_F(ShownFormTest, ChangeComesOnceAndOnlyWhenTheTextDiffers) {
  const auto check = [this](auto& box) {
    const auto sets = [&](const char* text) { box.SetText(text); };
    const auto types = [&](const char* text) { user.Enters(box.Id(), text); };
    box.Change = [&box] { Log(box.Text()); };
    Does([&] { sets("code"), sets("code"), types("code"); }, "code");
    Does([&] { types("person"), types("person"), sets("person"); }, "person");
    Does([&] { sets("PERSON"); }, "PERSON");
    box.Change = [&] {
      Log(box.Text());
      if (box.Text() == "wrong") sets("right");
    };
    Does([&] { types("wrong"), sets("wrong"); }, "wrong, right, wrong, right");
  };
  check(form.LineBox);
  check(form.LinesBox);
  check(form.NameCombo);
}

TEST_F(ShownFormTest, LimitsBindThePersonNotTheCodeAndAreInBytesAsMarksAre) {
  TextBox& box = form.LineBox;
  for (const auto& [limit, typed] : {std::pair(5, "abcde"), {7, "&#937;a"}, {0, "&#937;abcdefgh"}}) {
    box.SetTextLimit(limit);
    box.SetText("abcdefgh");
    EXPECT_EQ(box.Text(), "abcdefgh");
    user.Enters(IDC_LineBox, limit == 5 ? "abcdefgh" : "&#937;abcdefgh");
    EXPECT_EQ(box.Text(), typed);
  }
  box.SetText("a&#937;b&#128512;&#38;#937;");
  form.NameCombo.SetText(box.Text());
  for (const auto& mark : {std::pair(0, 27), {1, 7}, {8, 17}, {7, 8}, {17, 27}}) {
    box.SelectText(mark.first, mark.second);
    form.NameCombo.SelectText(mark.first, mark.second);
    for (const int id : {IDC_LineBox, IDC_NameCombo}) EXPECT_EQ(user.LooksAt(id).Mark, mark) << id;
  }
}

TEST_F(ShownFormTest, OptionsOfAGroupGoOutForEachOther) {
  OptionButton* const options[] = {&form.RedOption, &form.GreenOption, &form.SmallOption, &form.LargeOption};
  for (OptionButton* each : options) each->Click = [] { Log("Click"); };
  const auto does = [&](const Event& act, const char* checked) {
    Does(act, "Click");
    for (int each = 0; each < 4; ++each) EXPECT_EQ(options[each]->Checked(), checked[each] == 'x') << checked << each;
  };
  does([&] { form.RedOption.SetChecked(true), form.RedOption.SetChecked(true); }, "x---");
  does([&] { form.LargeOption.SetChecked(true); }, "x--x");
  does([&] { user.Clicks(IDC_GreenOption), user.Clicks(IDC_GreenOption); }, "-x-x");
  does([&] { form.RedOption.SetChecked(true), form.LargeOption.SetChecked(false); }, "x---");
}

TEST_F(ShownFormTest, FocusMovesBeforeTheClickAndNeverToWhatIsAboveNorToWhatCannotHaveIt) {
  form.LineBox.LostFocus = [&] {
    Log("lost");
    form.Later([] { Log("Later"); });
  };
  form.NameCombo.GotFocus = [] { Log("got"); };
  form.TitleLabel.Click = form.ShownPic.Click = form.FirstButton.Click = [] { Log("Click"); };
  form.LinesBox.SetEnabled(false);
  form.EntryList.SetVisible(false);
  Does([&] { form.LinesBox.SetFocus(), form.EntryList.SetFocus(), form.TitleLabel.SetFocus(); }, "");
  Does([&] { user.Clicks(IDC_TitleLabel), user.Clicks(IDC_ShownPic); }, "Click, Click");
  TestForm above;
  Does([&] { MsgBox("one", "T"), InputBox("two", "T"), above.ShowModal(); },
       "no icon OK: one [T], Activate, input: two [T], Activate, Load, Activate, QueryUnload Code, Unload, Activate");
  EXPECT_TRUE(form.LineBox.HasFocus() && user.LooksAt(IDC_LineBox).Focused);
  Does([&] { form.NameCombo.SetFocus(), user.MovesTo(IDC_NameCombo); }, "lost, got, Later");
  form.LineBox.SetFocus();
  Does([&] { user.Clicks(IDC_FirstButton); }, "lost, Click, Later");
}

TEST_F(FormTest, RoomOnASurfaceFollowsTheTextSize) {
  Surface& surface = form.TextSurface;
  const int columns = surface.Columns(), rows = surface.Rows();
  EXPECT_TRUE(surface.TextSize() == 10 && columns >= 10 && rows >= 3);
  surface.SetTextSize(20);
  EXPECT_NEAR(surface.Columns(), columns / 2, 2);
  EXPECT_NEAR(surface.Rows(), rows / 2, 1);
  surface.SetTextSize(4000);
  EXPECT_EQ(surface.Columns() + surface.Rows(), 1 + 1);
}

TEST_F(FormTest, PicturesAreKnownByTheirBytesAndWhatFailsLeavesTheBoxEmpty) {
  // 2 by 2 pixels in 24 bits.
  const std::string bitmap =
      std::string("BM\x46\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\x02\0\0\0\x02\0\0\0\x01\0\x18\0", 30) +
      std::string(24, '\0') + std::string(16, '\x7F');
  const std::string jpeg("\xFF\xD8\xFF\xE0\0\x10JFIF\0\1\1\0\0\1\0\1\0\0", 20);
  TestFiles::Start();
  Picture& box = form.ShownPic;
  for (const std::string& bytes :
       {std::string(), std::string(200, 't'), bitmap.substr(0, 54), bitmap.substr(0, 60), jpeg}) {
    TestFiles::Put("a.bmp", bitmap);
    box.Load("a.bmp");
    // A file is read again only when it has changed, and the box does not hold it.
    TestFiles::HoldByOther("a.bmp", true);
    box.Load("a.bmp");
    EXPECT_FALSE(box.Empty());
    TestFiles::ReleaseByOther();
    TestFiles::Put("a.bmp", bytes);
    EXPECT_EQ(ErrorOf([&] { box.Load("a.bmp"); }), kInvalidPicture) << bytes.size();
    EXPECT_TRUE(box.Empty()) << bytes.size();
    TestFiles::HoldByOther("a.bmp", true);
    EXPECT_EQ(ErrorOf([&] { box.Load("a.bmp"); }), kPermissionDenied) << bytes.size();
    TestFiles::ReleaseByOther();
  }
  TestFiles::Finish();
}

}  // namespace

// What the plain controls promise beyond what stories show: odd texts, events exactly once and only when something
// differs, what is counted in bytes, groups of options, the focus, pictures that are none.
#include "platform/controls.h"

#include "contract/error_of.h"
#include "contract/test_form.h"
#include "platform/files.h"
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
    SCOPED_TRACE(form.Members[control]);
    std::vector<std::string> texts = {"plain",    "",  "Fish & Chips && more", " caf\xE9 ", high, "tab\tbed",
                                      "100%s %d", kFar};
    for (const std::string& text : texts) {
      control->SetToolTip(text);
      EXPECT_EQ(control->ToolTip(), text);
    }
    // Lines are parted by CR LF, and long ones stay whole.
    if (control == &form.LinesBox)
      texts.insert(texts.end(), {"first\r\n\r\n  third\r\n", std::string(1000, 'w'), words, many});
    if (control == &form.LineBox) texts.emplace_back(40000, 'y');
    const bool is_typed = control == &form.LineBox || control == &form.LinesBox || control == &form.NameCombo;
    for (const std::string& text : texts) {
      control->SetText(text);
      EXPECT_EQ(control->Text(), text);
      control->SetText("-");
      if (is_typed) user.Enters(control->Id(), text);
      EXPECT_EQ(control->Text(), is_typed ? text : "-");
    }
  }
}

TEST_F(ShownFormTest, ChangeComesOnceAndOnlyWhenTheTextDiffers) {
  for (Control* box : std::initializer_list<Control*>{&form.LineBox, &form.LinesBox, &form.NameCombo}) {
    const std::string change = form.Members[box] + " Change ";
    const auto sets = [box](const char* text) { box->SetText(text); };
    const auto types = [&](const char* text) { user.Enters(box->Id(), text); };
    Does([&] { sets("code"), sets("code"), types("code"); }, change + "code");
    Does([&] { types("person"), types("person"), sets("person"); }, change + "person");
    Does([&] { sets("PERSON"); }, change + "PERSON");
  }
  form.LineBox.Change = [&, tell = form.LineBox.Change] {
    tell();
    if (form.LineBox.Text() == "wrong") form.LineBox.SetText("right");
  };
  Does([&] { user.Enters(IDC_LineBox, "wrong"); }, "LineBox Change wrong, LineBox Change right");
  Does([&] { form.LineBox.SetText("wrong"); }, "LineBox Change wrong, LineBox Change right");
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
  OptionButton &red = form.RedOption, &green = form.GreenOption, &small = form.SmallOption, &large = form.LargeOption;
  Does([&] { red.SetChecked(true), large.SetChecked(true); }, "RedOption Click, LargeOption Click");
  EXPECT_TRUE(red.Checked() && !green.Checked() && !small.Checked() && large.Checked());
  Does([&] { user.Clicks(IDC_GreenOption), user.Clicks(IDC_GreenOption); }, "GreenOption Click");
  EXPECT_TRUE(!red.Checked() && green.Checked() && !small.Checked() && large.Checked());
  Does([&] { red.SetChecked(true), red.SetChecked(true), large.SetChecked(false); }, "RedOption Click");
  EXPECT_TRUE(red.Checked() && !green.Checked() && !small.Checked() && !large.Checked());
}

TEST_F(ShownFormTest, FocusIsLostAndGotBeforeAnythingElseAndNotToBoxesAboveTheForm) {
  form.LogsFocus = true;
  Does([&] { form.EntryList.SetFocus(), form.EntryList.SetFocus(); }, "LineBox lost, EntryList got");
  Does([&] { user.Clicks(IDC_FirstButton); }, "EntryList lost, FirstButton got, FirstButton Click");
  Does([&] { user.Enters(IDC_NameCombo, "x"); }, "FirstButton lost, NameCombo got, NameCombo Change x");
  Does([&] { user.Clicks(IDC_TitleLabel), user.Clicks(IDC_ShownPic), user.ChoosesMenu(IDC_PlainItem); },
       "TitleLabel Click, ShownPic Click, Menu 5030");
  form.LineBox.SetEnabled(false);
  form.FirstButton.SetVisible(false);
  Does([&] { form.LineBox.SetFocus(), form.FirstButton.SetFocus(), form.TitleLabel.SetFocus(); }, "");
  Does([&] { MsgBox("one", "T"), InputBox("two", "T"); }, "no icon OK: one [T], Activate, input: two [T], Activate");
  EXPECT_TRUE(form.NameCombo.HasFocus() && user.LooksAt(IDC_NameCombo).Focused);
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
  const struct {
    const char* Name;
    std::string Bytes;
    int Error = kInvalidPicture;
  } rows[] = {{"small.bmp", bitmap, 0},
              {"&#26085;.jpg", bitmap, 0},
              {"held.bmp", bitmap, kPermissionDenied},
              {"empty.bmp", ""},
              {"text.bmp", std::string(200, 't')},
              {"header.bmp", bitmap.substr(0, 54)},
              {"half.bmp", bitmap.substr(0, 60)},
              {"start.jpg", std::string("\xFF\xD8\xFF\xE0\0\x10JFIF\0\1\1\0\0\1\0\1\0\0", 20)}};
  TestFiles::Start();
  for (const auto& row : rows) TestFiles::Put(row.Name, row.Bytes);
  TestFiles::HoldByOther("held.bmp", true);
  Picture& box = form.ShownPic;
  for (const auto& row : rows) {
    box.Load("small.bmp");
    EXPECT_FALSE(box.Empty());
    EXPECT_EQ(ErrorOf([&] { box.Load(row.Name); }), row.Error) << row.Name;
    EXPECT_EQ(box.Empty(), row.Error != 0) << row.Name;
    EXPECT_EQ(box.FileName(), row.Error != 0 ? "" : row.Name);
    box.Clear();
    EXPECT_TRUE(box.Empty());
  }
  // A file is read again only when it has changed, and the box does not hold it.
  box.Load("small.bmp");
  TestFiles::HoldByOther("small.bmp", true);
  box.Load("small.bmp");
  TestFiles::ReleaseByOther();
  TestFiles::Put("small.bmp", "no picture");
  EXPECT_EQ(ErrorOf([&] { box.Load("small.bmp"); }), kInvalidPicture);
  Files::Erase("small.bmp");
  TestFiles::Finish();
}

}  // namespace

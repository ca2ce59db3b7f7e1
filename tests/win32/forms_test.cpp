// The program's forms on the screen: what follows their size, and where they come up.
#include <array>

#include "mainwindow/main_form.h"
#include "mainwindow/main_ids.h"
#include "platform/win32/internals.h"
#include "resource.h"
#include "support/fresh_test.h"
#include "viewer/preview_form.h"
#include "viewer/report_text.h"
#include "viewer/viewer_form.h"
#include "viewer/viewer_ids.h"

namespace {

class ScreenTest : public FreshTest {};

// The left, upper, right and lower edge.
using Edges = std::array<LONG, 4>;

Edges EdgesOf(HWND window) {
  RECT rect{};
  GetWindowRect(window, &rect);
  return {rect.left, rect.top, rect.right, rect.bottom};
}

Edges EdgesOf(const Form& form, int id) { return EdgesOf(form.PeerOf().Find(id)->PeerOf().Window); }

TEST_F(ScreenTest, ControlsShareWhatTheirFormGrows) {
  MainForm main_form("");
  const ViewerForm viewer("");
  const ReportText text;
  const PreviewForm preview(text, "");
  main_form.Show();
  const struct {
    const Form& Parent;
    Edges Shares;  // percent of the growth that left, upper, right and lower edge move by
    std::vector<int> Ids;
  } rows[] = {{main_form, {100, 0, 100, 0}, {IDC_HelpButton, IDC_ExitButton}},
              {main_form, {0, 0, 3, 0}, {IDC_AllLabel}},
              {main_form, {96, 0, 100, 0}, {IDC_LetterLabel + 25}},
              {main_form, {60, 0, 100, 0}, {IDC_CategoryFilterLabel, IDC_PhotoLabel}},
              {main_form, {60, 0, 100, 60}, {IDC_PhotoPic}},
              {main_form, {60, 60, 80, 60}, {IDC_PhotoButton}},
              {main_form, {80, 60, 100, 60}, {IDC_DataButton}},
              {main_form, {60, 60, 100, 60}, {IDC_CatLabel}},
              {main_form, {60, 60, 100, 100}, {IDC_CatList}},
              {main_form, {0, 0, 60, 0}, {IDC_PersonCombo, IDC_HintLabel}},
              {main_form, {0, 0, 60, 100}, {IDC_NoteBox}},
              {main_form, {0, 100, 60, 100}, {IDC_FatherCombo, IDC_MotherCombo}},
              {main_form, {0, 100, 0, 100}, {IDC_FatherLabel, IDC_MotherLabel}},
              {main_form, {60, 100, 100, 100}, {IDC_DefCatButton}},
              {main_form, {0, 100, 100, 100}, {IDC_StatusLabel}},
              {viewer, {0, 0, 100, 100}, {IDC_ReportSurface}},
              {viewer, {0, 100, 100, 100}, {IDC_FileLabel}},
              {viewer, {100, 100, 100, 100}, {IDC_LinesLabel, IDC_ZoomLabel}},
              {preview, {0, 0, 100, 100}, {IDC_PreviewSurface}},
              {preview, {100, 0, 100, 0}, {IDC_PrintButton, IDC_CancelButton}}};
  for (const auto& [form, shares, ids] : rows) {
    HWND window = form.PeerOf().Window;
    const Edges whole = EdgesOf(window);
    const auto resize = [&](LONG growth) {
      SetWindowPos(window, nullptr, 0, 0, whole[2] - whole[0] + growth, whole[3] - whole[1] + growth,
                   SWP_NOMOVE | SWP_NOZORDER);
    };
    for (const int id : ids) {
      const Edges before = EdgesOf(form, id);
      resize(100);
      const Edges after = EdgesOf(form, id);
      for (std::size_t edge = 0; edge < 4; ++edge) EXPECT_EQ(after[edge] - before[edge], shares[edge]) << id;
      resize(-400);  // no form gets narrower than it was made, and only the main window lower
      const Edges least = EdgesOf(window);
      EXPECT_EQ(least[2] - least[0], whole[2] - whole[0]);
      EXPECT_EQ(least[3] - least[1] < whole[3] - whole[1], &form == &main_form);
      resize(0);
      EXPECT_EQ(EdgesOf(form, id), before) << id;
    }
  }
}

TEST_F(ScreenTest, CategoriesComeUpBelowTheFilterThatWasClicked) {
  MainForm form("");
  form.Show();
  const Edges label = EdgesOf(form, IDC_CategoryFilterLabel);
  user.UsesForm(IDD_CatPickForm, [&] {
    const Edges picker = EdgesOf(TopmostForm()->PeerOf().Window);
    EXPECT_EQ(std::make_pair(picker[0], picker[1]), std::make_pair(label[0], label[3]));
    EXPECT_FALSE(IsWindowEnabled(form.PeerOf().Window));
    user.Clicks(IDC_CancelButton);
  });
  user.Clicks(IDC_CategoryFilterLabel);
  EXPECT_TRUE(IsWindowEnabled(form.PeerOf().Window));
}

}  // namespace

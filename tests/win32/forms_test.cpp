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

TEST_F(ScreenTest, ControlsFollowTheEdgesOfTheirForm) {
  MainForm main_form("");
  const ViewerForm viewer("");
  const ReportText text;
  const PreviewForm preview(text, "");
  main_form.Show();
  const struct {
    const Form& Parent;
    const char* Following;  // the edges that move with the form's right and lower ones
    std::vector<int> Ids;
  } rows[] = {
      {main_form, "l r ", {IDC_HelpButton, IDC_ExitButton, IDC_CategoryFilterLabel, IDC_PhotoPic, IDC_CatLabel}},
      {main_form, "  r ", {IDC_PersonCombo, IDC_HintLabel}},
      {main_form, "  rb", {IDC_NoteBox}},
      {main_form, " trb", {IDC_FatherCombo, IDC_MotherCombo}},
      {main_form, " t b", {IDC_FatherLabel, IDC_MotherLabel}},
      {main_form, "l rb", {IDC_CatList}},
      {main_form, "ltrb", {IDC_DefCatButton}},
      {viewer, "  rb", {IDC_ReportSurface}},
      {viewer, " trb", {IDC_FileLabel}},
      {viewer, "ltrb", {IDC_LinesLabel, IDC_ZoomLabel}},
      {preview, "  rb", {IDC_PreviewSurface}},
      {preview, "l r ", {IDC_PrintButton, IDC_CancelButton}}};
  constexpr LONG kGrowth = 40;
  for (const auto& [form, following, ids] : rows) {
    for (const int id : ids) {
      const auto resize = [window = form.PeerOf().Window](LONG growth) {
        const Edges edges = EdgesOf(window);
        SetWindowPos(window, nullptr, 0, 0, edges[2] - edges[0] + growth, edges[3] - edges[1] + growth,
                     SWP_NOMOVE | SWP_NOZORDER);
      };
      const Edges before = EdgesOf(form, id);
      resize(kGrowth);
      const Edges after = EdgesOf(form, id);
      std::string moved;
      for (std::size_t edge = 0; edge < 4; ++edge) moved += after[edge] == before[edge] + kGrowth ? "ltrb"[edge] : ' ';
      EXPECT_EQ(moved, following) << id;
      resize(-10 * kGrowth);  // no form gets smaller than it was made
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

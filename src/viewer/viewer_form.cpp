// The viewer's window: see viewer_form.h.
#include "viewer/viewer_form.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/clipboard.h"
#include "platform/registry.h"
#include "resource.h"
#include "shell/about_form.h"
#include "shell/file_names.h"
#include "shell/help.h"
#include "shell/messages.h"
#include "viewer/preview_form.h"
#include "viewer/print_report.h"
#include "viewer/viewer_ids.h"

namespace {

constexpr double kTextSize = 10;  // points, at 100 %
constexpr std::array<int, 13> kZoomLevels = {50, 60, 75, 90, 100, 110, 125, 150, 175, 200, 250, 300, 400};
constexpr std::size_t kNormalZoom = 4;

// What is remembered from one run to the next.
constexpr const char* kPlace = "ViewerForm";
constexpr const char* kZoom = "ViewerZoom";

std::size_t RememberedZoom() {
  const std::string percent = Remembered(kZoom);
  const auto* found =
      std::find_if(kZoomLevels.begin(), kZoomLevels.end(), [&](int level) { return std::to_string(level) == percent; });
  return found == kZoomLevels.end() ? kNormalZoom : static_cast<std::size_t>(found - kZoomLevels.begin());
}

}  // namespace

std::span<const Command<ViewerForm>> ViewerForm::Commands() {
  static constexpr Command<ViewerForm> kCommands[] = {
      {IDC_OpenItem, &ViewerForm::OpenButton, &ViewerForm::OpenItem_Click},
      {IDC_ReloadItem, nullptr, &ViewerForm::ReloadItem_Click, &ViewerForm::HasFile},
      {IDC_SaveTextItem, nullptr, &ViewerForm::SaveTextItem_Click, &ViewerForm::HasFile},
      {IDC_PreviewItem, &ViewerForm::PreviewButton, &ViewerForm::PreviewItem_Click, &ViewerForm::HasLines},
      {IDC_PrintItem, &ViewerForm::PrintButton, &ViewerForm::PrintItem_Click, &ViewerForm::HasLines},
      {IDC_ExitItem, nullptr, &ViewerForm::ExitItem_Click},
      {IDC_CopyItem, nullptr, &ViewerForm::CopyItem_Click, &ViewerForm::HasSelection},
      {IDC_SelectAllItem, nullptr, &ViewerForm::SelectAllItem_Click, &ViewerForm::HasLines},
      {IDC_FindItem, nullptr, &ViewerForm::FindItem_Click},
      {IDC_FindNextItem, &ViewerForm::FindNextButton, &ViewerForm::FindNextItem_Click},
      {IDC_FindPreviousItem, &ViewerForm::FindPreviousButton, &ViewerForm::FindPreviousItem_Click},
      {IDC_ZoomInItem, nullptr, &ViewerForm::ZoomInItem_Click},
      {IDC_ZoomOutItem, nullptr, &ViewerForm::ZoomOutItem_Click},
      {IDC_ZoomNormalItem, nullptr, &ViewerForm::ZoomNormalItem_Click},
      {IDC_ContentsItem, nullptr, &ViewerForm::ContentsItem_Click},
      {IDC_AboutItem, nullptr, &ViewerForm::AboutItem_Click},
  };
  return kCommands;
}

ViewerForm::ViewerForm(const std::string& command_line)
    : Form(IDD_ViewerForm), file_(Global::FullFileName("", FileNameIn(command_line))), zoom_(kNormalZoom) {
  FindBox.Change = [this] { FindBox_Change(); };
  ReportSurface.Resize = [this] { ReportSurface_Resize(); };
  ReportSurface.Scroll = [this](Surface::Bar bar, int position) { ReportSurface_Scroll(bar, position); };
  ReportSurface.Wheel = [this](const WheelTurn& turn) { ReportSurface_Wheel(turn); };
  ReportSurface.KeyDown = [this](const KeyPress& key) {
    view_.Press(key);
    Refresh();
  };
  ReportSurface.Mouse = [this](const MousePress& press) {
    view_.Press(press);
    Refresh();
  };
  ReportSurface.CopyKey = [this] { CopyItem_Click(); };
  ReportSurface.SelectAllKey = [this] { SelectAllItem_Click(); };
  KeyDown = [this](Key key) { return FindBox_KeyDown(key); };
  EnterKey = [this] { FindNextItem_Click(); };
  EscapeKey = [this] { EscapeKey_Pressed(); };
  HelpKey = [this] { ContentsItem_Click(); };
  Anchor(ReportSurface, {0, 0, 100, 100});
  Anchor(FileLabel, {0, 100, 100, 100});
  Anchor(LinesLabel, {100, 100, 100, 100});
  Anchor(ZoomLabel, {100, 100, 100, 100});
}

void ViewerForm::Form_Load() {
  SetPlace(Remembered(kPlace));
  ReportSurface.SetFocus();
  SetZoom(RememberedZoom());
}

void ViewerForm::Form_Unload() {
  Remember(kPlace, Place());
  Remember(kZoom, std::to_string(kZoomLevels[zoom_]));
}

void ViewerForm::Start() {
  const std::string name = std::exchange(file_, {});
  Show();
  if (name.empty()) {
    OpenItem_Click();
  } else {
    Load(name, false);
  }
}

void ViewerForm::Run() {
  Global::RunForm(*this, [this] { Start(); });
}

void ViewerForm::ReportSurface_Resize() {
  view_.Resize(ReportSurface.Columns(), ReportSurface.Rows());
  Refresh();
}

void ViewerForm::ReportSurface_Scroll(Surface::Bar bar, int position) {
  view_.ScrollTo(bar, position);
  Refresh();
}

void ViewerForm::ReportSurface_Wheel(const WheelTurn& turn) {
  if (turn.Control) return Zoom(turn.Cells > 0 ? -1 : 1);
  view_.ScrollBy(turn.Across ? Surface::Bar::Across : Surface::Bar::Down, turn.Cells);
  Refresh();
}

// While typing what to find, the keys that the box has no use for scroll the report.
bool ViewerForm::FindBox_KeyDown(Key key) {
  const bool scrolls = key == Key::Up || key == Key::Down || key == Key::PageUp || key == Key::PageDown;
  if (!FindBox.HasFocus() || !scrolls) return false;
  view_.Press(KeyPress{key});
  Refresh();
  return true;
}

void ViewerForm::EscapeKey_Pressed() {
  if (FindBox.HasFocus()) {
    ReportSurface.SetFocus();
    return;
  }
  view_.SelectNone();
  FindBox.SetText("");
  Refresh();
}

void ViewerForm::CopyItem_Click() {
  if (!view_.HasSelection()) return;
  try {
    SetClipboardText(view_.SelectedText());
  } catch (const RuntimeError& error) {
    Global::Say("Failed to copy" + Global::DueToError(error), Icon::Exclamation);
  }
}

void ViewerForm::SelectAllItem_Click() {
  view_.SelectAll();
  Refresh();
}

void ViewerForm::ZoomNormalItem_Click() { SetZoom(kNormalZoom); }

void ViewerForm::Zoom(int steps) {
  const int level = static_cast<int>(zoom_) + steps;
  SetZoom(static_cast<std::size_t>(std::clamp(level, 0, static_cast<int>(kZoomLevels.size()) - 1)));
}

void ViewerForm::SetZoom(std::size_t level) {
  zoom_ = level;
  ReportSurface.SetTextSize(kTextSize * kZoomLevels[level] / 100);
  ReportSurface_Resize();
}

void ViewerForm::PrintItem_Click() { PrintReport(view_.Text(), FileTitle()); }

void ViewerForm::PreviewItem_Click() { PreviewForm(view_.Text(), FileTitle()).ShowModal(); }

void ViewerForm::ContentsItem_Click() { Global::ShowHelpPage(HelpPages::kViewer); }

void ViewerForm::AboutItem_Click() {
  AboutForm("Shows, searches and prints the reports of Larkspur Filer.", HelpPages::kViewer).ShowModal();
}

void ViewerForm::Refresh() {
  ShowReport();
  ShowStatus();
  commands_.Refresh();
}

void ViewerForm::ShowReport() {
  ReportSurface.Show(HasLines() ? view_.BuildPage() : Notice());
  const ReportView::Extent across = view_.Across();
  const ReportView::Extent down = view_.Down();
  ReportSurface.SetScroll(Surface::Bar::Across, across.Range, across.Shown, across.Position);
  ReportSurface.SetScroll(Surface::Bar::Down, down.Range, down.Shown, down.Position);
}

void ViewerForm::ShowStatus() {
  SetCaption(HasFile() ? FileTitle() + " - Larkspur Report Viewer" : "Larkspur Report Viewer");
  FileLabel.SetText(file_);
  const Index count = view_.Text().Count();
  const std::string lines = std::to_string(count) + (count == 1 ? " line" : " lines");
  const bool is_plain = HasLines() && !view_.Text().Header().IsReport;
  LinesLabel.SetText(!HasFile() ? "" : is_plain ? "Plain text, " + lines : lines);
  ZoomLabel.SetText(std::to_string(kZoomLevels[zoom_]) + " %");
  HitLabel.SetText(FoundText());
}

// What stands in the window when there is nothing to read.
Page ViewerForm::Notice() const {
  const std::string text = HasFile() ? "This report is empty: there was nothing to write into it."
                                     : "No report is open. Choose Open in the File menu to read one.";
  Page page;
  page.Runs.push_back({{2, 1}, text});
  return page;
}

std::string ViewerForm::FileTitle() const { return NameWithoutFolder(file_); }

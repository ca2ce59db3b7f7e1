// ViewerForm: the window of the report viewer. Hands what the user does to the report's view and draws what that
// shows. Its members stand in viewer_form.cpp, those for files and finding in viewer_form_file.cpp.
#pragma once

#include <span>
#include <string>

#include "platform/controls.h"
#include "platform/form.h"
#include "platform/surface.h"
#include "resource.h"
#include "shell/commands.h"
#include "viewer/report_view.h"
#include "viewer/viewer_ids.h"

class ViewerForm : public Form {
 public:
  // The command line is a file name, perhaps in quotation marks; without one the user is asked.
  explicit ViewerForm(const std::string& command_line);

  // Shows the window, then opens the file.
  void Start();

  // Starts, and runs until the window is closed.
  void Run();

 private:
  Button OpenButton{*this, IDC_OpenButton};
  Button PrintButton{*this, IDC_PrintButton};
  Button PreviewButton{*this, IDC_PreviewButton};
  Label FindLabel{*this, IDC_FindLabel};
  TextBox FindBox{*this, IDC_FindBox};
  Button FindNextButton{*this, IDC_FindNextButton};
  Button FindPreviousButton{*this, IDC_FindPreviousButton};
  Label HitLabel{*this, IDC_HitLabel};
  Surface ReportSurface{*this, IDC_ReportSurface};
  Label FileLabel{*this, IDC_FileLabel};
  Label LinesLabel{*this, IDC_LinesLabel};
  Label ZoomLabel{*this, IDC_ZoomLabel};

  void Form_Load() override;
  void Form_Unload() override;
  void ReportSurface_Resize();
  void ReportSurface_Scroll(Surface::Bar bar, int position);
  void ReportSurface_Wheel(const WheelTurn& turn);
  bool FindBox_KeyDown(Key key);
  void EscapeKey_Pressed();

  static std::span<const Command<ViewerForm>> Commands();
  void CopyItem_Click();
  void SelectAllItem_Click();
  void ZoomInItem_Click() { Zoom(1); }
  void ZoomOutItem_Click() { Zoom(-1); }
  void ZoomNormalItem_Click();
  void PrintItem_Click();
  void PreviewItem_Click();
  void ExitItem_Click() { Close(); }
  void ContentsItem_Click();
  void AboutItem_Click();
  bool HasFile() const { return !file_.empty(); }
  bool HasLines() const { return view_.Text().Count() > 0; }
  bool HasSelection() const { return view_.HasSelection(); }

  // viewer_form_file.cpp
  void OpenItem_Click();
  void ReloadItem_Click();
  void SaveTextItem_Click();
  void FindBox_Change();
  void FindItem_Click();
  void FindNextItem_Click() { Find(&ReportView::FindNext); }
  void FindPreviousItem_Click() { Find(&ReportView::FindPrevious); }
  void Load(const std::string& name, bool keep_place);
  void Find(void (ReportView::*step)());
  std::string FoundText() const;

  void Zoom(int steps);
  void SetZoom(std::size_t level);
  void Refresh();
  void ShowReport();
  void ShowStatus();
  Page Notice() const;
  std::string FileTitle() const;

  std::string file_;  // its full name; empty when none is open
  ReportView view_;
  std::size_t zoom_;
  CommandTable<ViewerForm> commands_{*this, Commands()};
};

// The file name that a command line gives: what stands in its quotation marks, if it has any.
std::string FileNameIn(const std::string& command_line);

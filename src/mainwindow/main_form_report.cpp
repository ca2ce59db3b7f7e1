// MainForm's Report menu: setting a report up, writing it, and handing it to the viewer.
#include "document/document.h"
#include "mainwindow/main_form.h"
#include "platform/process.h"
#include "platform/program.h"
#include "platform/runtime_error.h"
#include "platform/text.h"
#include "reports/hierarchy_report.h"
#include "reports/item_list_report.h"
#include "reports/item_values_report.h"
#include "reports/print_file.h"
#include "reports/report_form.h"
#include "shell/messages.h"
#include "values/numbers.h"

namespace {

void SayNothingToReport() { Global::Say("I have nothing to report!", Icon::Exclamation); }

}  // namespace

void MainForm::AddressRepItem_Click() {
  MakeReport(kReportCategories, [](const ReportRequest& request) { WriteItemListReport(request.CategoryMask); });
}

void MainForm::ItemValuesItem_Click() {
  if (TheDocument.Fields.Count() == 0) {
    SayNothingToReport();
    return;
  }
  MakeReport(kReportCategories | kNumericFields,
             [](const ReportRequest& request) { WriteItemValuesReport(request.CategoryMask, request.Fields); });
}

void MainForm::DescendantItem_Click() {
  MakeReport(kTopOfHierarchy, [](const ReportRequest& request) { WriteHierarchyReport(request.TopThing); });
}

void MainForm::MakeReport(int parts, void (*write)(const ReportRequest& request)) {
  if (TheDocument.Things.Count() == 0) {
    SayNothingToReport();
    return;
  }
  StoreEdits();
  ReportRequest request;
  request.SelectionMask = parts;
  ReportForm(request).ShowModal();
  if (!request.Accepted) return;
  if (WritePrintFile([&] { write(request); })) ShowReport(request.PrintFileName);
}

void MainForm::ShowReport(std::string& print_file_name) {
  if (print_file_name.find(' ') != std::string::npos) print_file_name = '"' + print_file_name + '"';
  long task = 0;
  try {
    task = StartProgram(ProgramFolder() + "\\LARKVIEW.EXE " + print_file_name);
  } catch (const RuntimeError& error) {
    Global::Say("Sorry, I failed to start the LARKVIEW.EXE program that is provided with Larkspur due to error" +
                    SignedText(error.Number) + ": " + error.Description,
                Icon::Critical);
    return;
  }
  if (task != 0) return;
  Global::Say(
      "Sorry, I failed to start the LARKVIEW.EXE program that is provided with Larkspur.  The file has been saved.  If "
      "you can find LARKVIEW.EXE on your computer you may use it to view the file.",
      Icon::Critical);
}

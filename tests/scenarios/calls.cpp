// What code does in stories, "call NAME ARGUMENTS":
//
//   MakeNew, ReleaseFileLock, Current RECORD, Full (of things), NoFields
//   OpenPrintFile NAME         tells the name under which the print file was opened
//   FileForm MODE FOLDER NAME  read or write; "-" for no folder; tells the name chosen
//   DatePickForm YEAR MONTH DAY
//   RunFailing                 runs a form whose start fails
#include <functional>
#include <sstream>
#include <stdexcept>

#include "document/document.h"
#include "document/file_lock.h"
#include "mainwindow/command_line.h"
#include "platform/file_handles.h"
#include "platform/files.h"
#include "reports/open_print_file.h"
#include "scenarios/story.h"
#include "shell/about_form.h"
#include "shell/date_pick_form.h"
#include "shell/file_form.h"
#include "shell/messages.h"

namespace {

using Called = std::function<void(Story& story, const std::string& with)>;

void FillDocument(Story&, const std::string&) {
  TheDocument.Things.GrowFor(32767, 0);
  TheDocument.Things.SetCount(32767);
}

void OpenPrint(Story& story, const std::string& with) {
  const std::string name = Global::OpenPrintFile(Global::kPrintFileName, Story::Unquoted(with));
  story.Say(Files::IsOpen(kPrintFileHandle) ? "opened " + name : "nothing opened " + name);
  Files::Close(kPrintFileHandle);
}

void AskName(Story& story, const std::string& with) {
  std::istringstream in(with);
  std::string mode;
  FileRequest request;
  request.Pattern = "*.FIL";
  in >> mode >> request.Folder >> std::ws;
  std::getline(in, request.Name);
  if (mode == "write") request.Mode = FileRequest::Kind::Write;
  if (request.Folder == "-") request.Folder.clear();
  FileForm(request).ShowModal();
  story.Say("chosen \"" + request.Name + "\"" + (request.OverwriteConfirmed ? ", to be overwritten" : ""));
}

void PickDate(Story& story, const std::string& with) {
  std::istringstream in(with);
  int year = 0;
  unsigned month = 0, day = 0;
  in >> year >> month >> day;
  DatePickForm form(CalendarDate{std::chrono::year{year}, std::chrono::month{month}, std::chrono::day{day}});
  form.ShowModal();
  if (!form.Picked) return story.Say("nothing picked");
  const auto number = [](auto part) { return std::to_string(static_cast<unsigned>(part)); };
  story.Say("picked " + std::to_string(static_cast<int>(form.Picked->year())) + "-" + number(form.Picked->month()) +
            "-" + number(form.Picked->day()));
}

void RunFailing(Story&, const std::string&) {
  AboutForm about("A form to run.", "");
  Global::RunForm(about, [&about] {
    about.Show();
    throw std::runtime_error("no luck");
  });
}

void Call(const Story::Said& said) {
  static const std::map<std::string, Called> kCalls = {
      {"MakeNew", [](Story&, const std::string&) { MakeNew(); }},
      {"ReleaseFileLock", [](Story&, const std::string&) { ReleaseFileLock(); }},
      {"Current", [](Story&, const std::string& with) { TheDocument.CurrentThing = std::stoi(with); }},
      {"Full", FillDocument},
      {"NoFields", [](Story&, const std::string&) { TheDocument.Fields.SetCount(0); }},
      {"OpenPrintFile", OpenPrint},
      {"FileForm", AskName},
      {"DatePickForm", PickDate},
      {"RunFailing", RunFailing},
  };
  const std::size_t end = std::min(said.Rest.find(' '), said.Rest.size());
  const auto call = kCalls.find(said.Rest.substr(0, end));
  if (call == kCalls.end()) return said.Teller.Fail("Nothing is called so");
  call->second(said.Teller, said.Rest.substr(std::min(end + 1, said.Rest.size())));
}

}  // namespace

std::map<std::string, Story::Verb> CallVerbs() { return {{"call", {0, Call}}}; }

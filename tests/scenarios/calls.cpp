// What code does in stories: "call NAME ARGUMENTS" calls what forms and commands call themselves.
#include <functional>

#include "document/document.h"
#include "document/fact_form.h"
#include "document/file_lock.h"
#include "document/reader.h"
#include "document/save.h"
#include "mainwindow/command_line.h"
#include "mainwindow/main_form.h"
#include "scenarios/story.h"

namespace {

void Load(const std::string& name) {
  MakeNew();
  if (LoadFilerFile(InFolder(name))) TheDocument.FileName = TheDocument.ShownFileName = InFolder(name);
}

void Call(Story& story, const std::string& rest) {
  const std::size_t end = std::min(rest.find(' '), rest.size());
  const std::string name = rest.substr(0, end);
  const std::string with = end < rest.size() ? Story::Unquoted(rest.substr(end + 1)) : "";
  const std::map<std::string, std::function<void()>> calls = {
      {"MakeNew", [] { MakeNew(); }},
      {"Load", [&] { Load(with); }},
      {"SaveDocument", [] { SaveDocument(); }},
      {"ReleaseFileLock", [] { ReleaseFileLock(); }},
      {"FactForm", [] { FactForm().ShowModal(); }},
      {"Current", [&] { TheDocument.CurrentThing = std::stoi(with); }},
      {"WorkingFolder", [&] { TheStart.WorkingFolder = with; }},
      {"Full",
       [] {
         TheDocument.Things.SetCount(0);
         TheDocument.Things.GrowFor(32767, 0);
         TheDocument.Things.SetCount(32767);
       }},
  };
  if (!calls.contains(name)) return story.Fail("Nothing is called " + name);
  calls.at(name)();
}

}  // namespace

std::map<std::string, Story::Verb> CallVerbs() { return {{"call", Call}}; }

// Putting into words what became of the test's files and of the document: see recorder.h.
#include <algorithm>
#include <sstream>

#include "document/document.h"
#include "support/files.h"
#include "support/fresh_test.h"
#include "support/recorder.h"

void Recorder::LookAtFiles() {
  std::map<std::string, std::string> now;
  for (const std::string& folder : folders_) {
    for (const std::string& name : TestFiles::List(folder)) {
      const std::string path = folder.empty() ? name : folder + "\\" + name;
      const auto bytes = TestFiles::Get(path);
      now[path] = bytes ? *bytes : files_[path];  // one that nobody can read did not change
    }
  }
  for (const auto& [name, bytes] : now) {
    const auto old = files_.find(name);
    if (old != files_.end() && old->second == bytes) continue;
    const std::string& same = bytes;
    const auto copied =
        std::find_if(files_.begin(), files_.end(), [&](const auto& each) { return each.second == same; });
    say_("file " + name + (old == files_.end() ? " came" : " written") +
         (copied == files_.end() ? "" : ", what " + copied->first + " was"));
  }
  for (const auto& [name, bytes] : files_) {
    if (!now.contains(name)) say_("file " + name + " is gone");
  }
  files_ = std::move(now);
}

void Recorder::LookAtDocument() {
  const Document& document = TheDocument;
  std::string first = "document current " + std::to_string(document.CurrentThing);
  for (const auto& [holds, word] :
       {std::pair(document.Modified, " modified"), std::pair(!document.Writable, " read-only"),
        std::pair(document.LockHeld, " locked"), std::pair(document.PendingEdits, " pending"),
        std::pair(document.DocumentOpen, " open")}) {
    if (holds) first += word;
  }
  first += " <" + document.FileName + ">";
  if (document.ShownFileName != document.FileName) first += " shown <" + document.ShownFileName + ">";
  std::map<std::string, std::string> now;  // "thing 2" and the line
  std::istringstream lines(first + "\n" + DescribeDocument());
  for (std::string line; std::getline(lines, line);) {
    const std::string key = line.substr(0, line.find(' ', line.find(' ') + 1));
    if (key == line) continue;  // an unused category
    now[key] = line;
    if (document_[key] != line) say_(line);
  }
  std::string gone;
  for (const auto& [key, line] : document_) {
    if (!now.contains(key) && !line.empty()) gone += (gone.empty() ? "no " : ", ") + key;
  }
  if (!gone.empty()) say_(gone);
  document_ = std::move(now);
}

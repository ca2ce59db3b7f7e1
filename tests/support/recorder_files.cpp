// Putting into words what became of the test's files and of the document: see recorder.h.
#include <algorithm>
#include <sstream>

#include "platform/file_handles.h"
#include "platform/files.h"
#include "platform/runtime_error.h"
#include "support/files.h"
#include "support/properties.h"
#include "support/recorder.h"

namespace {

bool IsLocked(const std::string& name) {
  try {
    Files::Open(kProbeHandle, name, Files::Mode::Lock);
    Files::Close(kProbeHandle);
    return false;
  } catch (const RuntimeError& error) {
    return error.Number == kPermissionDenied;
  }
}

}  // namespace

void Recorder::LookAtFiles() {
  std::map<std::string, std::string> now;
  for (const std::string& folder : folders_) {
    for (const std::string& name : TestFiles::List(folder)) {
      const std::string path = folder.empty() ? name : folder + "\\" + name;
      const auto bytes = TestFiles::Get(path);
      now[path] = bytes ? *bytes : files_[path];  // one that nobody can read did not change
    }
  }
  for (const auto& file : now) {
    const auto old = files_.find(file.first);
    if (old != files_.end() && old->second == file.second) continue;
    const auto copied =
        std::find_if(files_.begin(), files_.end(), [&](const auto& each) { return each.second == file.second; });
    const auto lines = std::count(file.second.begin(), file.second.end(), '\n');
    Note("file " + file.first + (old == files_.end() ? " came, " : " written, ") +
         (copied == files_.end() ? std::to_string(lines) + " lines" : "what " + copied->first + " was"));
  }
  for (const auto& [name, bytes] : files_) {
    if (!now.contains(name)) Note("file " + name + " is gone");
  }
  files_ = std::move(now);
}

// Which files nobody else can write now.
void Recorder::LookAtLocks() {
  std::set<std::string> now;
  for (const auto& [name, bytes] : files_) {
    if (IsLocked(name)) now.insert(name);
    if (now.contains(name) != locks_.contains(name)) Note(name + (now.contains(name) ? " locked" : " free"));
  }
  locks_ = now;
}

void Recorder::LookAtDocument() {
  std::map<std::string, std::string> now;  // "thing 2" and the line
  std::istringstream lines(DescribeDocument());
  for (std::string line; std::getline(lines, line);) {
    const std::string key = line.substr(0, line.find(' ', line.find(' ') + 1));
    if (key == line) continue;  // an unused category
    now[key] = line;
    if (document_[key] != line) Note(line);
  }
  std::string gone;
  for (const auto& [key, line] : document_) {
    if (!now.contains(key)) gone += (gone.empty() ? "no " : ", ") + key;
  }
  if (!gone.empty()) Note(gone);
  document_ = std::move(now);
}

// Putting into words what became of the test's files and of the document: see recorder.h.
#include <algorithm>

#include "contract/error_of.h"
#include "platform/file_handles.h"
#include "platform/files.h"
#include "support/files.h"
#include "support/properties.h"
#include "support/recorder.h"
#include "support/rows.h"

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
    const auto copied =
        std::find_if(files_.begin(), files_.end(), [&](const auto& each) { return each.second == bytes; });
    note_("file " + name + (old == files_.end() ? " came, " : " written, ") +
          (copied != files_.end() ? "what " + copied->first + " was"
                                  : std::to_string(std::count(bytes.begin(), bytes.end(), '\n')) + " lines"));
  }
  for (const auto& [name, bytes] : files_) {
    if (!now.contains(name)) note_("file " + name + " is gone");
  }
  files_ = std::move(now);
}

// Which files nobody else can write now.
void Recorder::LookAtLocks() {
  for (const auto& [name, bytes] : files_) {
    const bool locked =
        ErrorOf([&file = name] { Files::Open(kProbeHandle, file, Files::Mode::Lock); }) == kPermissionDenied;
    Files::Close(kProbeHandle);
    if (locked != locks_[name]) note_(name + (locked ? " locked" : " free"));
    locks_[name] = locked;
  }
}

void Recorder::LookAtDocument() {
  std::map<std::string, std::string> now;  // "thing 2" and the line
  for (const std::string& line : Parts(DescribeDocument(), "\n")) {
    const std::string key = line.substr(0, line.find(' ', line.find(' ') + 1));
    if (key == line) continue;  // an unused category
    now[key] = line;
    if (document_[key] != line) note_(line);
  }
  for (const auto& [key, line] : document_) {
    if (!now.contains(key)) note_("no " + key);
  }
  document_ = std::move(now);
}

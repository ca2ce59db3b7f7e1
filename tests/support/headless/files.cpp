// The files of a test on the in-memory machine.
#include "support/files.h"

#include "platform/files.h"
#include "platform/headless/machine.h"
#include "platform/program.h"

namespace {

const std::string kFolder = "C:\\TEST";
std::string former_folder;

}  // namespace

namespace TestFiles {

void Start() {
  former_folder = CurrentFolder();
  Machine::RemoveFolder(kFolder);
  Machine::MakeFolder(kFolder);
  Machine::SetCurrentFolder(kFolder);
  Machine::ClearFaults();
  Machine::RemoveRegistryKey(RegistryRoot::CurrentUser, kOwnKey);
}

void Finish() {
  Files::CloseAll();
  Machine::ReleaseByOther();
  Machine::ClearFaults();
  Machine::RemoveFolder(kFolder);
  Machine::SetCurrentFolder(former_folder);
}

std::string Folder() { return kFolder; }

void Put(const std::string& name, std::string_view bytes) { Machine::PutFile(name, bytes); }
std::optional<std::string> Get(const std::string& name) { return Machine::FileBytes(name); }
void SetReadOnly(const std::string& name, bool read_only) { Machine::SetReadOnly(name, read_only); }
void MakeFolder(const std::string& name) { Machine::MakeFolder(name); }
std::vector<std::string> List(const std::string& below) {
  return Machine::FilesIn(below.empty() ? kFolder : kFolder + "\\" + below);
}

void HoldByOther(const std::string& name, bool against_readers) { Machine::HoldByOther(name, against_readers); }
void ReleaseByOther() { Machine::ReleaseByOther(); }

}  // namespace TestFiles

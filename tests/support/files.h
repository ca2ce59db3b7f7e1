// The files of one test: an empty folder that is the current folder meanwhile, in memory or on the disk.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace TestFiles {

void Start();          // makes the empty folder and moves into it; what the programs remember is forgotten
void Finish();         // closes every handle and removes the folder
std::string Folder();  // its full name, without a trailing "\"

// Names are relative to the folder or full.
void Put(const std::string& name, std::string_view bytes);
std::optional<std::string> Get(const std::string& name);  // nothing when there is no such file
void SetReadOnly(const std::string& name, bool read_only);
void MakeFolder(const std::string& name);
// Names of the files in the folder, or in one below it, sorted.
std::vector<std::string> List(const std::string& below = "");

// Another program's handle on a file, until released: one that keeps others from writing (the lock a
// second running copy holds), or from everything.
void HoldByOther(const std::string& name, bool against_readers);
void ReleaseByOther();

}  // namespace TestFiles

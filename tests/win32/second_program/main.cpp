// A second running copy of the program for the tests of the lock: does with a data file what it is told to
// on its input, a line a command, and answers each with a line. Started with arguments, it writes these into
// STARTED.TXT instead.
//   open FILE   loads the file as the program does
//   race FILE   reads the file and then takes its lock, saying nothing when another has it
//   close       gives the file up
#include <iostream>
#include <string>

#include "document/document.h"
#include "document/file_handles.h"
#include "document/reader.h"
#include "platform/files.h"
#include "platform/program.h"
#include "platform/runtime_error.h"

namespace {

std::string Open(const std::string& name) {
  if (!LoadFilerFile(name)) return "failed";
  return TheDocument.LockHeld ? "writer" : "reader";
}

// What opening does to the file, without the message box that nobody would answer.
std::string Race(const std::string& name) {
  Files::Open(kDataFileHandle, name, Files::Mode::Input);
  Files::ReadLine(kDataFileHandle);
  Files::Close(kDataFileHandle);
  try {
    Files::Open(kLockHandle, name, Files::Mode::Lock);
    TheDocument.LockHeld = true;
    return "writer";
  } catch (const RuntimeError& error) {
    return error.Number == kPermissionDenied ? "reader" : "failed";
  }
}

std::string Obey(const std::string& line) {
  const auto blank = line.find(' ');
  const std::string name = blank == std::string::npos ? "" : line.substr(blank + 1);
  MakeNew();
  if (line.starts_with("open ")) return Open(name);
  if (line.starts_with("race ")) return Race(name);
  return "closed";
}

void WriteDown(const std::string& arguments) {
  Files::Open(kDataFileHandle, "STARTED.NEW", Files::Mode::Output);
  Files::Write(kDataFileHandle, arguments);
  Files::Close(kDataFileHandle);
  Files::Rename("STARTED.NEW", "STARTED.TXT");  // whoever sees it sees all of it
}

}  // namespace

int main() {
  if (const std::string arguments = CommandLineText(); !arguments.empty()) {
    WriteDown(arguments);
    return 0;
  }
  std::string line;
  while (std::getline(std::cin, line)) {
    try {
      std::cout << Obey(line) << std::endl;
    } catch (const RuntimeError& error) {
      std::cout << "error " << error.Description << std::endl;
    }
  }
}

// Starting a second copy of the program and talking to it through pipes.
#include "support/win32/second_program.h"

#include <windows.h>

#include <stdexcept>

#include "platform/program.h"

namespace {

constexpr ULONGLONG kPatience = 30000;  // milliseconds

void Require(bool done, const std::string& what) {
  if (!done) throw std::runtime_error("second program: " + what + ", code " + std::to_string(GetLastError()));
}

struct Pipe {
  HANDLE Read = nullptr;
  HANDLE Write = nullptr;
  Pipe() {
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    Require(CreatePipe(&Read, &Write, &inherited, 0), "make a pipe");
  }
  ~Pipe() {
    CloseHandle(Read);
    CloseHandle(Write);
  }
  Pipe(const Pipe&) = delete;
  Pipe& operator=(const Pipe&) = delete;
};

}  // namespace

struct SecondProgram::Peer {
  Pipe Commands;
  Pipe Answers;
  HANDLE Process = nullptr;
};

SecondProgram::SecondProgram() : peer_(std::make_unique<Peer>()) {
  // Our own ends are not for the other side, nor for another second program.
  SetHandleInformation(peer_->Commands.Write, HANDLE_FLAG_INHERIT, 0);
  SetHandleInformation(peer_->Answers.Read, HANDLE_FLAG_INHERIT, 0);
  STARTUPINFOA start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdInput = peer_->Commands.Read;
  start.hStdOutput = peer_->Answers.Write;
  start.hStdError = GetStdHandle(STD_ERROR_HANDLE);
  std::string command = "\"" + ProgramFolder() + "\\second_program.exe\"";
  PROCESS_INFORMATION made{};
  Require(CreateProcessA(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &made),
          "start " + command);
  CloseHandle(made.hThread);
  peer_->Process = made.hProcess;
}

SecondProgram::~SecondProgram() {
  Kill();
  CloseHandle(peer_->Process);
}

void SecondProgram::Tell(const std::string& command) {
  const std::string line = command + "\n";
  DWORD count = 0;
  Require(WriteFile(peer_->Commands.Write, line.data(), static_cast<DWORD>(line.size()), &count, nullptr),
          "tell \"" + command + "\"");
}

std::string SecondProgram::Hear() {
  std::string line;
  const ULONGLONG start = GetTickCount64();
  while (!line.ends_with('\n')) {
    DWORD waiting = 0;
    Require(PeekNamedPipe(peer_->Answers.Read, nullptr, 0, nullptr, &waiting, nullptr), "listen");
    if (waiting == 0) {
      if (GetTickCount64() - start > kPatience) return "no answer";
      Sleep(1);
      continue;
    }
    char character = 0;
    DWORD count = 0;
    Require(ReadFile(peer_->Answers.Read, &character, 1, &count, nullptr), "hear");
    if (character != '\r') line += character;
  }
  line.pop_back();
  return line;
}

void SecondProgram::Kill() {
  TerminateProcess(peer_->Process, 1);
  WaitForSingleObject(peer_->Process, static_cast<DWORD>(kPatience));
}

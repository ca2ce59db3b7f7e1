// A second copy of the program, running beside the test: see tests/win32/second_program.
#pragma once

#include <memory>
#include <string>

class SecondProgram {
 public:
  SecondProgram();   // starts it
  ~SecondProgram();  // kills it when it still runs
  SecondProgram(const SecondProgram&) = delete;
  SecondProgram& operator=(const SecondProgram&) = delete;

  void Tell(const std::string& command);  // returns at once
  std::string Hear();                     // the answer to a command; "no answer" after half a minute
  std::string Do(const std::string& command) {
    Tell(command);
    return Hear();
  }
  void Kill();  // at once, as by the system; returns when it is gone

 private:
  struct Peer;
  std::unique_ptr<Peer> peer_;
};

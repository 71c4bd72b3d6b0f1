#pragma once

#include <sys/types.h>

#include <csignal>
#include <string>
#include <vector>

namespace support {

// A program that runs beside the test: its output is read, signals and answers are sent to it.
// Ended and reaped with the object.
class ChildProgram {
 public:
  // Standard output and standard error in pipes, or both on one terminal.
  enum class Streams { Pipes, Terminal };

  ChildProgram(const std::vector<std::string>& arguments, Streams streams);
  ~ChildProgram();
  ChildProgram(const ChildProgram&) = delete;
  ChildProgram& operator=(const ChildProgram&) = delete;

  // Reads until the text has come on standard error (or the terminal); false at its end.
  bool WaitFor(const std::string& text);
  void Interrupt() { Signal(SIGINT); }
  void Signal(int signal);
  // Types a line on the terminal.
  void Type(const std::string& line);
  // Reads the rest and waits for the end: the exit code, or minus the number of the signal.
  int Finish();

  const std::string& Out() const { return out_; }
  // Of a terminal: everything.
  const std::string& Error() const { return error_; }

 private:
  void StartOnPipes(std::vector<char*>& arguments);
  void StartOnTerminal(std::vector<char*>& arguments);
  // False when both are at their end; a program that says nothing for long is ended.
  bool ReadSome();

  pid_t process_ = 0;
  int outEnd_ = -1;
  int errorEnd_ = -1;
  std::string out_;
  std::string error_;
};

}  // namespace support

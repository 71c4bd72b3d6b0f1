#include "support/ChildProgram.h"

#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>

namespace support {

namespace {

// The same language and number format on every machine.
[[noreturn]] void Execute(std::vector<char*>& arguments) {
  setenv("LC_ALL", "C", 1);
  execv(arguments[0], arguments.data());
  _exit(127);
}

// Appends what there is; closes the file at its end.
void ReadFrom(int& file, std::string& text) {
  char buffer[4096];
  const ssize_t count = read(file, buffer, sizeof buffer);
  if (count < 0 && errno == EINTR) return;
  if (count > 0) {
    text.append(buffer, static_cast<std::size_t>(count));
    return;
  }
  close(file);
  file = -1;
}

}  // namespace

ChildProgram::ChildProgram(const std::vector<std::string>& arguments, Streams streams) {
  std::vector<std::string> texts = arguments;
  std::vector<char*> pointers;
  for (std::string& text : texts) pointers.push_back(text.data());
  pointers.push_back(nullptr);
  if (streams == Streams::Pipes)
    StartOnPipes(pointers);
  else
    StartOnTerminal(pointers);
}

void ChildProgram::StartOnPipes(std::vector<char*>& arguments) {
  int out[2];
  int error[2];
  if (pipe2(out, O_CLOEXEC) != 0 || pipe2(error, O_CLOEXEC) != 0) std::abort();
  process_ = fork();
  if (process_ == 0) {
    dup2(open("/dev/null", O_RDONLY), STDIN_FILENO);
    dup2(out[1], STDOUT_FILENO);
    dup2(error[1], STDERR_FILENO);
    Execute(arguments);
  }
  close(out[1]);
  close(error[1]);
  outEnd_ = out[0];
  errorEnd_ = error[0];
}

void ChildProgram::StartOnTerminal(std::vector<char*>& arguments) {
  process_ = forkpty(&errorEnd_, nullptr, nullptr, nullptr);
  if (process_ == 0) Execute(arguments);
}

ChildProgram::~ChildProgram() {
  if (process_ > 0) {
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
  }
  if (outEnd_ >= 0) close(outEnd_);
  if (errorEnd_ >= 0) close(errorEnd_);
}

bool ChildProgram::ReadSome() {
  constexpr int kPatience = 20000;  // milliseconds
  pollfd ends[] = {{outEnd_, POLLIN, 0}, {errorEnd_, POLLIN, 0}};
  if (outEnd_ < 0 && errorEnd_ < 0) return false;
  if (poll(ends, 2, kPatience) == 0) {
    kill(process_, SIGKILL);
    return false;
  }
  if (ends[0].revents != 0) ReadFrom(outEnd_, out_);
  if (ends[1].revents != 0) ReadFrom(errorEnd_, error_);
  return true;
}

bool ChildProgram::WaitFor(const std::string& text) {
  while (error_.find(text) == std::string::npos) {
    if (!ReadSome()) return false;
  }
  return true;
}

void ChildProgram::Signal(int signal) {
  kill(process_, signal);
}

void ChildProgram::Type(const std::string& line) {
  const std::string text = line + "\n";
  if (write(errorEnd_, text.data(), text.size()) < 0) std::abort();
}

int ChildProgram::Finish() {
  while (ReadSome()) {
  }
  int status = 0;
  waitpid(process_, &status, 0);
  process_ = 0;
  return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

}  // namespace support

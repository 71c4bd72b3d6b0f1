#include "hartframe/PluginProbe.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <string>

#include "hartframe/ExitCode.h"
#include "hartframe/Speech.h"
#include "platform/Platform.h"

namespace hartframe {

namespace {

namespace fs = std::filesystem;

constexpr int kTimeLimitMilliseconds = 20'000;
constexpr std::size_t kMostOutput = 2000;

[[noreturn]] void Refuse(const fs::path& file, const std::string& reason) {
  throw CommandFailure(ExitCode::DtmNotLoadable,
                       "The plug-in \"" + file.string() + "\" cannot be loaded: " + reason);
}

// The file of the running program, which a tool that runs it in its place knows, too; the system's
// own name for it when somebody has replaced the file meanwhile.
std::string ThisProgram() {
  constexpr const char* kSelf = "/proc/self/exe";
  std::error_code error;
  const fs::path program = fs::read_symlink(kSelf, error);
  return !error && fs::exists(program, error) ? program.string() : kSelf;
}

// A child process whose standard error is read here. Ended, if need be, and reaped with its scope.
class Child {
 public:
  explicit Child(const fs::path& plugin) {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) Refuse(plugin, std::strerror(errno));
    output_ = ends[0];
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDERR_FILENO);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    std::string program = ThisProgram();
    std::string command = "probe-plugin";
    std::string file = plugin.string();
    char* arguments[] = {program.data(), command.data(), file.data(), nullptr};
    const int error =
        posix_spawn(&process_, program.c_str(), &actions, nullptr, arguments, environ);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    if (error != 0) {
      close(output_);
      Refuse(plugin, std::strerror(error));
    }
  }
  ~Child() {
    close(output_);
    if (process_ > 0) {
      kill(process_, SIGKILL);
      Wait();
    }
  }
  Child(const Child&) = delete;
  Child& operator=(const Child&) = delete;

  // What it writes until it ends; false when it does not end in time.
  bool ReadOutput(std::string& text) {
    platform::Clock& clock = platform::Current().GetClock();
    const auto end = clock.Now() + platform::Milliseconds(kTimeLimitMilliseconds);
    while (true) {
      pollfd ready{output_, POLLIN, 0};
      const auto left = (end - clock.Now()).count();
      if (left <= 0 || poll(&ready, 1, static_cast<int>(left)) == 0) return false;
      std::array<char, 512> buffer;
      const ssize_t count = read(output_, buffer.data(), buffer.size());
      if (count < 0 && errno == EINTR) continue;
      if (count <= 0) return true;
      if (text.size() < kMostOutput) text.append(buffer.data(), static_cast<std::size_t>(count));
    }
  }

  int Wait() {
    int status = 0;
    while (waitpid(process_, &status, 0) < 0 && errno == EINTR) {
    }
    process_ = 0;
    return status;
  }

 private:
  pid_t process_ = 0;
  int output_ = -1;
};

std::string Reason(int status, const std::string& output) {
  const std::string text = OneLine(output.substr(0, output.find_last_not_of(" \n") + 1));
  if (WIFEXITED(status) && !text.empty()) return text;
  const std::string ending =
      WIFSIGNALED(status)
          ? std::string("the process that loaded it was ended by a signal (") +
                strsignal(WTERMSIG(status)) + ')'
          : "the process that loaded it ended with code " + std::to_string(WEXITSTATUS(status));
  return text.empty() ? ending : ending + ": " + text;
}

}  // namespace

void ProbePlugin(const fs::path& file) {
  Child child(file);
  std::string output;
  if (!child.ReadOutput(output)) Refuse(file, "loading it takes too long");
  const int status = child.Wait();
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) Refuse(file, Reason(status, output));
}

int RunPluginProbe(const fs::path& file) {
  try {
    platform::Current().Classes().LoadPlugin(file);
    return static_cast<int>(ExitCode::Ok);
  } catch (const platform::Failure& failure) {
    std::fprintf(stderr, "%s\n", failure.Description().c_str());
    return static_cast<int>(ExitCode::DtmNotLoadable);
  }
}

}  // namespace hartframe

#include "telling/child_process.h"

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <process.h>
#include <sys/stat.h>
#else
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>

#include <cerrno>
extern char** environ;
#endif

namespace quorvel::host {

#ifdef _WIN32
namespace {

// Standard error is the file as long as this lives; a child process inherits it.
class ErrorsInto {
  public:
    explicit ErrorsInto(const std::string& file) : before_(_dup(2)) {
        const int log = _open(file.c_str(), _O_WRONLY | _O_CREAT | _O_TRUNC, _S_IREAD | _S_IWRITE);
        if (log < 0) return;
        _dup2(log, 2);
        _close(log);
    }
    ~ErrorsInto() {
        _dup2(before_, 2);
        _close(before_);
    }
    ErrorsInto(const ErrorsInto&) = delete;
    ErrorsInto& operator=(const ErrorsInto&) = delete;

  private:
    int before_;
};

}  // namespace

std::optional<int> run_program(const char* program, const std::string& argument,
                               const std::string& errors) {
    const std::string quoted = '"' + argument + '"';  // arguments are joined into one command line
    const ErrorsInto redirected(errors);
    const auto status = _spawnlp(_P_WAIT, program, program, quoted.c_str(), nullptr);
    if (status == -1) return std::nullopt;
    return static_cast<int>(status);
}
#else
std::optional<int> run_program(const char* program, const std::string& argument,
                               const std::string& errors) {
    constexpr int told_by_signal = 128;  // as shells count the program that a signal has ended
    std::string name = program, only = argument;
    char* arguments[] = {name.data(), only.data(), nullptr};
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 2, errors.c_str(), O_WRONLY | O_CREAT | O_TRUNC,
                                     0600);
    pid_t process;
    const int fault = posix_spawnp(&process, program, &actions, nullptr, arguments, environ);
    posix_spawn_file_actions_destroy(&actions);
    if (fault != 0) return std::nullopt;
    int status = 0;
    while (waitpid(process, &status, 0) < 0 && errno == EINTR) continue;
    return WIFEXITED(status) ? WEXITSTATUS(status) : told_by_signal + WTERMSIG(status);
}
#endif

}  // namespace quorvel::host

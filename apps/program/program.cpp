#include "program/program.h"

#include <exception>
#include <iostream>
#include <system_error>

#include "reading/input.h"

#ifdef _WIN32
#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <process.h>
#else
#include <spawn.h>
#include <sys/wait.h>
extern char** environ;
#endif

namespace quorvel::host {

#ifdef _WIN32
namespace {

void prepare_output() {
    SetConsoleOutputCP(CP_UTF8);
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
}

}  // namespace

std::optional<int> run_program(const char* program, const std::string& argument) {
    const std::string quoted = '"' + argument + '"';  // arguments are joined into one command line
    const auto status = _spawnlp(_P_WAIT, program, program, quoted.c_str(), nullptr);
    if (status == -1) return std::nullopt;
    return static_cast<int>(status);
}
#else
namespace {

void prepare_output() {}

}  // namespace

std::optional<int> run_program(const char* program, const std::string& argument) {
    std::string name = program, only = argument;
    char* arguments[] = {name.data(), only.data(), nullptr};
    pid_t process;
    if (posix_spawnp(&process, program, nullptr, nullptr, arguments, environ) != 0)
        return std::nullopt;
    int status = 0;
    while (waitpid(process, &status, 0) < 0 && errno == EINTR) continue;
    return WIFEXITED(status) ? WEXITSTATUS(status) : failure;
}
#endif

int run(const char* program, const std::function<void()>& work) {
    prepare_output();
    try {
        work();
        std::cout.flush();
        if (!std::cout) throw std::runtime_error("cannot write the output");
        return success;
    } catch (const InputError& fault) {
        std::cerr << fault.what() << '\n';
        return bad_input;
    } catch (const std::exception& fault) {
        std::cerr << program << ": " << fault.what() << '\n';
        return failure;
    }
}

}  // namespace quorvel::host

#include "program/program.h"

#include <csignal>
#include <exception>
#include <iostream>
#include <system_error>

#include "reading/input.h"

#ifdef _WIN32
#include <windows.h>

#include <fcntl.h>
#include <io.h>
#endif

namespace quorvel::host {
namespace {

#ifdef _WIN32
void prepare_output() {
    SetConsoleOutputCP(CP_UTF8);
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
    _setmode(_fileno(stdin), _O_BINARY);
}
#else
// A file at the limit of the process is a fault like a full disk, not the end of it.
void prepare_output() { std::signal(SIGXFSZ, SIG_IGN); }
#endif

}  // namespace

int run(const char* program, const std::function<int()>& work) {
    prepare_output();
    try {
        const int status = work();
        std::cout.flush();
        if (!std::cout) throw std::runtime_error("cannot write the output");
        return status;
    } catch (const InputError& fault) {
        std::cerr << fault.what() << '\n';
        return bad_input;
    } catch (const std::exception& fault) {
        std::cerr << program << ": " << fault.what() << '\n';
        return failure;
    }
}

}  // namespace quorvel::host

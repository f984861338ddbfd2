#include "process.hpp"

#include "files.hpp"

#include <fmt/format.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <sstream>
#include <system_error>

namespace ansatz::tools {
namespace {

/// A file in memory, with no name that anyone could open.
int file_in_memory() {
    const int file = memfd_create("ansatz", MFD_CLOEXEC);
    if (file < 0) throw std::system_error(errno, std::generic_category());
    return file;
}

int wait_for(pid_t process) {
    int status = 0;
    while (waitpid(process, &status, 0) < 0) {
        if (errno != EINTR) throw std::system_error(errno, std::generic_category());
    }
    return status;
}

} // namespace

std::string find_program(std::string_view name) {
    const char* path = std::getenv("PATH");
    std::istringstream directories(path ? path : "/bin:/usr/bin");
    for (std::string directory; std::getline(directories, directory, ':');) {
        const auto program = std::filesystem::path(directory.empty() ? "." : directory) / name;
        std::error_code error;
        if (std::filesystem::is_regular_file(program, error) && access(program.c_str(), X_OK) == 0)
            return program;
    }
    return {};
}

std::string Ended::how() const {
    if (!WIFSIGNALED(status)) return fmt::format("it ended with status {}", WEXITSTATUS(status));
    return fmt::format("it was ended by signal {}, {}", WTERMSIG(status), strsignal(WTERMSIG(status)));
}

// Files, not pipes: neither program ever waits for the other to read, and one that ends before it has read its
// input does no harm.
Ended run_program(const std::string& path, const std::vector<std::string>& arguments, std::string_view input) {
    const Descriptor in(file_in_memory()), out(file_in_memory()), errors(file_in_memory());
    write_all(in, input);
    if (lseek(in.number(), 0, SEEK_SET) != 0) throw std::system_error(errno, std::generic_category());

    std::vector<std::string> texts = arguments; // posix_spawn wants them writable
    std::vector<char*> argv;
    for (std::string& text : texts) argv.push_back(text.data());
    argv.push_back(nullptr);

    std::signal(SIGCHLD, SIG_DFL); // where it is ignored, the status would be lost
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, in.number(), STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, out.number(), STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, errors.number(), STDERR_FILENO);
    pid_t process = 0;
    const int fault = posix_spawn(&process, path.c_str(), &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (fault != 0) throw std::system_error(fault, std::generic_category());
    return {wait_for(process), read_all(out), read_all(errors)};
}

} // namespace ansatz::tools

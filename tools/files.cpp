#include "files.hpp"

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <utility>

namespace ansatz::tools {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void throw_last_error() {
    throw std::system_error(errno, std::generic_category());
}

/// The file behind a name that may be a link.
fs::path target_of(const std::string& path) {
    std::error_code error;
    fs::path target = fs::weakly_canonical(path, error);
    return error ? fs::path(path) : target;
}

/// Holds back all signals for its life: one that ends the command must not leave a temporary file behind.
class SignalsHeld {
public:
    SignalsHeld() {
        sigset_t all;
        sigfillset(&all);
        sigdelset(&all, SIGXFSZ); // write_all ignores it; held back, it would only come later
        pthread_sigmask(SIG_BLOCK, &all, &before_);
    }
    SignalsHeld(const SignalsHeld&) = delete;
    SignalsHeld& operator=(const SignalsHeld&) = delete;
    ~SignalsHeld() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }

private:
    sigset_t before_{};
};

/// A new file in the directory of another. It is removed at the end of its life unless it takes the other's
/// place.
class TemporaryFile {
public:
    explicit TemporaryFile(fs::path target) : target_(std::move(target)), file_(create()) {}
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        if (!path_.empty()) unlink(path_.c_str());
    }

    void write(std::string_view contents) {
        struct stat old {};
        if (stat(target_.c_str(), &old) == 0 && fchmod(file_.number(), old.st_mode & 0777U) != 0) {
            throw_last_error();
        }
        write_all(file_, contents);
        file_.close();
    }

    void take_place() {
        if (std::rename(path_.c_str(), target_.c_str()) != 0) throw_last_error();
        path_.clear();
    }

private:
    /// Nobody else has the file: with O_EXCL, a name that exists, be it a link, is passed over.
    int create() {
        for (int number = 0;; ++number) {
            path_ = target_.parent_path() / fmt::format(".ansatz-{}-{}", getpid(), number);
            const int file = open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
            if (file >= 0) return file;
            if (errno != EEXIST) throw_last_error();
        }
    }

    fs::path target_, path_;
    Descriptor file_;
};

} // namespace

Descriptor::~Descriptor() {
    if (number_ >= 0) ::close(number_);
}

void Descriptor::close() {
    if (::close(std::exchange(number_, -1)) != 0) throw_last_error();
}

void write_all(const Descriptor& file, std::string_view contents) {
    const auto before = std::signal(SIGXFSZ, SIG_IGN);
    int error = 0;
    while (!contents.empty() && error == 0) {
        const ssize_t written = ::write(file.number(), contents.data(), contents.size());
        if (written >= 0) {
            contents.remove_prefix(static_cast<std::size_t>(written));
        } else if (errno != EINTR) {
            error = errno;
        }
    }
    std::signal(SIGXFSZ, before); // NOLINT(cert-err33-c): what was set before can be set again
    if (error != 0) throw std::system_error(error, std::generic_category());
}

std::string read_all(const Descriptor& file) {
    std::string contents;
    char part[65536];
    for (;;) {
        const ssize_t count = pread(file.number(), part, sizeof part, static_cast<off_t>(contents.size()));
        if (count == 0) return contents;
        if (count > 0) {
            contents.append(part, static_cast<std::size_t>(count));
        } else if (errno != EINTR) {
            throw_last_error();
        }
    }
}

bool is_replaceable(const std::string& path) {
    const fs::path target = target_of(path), directory = target.parent_path();
    if (access(directory.empty() ? "." : directory.c_str(), W_OK | X_OK) != 0) return false;
    struct stat file {};
    if (stat(target.c_str(), &file) != 0) return errno == ENOENT;
    return S_ISREG(file.st_mode) && access(target.c_str(), W_OK) == 0;
}

void replace_file(const std::string& path, std::string_view contents) {
    const SignalsHeld held;
    TemporaryFile file(target_of(path));
    file.write(contents);
    file.take_place();
}

} // namespace ansatz::tools

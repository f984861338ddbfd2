// Files that are written as a whole or not at all.
#pragma once

#include <string>
#include <string_view>

namespace ansatz::tools {

/// An open file, closed at the end of its life.
class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor();

    int number() const { return number_; }
    void close(); ///< Throws std::system_error: only now some file systems tell that they are full.

private:
    int number_;
};

/// Throws std::system_error, also at a limit on the size of files.
void write_all(const Descriptor& file, std::string_view contents);

/// The whole file, which must allow seeking. Throws std::system_error.
std::string read_all(const Descriptor& file);

/// Is this the name of a file that may be written, or free for one?
bool is_replaceable(const std::string& path);

/// Puts a file with these contents under a name, in one step: at every moment, and after every fault, the name
/// has either what it had before or all of the new contents. A link keeps its place, the file behind it is
/// replaced. Throws std::system_error.
void replace_file(const std::string& path, std::string_view contents);

} // namespace ansatz::tools

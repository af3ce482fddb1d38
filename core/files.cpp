#include "core/files.h"

#include "core/code_page.h"
#include "core/trap.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

/// The names in a directory as the disk spells them. Fails with 75 when it can't be read.
std::vector<std::string> names_in(const std::string& directory, bool files_only) {
    std::vector<std::string> names;
    std::error_code error;
    fs::directory_iterator entry(directory.empty() ? "." : directory, error);
    while (!error && entry != fs::directory_iterator()) {
        std::error_code unknown;
        if (!files_only || !entry->is_directory(unknown)) names.push_back(entry->path().filename().string());
        entry.increment(error);
    }
    const bool missing = error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory;
    if (error && !missing) throw Failure{failure::path_access};
    return names;
}

bool on_disk(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0;
}

/// The component as the directory spells it, or as given where nothing matches.
std::string component_on_disk(const std::string& directory, const std::string& component) {
    std::string spelled = files::to_disk_name(component);
    for (const std::string& name : {component, spelled})
        if (on_disk(directory + name)) return name;
    std::vector<std::string> names;
    if (failure_of([&] { names = names_in(directory, false); }) != 0) return spelled;
    std::sort(names.begin(), names.end());
    const auto found = std::find_if(names.begin(), names.end(), [&](const std::string& name) {
        return lower_case(files::from_disk_name(name)) == lower_case(component);
    });
    return found == names.end() ? spelled : *found;
}

/// A descriptor that is closed on every path.
class Descriptor {
  public:
    explicit Descriptor(int fd) : fd(fd) {}
    Descriptor(Descriptor&& other) noexcept : fd(std::exchange(other.fd, -1)) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { close(); }
    int get() const { return fd; }
    /// 0, or -1 with `errno` set.
    int close() {
        const int closing = fd;
        fd = -1;
        return closing < 0 ? 0 : ::close(closing);
    }

  private:
    int fd;
};

int write_failure_number(int error) { return error == ENOSPC ? failure::disk_full : failure::device_error; }

int output_failure_number(int error) {
    switch (error) {
    case ENOSPC:
        return failure::disk_full;
    case ENOENT:
    case ENOTDIR:
        return failure::path_not_found;
    default:
        return failure::path_access;
    }
}

class DiskOutput : public OutputFile {
  public:
    explicit DiskOutput(Descriptor opened) : file(std::move(opened)) { buffer.reserve(block); }

    /// Records before the one that failed are in the file.
    ~DiskOutput() override {
        static_cast<void>(failure_of([this] { flush(); }));
    }

    void write(std::string_view bytes) override {
        buffer += bytes;
        if (buffer.size() >= block) flush();
    }

    void close() override {
        flush();
        if (file.close() != 0) throw Failure{write_failure_number(errno)};
    }

  private:
    static constexpr std::size_t block = std::size_t{1} << 18;

    void flush() {
        std::size_t at = 0;
        while (at < buffer.size()) {
            const ssize_t written = ::write(file.get(), buffer.data() + at, buffer.size() - at);
            if (written < 0 && errno == EINTR) continue;
            if (written < 0) {
                const int number = write_failure_number(errno);
                buffer.clear();
                throw Failure{number};
            }
            at += static_cast<std::size_t>(written);
        }
        buffer.clear();
    }

    Descriptor file;
    std::string buffer;
};

struct Decoded {
    char32_t character = 0;
    std::size_t length = 0; // bytes; 0: no UTF-8
};

/// The character that a UTF-8 text begins with.
Decoded decode_utf8(std::string_view text) {
    constexpr std::array<char32_t, 5> smallest{0, 0, 0x80, 0x800, 0x10000}; // of each length
    const auto lead = static_cast<unsigned char>(text.front());
    if (lead < 0x80) return {lead, 1};
    const std::size_t length = lead < 0xC2 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF5 ? 4 : 0;
    if (length == 0 || length > text.size()) return {};
    char32_t character = lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(text[i]);
        if ((next & 0xC0) != 0x80) return {};
        character = character << 6 | (next & 0x3F);
    }
    return character < smallest[length] ? Decoded{} : Decoded{character, length};
}

} // namespace

std::string files::to_disk_name(const std::string& text) {
    std::string name;
    for (const char c : text) {
        const char32_t character = character_of(static_cast<unsigned char>(c));
        if (character < 0x80) {
            name += static_cast<char>(character);
        } else if (character < 0x800) {
            name += static_cast<char>(0xC0 | character >> 6);
            name += static_cast<char>(0x80 | (character & 0x3F));
        } else {
            name += static_cast<char>(0xE0 | character >> 12);
            name += static_cast<char>(0x80 | (character >> 6 & 0x3F));
            name += static_cast<char>(0x80 | (character & 0x3F));
        }
    }
    return name;
}

std::string files::from_disk_name(const std::string& name) {
    std::string text;
    for (std::string_view rest = name; !rest.empty();) {
        const Decoded next = decode_utf8(rest);
        // What is no UTF-8 is kept as it is.
        text += next.length == 0 ? rest.front() : byte_of(next.character);
        rest.remove_prefix(std::max<std::size_t>(next.length, 1));
    }
    return text;
}

std::string files::reference_path(const std::string& path) {
    std::string turned = path;
    std::replace(turned.begin(), turned.end(), '\\', '/');
    if (on_disk(turned)) return turned;
    std::string found;
    std::size_t at = 0;
    while (at < turned.size()) {
        const std::size_t slash = std::min(turned.find('/', at), turned.size());
        const std::string component = turned.substr(at, slash - at);
        found += component.empty() ? component : component_on_disk(found, component);
        if (slash < turned.size()) found += '/';
        at = slash + 1;
    }
    return found;
}

bool files::exists(const std::string& path) { return on_disk(path); }

std::string files::read(const std::string& path) {
    // Without waiting: a pipe in the place of a file would never answer.
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (file.get() < 0)
        throw Failure{errno == ENOENT || errno == ENOTDIR ? failure::file_not_found : failure::path_access};
    struct stat status {};
    if (::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode)) throw Failure{failure::path_access};
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(status.st_size));
    std::array<char, 1 << 16> block{};
    for (;;) {
        const ssize_t got = ::read(file.get(), block.data(), block.size());
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) throw Failure{failure::path_access};
        if (got == 0) return bytes;
        bytes.append(block.data(), static_cast<std::size_t>(got));
    }
}

std::vector<std::string> files::list(const std::string& directory, const std::string& ending) {
    std::vector<std::string> names;
    for (const std::string& name : names_in(directory, true)) names.push_back(from_disk_name(name));
    const std::string wanted = lower_case(ending);
    std::erase_if(names, [&](const std::string& name) { return !lower_case(name).ends_with(wanted); });
    std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
        const std::string lower_a = lower_case(a);
        const std::string lower_b = lower_case(b);
        return lower_a != lower_b ? lower_a < lower_b : a < b;
    });
    return names;
}

std::unique_ptr<OutputFile> files::open_for_output(const std::string& path) {
    // Without waiting: a pipe in the place of a file, with nobody at its other end, would hold the program
    // up.
    Descriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NONBLOCK, 0666));
    if (file.get() < 0) throw Failure{output_failure_number(errno)};
    struct stat status {};
    if (::fstat(file.get(), &status) == 0 && S_ISFIFO(status.st_mode)) throw Failure{failure::path_access};
    return std::make_unique<DiskOutput>(std::move(file));
}

std::string Platform::shown_path(const std::string& path) { return files::from_disk_name(path); }

std::string Platform::reference_path(const std::string& path) { return files::reference_path(path); }

bool Platform::file_exists(const std::string& path) { return files::exists(path); }

std::string Platform::read_file(const std::string& path) { return files::read(path); }

std::vector<std::string> Platform::list_files(const std::string& directory, const std::string& ending) {
    return files::list(directory, ending);
}

std::unique_ptr<OutputFile> Platform::open_for_output(const std::string& path) {
    return files::open_for_output(path);
}

#include "core/files.h"

#include "core/failure.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cerrno>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

std::string lower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

std::vector<std::string> names_in(const std::string& directory) {
    std::vector<std::string> names;
    std::error_code none;
    for (const auto& entry : fs::directory_iterator(directory.empty() ? "." : directory, none))
        names.push_back(entry.path().filename().string());
    return names;
}

bool on_disk(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0;
}

/// The component as the directory spells it, or as given where nothing matches.
std::string component_on_disk(const std::string& directory, const std::string& component) {
    if (on_disk(directory + component)) return component;
    const std::string wanted = lower(component);
    std::vector<std::string> names = names_in(directory);
    std::sort(names.begin(), names.end());
    const auto found =
        std::find_if(names.begin(), names.end(), [&](const std::string& n) { return lower(n) == wanted; });
    return found == names.end() ? component : *found;
}

/// A descriptor that is closed on every path.
class Descriptor {
  public:
    explicit Descriptor(int fd) : fd(fd) {}
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
    explicit DiskOutput(int fd) : file(fd) { buffer.reserve(block); }

    void write(const std::string& bytes) override {
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

} // namespace

std::string files::disk_path(const std::string& path) {
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

bool files::exists(const std::string& path) { return on_disk(disk_path(path)); }

std::string files::read(const std::string& path) {
    Descriptor file(::open(disk_path(path).c_str(), O_RDONLY | O_CLOEXEC));
    if (file.get() < 0)
        throw Failure{errno == ENOENT || errno == ENOTDIR ? failure::file_not_found : failure::path_access};
    struct stat status {};
    std::string bytes;
    if (::fstat(file.get(), &status) == 0 && S_ISREG(status.st_mode))
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
    std::vector<std::string> names = names_in(disk_path(directory));
    const std::string wanted = lower(ending);
    std::erase_if(names, [&](const std::string& name) { return !lower(name).ends_with(wanted); });
    std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
        const std::string lower_a = lower(a);
        const std::string lower_b = lower(b);
        return lower_a != lower_b ? lower_a < lower_b : a < b;
    });
    return names;
}

std::unique_ptr<OutputFile> files::open_for_output(const std::string& path) {
    const int fd = ::open(disk_path(path).c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (fd < 0) throw Failure{output_failure_number(errno)};
    return std::make_unique<DiskOutput>(fd);
}

bool Platform::file_exists(const std::string& path) { return files::exists(path); }

std::string Platform::read_file(const std::string& path) { return files::read(path); }

std::vector<std::string> Platform::list_files(const std::string& directory, const std::string& ending) {
    return files::list(directory, ending);
}

std::unique_ptr<OutputFile> Platform::open_for_output(const std::string& path) {
    return files::open_for_output(path);
}

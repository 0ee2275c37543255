#include "tables/ByteSource.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

namespace ostrel::tables {

FileSource::FileSource(const std::string& path, StopWanted stopWanted) : stopWanted_(std::move(stopWanted)) {
    if (path == "-") {
        name_ = "standard input";
        handle_ = STDIN_FILENO;
        return;
    }
    name_ = path;
    while ((handle_ = open(path.c_str(), O_RDONLY | O_CLOEXEC)) < 0) {
        const int error = errno;
        EndWhereWanted();
        if (error != EINTR) throw InputError(path + " can't be read: " + std::strerror(error) + ".");
    }
    struct stat status {};
    if (fstat(handle_, &status) == 0 && S_ISDIR(status.st_mode)) {
        close(handle_);
        throw InputError(path + " can't be read: it is a directory.");
    }
}

FileSource::~FileSource() {
    if (handle_ != STDIN_FILENO) close(handle_);
}

void FileSource::EndWhereWanted() const {
    if (stopWanted_ && stopWanted_()) throw Interruption{};
}

std::size_t FileSource::Read(char* buffer, std::size_t size) {
    for (;;) {
        EndWhereWanted();
        const ssize_t count = read(handle_, buffer, size);
        if (count >= 0) return static_cast<std::size_t>(count);
        if (errno != EINTR) throw InputError(name_ + " can't be read: " + std::strerror(errno) + ".");
    }
}

std::size_t MemorySource::Read(char* buffer, std::size_t size) {
    const std::size_t count = std::min({size, step_, bytes_.size()});
    std::memcpy(buffer, bytes_.data(), count);
    bytes_.remove_prefix(count);
    return count;
}

} // namespace ostrel::tables

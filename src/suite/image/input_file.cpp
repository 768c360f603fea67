// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/image/input_file.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace suite
{

CInputFile::~CInputFile()
{
    if (descriptor >= 0)
        close(descriptor);
}

std::optional<CInputFile> CInputFile::Open(const std::string& path)
{
    CInputFile file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    struct stat facts = {};
    if (file.descriptor < 0 || fstat(file.descriptor, &facts) != 0 || !S_ISREG(facts.st_mode))
        return std::nullopt;
    return file;
}

std::size_t CInputFile::ReadAt(std::uint64_t offset, std::span<std::uint8_t> buffer) const
{
    std::size_t done = 0;
    while (done < buffer.size()) {
        const ssize_t got =
            pread(descriptor, buffer.data() + done, buffer.size() - done, static_cast<off_t>(offset + done));
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            break;
        done += static_cast<std::size_t>(got);
    }
    return done;
}

std::uint64_t CInputFile::Length() const
{
    struct stat facts = {};
    return fstat(descriptor, &facts) == 0 ? static_cast<std::uint64_t>(facts.st_size) : 0;
}

std::optional<std::vector<std::uint8_t>> CInputFile::ReadWhole(std::uint64_t most) const
{
    const std::uint64_t length = Length();
    if (length > most)
        return std::nullopt;
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(length));
    bytes.resize(ReadAt(0, bytes));
    return bytes;
}

}  // namespace suite

// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CInputFile: a regular file opened for reading by the image library.
//
// Opening never blocks: pipes, devices, sockets and folders are refused. Reads carry their own offset, so
// one object may serve several readers in turn. The descriptor is closed in the destructor.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace suite
{

class CInputFile
{
public:
    // Takes over an open descriptor.
    explicit CInputFile(int opened) : descriptor(opened) {}
    CInputFile(CInputFile&& other) noexcept : descriptor(std::exchange(other.descriptor, -1)) {}
    CInputFile& operator=(CInputFile&&) = delete;
    ~CInputFile();

    static std::optional<CInputFile> Open(const std::string& path);

    // Fewer bytes than asked only at the end of the file or on failure.
    std::size_t ReadAt(std::uint64_t offset, std::span<std::uint8_t> buffer) const;
    std::uint64_t Length() const;
    // Nothing when the file cannot be read or is longer than `most` bytes.
    std::optional<std::vector<std::uint8_t>> ReadWhole(std::uint64_t most) const;
    int Descriptor() const { return descriptor; }
    // Gives the descriptor away; the object is then empty.
    int Release() { return std::exchange(descriptor, -1); }

private:
    int descriptor;
};

}  // namespace suite

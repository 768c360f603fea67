// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Compression and decompression of one zlib stream in blocks of 4096 bytes.
//
// Both return 0 for success, kUserAbort, -1 when the output could not be written, or zlib's error.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace archive
{

inline constexpr int kUserAbort = -7;
inline constexpr std::size_t kStreamBlock = 4096;

// Where the bytes come from and where they go.
class CStreamEnds
{
public:
    virtual ~CStreamEnds() = default;
    // 0 at the end of the input.
    virtual std::size_t Read(std::span<std::byte> block) = 0;
    virtual bool Write(std::span<const std::byte> block) = 0;
    // Called after each block with the number of input bytes used so far.
    virtual void Consumed(std::uint64_t total) = 0;
    virtual bool Aborted() const = 0;
};

// Keeps zlib's tables from one stream to the next, which spares their allocation.
class CDeflater
{
public:
    CDeflater();
    ~CDeflater();
    CDeflater(const CDeflater&) = delete;
    CDeflater& operator=(const CDeflater&) = delete;
    int Run(CStreamEnds& ends);

private:
    struct State;
    std::unique_ptr<State> state;
};

int Inflate(CStreamEnds& ends);

// "Success", "User Abort" or "Zlib Error".
std::string ResultText(int result);

}  // namespace archive

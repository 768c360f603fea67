// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CObexClient: requests to an OBEX server at the other end of a line, and MakeObexClient, which makes one.
//
// Each call returns when the request is answered, when the line is silent for too long or gone, or soon after
// `stop` says so. After any of the last three the client is of no use any more. One thread.
#pragma once

#include "suite/handset/line_patience.h"
#include "suite/handset/serial_line.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace suite
{

struct ObexAnswer {
    enum class Kind { answered, silent, gone, stopped, garbled, refusedHere };
    Kind kind = Kind::answered;
    int code = 0;  // of the server, without the final bit; for `answered`

    bool IsGood() const { return kind == Kind::answered && (code & 0x70) == 0x20; }
};

class CObexClient
{
public:
    // Fills the buffer with the next bytes to send; how many, 0 at the end, below 0 when they cannot be had.
    using Source = std::function<int(std::span<std::byte>)>;
    // Takes the next bytes that came; false ends the transfer.
    using Sink = std::function<bool(std::span<const std::byte>)>;

    virtual ~CObexClient() = default;
    // To be called first: asks for the folders of the handset.
    virtual ObexAnswer Connect() = 0;
    // Enters a folder of the present one; the root for an empty name.
    virtual ObexAnswer SetPath(const std::string& folder) = 0;
    virtual ObexAnswer Put(const std::string& name, std::uint32_t length, const Source& source) = 0;
    // A file of that name, or an object of that type where the name is empty.
    virtual ObexAnswer Get(const std::string& name, const std::string& type, const Sink& sink) = 0;
    virtual ObexAnswer Delete(const std::string& name) = 0;
    // Takes leave, so that the other side may speak AT again. The last call.
    virtual void Disconnect() = 0;
};

// On libopenobex. The line outlives the client.
std::unique_ptr<CObexClient> MakeObexClient(CSerialLine& line, const LinePatience& patience,
                                            std::function<bool()> stop);

}  // namespace suite

// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Loaded in front of obexd by handset-simulator: one end of a nameless pair of sockets says that it is a
// Bluetooth serial line (RFCOMM), which is the only kind that obexd takes.
#include <dlfcn.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <cstddef>
#include <cstring>

namespace
{

constexpr int kBluetooth = 31;
constexpr int kRfcomm = 3;

struct RfcommAddress {
    unsigned short family = kBluetooth;
    unsigned char device[6] = {1, 2, 3, 4, 5, 6};
    unsigned char channel = 1;
};

template <class Function> Function* Real(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

using NameFunction = int(int, sockaddr*, socklen_t*);

bool HasNoName(int socket, const char* function)
{
    sockaddr_un address{};
    socklen_t length = sizeof address;
    return Real<NameFunction>(function)(socket, reinterpret_cast<sockaddr*>(&address), &length) == 0 &&
           address.sun_family == AF_UNIX && length <= offsetof(sockaddr_un, sun_path);
}

bool IsPair(int socket)
{
    return HasNoName(socket, "getsockname") && HasNoName(socket, "getpeername");
}

int Name(int socket, sockaddr* address, socklen_t* length, const char* function)
{
    const RfcommAddress name;
    if (!IsPair(socket) || *length < sizeof name)
        return Real<NameFunction>(function)(socket, address, length);
    std::memcpy(address, &name, *length = sizeof name);
    return 0;
}

}  // namespace

extern "C" int getsockname(int socket, sockaddr* address, socklen_t* length) noexcept
{
    return Name(socket, address, length, "getsockname");
}

extern "C" int getpeername(int socket, sockaddr* address, socklen_t* length) noexcept
{
    return Name(socket, address, length, "getpeername");
}

extern "C" int getsockopt(int socket, int level, int option, void* value, socklen_t* length) noexcept
{
    using Function = int(int, int, int, void*, socklen_t*);
    if (level == SOL_SOCKET && (option == SO_DOMAIN || option == SO_PROTOCOL) && *length == sizeof(int) &&
        IsPair(socket)) {
        const int answer = option == SO_DOMAIN ? kBluetooth : kRfcomm;
        std::memcpy(value, &answer, sizeof answer);
        return 0;
    }
    return Real<Function>("getsockopt")(socket, level, option, value, length);
}

// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Makes every socket of the process that would listen on all addresses listen on the loopback one.
//
// Qt's VNC platform has no password and no option for its address. Loaded with LD_PRELOAD, this takes the
// place of bind(); programs started from the process run without it.
#include <arpa/inet.h>
#include <dlfcn.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <cstdlib>
#include <cstring>

namespace
{

[[gnu::constructor]] void LeaveChildrenAlone()
{
    unsetenv("LD_PRELOAD");
}

int NextBind(int socket, const void* address, socklen_t length)
{
    using Bind = int (*)(int, const void*, socklen_t);
    static const auto next = reinterpret_cast<Bind>(dlsym(RTLD_NEXT, "bind"));
    return next(socket, address, length);
}

}  // namespace

extern "C" int bind(int socket, const sockaddr* address, socklen_t length) noexcept
{
    if (address->sa_family == AF_INET && length >= sizeof(sockaddr_in)) {
        sockaddr_in narrowed;
        std::memcpy(&narrowed, address, sizeof narrowed);
        if (narrowed.sin_addr.s_addr == htonl(INADDR_ANY))
            narrowed.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        return NextBind(socket, &narrowed, sizeof narrowed);
    }
    if (address->sa_family == AF_INET6 && length >= sizeof(sockaddr_in6)) {
        sockaddr_in6 narrowed;
        std::memcpy(&narrowed, address, sizeof narrowed);
        // A socket for both families is reached over IPv4, as "localhost" is; its address is a mapped one.
        if (IN6_IS_ADDR_UNSPECIFIED(&narrowed.sin6_addr))
            inet_pton(AF_INET6, "::ffff:127.0.0.1", &narrowed.sin6_addr);
        return NextBind(socket, &narrowed, sizeof narrowed);
    }
    return NextBind(socket, address, length);
}

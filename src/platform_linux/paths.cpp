// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/paths.h"

#include "platform_linux/failure.h"

#include <climits>
#include <sys/stat.h>
#include <unistd.h>

namespace platform_linux
{

namespace
{

constexpr int kMostLinks = 40;

// What the link at `path` says, or nothing (errno EINVAL) when it is no link.
std::optional<std::string> ReadLink(const std::string& path)
{
    char buffer[PATH_MAX];
    const ssize_t length = readlink(Native(path), buffer, sizeof buffer);
    if (length < 0)
        return std::nullopt;
    return std::string(buffer, static_cast<std::size_t>(length));
}

}  // namespace

const char* Native(const std::string& path)
{
    return path.find('\0') == std::string::npos ? path.c_str() : "";
}

std::string ParentOf(const std::string& path)
{
    const std::size_t nameEnd = path.find_last_not_of('/');
    if (nameEnd == std::string::npos)
        return path.empty() ? "." : "/";
    const std::size_t slash = path.rfind('/', nameEnd);
    if (slash == std::string::npos)
        return ".";
    const std::size_t folderEnd = path.find_last_not_of('/', slash);
    return folderEnd == std::string::npos ? "/" : path.substr(0, folderEnd + 1);
}

std::string_view NameOf(std::string_view path)
{
    const std::size_t nameEnd = path.find_last_not_of('/');
    if (nameEnd == std::string_view::npos)
        return {};
    path = path.substr(0, nameEnd + 1);
    const std::size_t slash = path.rfind('/');
    return slash == std::string_view::npos ? path : path.substr(slash + 1);
}

std::string Join(const std::string& folder, std::string_view name)
{
    std::string path = folder;
    if (path.empty() || path.back() != '/')
        path += '/';
    path += name;
    return path;
}

bool IsBelow(std::string_view path, std::string_view folder)
{
    return !folder.empty() && path.size() > folder.size() + 1 && path.starts_with(folder) &&
           (folder.back() == '/' || path[folder.size()] == '/');
}

std::optional<std::string> FollowLinks(const std::string& path)
{
    std::string current = path;
    for (int i = 0; i < kMostLinks; ++i) {
        const std::optional<std::string> next = ReadLink(current);
        if (!next) {
            if (errno == EINVAL || errno == ENOENT)
                return current;
            Fail();
            return std::nullopt;
        }
        current = next->starts_with('/') ? *next : Join(ParentOf(current), *next);
    }
    Fail(ELOOP);
    return std::nullopt;
}

std::optional<std::string> FollowAllLinks(const std::string& path)
{
    std::string done;
    std::string rest = path;
    for (int links = 0; links < kMostLinks;) {
        rest.erase(0, rest.find_first_not_of('/'));
        if (rest.find_first_not_of('/') == std::string::npos)
            return done.empty() ? "/" : done;
        const std::string part = rest.substr(0, rest.find('/'));
        rest.erase(0, part.size());
        if (part == ".")
            continue;
        if (part == "..") {
            done = ParentOf(done);
            if (done == "/" || done == ".")
                done.clear();
            continue;
        }
        const std::string here = done + '/' + part;
        const std::optional<std::string> next = ReadLink(here);
        if (!next) {
            if (errno != EINVAL && errno != ENOENT && errno != ENOTDIR) {
                Fail();
                return std::nullopt;
            }
            done = here;
            continue;
        }
        ++links;
        if (next->starts_with('/'))
            done.clear();
        rest = *next + '/' + rest;
    }
    Fail(ELOOP);
    return std::nullopt;
}

bool MakeFolders(const std::string& path)
{
    struct stat facts {
    };
    if (stat(Native(path), &facts) == 0)
        return S_ISDIR(facts.st_mode) || Fail(ENOTDIR);
    const std::string parent = ParentOf(path);
    if (errno != ENOENT || parent == path || !MakeFolders(parent))
        return Fail();
    return mkdir(Native(path), 0700) == 0 || errno == EEXIST || Fail();
}

}  // namespace platform_linux

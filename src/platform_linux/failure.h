// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Why a call failed: the error number of each thread's latest failure, kept for CFileSystem::LastError.
#pragma once

#include <cerrno>
#include <string>

namespace platform_linux
{

// Remembers `error` and returns false, so that a failing function ends with `return Fail();`.
bool Fail(int error = errno);
int LastFailure();
// LastFailure in plain words; empty before the first failure.
std::string LastFailureText();

}  // namespace platform_linux

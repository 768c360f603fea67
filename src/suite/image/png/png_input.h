// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CPngInput: feeds libpng from a file, and its errors back to the caller.
//
// libpng leaves a failed call by longjmp. Every call into it goes through Guarded, whose step must own
// nothing with a destructor. Nothing is printed.
#pragma once

#include "suite/image/input_file.h"

#include <csetjmp>
#include <cstdint>
#include <png.h>

namespace suite
{

class CPngInput
{
public:
    explicit CPngInput(const CInputFile& read);
    ~CPngInput();
    CPngInput(const CPngInput&) = delete;
    CPngInput& operator=(const CPngInput&) = delete;

    // False when a call into libpng failed inside `step`.
    template <typename Step> bool Guarded(Step step)
    {
        if (info == nullptr || setjmp(onError) != 0)
            return false;
        step(reader, info);
        return true;
    }

    png_structp reader = nullptr;
    png_infop info = nullptr;

private:
    static void OnError(png_structp failed, png_const_charp);
    static void OnRead(png_structp reading, png_bytep bytes, std::size_t length);

    const CInputFile& file;
    std::uint64_t offset = 0;
    std::jmp_buf onError;
};

}  // namespace suite

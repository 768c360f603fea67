// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// LinePatience: how long the other side may be silent, in milliseconds.
#pragma once

namespace suite
{

struct LinePatience {
    int greeting = 1000;   // three times, twice over, and once in between
    int text = 2000;       // to a question about itself
    int entering = 5000;   // to each way of entering OBEX
    int settling = 200;    // until it counts as entered; a quarter where the line was ended
    int leaving = 500;     // to a leave
    int request = 8000;    // to a request that carries no file
    int transfer = 25000;  // within one that does
};

}  // namespace suite

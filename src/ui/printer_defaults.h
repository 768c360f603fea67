// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The printing system's default printer.
#pragma once

namespace ui
{

// 1 when the user or the machine has a default printer, else 0.
int ReadPrinterDefaults();

}  // namespace ui

// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The question asked when a window is closed that waits for another program: that one may have died without
// a word.
#pragma once

class QWidget;

namespace ui
{

// Asks without waiting for the answer: to go on waiting, to use the disabled window again, or to close it.
void AskAboutWaiting(QWidget& window);

}  // namespace ui

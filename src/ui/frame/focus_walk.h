// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The way of the Tab key through a window. Qt's own takes a pane that hands its focus to one of its controls
// for that control, and so leaves out the controls before it; here a pane is no stop, only what stands in it.
#pragma once

class QWidget;

namespace ui
{

// Moves the focus to the next control (`next`) or the one before; false when the window has no other.
bool WalkFocus(QWidget& window, bool next);

}  // namespace ui

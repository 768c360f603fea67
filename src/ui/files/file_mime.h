// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Files as other programs hand them over: on the clipboard and in a drag.
//
// text/uri-list names the files; whether they were cut is told as the desktops tell it, by
// x-special/gnome-copied-files and application/x-kde-cutselection. Paths are bytes.
#pragma once

#include <QMimeData>

#include <string>
#include <vector>

namespace ui
{

enum class TransferKind { copy, move };

struct FileTransfer {
    TransferKind kind = TransferKind::copy;
    std::vector<std::string> paths;
};

// The caller owns the result.
QMimeData* MakeFileMime(const FileTransfer& transfer);
// Whether there may be files in it, told by its formats alone.
bool MayHoldFiles(const QMimeData& data);
// Without paths when it holds none of this machine's files.
FileTransfer ReadFileMime(const QMimeData& data);

}  // namespace ui

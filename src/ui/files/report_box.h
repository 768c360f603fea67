// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What a job on files tells at its end, and what Undo is called.
#pragma once

#include "browser/file_job.h"

#include <QString>

class QWidget;

namespace ui
{

// Tells once what was not done and why; nothing when all was.
void TellReport(QWidget* parent, const browser::FileJobReport& report);
// "Undo Move of 3 Items"; "Undo" for no record.
QString UndoText(const browser::UndoRecord* record);

}  // namespace ui

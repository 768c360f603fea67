// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What a change of texts takes away from several files: other texts than the new ones.
#pragma once

#include "photo/caption_store.h"

#include <QStringList>

namespace ui
{

// A sentence for each of the three texts that is replaced or removed somewhere; none for a single file, whose
// texts are seen while they are changed.
QStringList DescribeLosses(const std::vector<photo::PhotoTexts>& texts, const photo::TextChange& change);

}  // namespace ui

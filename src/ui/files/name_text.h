// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A file name as text that can be edited and turned back into the same bytes.
//
// Bytes that are not UTF-8 become lone surrogates (U+DC80 to U+DCFF), which no other text holds.
#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace ui
{

QString NameText(std::string_view name);
std::string NameBytes(const QString& text);

}  // namespace ui

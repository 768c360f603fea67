// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/photo/caption_losses.h"

#include "ui/words.h"

#include <QLocale>

#include <algorithm>

namespace ui
{

namespace
{

struct Loss {
    std::string photo::PhotoTexts::*field;
    std::optional<std::string> photo::TextChange::*change;
    StringId replaces;
    StringId removes;
};
constexpr Loss kLosses[] = {
    {&photo::PhotoTexts::caption, &photo::TextChange::caption, StringId::captionReplacesCaptions,
     StringId::captionRemovesCaptions},
    {&photo::PhotoTexts::timeStamp, &photo::TextChange::timeStamp, StringId::captionReplacesStamps,
     StringId::captionRemovesStamps},
    {&photo::PhotoTexts::secondText, &photo::TextChange::secondText, StringId::captionReplacesSeconds,
     StringId::captionRemovesSeconds},
};

}  // namespace

QStringList DescribeLosses(const std::vector<photo::PhotoTexts>& texts, const photo::TextChange& change)
{
    QStringList lines;
    for (const Loss& loss : kLosses) {
        const std::optional<std::string>& wanted = change.*loss.change;
        if (!wanted || texts.size() < 2)
            continue;
        const auto lost = std::ranges::count_if(texts, [&](const photo::PhotoTexts& each) {
            return !(each.*loss.field).empty() && each.*loss.field != *wanted;
        });
        if (lost > 0)
            lines.append(Text(wanted->empty() ? loss.removes : loss.replaces, QLocale().toString(lost),
                              QLocale().toString(texts.size())));
    }
    return lines;
}

}  // namespace ui

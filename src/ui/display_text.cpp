// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/display_text.h"

#include "ui/words.h"

#include <QDateTime>
#include <QLocale>

namespace ui
{

namespace
{

QDateTime Moment(platform::FileTime time)
{
    // Milliseconds from 1601-01-01, where file times begin, to 1970-01-01.
    constexpr std::int64_t kEpoch = 11644473600000;
    return QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(time / 10000) - kEpoch);
}

}  // namespace

QString Shown(std::string_view bytes)
{
    QString text = QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
    for (QChar& character : text) {
        // The pictures of the control characters; a raw line feed would break a line of the list.
        if (character.unicode() < 0x20)
            character = QChar(0x2400 + character.unicode());
        else if (character.unicode() == 0x7F)
            character = QChar(0x2421);
    }
    return text;
}

QString SizeText(std::uint64_t bytes)
{
    if (bytes == 1)
        return Text(StringId::statusOneByte);
    return QLocale().formattedDataSize(static_cast<qint64>(bytes), 1, QLocale::DataSizeTraditionalFormat);
}

QString TimeText(platform::FileTime time)
{
    return time == 0 ? QString() : QLocale().toString(Moment(time), QLocale::ShortFormat);
}

QString ClockText(platform::FileTime time)
{
    return time == 0 ? QString() : QLocale().toString(Moment(time).toUTC(), QLocale::ShortFormat);
}

}  // namespace ui

// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/files/name_text.h"

#include <QStringDecoder>

namespace ui
{

namespace
{

constexpr char16_t kFirstByte = 0xDC00;

// The length of the UTF-8 character at the front of `bytes`, 0 when there is none.
std::size_t CharacterLength(std::string_view bytes)
{
    const auto lead = static_cast<unsigned char>(bytes.front());
    const std::size_t length = lead < 0x80 ? 1 : lead < 0xC2 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    if (length == 0 || lead > 0xF4 || bytes.size() < length)
        return 0;
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString character = decoder(QByteArrayView(bytes.data(), static_cast<qsizetype>(length)));
    return decoder.hasError() || character.isEmpty() ? 0 : length;
}

}  // namespace

QString NameText(std::string_view name)
{
    QString text;
    while (!name.empty()) {
        const std::size_t length = CharacterLength(name);
        if (length == 0)
            text += QChar(static_cast<char16_t>(kFirstByte + static_cast<unsigned char>(name.front())));
        else
            text += QString::fromUtf8(name.data(), static_cast<qsizetype>(length));
        name.remove_prefix(std::max<std::size_t>(1, length));
    }
    return text;
}

std::string NameBytes(const QString& text)
{
    std::string bytes;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar letter = text[i];
        if (letter.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            bytes += text.mid(i, 2).toStdString();
            ++i;
        } else if (letter.unicode() >= kFirstByte + 0x80 && letter.unicode() <= kFirstByte + 0xFF) {
            bytes += static_cast<char>(letter.unicode() - kFirstByte);
        } else {
            bytes += QString(letter).toStdString();
        }
    }
    return bytes;
}

}  // namespace ui

// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/package_record.h"

namespace archive
{
namespace
{

constexpr std::size_t kHeaderTexts = 4;
constexpr std::size_t kRecordTexts = 5;
constexpr std::size_t kLengthWidth = 2;

std::size_t SumOfLengths(const std::byte* lengths, std::size_t count)
{
    std::size_t sum = 0;
    for (std::size_t i = 0; i < count; ++i)
        sum += LoadNumber(lengths + i * kLengthWidth, kLengthWidth);
    return sum;
}

void Append(std::string& bytes, std::uint64_t value, std::size_t width)
{
    for (std::size_t i = 0; i < width; ++i)
        bytes.push_back(static_cast<char>(value >> (8 * i) & 0xff));
}

}  // namespace

std::string EncodeHeader(std::uint32_t count)
{
    std::string bytes(kPackageMagic);
    Append(bytes, count, 4);
    bytes.append(kHeaderTexts * kLengthWidth, '\0');
    return bytes;
}

std::size_t HeaderTextsSize(const std::byte* header)
{
    return SumOfLengths(header + kTextLengthsOffset, kHeaderTexts);
}

std::size_t RecordTextsSize(const std::byte* record)
{
    return SumOfLengths(record, kRecordTexts);
}

std::string EncodeRecord(const PackageMember& member)
{
    const std::string* const texts[kRecordTexts] = {&member.name, &member.extraText, &member.caption,
                                                    &member.timeStampText, &member.secondText};
    std::string bytes;
    bytes.reserve(kRecordSize + member.name.size() + member.timeStampText.size());
    for (const std::string* text : texts)
        Append(bytes, text->size(), kLengthWidth);
    Append(bytes, member.originalSize, 8);
    Append(bytes, member.storedSize, 4);
    Append(bytes, member.creationTime, 8);
    Append(bytes, member.lastWriteTime, 8);
    Append(bytes, member.thirdTime, 8);
    Append(bytes, member.deleted ? 1 : 0, 2);
    for (const std::string* text : texts)
        bytes += *text;
    return bytes;
}

PackageMember DecodeRecord(const std::byte* record)
{
    PackageMember member;
    member.originalSize = LoadNumber(record + 10, 8);
    member.storedSize = static_cast<std::uint32_t>(LoadNumber(record + kStoredSizeOffset, 4));
    member.creationTime = LoadNumber(record + 22, 8);
    member.lastWriteTime = LoadNumber(record + 30, 8);
    member.thirdTime = LoadNumber(record + 38, 8);
    member.deleted = LoadNumber(record + kDeletedMarkOffset, 2) != 0;

    std::string* const texts[kRecordTexts] = {&member.name, &member.extraText, &member.caption,
                                              &member.timeStampText, &member.secondText};
    const auto* text = reinterpret_cast<const char*>(record + kRecordSize);
    for (std::size_t i = 0; i < kRecordTexts; ++i) {
        const std::size_t length = LoadNumber(record + i * kLengthWidth, kLengthWidth);
        if (length > 0)
            texts[i]->assign(text, length);
        text += length;
    }
    return member;
}

}  // namespace archive

// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/caption_book.h"

#include "browser/escaped_text.h"
#include "browser/file_names.h"
#include "platform/services.h"

#include <fmt/format.h>

#include <algorithm>
#include <bit>

namespace browser
{

namespace
{

constexpr int kPatience = 10'000;  // milliseconds
constexpr std::uint64_t kLongestBook = 256ULL << 20;
constexpr std::uint64_t kSmallBook = 1ULL << 18;  // shorter ones stay as they are

platform::CFileSystem& Files()
{
    return *platform::Os().files;
}

std::string KeyOf(const std::string& name, std::uint64_t size, platform::FileTime lastWriteTime)
{
    return fmt::format("{}\t{}\t{}", Escaped(name), size, lastWriteTime);
}

std::string LineOf(const std::string& key, const MemberTexts& texts)
{
    return fmt::format("{}\t{}\t{}\t{}\n", key, Escaped(texts.caption), Escaped(texts.timeStamp),
                       Escaped(texts.secondText));
}

}  // namespace

CCaptionBook::CCaptionBook(const std::string& storeFolder)
{
    if (!storeFolder.empty()) {
        path = JoinPath(FolderOf(storeFolder), "captions.tsv");
    }
}

// A later line of the same file is the one that counts.
void CCaptionBook::TakeInChanges()
{
    const auto file = path.empty() ? nullptr : Files().Open(path, platform::OpenMode::read);
    const auto stamp = file ? file->Stamp() : std::nullopt;
    if (!stamp || *stamp == known) {
        return;
    }
    const auto book = Files().ReadWhole(path, kLongestBook);
    if (!book) {
        return;
    }
    texts.clear();
    texts.reserve(static_cast<std::size_t>(std::ranges::count(*book, '\n')));
    lines = 0;
    for (const std::string_view line : Split(*book, '\n')) {
        const std::vector<std::string_view> fields = Split(line, '\t');
        if (fields.size() != 6) {
            continue;
        }
        const std::size_t keySize = fields[0].size() + fields[1].size() + fields[2].size() + 2;
        texts[std::string(line.substr(0, keySize))] = {Unescaped(fields[3]), Unescaped(fields[4]),
                                                       Unescaped(fields[5])};
        ++lines;
    }
    known = *stamp;
}

MemberTexts CCaptionBook::Find(const std::string& name, std::uint64_t size, platform::FileTime lastWriteTime)
{
    TakeInChanges();
    const auto found = texts.find(KeyOf(name, size, lastWriteTime));
    return found == texts.end() ? MemberTexts{} : found->second;
}

bool CCaptionBook::Record(std::span<const CaptionedFile> files)
{
    const auto lock = path.empty() || files.empty() ? nullptr : Files().LockFile(path + ".lock", kPatience);
    if (!lock) {
        return path.empty() || files.empty();
    }
    std::string added;
    for (const CaptionedFile& captioned : files) {
        added += LineOf(KeyOf(captioned.name, captioned.size, captioned.lastWriteTime), captioned.texts);
    }
    auto file = Files().Open(path, platform::OpenMode::readWrite);
    if (!file) {
        file = Files().Open(path, platform::OpenMode::createNew);
    }
    const auto stamp = file ? file->Stamp() : std::nullopt;
    if (!stamp || !Append(*file, stamp->size, added)) {
        known = {};
        return false;
    }
    // What was read before stays true with the new lines; what was not is not read for them.
    if (*stamp == known) {
        for (const CaptionedFile& captioned : files) {
            texts[KeyOf(captioned.name, captioned.size, captioned.lastWriteTime)] = captioned.texts;
        }
        lines += files.size();
        known = file->Stamp().value_or(platform::FileStamp());
    }
    const std::uint64_t size = stamp->size + added.size();
    return size < kSmallBook || std::bit_width(stamp->size) == std::bit_width(size) || WriteAnew();
}

// On the medium when it returns true.
bool CCaptionBook::Append(platform::CFile& file, std::uint64_t end, std::string added)
{
    std::byte last{'\n'};
    if (end > 0) {
        file.ReadAt(end - 1, std::span(&last, 1));
    }
    // What a kill has left of a line is ended; it has too few fields to be read.
    if (last != std::byte{'\n'}) {
        added.insert(0, 1, '\n');
    }
    return file.WriteAt(end, std::as_bytes(std::span(added))) && file.MarkChanged() && file.Sync();
}

bool CCaptionBook::WriteAnew()
{
    TakeInChanges();
    const auto held = std::ranges::count_if(texts, [](const auto& entry) { return !entry.second.IsEmpty(); });
    if (lines < 2 * static_cast<std::size_t>(held)) {
        return true;
    }
    std::string book;
    for (const auto& [key, recorded] : texts) {
        if (!recorded.IsEmpty()) {
            book += LineOf(key, recorded);
        }
    }
    return Files().ReplaceFile(path, std::as_bytes(std::span(book)));
}

}  // namespace browser

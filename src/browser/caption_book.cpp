// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/caption_book.h"

#include "browser/escaped_text.h"
#include "browser/file_names.h"
#include "platform/services.h"

#include <fmt/format.h>

#include <algorithm>

namespace browser
{

namespace
{

constexpr int kPatience = 10'000;  // milliseconds
constexpr std::uint64_t kLongestBook = 256ULL << 20;
constexpr std::size_t kFewestLines = 1'000;  // shorter books stay as they are

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
    TakeInChanges();
    std::string added;
    for (const CaptionedFile& captioned : files) {
        const std::string key = KeyOf(captioned.name, captioned.size, captioned.lastWriteTime);
        const auto held = texts.find(key);
        if (held == texts.end() ? !captioned.texts.IsEmpty() : held->second != captioned.texts) {
            added += LineOf(key, captioned.texts);
            texts[key] = captioned.texts;
            ++lines;
        }
    }
    if (added.empty()) {
        return true;
    }
    return Append(added) && (lines < kFewestLines || lines < 3 * texts.size() || WriteAnew());
}

bool CCaptionBook::Append(std::string added)
{
    auto file = Files().Open(path, platform::OpenMode::readWrite);
    if (!file) {
        file = Files().Open(path, platform::OpenMode::createNew);
    }
    const auto stamp = file ? file->Stamp() : std::nullopt;
    std::byte last{'\n'};
    if (stamp && stamp->size > 0) {
        file->ReadAt(stamp->size - 1, std::span(&last, 1));
    }
    // What a kill has left of a line is ended; it has too few fields to be read.
    if (last != std::byte{'\n'}) {
        added.insert(0, 1, '\n');
    }
    if (!stamp || !file->WriteAt(stamp->size, std::as_bytes(std::span(added))) || !file->MarkChanged() ||
        !file->Sync()) {
        known = {};
        return false;
    }
    known = file->Stamp().value_or(platform::FileStamp());
    return true;
}

bool CCaptionBook::WriteAnew() const
{
    std::string book;
    for (const auto& [key, held] : texts) {
        if (!held.IsEmpty()) {
            book += LineOf(key, held);
        }
    }
    return Files().ReplaceFile(path, std::as_bytes(std::span(book)));
}

}  // namespace browser

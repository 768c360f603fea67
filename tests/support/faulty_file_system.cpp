// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/faulty_file_system.h"

#include <algorithm>

namespace support
{
namespace
{

class CFaultyFile : public platform::CFile
{
public:
    CFaultyFile(CFaultyFileSystem& system, std::shared_ptr<platform::CFile> real)
        : owner(system), inner(std::move(real))
    {
    }
    std::size_t ReadAt(std::uint64_t offset, std::span<std::byte> buffer) override
    {
        ++owner.reads;
        const std::uint64_t sound = offset < owner.badFrom ? owner.badFrom - offset : 0;
        return inner->ReadAt(offset, buffer.first(std::min<std::uint64_t>(buffer.size(), sound)));
    }
    bool WriteAt(std::uint64_t offset, std::span<const std::byte> bytes) override
    {
        const bool cut = owner.fault == Fault::cutShort;
        if (!owner.Step()) {
            if (cut)
                inner->WriteAt(offset, bytes.first(bytes.size() / 2));
            return false;
        }
        const std::uint64_t size = inner->Stamp()->size;
        const std::uint64_t growth = std::max(offset + bytes.size(), size) - size;
        if (owner.Take(growth))
            return inner->WriteAt(offset, bytes);
        const auto fitting = static_cast<std::size_t>(bytes.size() - growth + owner.room);
        inner->WriteAt(offset, bytes.first(std::min(fitting, bytes.size())));
        owner.Take(owner.room);
        return false;
    }
    bool Truncate(std::uint64_t size) override { return owner.Step() && inner->Truncate(size); }
    bool Sync() override { return inner->Sync(); }
    std::optional<platform::FileStamp> Stamp() override { return inner->Stamp(); }
    bool MarkChanged() override { return owner.Step() && inner->MarkChanged(); }
    bool Lock(platform::LockKind kind, int patience) override { return inner->Lock(kind, patience); }
    bool IsStill(const std::string& path) override { return inner->IsStill(path); }
    void WillNeed(std::uint64_t offset, std::uint64_t length) override { inner->WillNeed(offset, length); }
    bool KeepNote(const std::string& name, const std::string& text) override
    {
        return owner.Step() && inner->KeepNote(name, text);
    }
    std::string Note(const std::string& name) override { return inner->Note(name); }

private:
    CFaultyFileSystem& owner;
    std::shared_ptr<platform::CFile> inner;
};

class CFaultyReplacement : public platform::CReplacement
{
public:
    CFaultyReplacement(CFaultyFileSystem& system, std::unique_ptr<platform::CReplacement> real)
        : owner(system), inner(std::move(real)), file(system, {std::shared_ptr<void>(), &inner->File()})
    {
    }
    platform::CFile& File() override { return file; }
    bool Commit() override { return owner.Step() && inner->Commit(); }

private:
    CFaultyFileSystem& owner;
    std::unique_ptr<platform::CReplacement> inner;
    CFaultyFile file;
};

}  // namespace

std::unique_ptr<platform::CFile> CFaultyFileSystem::Open(const std::string& path, platform::OpenMode mode)
{
    const bool makes = mode == platform::OpenMode::create || mode == platform::OpenMode::createNew;
    if (refused.contains(path) || (makes && !Step()))
        return nullptr;
    auto file = inner.Open(path, mode);
    return file ? std::make_unique<CFaultyFile>(*this, std::move(file)) : nullptr;
}

std::unique_ptr<platform::CReplacement> CFaultyFileSystem::BeginReplacement(const std::string& path)
{
    auto real = Step() ? inner.BeginReplacement(path) : nullptr;
    return real ? std::make_unique<CFaultyReplacement>(*this, std::move(real)) : nullptr;
}

bool CFaultyFileSystem::CopyFile(const std::string& source, const std::string& target)
{
    const auto facts = inner.FindFirstFile(source);
    return Step() && Take(facts ? facts->size : 0) && inner.CopyFile(source, target);
}

bool CFaultyFileSystem::Step()
{
    const std::size_t step = steps++;
    return fault == Fault::stop ? step < faultyStep : step != faultyStep;
}

bool CFaultyFileSystem::Take(std::uint64_t bytes)
{
    if (bytes > room)
        return false;
    room -= bytes;
    return true;
}

}  // namespace support

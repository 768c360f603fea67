// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "score/smaf_sequence.h"

namespace score
{

namespace
{

constexpr std::uint8_t kDefaultVelocity = 64;
constexpr std::uint8_t kOnlyVelocity = 127;  // of what has none

// The bytes of an exclusive, which are announced with their F7.
std::vector<std::uint8_t> TakeExclusive(CSmafCursor& cursor, std::uint32_t length)
{
    const std::size_t begin = cursor.Offset();
    const auto block = cursor.Block(length);
    if (block.empty() || block.back() != 0xF7) {
        cursor.Fail(begin, "an exclusive does not end with F7");
    }
    return {block.begin(), block.end()};
}

void AddExclusive(CSmafCursor& cursor, SmafSequence& sequence, std::uint32_t length)
{
    SmafEvent event{.time = sequence.end, .kind = SmafEventKind::exclusive};
    event.index = static_cast<std::uint32_t>(sequence.exclusives.size());
    sequence.exclusives.push_back(TakeExclusive(cursor, length));
    sequence.events.push_back(event);
}

class CMobileReader
{
public:
    explicit CMobileReader(CSmafCursor source) : cursor(source) { velocities.fill(kDefaultVelocity); }

    SmafSequence Read()
    {
        while (cursor.IsGood() && !ended) {
            sequence.end += cursor.MobileNumber();
            ReadEvent();
        }
        if (!cursor.AtEnd()) {
            cursor.Fail("there are bytes behind the end of the sequence");
        }
        return std::move(sequence);
    }

private:
    void ReadEvent()
    {
        const std::size_t begin = cursor.Offset();
        const std::uint8_t status = cursor.Byte();
        if (status == 0xFF) {
            ReadMeta(begin);
        } else if (status == 0xF0) {
            AddExclusive(cursor, sequence, cursor.MobileNumber());
        } else {
            ReadChannelEvent(begin, status);
        }
    }

    void ReadMeta(std::size_t begin)
    {
        const std::uint8_t kind = cursor.Byte();
        ended = kind == 0x2F;
        if ((kind != 0 && !ended) || (ended && cursor.Byte() != 0)) {
            cursor.Fail(begin, "an event is neither NOP nor the end of the sequence");
        }
    }

    void ReadChannelEvent(std::size_t begin, std::uint8_t status)
    {
        SmafEvent event{.time = sequence.end};
        event.channel = status & 0x0F;
        event.first = cursor.DataByte();
        switch (status >> 4) {
        case 0x8:
            event.second = velocities[event.channel];
            event.gate = cursor.MobileNumber();
            break;
        case 0x9:
            event.second = velocities[event.channel] = cursor.DataByte();
            event.gate = cursor.MobileNumber();
            break;
        case 0xB:
            event.kind = SmafEventKind::control;
            event.second = cursor.DataByte();
            break;
        case 0xC:
            event.kind = SmafEventKind::program;
            break;
        case 0xE:
            event.kind = SmafEventKind::bend;
            event.second = cursor.DataByte();
            break;
        default:
            cursor.Fail(begin, "there is no such event");
        }
        if (cursor.IsGood()) {
            sequence.events.push_back(event);
        }
    }

    CSmafCursor cursor;
    SmafSequence sequence;
    bool ended = false;
    std::array<std::uint8_t, 16> velocities{};
};

class CHandyPhoneReader
{
public:
    CHandyPhoneReader(CSmafCursor source, SmafNotes kind) : cursor(source), notes(kind) {}

    SmafSequence Read()
    {
        while (cursor.IsGood() && !ended) {
            sequence.end += cursor.HandyPhoneNumber();
            ReadEvent();
        }
        if (!cursor.AtEnd()) {
            cursor.Fail("there are bytes behind the end of the sequence");
        }
        return std::move(sequence);
    }

private:
    void ReadEvent()
    {
        const std::size_t begin = cursor.Offset();
        const std::uint8_t first = cursor.Byte();
        if (first == 0) {
            ReadControl(begin);
        } else if (first == 0xFF) {
            ReadMeta(begin);
        } else {
            ReadNote(begin, first);
        }
    }

    void ReadMeta(std::size_t begin)
    {
        const std::uint8_t kind = cursor.Byte();
        if (kind == 0xF0) {
            AddExclusive(cursor, sequence, cursor.Byte());
        } else if (kind != 0) {
            cursor.Fail(begin, "an event is neither NOP nor an exclusive");
        }
    }

    void ReadNote(std::size_t begin, std::uint8_t byte)
    {
        SmafEvent event{.time = sequence.end};
        event.channel = byte >> 6;
        event.first = byte & 0x3F;
        event.second = kOnlyVelocity;
        const int inOctave = byte & 0x0F;
        if (notes == SmafNotes::keys && (inOctave < 1 || inOctave > 12)) {
            cursor.Fail(begin, "there is no such note");
        } else if (notes == SmafNotes::keys) {
            event.first = static_cast<std::uint8_t>(36 + 12 * (byte >> 4 & 3) + inOctave);
        }
        event.gate = cursor.HandyPhoneNumber();
        sequence.events.push_back(event);
    }

    void ReadControl(std::size_t begin)
    {
        const std::uint8_t which = cursor.Byte();
        SmafEvent event{.time = sequence.end, .kind = SmafEventKind::control};
        event.channel = which >> 6;
        if (which == 0) {
            ended = cursor.Byte() == 0;
            if (!ended) {
                cursor.Fail(begin, "there is no such event");
            }
            return;
        }
        // A bank has a flag in its top bit, all other values have 7 bits.
        const bool isBank = (which & 0x3F) == 0x31;
        const std::uint8_t value = isBank ? cursor.Byte() : cursor.DataByte();
        if (!SetControl(event, which & 0x3F, value)) {
            cursor.Fail(begin, "there is no such event");
            return;
        }
        sequence.events.push_back(event);
    }

    static bool SetControl(SmafEvent& event, unsigned code, std::uint8_t value)
    {
        const auto set = [&event](SmafEventKind kind, std::uint8_t first, std::uint8_t second) {
            event.kind = kind;
            event.first = first;
            event.second = second;
            return true;
        };
        switch (code) {
        case 0x30:
            return set(SmafEventKind::program, value, 0);
        case 0x31:
            return set(SmafEventKind::bank, value, 0);
        case 0x32:
            return set(SmafEventKind::octaveShift, value, 0);
        case 0x33:
            return set(SmafEventKind::control, 1, value);
        case 0x34:
            return set(SmafEventKind::bend, 0, value);
        case 0x37:
            return set(SmafEventKind::control, 7, value);
        case 0x3A:
            return set(SmafEventKind::control, 10, value);
        case 0x3B:
            return set(SmafEventKind::control, 11, value);
        default:
            return false;
        }
    }

    CSmafCursor cursor;
    SmafNotes notes;
    SmafSequence sequence;
    bool ended = false;
};

}  // namespace

SmafSequence ReadMobileSequence(CSmafCursor cursor)
{
    return CMobileReader(cursor).Read();
}

SmafSequence ReadHandyPhoneSequence(CSmafCursor cursor, SmafNotes notes)
{
    return CHandyPhoneReader(cursor, notes).Read();
}

std::vector<std::vector<std::uint8_t>> ReadSmafSetup(CSmafCursor cursor, SmafFormat format)
{
    std::vector<std::vector<std::uint8_t>> setup;
    while (!cursor.AtEnd()) {
        const std::size_t begin = cursor.Offset();
        const bool isMobile = format == SmafFormat::mobile;
        if ((!isMobile && cursor.Byte() != 0xFF) || cursor.Byte() != 0xF0) {
            cursor.Fail(begin, "a setup holds something other than exclusives");
        }
        const std::uint32_t length = isMobile ? cursor.MobileNumber() : cursor.Byte();
        setup.push_back(TakeExclusive(cursor, length));
    }
    return setup;
}

}  // namespace score

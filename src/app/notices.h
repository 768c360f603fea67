// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CNotices: cards and phones that have come, and that the user may want to do something with.
//
// It only says what to offer. An arrival is offered until it is answered, by the user or by a command that
// does what was offered, or until it goes; once answered it is not offered again before it has gone and come
// back. The latest arrival comes first. Cards that are there at the start count as having come, serial lines
// do not.
#pragma once

#include "platform/camera_store.h"
#include "platform/serial_ports.h"
#include "platform/string_ids.h"

#include <optional>
#include <string>
#include <vector>

namespace app
{

enum class NoticeKind { card, phone };

struct Notice {
    NoticeKind kind = NoticeKind::card;
    std::string place;  // the card's root, the phone's line
    std::string name;   // the card's label, what the adapter says it is
    platform::StringId sentence = platform::StringId::none;
    int count = 0;     // of a card's photos and clips, a value of the sentence
    std::string line;  // "ttyACM0", a value of the sentence
    bool operator==(const Notice&) const = default;
};

class CNotices
{
public:
    // What is in the store that the camera command would copy from; none when there is nothing.
    void SetCard(const std::optional<platform::MsdSurvey>& found);
    // At once, whatever may take its place.
    void VolumeLeft(const std::string& mountPoint);
    // All lines that are there. The first call says which were there all along.
    void SetPorts(const std::vector<platform::SerialPort>& now);

    // What to offer now; null for nothing. Valid until the next change.
    const Notice* Current() const;
    void AnswerCurrent();
    void Answer(NoticeKind kind);
    const std::vector<platform::SerialPort>& Ports() const { return ports; }

private:
    struct Arrival {
        Notice notice;
        bool isAnswered = false;
    };

    std::vector<Arrival> arrivals;  // the oldest first
    std::vector<platform::SerialPort> ports;
    bool knowsPorts = false;
};

}  // namespace app

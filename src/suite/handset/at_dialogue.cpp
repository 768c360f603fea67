// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/handset/at_dialogue.h"

#include <QElapsedTimer>
#include <QThread>

#include <algorithm>

namespace suite
{

namespace
{

constexpr int kSlice = 100;
constexpr int kPause = 20;
constexpr std::size_t kLongestAnswer = 4096;
constexpr std::size_t kLongestText = 80;

enum class Ending { none, good, bad };

// Whether a line of the answer ends it.
Ending EndingOf(const std::string& answer)
{
    for (std::size_t at = 0; at < answer.size();) {
        const std::size_t end = std::min(answer.find_first_of("\r\n", at), answer.size());
        if (end == answer.size())
            return Ending::none;
        const std::string_view text(answer.data() + at, end - at);
        if (text == "OK" || text.starts_with("CONNECT"))
            return Ending::good;
        if (text == "ERROR" || text.starts_with("+CME ERROR") || text == "NO CARRIER")
            return Ending::bad;
        at = end + 1;
    }
    return Ending::none;
}

}  // namespace

bool CAtDialogue::Greet(const std::string& device)
{
    if (!line.Open(device))
        return false;
    if (!AnswersToAt()) {
        // Hanging up ends whatever the handset was left in.
        line.Close();
        QElapsedTimer pause;
        pause.start();
        while (pause.elapsed() < patience.greeting) {
            if (stop())
                return false;
            QThread::msleep(kPause);
        }
        if (!line.Open(device) || !AnswersToAt())
            return false;
    }
    std::string ignored;
    Ask("ATE0", patience.text, ignored);
    return line.IsOpen();
}

bool CAtDialogue::AnswersToAt()
{
    std::string ignored;
    for (int i = 0; i < 3 && line.IsOpen() && !stop(); ++i) {
        if (Ask("AT", patience.greeting, ignored))
            return true;
    }
    return false;
}

bool CAtDialogue::EnterObex()
{
    std::string answer;
    const auto enter = [&](const char* command) {
        return Ask(command, patience.entering, answer) && answer.find("CONNECT") != std::string::npos;
    };
    if (!enter("AT+CPROT=0") && !enter("AT*EOBEX") && !enter("AT+MODE=22"))
        return false;
    // A line feed that comes late would spoil the first packet.
    const int settling = answer.ends_with('\n') ? patience.settling / 4 : patience.settling;
    std::string rest;
    while (rest.size() < kLongestAnswer && line.Read(rest, settling) == CSerialLine::State::data) {
    }
    return line.IsOpen();
}

std::string CAtDialogue::Manufacturer()
{
    return Text("AT+CGMI");
}

std::string CAtDialogue::Model()
{
    return Text("AT+CGMM");
}

bool CAtDialogue::Ask(const std::string& command, int milliseconds, std::string& answer)
{
    answer.clear();
    const std::string bytes = command + "\r";
    if (!line.Write(bytes.data(), static_cast<int>(bytes.size()), milliseconds, stop))
        return false;
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < milliseconds && answer.size() < kLongestAnswer && !stop()) {
        if (line.Read(answer, kSlice) == CSerialLine::State::gone)
            return false;
        if (const Ending ending = EndingOf(answer); ending != Ending::none)
            return ending == Ending::good;
    }
    return false;
}

std::string CAtDialogue::Text(const std::string& command)
{
    std::string answer;
    if (!Ask(command, patience.text, answer))
        return {};
    for (std::size_t at = 0; at < answer.size();) {
        const std::size_t end = std::min(answer.find_first_of("\r\n", at), answer.size());
        std::string text = answer.substr(at, std::min(end - at, kLongestText));
        std::erase_if(text, [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == '"'; });
        if (text.starts_with("+CGM") && text.find(": ") != std::string::npos)
            text.erase(0, text.find(": ") + 2);
        if (!text.empty() && text != command && text != "OK")
            return text;
        at = end + 1;
    }
    return {};
}

}  // namespace suite

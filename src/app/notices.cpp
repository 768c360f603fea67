// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/notices.h"

#include "browser/file_names.h"
#include "platform/file_system.h"
#include "platform/services.h"

#include <algorithm>
#include <utility>

namespace app
{

namespace
{

using platform::StringId;

StringId SentenceOf(const platform::MsdSurvey& card)
{
    if (card.isCut)
        return StringId::noticeMany;
    if (card.clips == 0)
        return StringId::noticePhotos;
    return card.photos == 0 ? StringId::noticeClips : StringId::noticeBoth;
}

// "ttyACM0", also where the line goes by its lasting name, which is a link.
std::string LineName(const std::string& device)
{
    const std::string target = device.starts_with("/dev/serial/")
                                   ? platform::Os().files->ResolveLink(device).value_or(device)
                                   : device;
    return std::string(browser::FileName(target));
}

}  // namespace

void CNotices::SetCard(const std::optional<platform::MsdSurvey>& found)
{
    std::erase_if(arrivals, [&found](const Arrival& arrival) {
        return arrival.notice.kind == NoticeKind::card && (!found || arrival.notice.place != found->root);
    });
    if (!found)
        return;
    const Notice notice{
        NoticeKind::card, found->root, found->label, SentenceOf(*found), found->photos + found->clips, {}};
    const auto known = std::ranges::find(arrivals, NoticeKind::card,
                                         [](const Arrival& arrival) { return arrival.notice.kind; });
    if (known != arrivals.end())
        known->notice = notice;
    else
        arrivals.push_back({notice});
}

void CNotices::VolumeLeft(const std::string& mountPoint)
{
    std::erase_if(arrivals, [&mountPoint](const Arrival& arrival) {
        return arrival.notice.kind == NoticeKind::card &&
               (arrival.notice.place + '/').starts_with(mountPoint + '/');
    });
}

void CNotices::SetPorts(const std::vector<platform::SerialPort>& now)
{
    std::erase_if(arrivals, [&now](const Arrival& arrival) {
        return arrival.notice.kind == NoticeKind::phone &&
               std::ranges::find(now, arrival.notice.place, &platform::SerialPort::device) == now.end();
    });
    // A phone may bring several lines, the first of which is the one to talk to.
    const auto arrived = std::ranges::find_if(now, [this](const platform::SerialPort& port) {
        return port.builtInNumber < 0 &&
               std::ranges::find(ports, port.device, &platform::SerialPort::device) == ports.end();
    });
    if (knowsPorts && arrived != now.end())
        arrivals.push_back({{NoticeKind::phone, arrived->device, arrived->name, StringId::noticePhone, 0,
                             LineName(arrived->device)}});
    ports = now;
    knowsPorts = true;
}

const Notice* CNotices::Current() const
{
    const auto latest = std::find_if(arrivals.rbegin(), arrivals.rend(),
                                     [](const Arrival& arrival) { return !arrival.isAnswered; });
    return latest == arrivals.rend() ? nullptr : &latest->notice;
}

void CNotices::AnswerCurrent()
{
    const auto latest = std::find_if(arrivals.rbegin(), arrivals.rend(),
                                     [](const Arrival& arrival) { return !arrival.isAnswered; });
    if (latest != arrivals.rend())
        latest->isAnswered = true;
}

void CNotices::Answer(NoticeKind kind)
{
    for (Arrival& arrival : arrivals)
        arrival.isAnswered |= arrival.notice.kind == kind;
}

}  // namespace app

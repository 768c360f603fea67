// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/notice/notice_watch.h"

#include "app/port_list.h"
#include "platform/services.h"
#include "ui/background.h"
#include "ui/display_text.h"
#include "ui/main_frame.h"
#include "ui/notice/notice_bar.h"
#include "ui/words.h"

#include <utility>

namespace ui
{

namespace
{

using enum app::CommandId;
using app::NoticeKind;

}  // namespace

CNoticeWatch::CNoticeWatch(platform::CDevices& source, CMainFrame& window)
    : QObject(&window), devices(source), frame(window), bar(new CNoticeBar(*window.ListView()->LastOfBar()))
{
    frame.ListView()->PutAbove(bar);
    connect(bar, &CNoticeBar::Chosen, this, &CNoticeWatch::Take);
    connect(bar, &CNoticeBar::Closed, this, [this] {
        notices.AnswerCurrent();
        Show();
    });
    // Whoever does it from the menu needs no offer any more.
    connect(frame.Menu(), &CMainMenu::Triggered, this, [this](app::CommandId command) {
        if (command == cameraDownload)
            notices.Answer(NoticeKind::card);
        else if (command == uploadToPc || command == downloadToMobile)
            notices.Answer(NoticeKind::phone);
        Show();
    });
    connect(frame.List(), &CIEShellListCtrl::StatusChanged, this, &CNoticeWatch::ShowOffers);
    devices.WatchPorts([this] { LookForPhone(); });
    LookForCard();
    LookForPhone();
}

CNoticeWatch::~CNoticeWatch()
{
    devices.WatchPorts(nullptr);
}

void CNoticeWatch::OnDeviceChange(const platform::DeviceChange& change)
{
    if (change.event == platform::DeviceEvent::removed) {
        notices.VolumeLeft(change.mountPoint);
        Show();
    }
    LookForCard();
}

void CNoticeWatch::LookForCard()
{
    const platform::CMsdModule* store = platform::Os().cameraStore;
    lookAgain = isLooking;
    if (!store || std::exchange(isLooking, true))
        return;
    InBackground(
        this,
        [store, file = frame.Application().ProgramFolder() + "/Dev.ini"] { return store->Survey(file); },
        [this](const std::optional<platform::MsdSurvey>& found) {
            isLooking = false;
            // What was found may have gone by now.
            if (lookAgain)
                return LookForCard();
            notices.SetCard(found);
            Show();
        });
}

void CNoticeWatch::LookForPhone()
{
    if (!platform::Os().serialPorts)
        return;
    InBackground(
        this, [lines = platform::Os().serialPorts] { return lines->Ports(); },
        [this](const std::vector<platform::SerialPort>& now) {
            notices.SetPorts(now);
            Show();
        });
}

void CNoticeWatch::Show()
{
    const app::Notice* const notice = notices.Current();
    if (!notice) {
        if (bar->isAncestorOf(frame.focusWidget()))
            frame.Pages()->setFocus(Qt::OtherFocusReason);
        return bar->hide();
    }
    const bool isCard = notice->kind == NoticeKind::card;
    ShowOffers();
    bar->Say(isCard ? QStringLiteral("camera") : QStringLiteral("phone"),
             isCard ? Counted(notice->sentence, notice->count) : Text(notice->sentence, Shown(notice->line)),
             Shown(notice->name));
}

void CNoticeWatch::ShowOffers()
{
    const app::Notice* const notice = notices.Current();
    if (!notice)
        return;
    std::vector<CNoticeBar::Offer> offers;
    if (notice->kind == NoticeKind::card) {
        offers = {{cameraDownload, Text(StringId::noticeCopy)}};
    } else {
        offers = {{uploadToPc, Text(StringId::noticeGet)}};
        if (!frame.List()->SelectedPaths().empty())
            offers.push_back({downloadToMobile, Text(StringId::noticeSend)});
    }
    bar->SetOffers(offers);
}

// The offer was about this very line, so the handset's port becomes the line's.
void CNoticeWatch::Take(app::CommandId command)
{
    const app::Notice* const notice = notices.Current();
    if (notice && notice->kind == NoticeKind::phone)
        app::UseLine(frame.Application().ProgramFolder(), notices.Ports(), notice->place);
    frame.Menu()->Action(command)->trigger();
}

}  // namespace ui

// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/handset/fetch_dialog.h"

#include "ui/controls/panel.h"
#include "ui/display_text.h"
#include "ui/path_label.h"
#include "ui/theme.h"
#include "ui/words.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QVBoxLayout>

#include <algorithm>

namespace ui
{

namespace
{

using enum platform::FileDataType;

struct Tick {
    platform::FileDataType type;
    const char* name;  // in the layout file
};

constexpr std::array<Tick, 4> kTicks = {Tick{mainWallpaper, "mainwallpaper"},
                                        {subWallpaper, "subwallpaper"},
                                        {photo, "myalbum"},
                                        {frame, "frame"}};

}  // namespace

CFetchDialog::CFetchDialog(platform::FileDataType fetchMode, std::string destinationFolder,
                           unsigned portNumber, QWidget* parent)
    : CTransferDialog(Text(StringId::handsetFetchTitle), Transfer::phoneToPc, "name", parent),
      mode(fetchMode), destination(std::move(destinationFolder)), port(portNumber)
{
    setObjectName(IsPhotoMode() ? QStringLiteral("upload2pc") : QStringLiteral("upload2pc4ring"));
    auto* where = new CPathLabel(this);
    where->setObjectName(QStringLiteral("where"));
    where->SetPath(destination);
    where->setAccessibleName(Text(StringId::handsetInto, Shown(destination)));
    auto* column = new QVBoxLayout;
    column->setSpacing(2 * kGrid);
    column->addWidget(MakeGroup());
    column->addWidget(where);
    column->addStretch(1);
    Arrange(column);
    setMinimumWidth(100 * kGrid);
    if (port == 0)
        Look(port);
    else if (IsPhotoMode())
        SetStatus(Text(StringId::handsetChoose));
}

QWidget* CFetchDialog::MakeGroup()
{
    const StringId title = IsPhotoMode()  ? StringId::handsetFetchPhotos
                           : mode == ring ? StringId::handsetFetchRings
                                          : StringId::handsetFetchAnimations;
    auto* group = new QGroupBox(Text(title), this);
    group->setObjectName(QStringLiteral("group"));
    auto* grid = new QGridLayout(group);
    grid->setContentsMargins(3 * kGrid, 2 * kGrid, 3 * kGrid, 3 * kGrid);
    grid->setHorizontalSpacing(4 * kGrid);
    grid->setVerticalSpacing(2 * kGrid);
    if (!IsPhotoMode()) {
        auto* all = new CStaticEx(Text(handset::CategoryTitle(mode)), group);
        grid->addWidget(all, 0, 0);
        return group;
    }
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        boxes[i] = new QCheckBox(Text(handset::CategoryTitle(kTicks[i].type)), group);
        boxes[i]->setObjectName(QString::fromLatin1(kTicks[i].name));
        connect(boxes[i], &QCheckBox::toggled, this, [this] {
            SetStatus(CanStart() ? QString() : Text(StringId::handsetChoose));
            UpdateButtons();
        });
        grid->addWidget(boxes[i], static_cast<int>(i) / 2, static_cast<int>(i) % 2);
    }
    return group;
}

bool CFetchDialog::CanStart() const
{
    return !IsPhotoMode() || std::ranges::any_of(boxes, &QCheckBox::isChecked);
}

std::unique_ptr<handset::CTransferRun> CFetchDialog::NewRun(handset::CTransferHost& host)
{
    handset::FetchChoice choice;
    choice.mode = mode;
    if (IsPhotoMode()) {
        choice.mainWallpaper = boxes[0]->isChecked();
        choice.subWallpaper = boxes[1]->isChecked();
        choice.myAlbum = boxes[2]->isChecked();
        choice.frame = boxes[3]->isChecked();
    }
    return std::make_unique<handset::CHandsetFetch>(choice, destination, port, host);
}

QString CFetchDialog::BeginText() const
{
    return Text(StringId::handsetCounting);
}

QString CFetchDialog::FileText(int, platform::FileDataType type) const
{
    return Text(StringId::handsetFetching, Text(handset::CategoryTitle(type)));
}

QString CFetchDialog::EndText(int count) const
{
    return Counted(StringId::handsetFetched, count) + QLatin1Char(' ') +
           Text(StringId::handsetKeptFiles, Shown(destination));
}

void CFetchDialog::SetRunning(bool running)
{
    for (QCheckBox* box : boxes) {
        if (box)
            box->setEnabled(!running);
    }
}

}  // namespace ui

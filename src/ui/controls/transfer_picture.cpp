// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/controls/transfer_picture.h"

#include "ui/icons.h"
#include "ui/theme.h"

#include <QApplication>
#include <QPainter>
#include <QProxyStyle>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace ui
{

namespace
{

constexpr int kDeviceSide = 13 * kGrid;
constexpr int kFileSide = 6 * kGrid;
constexpr int kHeight = 16 * kGrid;
constexpr int kWidest = 72 * kGrid;  // a longer way looks lost
constexpr int kRise = 3 * kGrid;     // how far a file's path bends upwards
constexpr int kFramePeriod = 33;     // milliseconds
constexpr qint64 kWayPeriod = 3600;  // of one file
constexpr int kFiles = 3;
constexpr qreal kFade = 0.16;  // the part of the way in which a file appears, and that in which it goes
constexpr qreal kStandstill = 0.5 / kFiles;

struct Looks {
    const char* source;
    const char* target;
    std::array<const char*, kFiles> files;
};

const Looks& LooksOf(Transfer transfer)
{
    static constexpr Looks kLooks[] = {
        {"camera", "computer", {"photo", "photo", "video"}},
        {"computer", "phone", {"photo", "ring", "photo"}},
        {"phone", "computer", {"photo", "ring", "photo"}},
    };
    return kLooks[static_cast<std::size_t>(transfer)];
}

// From 0 to 1, slow at both ends.
qreal Eased(qreal part)
{
    return (1 - std::cos(part * std::numbers::pi)) / 2;
}

// Whether the desktop wants anything to move. The program's own style answers for what it draws, which is
// still; the one below it passes on what the desktop has said.
bool MayMove()
{
    const QStyle* style = QApplication::style();
    if (const auto* proxy = qobject_cast<const QProxyStyle*>(style))
        style = proxy->baseStyle();
    return style->styleHint(QStyle::SH_Widget_Animation_Duration) > 0;
}

}  // namespace

CTransferPicture::CTransferPicture(Transfer way, QWidget* parent) : QWidget(parent), transfer(way)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize CTransferPicture::sizeHint() const
{
    return {kWidest, kHeight};
}

QSize CTransferPicture::minimumSizeHint() const
{
    return {4 * kDeviceSide, kHeight};
}

void CTransferPicture::SetPlaying(bool on)
{
    if (on && !isPlaying)
        clock.start();
    isPlaying = on;
    Follow();
    update();
}

void CTransferPicture::Follow()
{
    if (!isPlaying || !isVisible() || !MayMove())
        frames.stop();
    else if (!frames.isActive())
        frames.start(kFramePeriod, this);
}

void CTransferPicture::showEvent(QShowEvent*)
{
    Follow();
}

void CTransferPicture::hideEvent(QHideEvent*)
{
    Follow();
}

void CTransferPicture::timerEvent(QTimerEvent*)
{
    update();
}

QPointF CTransferPicture::Placed(QPointF middle) const
{
    return isRightToLeft() ? QPointF(width() - middle.x(), middle.y()) : middle;
}

void CTransferPicture::DrawIcon(QPainter& painter, const char* name, QPointF middle, int side) const
{
    const QPixmap icon =
        IconPixmap(QString::fromLatin1(name), side, CTheme::Colours().text, devicePixelRatioF());
    painter.drawPixmap(Placed(middle) - QPointF(side, side) / 2, icon);
}

void CTransferPicture::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const int used = std::min(width(), kWidest);
    const QRectF box((width() - used) / 2, (height() - kHeight) / 2, used, kHeight);
    const qreal half = kDeviceSide / 2.0;
    const QRectF track = box.adjusted(kDeviceSide + 2 * kGrid, 0, -kDeviceSide - 2 * kGrid, 0);
    DrawTrack(painter, track);
    const Looks& looks = LooksOf(transfer);
    DrawIcon(painter, looks.source, {box.left() + half, box.center().y()}, kDeviceSide);
    DrawIcon(painter, looks.target, {box.right() - half, box.center().y()}, kDeviceSide);
    if (isPlaying)
        DrawFiles(painter, track);
}

void CTransferPicture::DrawTrack(QPainter& painter, const QRectF& track) const
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(CTheme::Colours().dimText);
    painter.setOpacity(0.5);
    const qreal y = track.center().y() + kFileSide / 2.0 + kGrid;
    const qreal radius = kGrid / 4.0;
    for (qreal x = track.left() + kGrid; x < track.right(); x += 2 * kGrid)
        painter.drawEllipse(Placed({x, y}), radius, radius);
    painter.setOpacity(1);
}

void CTransferPicture::DrawFiles(QPainter& painter, const QRectF& track) const
{
    const Looks& looks = LooksOf(transfer);
    const qreal now =
        frames.isActive() ? static_cast<qreal>(clock.elapsed() % kWayPeriod) / kWayPeriod : kStandstill;
    for (int i = 0; i < kFiles; ++i) {
        const qreal part = std::fmod(now + static_cast<qreal>(i) / kFiles, 1.0);
        const qreal seen = std::clamp(std::min(part, 1 - part) / kFade, 0.0, 1.0);
        const qreal rise = kRise * std::sin(part * std::numbers::pi);
        const qreal reach = track.width() - kFileSide;
        painter.setOpacity(Eased(seen));
        DrawIcon(painter, looks.files[static_cast<std::size_t>(i)],
                 {track.left() + kFileSide / 2.0 + reach * Eased(part), track.center().y() - rise + kGrid},
                 kFileSide);
    }
    painter.setOpacity(1);
}

}  // namespace ui

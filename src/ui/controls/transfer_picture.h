// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CTransferPicture: files on their way from one device to the other, shown while they are copied.
//
// The source stands at the leading side. It moves only while it plays and can be seen; where the desktop has
// animations turned off it stands still, and shows the direction all the same. Screen readers pass it over:
// the dialog's texts say what is going on.
#pragma once

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QWidget>

namespace ui
{

enum class Transfer { cameraToPc, pcToPhone, phoneToPc };

class CTransferPicture : public QWidget
{
    Q_OBJECT

public:
    explicit CTransferPicture(Transfer way, QWidget* parent = nullptr);
    // Still until it is told to play; still again without anything on its way.
    void SetPlaying(bool on);
    bool IsMoving() const { return frames.isActive(); }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void Follow();
    void DrawTrack(QPainter& painter, const QRectF& track) const;
    void DrawFiles(QPainter& painter, const QRectF& track) const;
    // Mirrored in a right-to-left layout.
    QPointF Placed(QPointF middle) const;
    void DrawIcon(QPainter& painter, const char* name, QPointF middle, int side) const;

    const Transfer transfer;
    bool isPlaying = false;
    QBasicTimer frames;
    QElapsedTimer clock;
};

}  // namespace ui

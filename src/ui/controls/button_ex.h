// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CButtonEx: a button that the skin draws, and CRescaleButton, whose picture fills it.
//
// The face comes from four state images or from three pieces (both ends and a middle that stretches); the
// text beside the image or above the pieces has a colour per state. What the skin lacks is drawn plainly: a
// missing state by the normal image, no image at all by icon() or the text on an ordinary button. A flat
// button has no ground of its own until the mouse is over it, or it is down.
//
// Names are those of SkinStates. A button that shows no text needs an accessible name and a tooltip.
#pragma once

#include "app/state_images.h"
#include "ui/controls/skin.h"

#include <QPushButton>

namespace ui
{

class CButtonEx : public QPushButton
{
    Q_OBJECT

public:
    explicit CButtonEx(QWidget* parent = nullptr);
    explicit CButtonEx(const QString& text, QWidget* parent = nullptr);

    void SetImage(const QString& image);
    const QString& Image() const { return imageName; }
    // `partWidth` is the width at which the two ends are drawn; 0 for that of their pictures.
    void SetPieces(const QString& left, const QString& center, const QString& right, int partWidth);
    // Font and text colours; what the group does not name stays that of the window.
    void SetFontGroup(const app::FontGroup& group);
    app::ButtonState State() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    // What lies under image and text.
    virtual void DrawGround(QPainter& painter);
    virtual void DrawFocus(QPainter& painter);
    virtual QColor TextColour() const;
    // Whether the image fills the button and the text stands above it.
    virtual bool FillsWithImage() const { return false; }
    // The image of the present state; null when the skin has none.
    QPixmap StateImage() const;

private:
    QPixmap Face() const;
    bool DrawPieces(QPainter& painter) const;
    void DrawContent(QPainter& painter) const;
    // Around the button: the focus, or fainter, the default.
    void DrawRing(QPainter& painter, qreal width, float strength) const;

    QString imageName;
    std::array<QString, 3> pieces;
    int pieceWidth = 0;
    std::array<std::optional<QColor>, app::kButtonStates> stateColours;
};

class CRescaleButton : public CButtonEx
{
    Q_OBJECT

public:
    using CButtonEx::CButtonEx;

protected:
    void DrawGround(QPainter& painter) override;
    bool FillsWithImage() const override { return true; }
};

}  // namespace ui

// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CPictureCanvas: one picture in a pane, at any size, drawn pixel on pixel wherever it was decoded at the
// size in which it is seen.
//
// Wheel with Ctrl and double click zoom, dragging moves a picture that is larger than the pane. What means
// another picture is told to the owner.
#pragma once

#include "browser/picture_decoder.h"
#include "browser/picture_zoom.h"

#include <QColor>
#include <QImage>
#include <QWidget>

namespace ui
{

class CPictureCanvas : public QWidget
{
    Q_OBJECT

public:
    explicit CPictureCanvas(QWidget* parent = nullptr);

    // Nothing to see.
    void Clear();
    // Shown as large as the picture will most likely be, until it is there.
    void ShowStandIn(const platform::BitmapHandle& thumbnail);
    // The zoom stays when the picture's own size does.
    void ShowPicture(const browser::DecodedPicture& picture);
    // The next picture shows whole, even when it is of the same size.
    void Leave() { zoom.Fit(); }
    void SetGround(const QColor& colour);

    void ShowWhole();
    // A pixel of the picture on a pixel of the screen, `at` staying where it is.
    void ShowPixels(QPointF at);
    void ZoomBy(int steps);
    void Pan(int right, int down);
    QPointF Middle() const { return QRectF(rect()).center(); }

    bool HasPicture() const { return original.width > 0; }
    // How the picture is to be decoded to be sharp as it is seen now; it goes with any file as long as the
    // whole picture is shown.
    browser::PictureRequest Wanted(const std::string& path) const;
    browser::PictureRequest WantedWhole(const std::string& path) const;
    const browser::CPictureZoom& Zoom() const { return zoom; }
    // Whether what is drawn has a pixel for every pixel seen, or as many as are ever decoded.
    bool IsSharp() const;
    // Whether there are fewer than the file has and the screen shows.
    bool IsReduced() const;
    platform::Extent OriginalSize() const { return original; }
    void SetCursorForZoom();

Q_SIGNALS:
    // Size or part seen have changed.
    void ViewChanged();
    void StepWanted(int by);
    void BackWanted();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void Changed();
    void DrawImage(QPainter& painter) const;
    browser::PanePoint Device(QPointF point) const;
    platform::Extent PaneSize() const;

    browser::CPictureZoom zoom;
    QImage image;
    platform::Extent original;  // 0 by 0 for a stand-in
    bool opaque = true;
    QColor ground;
    QPointF dragFrom;
    bool dragging = false;
    QPoint wheelTurned;  // not yet a whole notch
};

}  // namespace ui

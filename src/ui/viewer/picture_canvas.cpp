// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/viewer/picture_canvas.h"

#include "browser/thumbnail_maker.h"
#include "ui/item_painter.h"
#include "ui/theme.h"

#include <QMouseEvent>
#include <QPainter>

#include <cmath>
#include <utility>

namespace ui
{

namespace
{

constexpr int kNotch = QWheelEvent::DefaultDeltasPerStep;
// From here on each pixel of the picture is to be seen.
constexpr double kPixelsShowFrom = 3;

// Squares of two greys: what is seen through a picture.
QBrush Checks(qreal pixelRatio)
{
    const int side = qRound(2 * kGrid * pixelRatio);
    QImage tile(2 * side, 2 * side, QImage::Format_RGB32);
    const bool dark = CTheme::IsDark();
    tile.fill(dark ? QColor(0x4a, 0x4a, 0x4a) : QColor(0xff, 0xff, 0xff));
    QPainter painter(&tile);
    const QColor other = dark ? QColor(0x5a, 0x5a, 0x5a) : QColor(0xe6, 0xe6, 0xe6);
    painter.fillRect(0, 0, side, side, other);
    painter.fillRect(side, side, side, side, other);
    painter.end();
    return QBrush(tile);
}

QRect Box(const platform::Rect& rect)
{
    return {QPoint(rect.left, rect.top), QSize(rect.right - rect.left, rect.bottom - rect.top)};
}

}  // namespace

CPictureCanvas::CPictureCanvas(QWidget* parent) : QWidget(parent), ground(CTheme::Colours().view)
{
    setObjectName(QStringLiteral("picture"));
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
}

void CPictureCanvas::SetGround(const QColor& colour)
{
    ground = colour;
    update();
}

void CPictureCanvas::Clear()
{
    image = {};
    original = {};
    zoom.Fit();
    Changed();
}

void CPictureCanvas::ShowStandIn(const platform::BitmapHandle& thumbnail)
{
    Clear();
    if (!thumbnail)
        return;
    image = ImageOf(thumbnail);
    opaque = false;
    platform::Extent likely{thumbnail->width, thumbnail->height};
    // Only a small picture is as small as that; the others fill the pane.
    if (std::max(likely.width, likely.height) >= browser::kThumbnailSide) {
        constexpr int kLarge = 100;
        likely = {likely.width * kLarge, likely.height * kLarge};
    }
    zoom.SetPicture(likely);
    Changed();
}

void CPictureCanvas::ShowPicture(const browser::DecodedPicture& picture)
{
    if (!picture.pixels)
        return Clear();
    original = picture.original;
    opaque = picture.opaque;
    image = ImageOf(picture.pixels);
    if (opaque)
        image.reinterpretAsFormat(QImage::Format_RGB32);
    zoom.SetPicture(original);
    Changed();
}

void CPictureCanvas::Changed()
{
    SetCursorForZoom();
    update();
    Q_EMIT ViewChanged();
}

void CPictureCanvas::SetCursorForZoom()
{
    if (!dragging)
        setCursor(zoom.CanPan() && HasPicture() ? Qt::OpenHandCursor : Qt::ArrowCursor);
}

platform::Extent CPictureCanvas::PaneSize() const
{
    const qreal ratio = devicePixelRatioF();
    return {qRound(width() * ratio), qRound(height() * ratio)};
}

browser::PanePoint CPictureCanvas::Device(QPointF point) const
{
    const qreal ratio = devicePixelRatioF();
    return {point.x() * ratio, point.y() * ratio};
}

void CPictureCanvas::ShowWhole()
{
    zoom.Fit();
    Changed();
}

void CPictureCanvas::ShowPixels(QPointF at)
{
    if (!HasPicture())
        return;
    zoom.ZoomTo(1, Device(at));
    Changed();
}

void CPictureCanvas::ZoomBy(int steps)
{
    if (!HasPicture())
        return;
    zoom.ZoomBy(steps, Device(Middle()));
    Changed();
}

void CPictureCanvas::Pan(int right, int down)
{
    const qreal ratio = devicePixelRatioF();
    zoom.Pan(right * ratio, down * ratio);
    update();
}

browser::PictureRequest CPictureCanvas::WantedWhole(const std::string& path) const
{
    return {path, PaneSize(), browser::BoxUse::fitInto};
}

browser::PictureRequest CPictureCanvas::Wanted(const std::string& path) const
{
    if (zoom.IsFit() || !HasPicture())
        return WantedWhole(path);
    const QSize seen = Box(zoom.Place()).size();
    return {path,
            {std::min(seen.width(), original.width), std::min(seen.height(), original.height)},
            browser::BoxUse::fill};
}

bool CPictureCanvas::IsSharp() const
{
    return HasPicture() && image.width() >= browser::DecodedSize(original, Wanted({})).width;
}

bool CPictureCanvas::IsReduced() const
{
    const QSize seen = Box(zoom.Place()).size();
    return HasPicture() && IsSharp() && image.width() < std::min(seen.width(), original.width);
}

void CPictureCanvas::paintEvent(QPaintEvent*)
{
    if (PaneSize() != zoom.Pane()) {
        // The window has gone to a screen of another density.
        zoom.SetPane(PaneSize());
        QMetaObject::invokeMethod(this, &CPictureCanvas::Changed, Qt::QueuedConnection);
    }
    QPainter painter(this);
    painter.fillRect(rect(), ground);
    if (!image.isNull())
        DrawImage(painter);
}

void CPictureCanvas::DrawImage(QPainter& painter) const
{
    // From here on in pixels of the screen.
    const qreal ratio = devicePixelRatioF();
    painter.scale(1 / ratio, 1 / ratio);
    const QRect place = Box(zoom.Place());
    if (!opaque && HasPicture()) {
        painter.setBrushOrigin(place.topLeft());
        painter.fillRect(place, Checks(ratio));
    }
    if (image.size() == place.size()) {
        painter.drawImage(place.topLeft(), image);
        return;
    }
    const bool squares = IsSharp() && zoom.Factor() >= kPixelsShowFrom;
    painter.setRenderHint(QPainter::SmoothPixmapTransform, !squares);
    painter.drawImage(place, image);
}

void CPictureCanvas::resizeEvent(QResizeEvent*)
{
    zoom.SetPane(PaneSize());
    Changed();
}

void CPictureCanvas::wheelEvent(QWheelEvent* event)
{
    event->accept();
    if (zoom.CanPan() && !(event->modifiers() & Qt::ControlModifier)) {
        const QPoint turned = event->pixelDelta().isNull() ? event->angleDelta() / 2 : event->pixelDelta();
        return Pan(turned.x(), turned.y());
    }
    wheelTurned += event->angleDelta();
    const int notches = wheelTurned.y() / kNotch;
    wheelTurned.ry() %= kNotch;
    if (notches == 0)
        return;
    if (event->modifiers() & Qt::ControlModifier) {
        if (HasPicture()) {
            zoom.ZoomBy(notches, Device(event->position()));
            Changed();
        }
    } else {
        Q_EMIT StepWanted(-notches);
    }
}

void CPictureCanvas::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::BackButton) {
        Q_EMIT BackWanted();
    } else if (event->button() == Qt::LeftButton && zoom.CanPan()) {
        dragging = true;
        dragFrom = event->position();
        setCursor(Qt::ClosedHandCursor);
    }
}

void CPictureCanvas::mouseMoveEvent(QMouseEvent* event)
{
    if (dragging) {
        const QPointF moved = event->position() - std::exchange(dragFrom, event->position());
        zoom.Pan(moved.x() * devicePixelRatioF(), moved.y() * devicePixelRatioF());
        update();
    }
    // The owner shows its bar when the pointer moves.
    QWidget::mouseMoveEvent(event);
}

void CPictureCanvas::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && std::exchange(dragging, false))
        setCursor(Qt::OpenHandCursor);
}

void CPictureCanvas::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return mousePressEvent(event);
    if (zoom.IsFit())
        ShowPixels(event->position());
    else
        ShowWhole();
}

}  // namespace ui

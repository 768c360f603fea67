// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/controls/panel.h"

#include "ui/controls/skin.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>

namespace ui
{

void SetGround(QWidget& widget, const std::optional<QColor>& colour)
{
    QPalette own;
    // Only the roles that are set here stop following the application.
    own.setResolveMask(0);
    if (colour) {
        own.setColor(QPalette::Window, *colour);
        const QColor text = QApplication::palette(&widget).color(QPalette::Active, QPalette::WindowText);
        if (const QColor readable = Readable(text, *colour); readable != text)
            own.setColor(QPalette::WindowText, readable);
    }
    widget.setPalette(own);
    // A window is filled in any case.
    if (!widget.isWindow())
        widget.setAutoFillBackground(colour.has_value());
}

void SetTextColour(QWidget& widget, QPalette::ColorRole role, const std::optional<QColor>& colour)
{
    QPalette own;
    own.setResolveMask(0);
    const QPalette::ColorRole ground = role == QPalette::Text ? QPalette::Base : QPalette::Window;
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        if (colour)
            own.setColor(group, role, Readable(*colour, widget.palette().color(ground)));
    }
    widget.setPalette(own);
}

void CStaticEx::SetImage(const QString& image)
{
    imageName = image;
    updateGeometry();
    update();
}

QSize CStaticEx::ImageSize() const
{
    return imageName.isEmpty() ? QSize()
                               : SkinPicture(imageName, devicePixelRatioF()).deviceIndependentSize().toSize();
}

QSize CStaticEx::sizeHint() const
{
    const QSize image = ImageSize();
    return image.isEmpty() ? QLabel::sizeHint() : image;
}

QSize CStaticEx::minimumSizeHint() const
{
    return ImageSize().isEmpty() ? QLabel::minimumSizeHint() : QSize(0, 0);
}

void CStaticEx::paintEvent(QPaintEvent* event)
{
    const QSize image = ImageSize();
    if (image.isEmpty())
        return QLabel::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QSize shown = image.width() > width() || image.height() > height()
                            ? image.scaled(size(), Qt::KeepAspectRatio)
                            : image;
    painter.drawPixmap(QStyle::alignedRect(layoutDirection(), alignment(), shown, contentsRect()),
                       SkinPicture(imageName, devicePixelRatioF()));
}

}  // namespace ui

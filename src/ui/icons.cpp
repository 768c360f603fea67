// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/icons.h"

#include "ui/theme.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

// Resources of a static library are linked only when asked for, from outside of any namespace.
static void InitResources()
{
    Q_INIT_RESOURCE(icons);
}

namespace ui
{

namespace
{

// The accent as the drawings have it.
constexpr const char* kDrawnAccent = "#2f7de1";
constexpr int kLargestBoldIcon = 24;

class CThemedIconEngine : public QIconEngine
{
public:
    explicit CThemedIconEngine(QString drawing) : name(std::move(drawing)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        painter->drawPixmap(rect, Draw(rect.size(), mode, painter->device()->devicePixelRatioF()));
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override { return Draw(size, mode, 1); }
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal scale) override
    {
        return Draw(size / scale, mode, scale);
    }
    QIconEngine* clone() const override { return new CThemedIconEngine(name); }

private:
    QPixmap Draw(const QSize& size, QIcon::Mode mode, qreal pixelRatio) const
    {
        const ThemeColours& colours = CTheme::Colours();
        const QColor colour = mode == QIcon::Disabled ? colours.dimText : colours.text;
        return IconPixmap(name, std::min(size.width(), size.height()), colour, pixelRatio);
    }

    QString name;
};

QPixmap Render(const QString& name, int side, const QColor& colour, qreal pixelRatio)
{
    const int pixels = qRound(side * pixelRatio);
    QPixmap picture(pixels, pixels);
    picture.setDevicePixelRatio(pixelRatio);
    picture.fill(Qt::transparent);
    QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
    if (!file.open(QIODevice::ReadOnly))
        return picture;
    QByteArray drawing = file.readAll();
    drawing.replace("currentColor", colour.name().toLatin1());
    drawing.replace(kDrawnAccent, CTheme::Colours().accent.name().toLatin1());
    // The strokes are drawn for small sizes; a large drawing looks right with finer ones.
    if (side > kLargestBoldIcon)
        drawing.replace("stroke-width=\"1.5\"",
                        side > 2 * kLargestBoldIcon ? "stroke-width=\"0.7\"" : "stroke-width=\"1\"");
    QSvgRenderer renderer(drawing);
    QPainter painter(&picture);
    renderer.render(&painter, QRectF(0, 0, side, side));
    return picture;
}

}  // namespace

QPixmap IconPixmap(const QString& name, int side, const QColor& colour, qreal pixelRatio)
{
    const QString key = QStringLiteral("%1/%2/%3/%4").arg(name).arg(side).arg(colour.rgba()).arg(pixelRatio);
    static const bool ready = (InitResources(), true);
    QPixmap picture;
    if (ready && !QPixmapCache::find(key, &picture)) {
        picture = Render(name, side, colour, pixelRatio);
        QPixmapCache::insert(key, picture);
    }
    return picture;
}

QIcon ThemedIcon(const QString& name)
{
    return QIcon(new CThemedIconEngine(name));
}

}  // namespace ui

// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/controls/skin_look.h"

#include "ui/controls/skin.h"

#include <QPainter>
#include <QVariant>

Q_DECLARE_METATYPE(ui::SkinLook)

namespace ui
{

namespace
{

constexpr const char* kProperty = "skinLook";

SkinLook LookOf(const QWidget* widget)
{
    return widget ? widget->property(kProperty).value<SkinLook>() : SkinLook{};
}

app::ButtonState StateOf(const QStyleOption& option, QStyle::State down)
{
    if (!option.state.testFlag(QStyle::State_Enabled))
        return app::ButtonState::gray;
    if (option.state & down)
        return app::ButtonState::down;
    return option.state.testFlag(QStyle::State_MouseOver) ? app::ButtonState::hover
                                                          : app::ButtonState::normal;
}

}  // namespace

void SetSkinLook(QWidget& widget, const SkinLook& look)
{
    widget.setProperty(kProperty, QVariant::fromValue(look));
    widget.setAttribute(Qt::WA_Hover);
    widget.update();
}

bool DrawSkinMark(const QStyleOption& option, QPainter& painter, const QWidget* widget)
{
    const SkinLook look = LookOf(widget);
    if (look.markImage.isEmpty())
        return false;
    const StatePixmaps images = SkinStates(look.markImage, painter.device()->devicePixelRatioF());
    const QPixmap& wanted =
        images[static_cast<std::size_t>(StateOf(option, QStyle::State_On | QStyle::State_Sunken))];
    const QPixmap& shown = wanted.isNull() ? images.front() : wanted;
    if (shown.isNull())
        return false;
    QRect box({0, 0}, shown.size().scaled(option.rect.size(), Qt::KeepAspectRatio));
    box.moveCenter(option.rect.center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(box, shown);
    return true;
}

QPalette SkinnedText(const QStyleOption& option, const QWidget* widget)
{
    QPalette palette = option.palette;
    const SkinLook look = LookOf(widget);
    const auto& colour = look.textColours[static_cast<std::size_t>(StateOf(option, QStyle::State_Sunken))];
    if (colour)
        palette.setColor(QPalette::WindowText, option.state.testFlag(QStyle::State_Enabled)
                                                   ? Readable(*colour, palette.color(QPalette::Window))
                                                   : *colour);
    return palette;
}

}  // namespace ui

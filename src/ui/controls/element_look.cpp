// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/controls/element_look.h"

#include "ui/controls/button_ex.h"
#include "ui/controls/panel.h"
#include "ui/controls/skin_look.h"
#include "ui/display_text.h"

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>

namespace ui
{

namespace
{

template <typename... Kinds> bool IsAny(const QWidget& widget)
{
    return (qobject_cast<const Kinds*>(&widget) || ...);
}

std::optional<QColor> ColourOf(const std::optional<platform::ColorRef>& colour)
{
    return colour ? std::optional(SkinColour(*colour)) : std::nullopt;
}

void DressButton(CButtonEx& button, const app::SkinElement& look, const app::FontGroup& font)
{
    button.SetFontGroup(font);
    if (!look.image.empty())
        button.SetImage(Shown(look.image));
    if (!look.imageCenter.empty())
        button.SetPieces(Shown(look.imageLeft), Shown(look.imageCenter), Shown(look.imageRight),
                         look.partWidth);
}

// A radio button or a check box.
void DressMark(QWidget& widget, const app::SkinElement& look, const app::FontGroup& font)
{
    widget.setFont(SkinFont({font.faceName, font.radioSize, 0, {}}, QFont()));
    SkinLook own;
    if (IsAny<QRadioButton>(widget))
        own.markImage = Shown(look.image);
    std::ranges::transform(font.colours, own.textColours.begin(), ColourOf);
    if (look.color)
        own.textColours.front() = ColourOf(look.color);
    SetSkinLook(widget, own);
}

void DressLabel(QLabel& label, const app::SkinElement& look)
{
    SetTextColour(label, label.foregroundRole(), ColourOf(look.color));
    if (look.image.empty())
        return;
    if (auto* text = qobject_cast<CStaticEx*>(&label))
        return text->SetImage(Shown(look.image));
    const QPixmap picture = SkinPicture(Shown(look.image), label.devicePixelRatioF());
    if (!picture.isNull())
        label.setPixmap(picture);
}

}  // namespace

app::ElementKind KindOf(const QWidget& widget)
{
    if (IsAny<QRadioButton>(widget))
        return app::ElementKind::radioButton;
    return IsAny<CButtonEx, QLabel>(widget) ? app::ElementKind::button : app::ElementKind::plain;
}

void DressElement(QWidget& widget, const app::SkinElement& look, const app::FontGroup& font)
{
    if (auto* button = qobject_cast<CButtonEx*>(&widget))
        DressButton(*button, look, font);
    else if (auto* label = qobject_cast<QLabel*>(&widget))
        DressLabel(*label, look);
    else if (IsAny<QRadioButton, QCheckBox>(widget))
        DressMark(widget, look, font);
    else if (IsAny<QGroupBox>(widget))
        SetTextColour(widget, QPalette::WindowText, ColourOf(look.color));
    else if (IsAny<QLineEdit, QComboBox, QAbstractSpinBox, QAbstractScrollArea>(widget))
        SetTextColour(widget, QPalette::Text, ColourOf(look.color));
    else
        SetGround(widget, ColourOf(look.color));
}

}  // namespace ui

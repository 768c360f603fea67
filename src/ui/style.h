// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CStyle: Fusion with calmer lists, menus and scroll bars.
#pragma once

#include <QProxyStyle>

namespace ui
{

class CStyle : public QProxyStyle
{
    Q_OBJECT

public:
    CStyle();
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;
};

// A rounded, filled box without an outline.
void FillRounded(QPainter& painter, const QRectF& box, const QColor& colour, qreal radius);

// The band that is drawn with the mouse around what is to be selected.
void DrawBand(QPainter& painter, const QRect& band);

}  // namespace ui

// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CStyle: Fusion with calmer lists, menus, bars and message boxes.
#pragma once

#include <QProxyStyle>
#include <QStyleOption>

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
    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;
    QIcon standardIcon(StandardPixmap picture, const QStyleOption* option,
                       const QWidget* widget) const override;
    using QProxyStyle::polish;
    void polish(QWidget* widget) override;

private:
    void DrawMenuPart(ControlElement element, const QStyleOptionMenuItem& item, QPainter* painter,
                      const QWidget* widget) const;
};

// A rounded, filled box without an outline.
void FillRounded(QPainter& painter, const QRectF& box, const QColor& colour, qreal radius);

// The band that is drawn with the mouse around what is to be selected.
void DrawBand(QPainter& painter, const QRect& band);

}  // namespace ui

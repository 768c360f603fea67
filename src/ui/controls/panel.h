// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CPanel: a surface that the skin may fill with one colour, which is the ground of the texts on it too;
// CStaticEx: a text or a picture that the user only looks at.
#pragma once

#include <QLabel>
#include <QWidget>

#include <optional>

namespace ui
{

// Gives `widget` and what stands on it a ground of that colour, with texts that can be read on it; without a
// colour, those of the application again.
void SetGround(QWidget& widget, const std::optional<QColor>& colour);
// The colour of a widget's text, made readable on its ground; none: the window's.
void SetTextColour(QWidget& widget, QPalette::ColorRole role, const std::optional<QColor>& colour);

class CPanel : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;
    // No colour: what lies below shows.
    void SetColour(const std::optional<QColor>& colour) { SetGround(*this, colour); }
};

class CStaticEx : public QLabel
{
    Q_OBJECT

public:
    explicit CStaticEx(QWidget* parent = nullptr) : QLabel(parent) {}
    explicit CStaticEx(const QString& text, QWidget* parent = nullptr) : QLabel(text, parent) {}

    // A picture of the skin in place of the text; the text stays where the skin has none.
    void SetImage(const QString& image);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSize ImageSize() const;
    QString imageName;
};

}  // namespace ui

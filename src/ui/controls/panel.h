// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CPanel: a surface filled with one colour, which is the ground of the texts on it too; CStaticEx: a text or
// a picture that the user only looks at.
#pragma once

#include <QLabel>
#include <QWidget>

#include <optional>

namespace ui
{

class CPanel : public QWidget
{
    Q_OBJECT

public:
    explicit CPanel(QWidget* parent = nullptr);
    // No colour: the window's.
    void SetColour(const std::optional<QColor>& colour);
};

class CStaticEx : public QLabel
{
    Q_OBJECT

public:
    explicit CStaticEx(QWidget* parent = nullptr) : QLabel(parent) {}
    explicit CStaticEx(const QString& text, QWidget* parent = nullptr) : QLabel(text, parent) {}

    // The text's colour, made readable on the ground; none: the window's.
    void SetColour(const std::optional<QColor>& colour);
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

// Gives `widget` and what stands on it a ground of that colour, with texts that can be read on it; without a
// colour, those of the application again.
void SetGround(QWidget& widget, const std::optional<QColor>& colour);

}  // namespace ui

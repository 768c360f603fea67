// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CTheme: the program's look, light or dark as the desktop has it.
//
// KELVO_THEME=light or =dark decides; else the desktop portal's colour scheme, which is asked for without
// waiting and followed when it changes; until it answers, the lightness of the platform's own palette.
#pragma once

#include <QColor>
#include <QObject>
#include <QPalette>

class QDBusVariant;

namespace ui
{

// Distances, in device-independent pixels.
inline constexpr int kGrid = 4;
inline constexpr int kCornerRadius = 6;

struct ThemeColours {
    QColor window;
    QColor view;
    QColor text;
    QColor dimText;
    QColor line;
    QColor accent;
    QColor selection;
    QColor hover;
};

class CTheme : public QObject
{
    Q_OBJECT

public:
    // Sets style and palette of the application object, which must exist.
    explicit CTheme(QObject* parent = nullptr);
    // Asks the desktop for its colour scheme and follows it from then on.
    void FollowDesktop();
    static bool IsDark();
    static const ThemeColours& Colours();
    static QPalette Palette();

private Q_SLOTS:
    void OnSettingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void Apply(bool dark);
    void TakeColourScheme(const QVariant& value);
    bool platformIsDark = false;
};

}  // namespace ui

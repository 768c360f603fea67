// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CWindowObject: the window of this process as the bus shows it.
#pragma once

#include <QObject>
#include <functional>

namespace platform_linux
{

class CWindowObject final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kelvo.Window")

public:
    CWindowObject(QObject* parent, std::function<void()> raise) : QObject(parent), onRaise(std::move(raise))
    {
    }

public slots:
    void Raise() { onRaise(); }

private:
    std::function<void()> onRaise;
};

}  // namespace platform_linux

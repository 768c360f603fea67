// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/shot.h"

#include "platform/services.h"

#include <QBuffer>
#include <QCoreApplication>

#include <cstdio>

namespace ui
{

namespace
{

constexpr int kLookPeriod = 20;
constexpr int kPatience = 120'000;

}  // namespace

CShot::CShot(CMainFrame& window, std::string pictureFile)
    : QObject(&window), frame(window), file(std::move(pictureFile))
{
    connect(&lookTimer, &QTimer::timeout, this, &CShot::Look);
    connect(&patience, &QTimer::timeout, this, [] {
        std::fputs("kelvo: the thumbnails were not made in time\n", stderr);
        QCoreApplication::exit(1);
    });
    lookTimer.start(kLookPeriod);
    patience.start(kPatience);
}

void CShot::Look()
{
    if (!frame.List()->IsScreenComplete() || frame.LeftView()->Tree()->IsReading())
        return;
    lookTimer.stop();
    patience.stop();
    Take();
}

void CShot::Take()
{
    QBuffer png;
    png.open(QIODevice::WriteOnly);
    const bool drawn = frame.grab().save(&png, "PNG");
    const std::span<const char> bytes(png.data().constData(), static_cast<std::size_t>(png.data().size()));
    if (drawn && platform::Os().files->ReplaceFile(file, std::as_bytes(bytes)))
        return QCoreApplication::exit(0);
    std::fprintf(stderr, "kelvo: %s: %s\n", file.c_str(), platform::Os().files->LastError().c_str());
    QCoreApplication::exit(1);
}

}  // namespace ui

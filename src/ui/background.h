// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// InBackground: work that would hold the window up, on another thread.
//
// `work` runs once on a thread of the pool and must touch nothing of the window; `done` then gets its result
// on the window's thread, unless `context` is gone by then. What `work` needs it takes along by value.
#pragma once

#include <QCoreApplication>
#include <QPointer>
#include <QThreadPool>

namespace ui
{

template <typename Work, typename Done> void InBackground(QObject* context, Work work, Done done)
{
    QThreadPool::globalInstance()->start([owner = QPointer<QObject>(context), work, done]() mutable {
        auto result = work();
        // The application object outlives the pool's threads; it alone says what still is there.
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [owner, done, result = std::move(result)]() mutable {
                if (owner)
                    done(std::move(result));
            },
            Qt::QueuedConnection);
    });
}

}  // namespace ui

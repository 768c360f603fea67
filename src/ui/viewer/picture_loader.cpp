// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/viewer/picture_loader.h"

#include <utility>

namespace ui
{

CPictureLoader::~CPictureLoader()
{
    if (!worker.joinable())
        return;
    {
        const std::lock_guard lock(guard);
        ending = true;
    }
    changed.notify_one();
    worker.join();
}

void CPictureLoader::Want(std::vector<browser::PictureRequest> requests)
{
    stock.Want(std::move(requests));
    SendNext();
}

void CPictureLoader::Recheck()
{
    stock.Recheck();
    SendNext();
}

void CPictureLoader::SendNext()
{
    if (working)
        return;
    std::optional<Job> job = stock.NextJob();
    if (!job)
        return;
    working = true;
    if (!worker.joinable())
        worker = std::thread(&CPictureLoader::Work, this);
    {
        const std::lock_guard lock(guard);
        nextJob = std::move(job);
    }
    changed.notify_one();
}

void CPictureLoader::Receive(const browser::PictureRequest& request,
                             std::optional<browser::DecodedPicture> picture)
{
    const bool isNew = picture.has_value();
    working = false;
    stock.Deliver(request, std::move(picture));
    SendNext();
    if (isNew)
        Q_EMIT Arrived(request.path);
}

std::optional<CPictureLoader::Job> CPictureLoader::WaitForJob()
{
    std::unique_lock lock(guard);
    changed.wait(lock, [this] { return ending || nextJob; });
    return ending ? std::nullopt : std::exchange(nextJob, std::nullopt);
}

void CPictureLoader::Work()
{
    while (std::optional<Job> job = WaitForJob()) {
        std::optional<browser::DecodedPicture> picture;
        if (!job->heldStamp || browser::StampOf(job->request.path) != *job->heldStamp)
            picture = browser::DecodePicture(job->request);
        // Dropped when the object is gone by then.
        QMetaObject::invokeMethod(
            this,
            [this, request = std::move(job->request), outcome = std::move(picture)]() mutable {
                Receive(request, std::move(outcome));
            },
            Qt::QueuedConnection);
    }
}

}  // namespace ui

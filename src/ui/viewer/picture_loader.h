// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CPictureLoader: has pictures decoded on a thread of its own, one at a time, the most urgent first.
//
// What is no longer wanted is not begun; a decode that has begun runs to its end. The thread sleeps while
// nothing is wanted and ends with the object, which waits for the decode that runs.
#pragma once

#include "browser/picture_stock.h"

#include <QObject>

#include <condition_variable>
#include <mutex>
#include <thread>

namespace ui
{

class CPictureLoader : public QObject
{
    Q_OBJECT

public:
    explicit CPictureLoader(QObject* parent = nullptr) : QObject(parent) {}
    ~CPictureLoader() override;

    // As CPictureStock's.
    void Want(std::vector<browser::PictureRequest> requests);
    void Recheck();
    const browser::DecodedPicture* Find(const browser::PictureRequest& request) const
    {
        return stock.Find(request);
    }
    // Whether a picture is being decoded, or is to be.
    bool IsBusy() const { return working; }

Q_SIGNALS:
    // There is something new of this file.
    void Arrived(const std::string& path);

private:
    using Job = browser::CPictureStock::Job;
    void SendNext();
    void Receive(const browser::PictureRequest& request, std::optional<browser::DecodedPicture> picture);
    void Work();
    std::optional<Job> WaitForJob();

    browser::CPictureStock stock;
    bool working = false;

    std::thread worker;
    std::mutex guard;  // of what follows
    std::condition_variable changed;
    std::optional<Job> nextJob;
    bool ending = false;
};

}  // namespace ui

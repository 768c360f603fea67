// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CShot: a picture of the window, taken when its visible thumbnails are made.
#pragma once

#include "ui/main_frame.h"

namespace ui
{

class CShot : public QObject
{
    Q_OBJECT

public:
    // The window must be shown already. Ends the event loop with 0 once `file` is written, else with 1.
    CShot(CMainFrame& window, std::string pictureFile);

private:
    void Look();
    void Take();

    CMainFrame& frame;
    std::string file;
    QTimer lookTimer;
    QTimer patience;
};

}  // namespace ui

// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CSlideShow: pictures one after the other on the whole screen, around and around, until Escape.
//
// Each stays for some seconds from the moment it is there; the one before stays until then. Space halts the
// show and lets it go on, the arrows go to the next or back. Files that are no pictures are passed over. The
// screen is kept awake.
#pragma once

#include "browser/picture_walk.h"
#include "ui/viewer/picture_canvas.h"
#include "ui/viewer/picture_loader.h"
#include "ui/viewer/screen_awake.h"

#include <QLabel>
#include <QTimer>
#include <QVariantAnimation>
#include <QWidget>

namespace ui
{

class CEmptyState;

class CSlideShow : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kSecondsEach = 5;

    // `first` is one of `paths`, or empty for the one in front.
    CSlideShow(std::vector<std::string> paths, const std::string& first, QWidget* parent);

    // The picture that is due, and whether it is to be seen already.
    const std::string& Due() const { return walk.Current(); }
    bool IsShown() const { return isShown; }
    bool IsPaused() const { return paused; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void StepBy(int by);
    void Update();
    void ShowDue(const browser::DecodedPicture& picture);
    void PassOver();
    void FadeFromNow();
    void Pause(bool on);

    browser::CPictureWalk walk{browser::WalkEnds::goAround};
    CPictureLoader loader;
    CScreenAwake awake;
    QTimer period;
    QVariantAnimation fade;
    bool isShown = false;
    bool paused = false;
    bool updating = false;
    int direction = 1;
    int failed = 0;  // files passed over since the last picture

    CPictureCanvas* canvas;
    QLabel* former;  // fades out over the picture
    CEmptyState* message;
    QLabel* pauseSign;
};

// Starts a show that ends by itself or with its window; nothing happens without paths.
CSlideShow* StartSlideShow(std::vector<std::string> paths, const std::string& first, QWidget* window);

}  // namespace ui

// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CPictureViewer: the large view of one picture of a folder, with the way to the others.
//
// A picture is there at once as its thumbnail, enlarged, and sharp as soon as it is decoded; its neighbours
// are decoded ahead. Its keys: ViewerActionOf. It knows names only; the owner tells it the folder's pictures
// whenever they change and carries out what it asks for.
#pragma once

#include "browser/picture_walk.h"
#include "ui/viewer/picture_canvas.h"
#include "ui/viewer/picture_loader.h"
#include "ui/viewer/viewer_bar.h"

#include <QTimer>
#include <QWidget>

#include <functional>

class QToolButton;

namespace ui
{

class CEmptyState;

class CPictureViewer : public QWidget
{
    Q_OBJECT

public:
    // The thumbnail of one of the folder's pictures, or null while there is none.
    using ThumbnailOf = std::function<platform::BitmapHandle(const std::string& name)>;

    explicit CPictureViewer(ThumbnailOf thumbnails, QWidget* parent = nullptr);

    // Shows `name`, which is one of `names`.
    void Open(const std::string& folder, std::vector<std::string> names, const std::string& name);
    // The folder was read anew: files may have come, gone and changed.
    void SetNames(std::vector<std::string> names);
    // Lets go of all pictures.
    void Close();
    void SetFullScreen(bool on);

    const std::string& Folder() const { return folder; }
    const std::string& Name() const { return walk.Current(); }
    const CPictureCanvas& Canvas() const { return *canvas; }
    const CViewerBar& Bar() const { return *bar; }
    const CEmptyState& Message() const { return *message; }
    QToolButton* PlayButton() const { return play; }
    // Whether the picture is shown as well as it can be.
    bool IsComplete() const;

Q_SIGNALS:
    // Another picture is looked at.
    void Moved(const std::string& name);
    void BackWanted();
    void RemoveWanted();
    void FullScreenWanted(bool on);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Do(ViewerAction action);
    void Back();
    void StepBy(int by);
    bool PanBy(const QKeyEvent& event);
    // Another picture: its thumbnail first.
    void Begin();
    // Shows the best there is and asks for what is missing.
    void Update();
    void ShowBest();
    void WantNearby();
    void Tell();
    void PlaceParts();
    void Reveal();
    bool IsClip() const;
    bool IsBroken() const;
    std::string Path() const;

    ThumbnailOf thumbnailOf;
    std::string folder;
    browser::CPictureWalk walk;
    CPictureLoader loader;
    platform::BitmapHandle shown;  // what the canvas shows; null for a stand-in
    bool known = false;            // whether the picture was decoded or failed to be
    bool updating = false;
    bool fullScreen = false;
    QTimer hideTimer;

    CPictureCanvas* canvas;
    CEmptyState* message;
    QToolButton* play;
    CViewerBar* bar;
};

}  // namespace ui

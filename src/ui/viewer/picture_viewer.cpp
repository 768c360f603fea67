// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/viewer/picture_viewer.h"

#include "browser/file_names.h"
#include "browser/media_types.h"
#include "platform/shell.h"
#include "ui/display_text.h"
#include "ui/empty_state.h"
#include "ui/icons.h"
#include "ui/theme.h"
#include "ui/words.h"

#include <QCloseEvent>
#include <QLocale>
#include <QPainter>
#include <QToolButton>

using platform::StringId;

namespace ui
{

namespace
{

constexpr int kPage = 10;  // pictures
constexpr int kPlaySide = 64;
constexpr int kHideAfter = 2500;  // milliseconds
constexpr int kPanStep = 64;
const QColor kFullScreenGround(0x10, 0x12, 0x13);

// A round button that is seen on any picture.
class CPlayButton : public QToolButton
{
public:
    explicit CPlayButton(QWidget* parent) : QToolButton(parent)
    {
        setFixedSize(kPlaySide, kPlaySide);
        setFocusPolicy(Qt::TabFocus);
        setAccessibleName(Text(StringId::viewerPlay));
        setToolTip(accessibleName());
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        const ThemeColours& colours = CTheme::Colours();
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(hasFocus() ? colours.accent : colours.line, hasFocus() ? 2 : 1));
        painter.setBrush(underMouse() || isDown() ? colours.hover : colours.view);
        painter.drawEllipse(QRectF(rect()).adjusted(1, 1, -1, -1));
        const int side = kPlaySide / 2;
        painter.drawPixmap(
            (width() - side) / 2, (height() - side) / 2,
            IconPixmap(QStringLiteral("viewer-play"), side, colours.text, devicePixelRatioF()));
    }
};

QString Joined(const QStringList& facts)
{
    return facts.join(QStringLiteral("  \u00b7  "));
}

}  // namespace

CPictureViewer::CPictureViewer(ThumbnailOf thumbnails, QWidget* parent)
    : QWidget(parent), thumbnailOf(std::move(thumbnails)), canvas(new CPictureCanvas(this)),
      message(new CEmptyState(this)), play(new CPlayButton(this)), bar(new CViewerBar(this))
{
    setFocusProxy(canvas);
    setMouseTracking(true);
    play->hide();
    hideTimer.setSingleShot(true);
    hideTimer.setInterval(kHideAfter);
    connect(play, &QToolButton::clicked, this, [this] { platform::Os().shell->ShellExecute(Path()); });
    connect(bar, &CViewerBar::Chosen, this, &CPictureViewer::Do);
    connect(canvas, &CPictureCanvas::ViewChanged, this, &CPictureViewer::Update);
    connect(canvas, &CPictureCanvas::StepWanted, this, &CPictureViewer::StepBy);
    connect(canvas, &CPictureCanvas::BackWanted, this, &CPictureViewer::Back);
    connect(&loader, &CPictureLoader::Arrived, this, [this](const std::string& path) {
        if (path == Path())
            Update();
    });
    connect(&hideTimer, &QTimer::timeout, this, [this] {
        if (fullScreen && !bar->underMouse() && !bar->isAncestorOf(window()->focusWidget())) {
            bar->hide();
            canvas->setCursor(Qt::BlankCursor);
        }
    });
}

void CPictureViewer::Open(const std::string& wantedFolder, std::vector<std::string> names,
                          const std::string& name)
{
    folder = wantedFolder;
    walk = browser::CPictureWalk();
    walk.SetNames(std::move(names));
    walk.GoTo(name);
    Begin();
}

void CPictureViewer::SetNames(std::vector<std::string> names)
{
    const std::string former = Name();
    walk.SetNames(std::move(names));
    loader.Recheck();
    if (Name() == former)
        return Update();
    Begin();
    Q_EMIT Moved(Name());
}

void CPictureViewer::Close()
{
    loader.Want({});
    shown.reset();
    updating = true;
    canvas->Clear();
    updating = false;
}

std::string CPictureViewer::Path() const
{
    return browser::JoinPath(folder, Name());
}

bool CPictureViewer::IsClip() const
{
    return (browser::TypeBits(Name()) & browser::kTypeVideo) != 0;
}

bool CPictureViewer::IsBroken() const
{
    return known && !canvas->HasPicture();
}

bool CPictureViewer::IsComplete() const
{
    return IsBroken() || canvas->IsSharp();
}

void CPictureViewer::Begin()
{
    known = false;
    shown.reset();
    updating = true;
    if (walk.Count() > 0)
        canvas->ShowStandIn(thumbnailOf(Name()));
    else
        canvas->Clear();
    updating = false;
    Update();
}

void CPictureViewer::Update()
{
    if (updating || walk.Count() == 0)
        return;
    updating = true;
    ShowBest();
    updating = false;
    WantNearby();
    Tell();
}

void CPictureViewer::ShowBest()
{
    const browser::DecodedPicture* best = loader.Find(canvas->Wanted(Path()));
    if (!best || (known && best->pixels == shown))
        return;
    known = true;
    shown = best->pixels;
    canvas->ShowPicture(*best);
}

void CPictureViewer::WantNearby()
{
    std::vector<browser::PictureRequest> requests = {canvas->Wanted(Path())};
    for (const std::string& name : walk.Nearby()) {
        browser::PictureRequest whole = canvas->WantedWhole(browser::JoinPath(folder, name));
        if (whole != requests.front())
            requests.push_back(std::move(whole));
    }
    loader.Want(std::move(requests));
}

void CPictureViewer::Tell()
{
    const QLocale locale;
    const QString name = Shown(Name());
    const QString position =
        Text(StringId::viewerPosition, locale.toString(walk.Position() + 1), locale.toString(walk.Count()));
    QStringList facts = {position};
    if (canvas->HasPicture()) {
        const platform::Extent size = canvas->OriginalSize();
        facts += Text(StringId::viewerSize, QString::number(size.width), QString::number(size.height));
        facts += Text(StringId::viewerZoom, locale.toString(qRound(canvas->Zoom().Factor() * 100)));
        if (canvas->IsReduced())
            facts += Text(StringId::viewerFewerPixels);
    }
    bar->ShowText(name, Joined(facts));
    bar->Button(ViewerAction::previous)->setEnabled(walk.Position() > 0);
    bar->Button(ViewerAction::next)->setEnabled(walk.Position() + 1 < walk.Count());
    for (const ViewerAction zoom :
         {ViewerAction::zoomIn, ViewerAction::zoomOut, ViewerAction::whole, ViewerAction::pixels})
        bar->Button(zoom)->setEnabled(canvas->HasPicture());
    const StringId spoken = IsClip()     ? StringId::viewerClipName
                            : IsBroken() ? StringId::viewerBrokenName
                                         : StringId::viewerName;
    canvas->setAccessibleName(Text(spoken, name, position));
    play->setVisible(IsClip());
    if (IsBroken())
        message->Show(IsClip() ? QStringLiteral("video") : QStringLiteral("broken-picture"),
                      Text(IsClip() ? StringId::viewerBrokenClip : StringId::viewerBroken), name);
    else
        message->Show({}, {}, {});
    setWindowTitle(name);
}

void CPictureViewer::Back()
{
    if (fullScreen)
        Q_EMIT FullScreenWanted(false);
    else
        Q_EMIT BackWanted();
}

void CPictureViewer::StepBy(int by)
{
    canvas->Leave();
    if (!walk.Step(by))
        return Update();
    Begin();
    Q_EMIT Moved(Name());
}

void CPictureViewer::Do(ViewerAction action)
{
    switch (action) {
    case ViewerAction::back:
        return Back();
    case ViewerAction::previous:
        return StepBy(-1);
    case ViewerAction::next:
        return StepBy(1);
    case ViewerAction::pageUp:
        return StepBy(-kPage);
    case ViewerAction::pageDown:
        return StepBy(kPage);
    case ViewerAction::first:
        return StepBy(-walk.Count());
    case ViewerAction::last:
        return StepBy(walk.Count());
    case ViewerAction::zoomOut:
        return canvas->ZoomBy(-1);
    case ViewerAction::zoomIn:
        return canvas->ZoomBy(1);
    case ViewerAction::whole:
        return canvas->ShowWhole();
    case ViewerAction::pixels:
        return canvas->ShowPixels(canvas->Middle());
    case ViewerAction::fullScreen:
        Q_EMIT FullScreenWanted(!fullScreen);
        return;
    case ViewerAction::remove:
        Q_EMIT RemoveWanted();
        return;
    }
}

bool CPictureViewer::event(QEvent* event)
{
    // The window's shortcuts wait while these keys have a meaning here.
    if (event->type() == QEvent::ShortcutOverride &&
        ViewerActionOf(*static_cast<QKeyEvent*>(event), layoutDirection())) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

bool CPictureViewer::PanBy(const QKeyEvent& event)
{
    const bool sideways = event.key() == Qt::Key_Left || event.key() == Qt::Key_Right;
    if (!canvas->Zoom().CanPan() || (sideways && !(event.modifiers() & Qt::ShiftModifier)))
        return false;
    switch (event.key()) {
    case Qt::Key_Left:
        return canvas->Pan(kPanStep, 0), true;
    case Qt::Key_Right:
        return canvas->Pan(-kPanStep, 0), true;
    case Qt::Key_Up:
        return canvas->Pan(0, kPanStep), true;
    case Qt::Key_Down:
        return canvas->Pan(0, -kPanStep), true;
    default:
        return false;
    }
}

void CPictureViewer::keyPressEvent(QKeyEvent* event)
{
    auto* button = qobject_cast<QToolButton*>(focusWidget());
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (button && button->hasFocus() && enter)
        return button->click();
    if (PanBy(*event))
        return;
    if (const auto action = ViewerActionOf(*event, layoutDirection()))
        Do(*action);
    else
        QWidget::keyPressEvent(event);
}

void CPictureViewer::SetFullScreen(bool on)
{
    fullScreen = on;
    bar->SetFullScreen(on);
    canvas->SetGround(on ? kFullScreenGround : CTheme::Colours().view);
    Reveal();
    PlaceParts();
}

void CPictureViewer::Reveal()
{
    bar->show();
    canvas->SetCursorForZoom();
    if (fullScreen)
        hideTimer.start();
}

void CPictureViewer::mouseMoveEvent(QMouseEvent* event)
{
    QWidget::mouseMoveEvent(event);
    Reveal();
}

void CPictureViewer::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    PlaceParts();
}

void CPictureViewer::PlaceParts()
{
    // In full screen the bar lies over the picture, which has all of the room.
    const int barHeight = bar->sizeHint().height();
    const int paneHeight = std::max(1, fullScreen ? height() : height() - barHeight);
    canvas->setGeometry(0, 0, width(), paneHeight);
    message->setGeometry(canvas->geometry());
    bar->setGeometry(0, height() - barHeight, width(), barHeight);
    play->move(canvas->geometry().center() - play->rect().center());
}

void CPictureViewer::closeEvent(QCloseEvent* event)
{
    // Closed as a window of its own it goes back to where it was.
    event->ignore();
    Q_EMIT FullScreenWanted(false);
}

void CPictureViewer::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !fullScreen)
        canvas->SetGround(CTheme::Colours().view);
}

}  // namespace ui

// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/viewer/slide_show.h"

#include "browser/file_names.h"
#include "ui/display_text.h"
#include "ui/empty_state.h"
#include "ui/theme.h"
#include "ui/viewer/viewer_bar.h"
#include "ui/words.h"

#include <QGraphicsOpacityEffect>
#include <QLocale>
#include <QMouseEvent>
#include <QScreen>

using platform::StringId;

namespace ui
{

namespace
{

constexpr int kFadeTime = 400;  // milliseconds
// A larger screen would not be drawn often enough to look smooth.
constexpr int kMostPixelsToFade = 4'200'000;
const QColor kGround(0x10, 0x12, 0x13);
const QColor kOnGround(0xe4, 0xe9, 0xea);

}  // namespace

CSlideShow::CSlideShow(std::vector<std::string> paths, const std::string& first, QWidget* parent)
    : QWidget(parent, Qt::Window), awake(Text(StringId::viewerShowRuns)), canvas(new CPictureCanvas(this)),
      former(new QLabel(this)), message(new CEmptyState(this)), pauseSign(new QLabel(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(Text(StringId::viewerShow));
    setCursor(Qt::BlankCursor);
    canvas->SetGround(kGround);
    canvas->setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusProxy(canvas);
    former->setGraphicsEffect(new QGraphicsOpacityEffect(former));
    former->hide();
    former->setAttribute(Qt::WA_TransparentForMouseEvents);
    pauseSign->setText(Text(StringId::viewerShowPaused));
    QPalette signColours = pauseSign->palette();
    signColours.setColor(QPalette::WindowText, kOnGround);
    signColours.setColor(QPalette::Window, kGround);
    pauseSign->setPalette(signColours);
    pauseSign->setAutoFillBackground(true);
    pauseSign->setContentsMargins(4 * kGrid, 2 * kGrid, 4 * kGrid, 2 * kGrid);
    pauseSign->adjustSize();
    pauseSign->hide();
    fade.setDuration(kFadeTime);
    fade.setStartValue(1.0);
    fade.setEndValue(0.0);
    period.setSingleShot(true);
    period.setInterval(kSecondsEach * 1000);
    connect(&period, &QTimer::timeout, this, [this] { StepBy(1); });
    connect(&loader, &CPictureLoader::Arrived, this, &CSlideShow::Update);
    connect(canvas, &CPictureCanvas::ViewChanged, this, &CSlideShow::Update);
    connect(&fade, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
        static_cast<QGraphicsOpacityEffect*>(former->graphicsEffect())->setOpacity(value.toReal());
    });
    connect(&fade, &QVariantAnimation::finished, former, &QWidget::hide);
    walk.SetNames(std::move(paths));
    walk.GoTo(first);
}

void CSlideShow::StepBy(int by)
{
    isShown = false;
    direction = by;
    walk.Step(by);
    Update();
}

void CSlideShow::Update()
{
    if (updating)
        return;
    updating = true;
    const browser::DecodedPicture* due = loader.Find(canvas->WantedWhole(Due()));
    const bool broken = due && !due->pixels;
    if (due && due->pixels)
        ShowDue(*due);
    std::vector<browser::PictureRequest> requests;
    for (const std::string& path : walk.Nearby())
        requests.push_back(canvas->WantedWhole(path));
    loader.Want(std::move(requests));
    updating = false;
    if (broken && !isShown)
        PassOver();
}

void CSlideShow::ShowDue(const browser::DecodedPicture& picture)
{
    if (!isShown)
        FadeFromNow();
    canvas->ShowPicture(picture);
    canvas->ShowWhole();
    failed = 0;
    message->Show({}, {}, {});
    if (isShown)
        return;
    isShown = true;
    const QLocale locale;
    canvas->setAccessibleName(Text(
        StringId::viewerName, Shown(browser::FileName(Due())),
        Text(StringId::viewerPosition, locale.toString(walk.Position() + 1), locale.toString(walk.Count()))));
    if (!paused)
        period.start();
}

void CSlideShow::PassOver()
{
    if (++failed < walk.Count())
        return StepBy(direction);
    isShown = true;
    message->Show(QStringLiteral("broken-picture"), Text(StringId::viewerBroken),
                  Shown(browser::FileName(Due())));
}

void CSlideShow::FadeFromNow()
{
    const qreal ratio = devicePixelRatioF();
    if (!canvas->HasPicture() || width() * height() * ratio * ratio > kMostPixelsToFade)
        return;
    former->setPixmap(canvas->grab());
    former->show();
    former->raise();
    pauseSign->raise();
    fade.stop();
    fade.start();
}

void CSlideShow::Pause(bool on)
{
    paused = on;
    pauseSign->setVisible(on);
    pauseSign->raise();
    if (on)
        period.stop();
    else if (isShown)
        period.start();
}

void CSlideShow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space)
        return Pause(!paused);
    const auto action = ViewerActionOf(*event, layoutDirection());
    if (!action)
        return QWidget::keyPressEvent(event);
    switch (*action) {
    case ViewerAction::back:
    case ViewerAction::fullScreen:
        close();
        break;
    case ViewerAction::previous:
    case ViewerAction::pageUp:
        StepBy(-1);
        break;
    case ViewerAction::next:
    case ViewerAction::pageDown:
        StepBy(1);
        break;
    default:
        break;
    }
}

void CSlideShow::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        StepBy(1);
    else
        close();
}

void CSlideShow::resizeEvent(QResizeEvent*)
{
    for (QWidget* part :
         {static_cast<QWidget*>(canvas), static_cast<QWidget*>(former), static_cast<QWidget*>(message)})
        part->setGeometry(rect());
    pauseSign->move((width() - pauseSign->width()) / 2, height() - pauseSign->height() - 8 * kGrid);
}

CSlideShow* StartSlideShow(std::vector<std::string> paths, const std::string& first, QWidget* window)
{
    if (paths.empty())
        return nullptr;
    auto* show = new CSlideShow(std::move(paths), first, window);
    if (window)
        show->setGeometry(window->screen()->geometry());
    show->showFullScreen();
    show->setFocus();
    return show;
}

}  // namespace ui

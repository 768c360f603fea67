// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/viewer/viewer_bar.h"

#include "ui/controls/skin.h"
#include "ui/theme.h"
#include "ui/words.h"

#include <QHBoxLayout>
#include <QKeySequence>
#include <QToolButton>

using platform::StringId;

namespace ui
{

namespace
{

QString WithKey(const QString& text, Qt::Key key)
{
    return Text(StringId::viewerTip, text, QKeySequence(key).toString(QKeySequence::NativeText));
}

}  // namespace

std::optional<ViewerAction> ViewerActionOf(const QKeyEvent& event, Qt::LayoutDirection direction)
{
    constexpr auto kOthers = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    const bool mirrored = direction == Qt::RightToLeft;
    const bool zooms = !(event.modifiers() & (Qt::AltModifier | Qt::MetaModifier));
    switch (event.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return zooms ? std::optional(ViewerAction::zoomIn) : std::nullopt;
    case Qt::Key_Minus:
        return zooms ? std::optional(ViewerAction::zoomOut) : std::nullopt;
    default:
        break;
    }
    if (event.modifiers() & (kOthers | Qt::ShiftModifier))
        return std::nullopt;
    switch (event.key()) {
    case Qt::Key_Escape:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Back:
        return ViewerAction::back;
    case Qt::Key_Left:
        return mirrored ? ViewerAction::next : ViewerAction::previous;
    case Qt::Key_Right:
        return mirrored ? ViewerAction::previous : ViewerAction::next;
    case Qt::Key_Backspace:
        return ViewerAction::previous;
    case Qt::Key_Space:
        return ViewerAction::next;
    case Qt::Key_PageUp:
        return ViewerAction::pageUp;
    case Qt::Key_PageDown:
        return ViewerAction::pageDown;
    case Qt::Key_Home:
        return ViewerAction::first;
    case Qt::Key_End:
        return ViewerAction::last;
    case Qt::Key_0:
    case Qt::Key_Asterisk:
        return ViewerAction::whole;
    case Qt::Key_1:
        return ViewerAction::pixels;
    case Qt::Key_F11:
        return ViewerAction::fullScreen;
    case Qt::Key_Delete:
        return ViewerAction::remove;
    default:
        return std::nullopt;
    }
}

CViewerBar::CViewerBar(QWidget* parent)
    : QWidget(parent), nameLabel(new QLabel(this)), factsLabel(new QLabel(this))
{
    setAutoFillBackground(true);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(2 * kGrid, kGrid, 2 * kGrid, kGrid);
    row->setSpacing(kGrid);
    nameLabel->setTextFormat(Qt::PlainText);
    factsLabel->setTextFormat(Qt::PlainText);
    factsLabel->setForegroundRole(QPalette::PlaceholderText);
    nameLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    const bool mirrored = isRightToLeft();
    const QString left = QStringLiteral("viewer-previous");
    const QString right = QStringLiteral("viewer-next");
    row->addWidget(AddButton(ViewerAction::back, QStringLiteral("thumbnails"), Text(StringId::viewerBack),
                             Qt::Key_Escape));
    row->addSpacing(kGrid);
    row->addWidget(AddButton(ViewerAction::previous, mirrored ? right : left, Text(StringId::viewerPrevious),
                             mirrored ? Qt::Key_Right : Qt::Key_Left));
    row->addWidget(AddButton(ViewerAction::next, mirrored ? left : right, Text(StringId::viewerNext),
                             mirrored ? Qt::Key_Left : Qt::Key_Right));
    row->addSpacing(2 * kGrid);
    row->addWidget(nameLabel, 1);
    row->addWidget(factsLabel);
    row->addSpacing(2 * kGrid);
    row->addWidget(AddButton(ViewerAction::zoomOut, QStringLiteral("viewer-zoom-out"),
                             Text(StringId::viewerZoomOut), Qt::Key_Minus));
    row->addWidget(AddButton(ViewerAction::whole, QStringLiteral("viewer-whole"), Text(StringId::viewerWhole),
                             Qt::Key_0));
    row->addWidget(AddButton(ViewerAction::pixels, QStringLiteral("viewer-pixels"),
                             Text(StringId::viewerPixels), Qt::Key_1));
    row->addWidget(AddButton(ViewerAction::zoomIn, QStringLiteral("viewer-zoom-in"),
                             Text(StringId::viewerZoomIn), Qt::Key_Plus));
    row->addSpacing(kGrid);
    row->addWidget(AddButton(ViewerAction::fullScreen, QStringLiteral("viewer-full-screen"), {}, {}));
    SetFullScreen(false);
}

QToolButton* CViewerBar::AddButton(ViewerAction action, const QString& drawing, const QString& text,
                                   Qt::Key key)
{
    auto* button = new QToolButton(this);
    button->setIcon(SkinIcon(QStringLiteral("Manager/%1.png").arg(drawing), drawing));
    button->setIconSize({16, 16});
    button->setFixedSize(8 * kGrid, 8 * kGrid);
    button->setAutoRaise(true);
    // Not taken by a click, so that the keys stay the picture's.
    button->setFocusPolicy(Qt::TabFocus);
    button->setAccessibleName(text);
    button->setToolTip(WithKey(text, key));
    connect(button, &QToolButton::clicked, this, [this, action] { Q_EMIT Chosen(action); });
    buttons.emplace(action, button);
    return button;
}

void CViewerBar::SetFullScreen(bool on)
{
    QToolButton* button = Button(ViewerAction::fullScreen);
    const QString text = Text(on ? StringId::viewerLeaveFullScreen : StringId::viewerFullScreen);
    button->setAccessibleName(text);
    button->setToolTip(WithKey(text, Qt::Key_F11));
}

void CViewerBar::ShowText(const QString& name, const QString& facts)
{
    fullName = name;
    factsLabel->setText(facts);
    factsLabel->setAccessibleName(facts);
    nameLabel->setToolTip(name.toHtmlEscaped());
    nameLabel->setAccessibleName(name);
    layout()->activate();
    ShortenName();
}

void CViewerBar::ShortenName()
{
    nameLabel->setText(nameLabel->fontMetrics().elidedText(fullName, Qt::ElideMiddle, nameLabel->width()));
}

void CViewerBar::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layout()->activate();
    ShortenName();
}

}  // namespace ui

// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/ie_shell_list_view.h"

#include "browser/list_settings.h"
#include "ui/controls/skin.h"
#include "ui/main_menu.h"
#include "ui/theme.h"
#include "ui/words.h"

#include <QHBoxLayout>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSlider>
#include <QToolButton>

#include <utility>

namespace ui
{

namespace
{

QToolButton* MakeButton(QAction* action, const QString& drawing, QWidget* parent)
{
    action->setIcon(SkinIcon(QStringLiteral("Manager/%1.png").arg(drawing), drawing));
    action->setIconVisibleInMenu(false);
    auto* button = new QToolButton(parent);
    button->setDefaultAction(action);
    button->setIconSize({16, 16});
    button->setFixedSize(8 * kGrid, 8 * kGrid);
    button->setAutoRaise(true);
    button->setToolButtonStyle(Qt::ToolButtonIconOnly);
    button->setFocusPolicy(Qt::TabFocus);
    button->setAccessibleName(action->iconText());
    return button;
}

}  // namespace

CIEShellListView::CIEShellListView(const std::string& storeFolder, const std::string& settingsFile,
                                   const CMainMenu& menu, QWidget* parent)
    : QWidget(parent), up(new QAction(Text(StringId::placeUp), this)), path(new CPathLabel(this)),
      sizeControl(new QSlider(Qt::Horizontal, this)),
      ctrl(new CIEShellListCtrl(storeFolder, settingsFile, this))
{
    up->setShortcuts({QKeySequence(QStringLiteral("Alt+Up")), QKeySequence(Qt::Key_Backspace)});
    up->setToolTip(Text(StringId::placeUpTip));
    addAction(up);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(MakeBar(menu));
    auto* line = new QWidget(this);
    line->setFixedHeight(1);
    line->setAutoFillBackground(true);
    line->setBackgroundRole(QPalette::AlternateBase);
    column->addWidget(line);
    column->addWidget(ctrl, 1);
    setFocusProxy(ctrl);
    connect(sizeControl, &QSlider::valueChanged, ctrl,
            [this](int step) { ctrl->SetThumbnailSide(step * browser::kThumbStep); });
    connect(ctrl, &CIEShellListCtrl::LayoutChanged, this, &CIEShellListView::ShowSize);
    ShowSize();
    for (const auto& [keys, steps] :
         {std::pair(QKeySequence::ZoomIn, 1), std::pair(QKeySequence::ZoomOut, -1)}) {
        connect(new QShortcut(keys, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut),
                &QShortcut::activated, sizeControl,
                [this, steps = steps] { sizeControl->setValue(sizeControl->value() + steps); });
    }
}

QWidget* CIEShellListView::MakeBar(const CMainMenu& menu)
{
    sizeControl->setRange(browser::kThumbSmallest / browser::kThumbStep,
                          browser::kThumbLarge / browser::kThumbStep);
    sizeControl->setPageStep(1);
    sizeControl->setFixedWidth(20 * kGrid);
    sizeControl->setFocusPolicy(Qt::TabFocus);
    sizeControl->setAccessibleName(Text(StringId::listThumbnailSize));
    sizeControl->setToolTip(Text(StringId::listThumbnailSize));
    auto* bar = new QWidget(this);
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(2 * kGrid, kGrid, 2 * kGrid, kGrid);
    row->setSpacing(kGrid);
    QToolButton* const wayUp = MakeButton(up, QStringLiteral("up"), bar);
    row->addWidget(wayUp);
    row->addSpacing(kGrid);
    row->addWidget(path, 1);
    row->addWidget(sizeControl);
    row->addSpacing(2 * kGrid);
    row->addWidget(MakeButton(menu.Action(app::CommandId::thumbnails), QStringLiteral("thumbnails"), bar));
    lastOfBar = MakeButton(menu.Action(app::CommandId::details), QStringLiteral("details"), bar);
    row->addWidget(lastOfBar);
    setTabOrder(wayUp, sizeControl);
    return bar;
}

void CIEShellListView::PutAbove(QWidget* widget)
{
    auto* column = static_cast<QVBoxLayout*>(layout());
    column->insertWidget(column->indexOf(ctrl), widget);
}

void CIEShellListView::OpenFolder(const std::string& folder, const std::string& selectName)
{
    path->SetPath(folder);
    up->setEnabled(folder != "/");
    ctrl->OpenFolder(folder, selectName);
}

void CIEShellListView::ShowSize()
{
    const QSignalBlocker quiet(sizeControl);
    sizeControl->setValue(ctrl->Thumbnails()->ThumbnailSide() / browser::kThumbStep);
    sizeControl->setEnabled(ctrl->Style() == ViewStyle::thumbnails);
}

}  // namespace ui

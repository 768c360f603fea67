// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/photo/photo_info_pane.h"

#include "browser/file_names.h"
#include "platform/services.h"
#include "platform/settings_store.h"
#include "ui/controls/message_box.h"
#include "ui/display_text.h"
#include "ui/ie_shell_list_ctrl.h"
#include "ui/photo/photo_info_view.h"
#include "ui/theme.h"
#include "ui/words.h"

#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace ui
{

namespace
{

constexpr const char* kSection = "Frame";
constexpr const char* kOnKey = "PhotoInfo";
constexpr const char* kWidthKey = "PhotoInfoWidth";
constexpr int kUsualWidth = 80 * kGrid;
constexpr int kLeastWidth = 50 * kGrid;
constexpr int kWidestKept = 4000;
// Milliseconds: a selection that is still growing is not read in between.
constexpr int kFollowDelay = 80;
constexpr int kWidthDelay = 1000;

}  // namespace

CPhotoInfoPane::CPhotoInfoPane(CIEShellListCtrl& fileList, CFileActions& jobs, std::string iniFile,
                               QSplitter& splitter)
    : list(fileList), actions(jobs), settingsFile(std::move(iniFile)), panes(splitter)
{
    setObjectName(QStringLiteral("PhotoInfoPane"));
    setAccessibleName(Text(StringId::infoPane));
    setMinimumWidth(kLeastWidth);
    panes.addWidget(this);
    panes.setCollapsible(panes.indexOf(this), false);
    hide();
    platform::CProfiles& profiles = *platform::Os().profiles;
    width = std::clamp(profiles.GetPrivateProfileInt(kSection, kWidthKey, kUsualWidth, settingsFile),
                       kLeastWidth, kWidestKept);
    followTimer.setSingleShot(true);
    followTimer.setInterval(kFollowDelay);
    connect(&followTimer, &QTimer::timeout, this, &CPhotoInfoPane::Follow);
    connect(&list, &CIEShellListCtrl::StatusChanged, this, [this] {
        if (isOn && !followTimer.isActive())
            followTimer.start();
    });
    connect(&list, &CIEShellListCtrl::Filled, this, [this] {
        if (isOn)
            view->Reload();
    });
    widthTimer.setSingleShot(true);
    widthTimer.setInterval(kWidthDelay);
    connect(&widthTimer, &QTimer::timeout, this, &CPhotoInfoPane::KeepWidth);
    connect(&panes, &QSplitter::splitterMoved, &widthTimer, qOverload<>(&QTimer::start));
    if (profiles.GetPrivateProfileInt(kSection, kOnKey, 0, settingsFile) != 0)
        SetOn(true);
}

CPhotoInfoPane::~CPhotoInfoPane()
{
    if (widthTimer.isActive())
        KeepWidth();
}

void CPhotoInfoPane::Build()
{
    view = new CPhotoInfoView(actions, this);
    apply = new QPushButton(Text(StringId::captionApply), this);
    apply->setToolTip(Text(StringId::captionApplyTip));
    revert = new QPushButton(Text(StringId::captionRevert), this);
    revert->setToolTip(Text(StringId::captionRevertTip));
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(apply);
    row->addWidget(revert);
    row->setContentsMargins(2 * kGrid, 0, 2 * kGrid, 0);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kGrid, 2 * kGrid, 2 * kGrid, 2 * kGrid);
    column->addWidget(view, 1);
    column->addLayout(row);
    connect(apply, &QPushButton::clicked, this, &CPhotoInfoPane::Apply);
    connect(revert, &QPushButton::clicked, this, [this] {
        view->Revert();
        Follow();
    });
    connect(view, &CPhotoInfoView::Entered, this, &CPhotoInfoPane::Apply);
    connect(view, &CPhotoInfoView::Edited, this, &CPhotoInfoPane::ShowButtons);
    connect(view->Tabs(), &QTabWidget::currentChanged, this, &CPhotoInfoPane::ShowButtons);
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* shortcut = new QShortcut(Qt::CTRL | key, this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, &CPhotoInfoPane::Apply);
    }
    ShowButtons();
}

void CPhotoInfoPane::ShowButtons()
{
    const bool isEdited = view->IsEdited();
    const bool isAtCaption = view->Tabs()->currentWidget() == view->Captions() && !view->Paths().empty();
    for (QPushButton* button : {apply, revert}) {
        button->setVisible(isEdited || isAtCaption);
        button->setEnabled(isEdited);
    }
}

bool CPhotoInfoPane::IsEdited() const
{
    return isOn && view->IsEdited();
}

void CPhotoInfoPane::Turn(bool on)
{
    if (on)
        SetOn(true);
    else
        Settle([this] { SetOn(false); });
    Q_EMIT Turned(isOn);
}

void CPhotoInfoPane::SetOn(bool on)
{
    if (on == isOn)
        return;
    if (on && !view)
        Build();
    isOn = on;
    if (!on && isAncestorOf(window()->focusWidget()))
        list.View()->setFocus(Qt::OtherFocusReason);
    setVisible(on);
    platform::Os().profiles->WritePrivateProfileString(kSection, kOnKey, on ? "1" : "0", settingsFile);
    if (on) {
        const int all = std::max(panes.width(), 2 * width);
        panes.setSizes({all - width, width});
        view->Show(AskAboutSelection(list));
    } else {
        view->Show({});
    }
    Q_EMIT Turned(on);
}

void CPhotoInfoPane::KeepWidth()
{
    widthTimer.stop();
    if (!isOn)
        return;
    width = panes.sizes().value(panes.indexOf(this), width);
    platform::Os().profiles->WritePrivateProfileString(kSection, kWidthKey, std::to_string(width),
                                                       settingsFile);
}

void CPhotoInfoPane::Follow()
{
    // In between the list has nothing selected.
    if (list.IsReading())
        return followTimer.start();
    if (!isOn || question || AskAboutSelection(list).paths == view->Paths())
        return;
    Settle([this] { view->Show(AskAboutSelection(list)); });
}

void CPhotoInfoPane::Apply()
{
    if (view->IsEdited() && view->Store())
        Follow();
}

void CPhotoInfoPane::Settle(std::function<void()> then)
{
    if (!IsEdited())
        return then();
    if (!view->Captions()->IsHarmless())
        return Ask(std::move(then));
    if (view->Store())
        then();
}

void CPhotoInfoPane::Ask(std::function<void()> then)
{
    if (question)
        return;
    const std::vector<std::string>& paths = view->Paths();
    const QString text = paths.size() == 1
                             ? Text(StringId::captionAskOne, Shown(browser::FileName(paths.front())))
                             : Counted(StringId::captionAskMany, static_cast<qint64>(paths.size()));
    auto* box = new CMessageBox(CMessageBox::Question, Text(StringId::infoPane), text, window());
    box->setInformativeText(view->Captions()->Note());
    CButtonEx* store = box->Add(Text(StringId::captionStore), CMessageBox::AcceptRole);
    CButtonEx* discard = box->Add(Text(StringId::captionDiscard), CMessageBox::DestructiveRole);
    box->setEscapeButton(box->Add(Text(StringId::filesCancel), CMessageBox::RejectRole));
    box->setDefaultButton(store);
    connect(box, &QMessageBox::buttonClicked, this,
            [this, then = std::move(then), store, discard](const QAbstractButton* pressed) {
                question = nullptr;
                if (pressed == discard)
                    view->Revert();
                if (pressed == discard || (pressed == store && view->Store()))
                    then();
            });
    question = box;
    box->Open();
}

}  // namespace ui

// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/tab_window.h"

#include "ui/controls/tab_button.h"
#include "ui/display_text.h"
#include "ui/words.h"

#include <QHBoxLayout>
#include <QKeyEvent>

#include <algorithm>

namespace ui
{

TabWindow::TabWindow(const app::CTabs& tabs, QWidget* parent) : QWidget(parent), state(tabs)
{
    struct Look {
        const char* drawing;
        StringId tip;
    };
    static constexpr std::array<Look, 3> looks = {{{"favourite", StringId::skinTabDeviceTip},
                                                   {"folder", StringId::skinTabFolderTip},
                                                   {"search", StringId::skinTabSearchTip}}};
    InstallTabAccessibility();
    setAccessibleName(Text(StringId::skinTabs));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        const app::Tab& tab = state.All()[i];
        buttons[i] = new CTabButton(Text(tab.caption), QStringLiteral("Manager/") + Shown(tab.image),
                                    QString::fromLatin1(looks[i].drawing), this);
        buttons[i]->setToolTip(Text(looks[i].tip));
        connect(buttons[i], &QAbstractButton::clicked, this, [this, id = tab.id] {
            // The state decides which tab is down.
            Update();
            Q_EMIT Clicked(id);
        });
        row->addWidget(buttons[i], 1);
    }
    Update();
}

void TabWindow::Update()
{
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        const app::Tab& tab = state.All()[i];
        buttons[i]->setChecked(tab.checked);
        buttons[i]->setEnabled(tab.enabled);
        buttons[i]->setVisible(tab.visible);
        buttons[i]->setFocusPolicy(tab.checked ? Qt::TabFocus : Qt::NoFocus);
        if (tab.checked)
            buttons[i]->raise();
    }
}

CTabButton* TabWindow::Usable(int from, int step) const
{
    for (int i = from; i >= 0 && i < int(buttons.size()); i += step) {
        CTabButton* button = buttons[std::size_t(i)];
        if (button->isEnabled() && !button->isHidden())
            return button;
    }
    return nullptr;
}

void TabWindow::keyPressEvent(QKeyEvent* event)
{
    const auto at = std::find(buttons.begin(), buttons.end(), focusWidget());
    const int here = int(at - buttons.begin());
    const int last = int(buttons.size()) - 1;
    const int right = layoutDirection() == Qt::RightToLeft ? -1 : 1;
    CTabButton* next = nullptr;
    switch (event->key()) {
    case Qt::Key_Right:
        next = Usable(here + right, right);
        break;
    case Qt::Key_Left:
        next = Usable(here - right, -right);
        break;
    case Qt::Key_Home:
        next = Usable(0, 1);
        break;
    case Qt::Key_End:
        next = Usable(last, -1);
        break;
    default:
        return QWidget::keyPressEvent(event);
    }
    if (at == buttons.end() || !next)
        return;
    next->click();
    // A panel may have taken the focus; the next arrow key shall find the bar.
    if (next->isChecked())
        next->setFocus(Qt::TabFocusReason);
}

QAbstractButton* TabWindow::Button(int id) const
{
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        if (state.All()[i].id == id)
            return buttons[i];
    }
    return nullptr;
}

}  // namespace ui

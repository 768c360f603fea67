// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What a screen reader is told of the window.
#include "ui/photo/photo_info_view.h"
#include "window_test_base.h"

#include <QAccessible>
#include <QDialog>
#include <QStringList>
#include <QTabWidget>

namespace
{

// Controls that a person operates: each must say what it is.
bool NeedsName(QAccessible::Role role)
{
    switch (role) {
    case QAccessible::Button:
    case QAccessible::ButtonMenu:
    case QAccessible::CheckBox:
    case QAccessible::ComboBox:
    case QAccessible::EditableText:
    case QAccessible::List:
    case QAccessible::ListItem:
    case QAccessible::MenuItem:
    case QAccessible::PageTab:
    case QAccessible::PageTabList:
    case QAccessible::ProgressBar:
    case QAccessible::RadioButton:
    case QAccessible::Slider:
    case QAccessible::SpinBox:
    case QAccessible::Table:
    case QAccessible::Tree:
    case QAccessible::TreeItem:
        return true;
    default:
        return false;
    }
}

// `named` and `nameless` gain the controls below `node`, as paths.
void Walk(QAccessibleInterface* node, const QString& path, QStringList& named, QStringList& nameless)
{
    if (!node || !node->isValid() || node->state().invisible)
        return;
    const QString name = node->text(QAccessible::Name);
    const QString step = path + QLatin1Char('/') + name + QLatin1Char('[') +
                         QString::number(static_cast<int>(node->role())) + QLatin1Char(']');
    if (NeedsName(node->role()))
        (name.isEmpty() ? nameless : named).append(step);
    for (int i = 0; i < node->childCount(); ++i)
        Walk(node->child(i), step, named, nameless);
}

class Accessibility : public support::WindowTest
{
};

}  // namespace

TEST_F(Accessibility, EveryControlOfTheWindowHasAName)
{
    Add("a.jpg");
    Add("b.jpg");
    Open();
    Select({"a.jpg"});
    Run(app::CommandId::photoInfo);
    ui::CPhotoInfoView& info = *frame->PhotoInfo()->View();
    info.Tabs()->setCurrentWidget(info.Captions());

    for (const auto view : {app::CommandId::thumbnails, app::CommandId::details}) {
        Run(view);
        QStringList named;
        QStringList nameless;
        Walk(QAccessible::queryAccessibleInterface(frame.get()), {}, named, nameless);
        EXPECT_GT(named.size(), 12) << named.join(QLatin1Char('\n')).toStdString();
        EXPECT_EQ(nameless.join(QLatin1Char('\n')).toStdString(), "");
    }
}

TEST_F(Accessibility, ThePictureUnderTheCursorIsSpokenByItsName)
{
    Add("Dunes.jpg");
    Open();
    View().setCurrentIndex(View().model()->index(0, 0));

    QAccessibleInterface* list = QAccessible::queryAccessibleInterface(&View());
    ASSERT_NE(list, nullptr);
    QAccessibleInterface* item = list->focusChild() ? list->focusChild() : list->child(0);
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->text(QAccessible::Name).toStdString(), "Dunes.jpg");
}

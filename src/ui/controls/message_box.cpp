// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/controls/message_box.h"

#include "ui/controls/dialog_buttons.h"

#include <QEvent>
#include <QLabel>

namespace ui
{

namespace
{

const char* NameOf(QMessageBox::ButtonRole role)
{
    if (role == QMessageBox::AcceptRole)
        return "ok";
    return role == QMessageBox::RejectRole ? "cancel" : "other";
}

const char* NameOf(QMessageBox::Icon icon)
{
    switch (icon) {
    case QMessageBox::Information:
        return "picture";
    case QMessageBox::Question:
        return "question";
    case QMessageBox::Warning:
    case QMessageBox::Critical:
        return "warning";
    default:
        return "about";
    }
}

// Lines that begin with a name in Latin letters would stand at the left.
QString FromTheRight(QString text)
{
    const QChar rightToLeftMark(0x200F);
    return rightToLeftMark + text.replace(QLatin1Char('\n'), QLatin1Char('\n') + QString(rightToLeftMark));
}

}  // namespace

CMessageBox::CMessageBox(Icon icon, const QString& title, const QString& text, QWidget* parent)
    : QMessageBox(icon, title, text, NoButton, parent)
{
    setTextFormat(Qt::PlainText);
}

CButtonEx* CMessageBox::Add(const QString& text, ButtonRole role)
{
    return AddButton(*this, text, role, NameOf(role));
}

CButtonEx* CMessageBox::Add(StandardButton which)
{
    return AddButton(*this, which, which == Cancel ? "cancel" : "ok");
}

void CMessageBox::Open()
{
    setAttribute(Qt::WA_DeleteOnClose);
    open();
}

bool CMessageBox::event(QEvent* event)
{
    // Before the style dresses it; the sign and the texts are Qt's.
    if (event->type() == QEvent::Polish)
        NameParts();
    return QMessageBox::event(event);
}

void CMessageBox::NameParts()
{
    const std::pair<const char*, const char*> parts[] = {{"qt_msgboxex_icon_label", NameOf(icon())},
                                                         {"qt_msgbox_label", "text"},
                                                         {"qt_msgbox_informativelabel", "more"}};
    for (const auto& [qtName, name] : parts) {
        auto* label = findChild<QLabel*>(QString::fromLatin1(qtName));
        if (!label)
            continue;
        label->setObjectName(QString::fromLatin1(name));
        if (isRightToLeft() && !label->text().isEmpty())
            label->setText(FromTheRight(label->text()));
    }
}

}  // namespace ui

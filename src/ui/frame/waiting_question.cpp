// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frame/waiting_question.h"

#include "ui/words.h"

#include <QMessageBox>
#include <QPushButton>

namespace ui
{

void AskAboutWaiting(QWidget& window)
{
    auto* box = new QMessageBox(QMessageBox::Question, window.windowTitle(), Text(StringId::waitingQuestion),
                                QMessageBox::NoButton, &window);
    const QPushButton* use = box->addButton(Text(StringId::waitingUse), QMessageBox::AcceptRole);
    const QPushButton* close = box->addButton(Text(StringId::waitingClose), QMessageBox::DestructiveRole);
    QPushButton* wait = box->addButton(Text(StringId::waitingWait), QMessageBox::RejectRole);
    box->setDefaultButton(wait);
    box->setEscapeButton(wait);
    box->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(use, &QPushButton::clicked, &window, [&window] { window.setEnabled(true); });
    QObject::connect(close, &QPushButton::clicked, &window, [&window] {
        window.setEnabled(true);
        window.close();
    });
    box->open();
}

}  // namespace ui

// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frame/waiting_question.h"

#include "ui/controls/message_box.h"
#include "ui/words.h"

namespace ui
{

void AskAboutWaiting(QWidget& window)
{
    auto* box = new CMessageBox(CMessageBox::Question, window.windowTitle(), Text(StringId::waitingQuestion),
                                &window);
    const CButtonEx* use = box->Add(Text(StringId::waitingUse), CMessageBox::AcceptRole);
    const CButtonEx* close = box->Add(Text(StringId::waitingClose), CMessageBox::DestructiveRole);
    CButtonEx* wait = box->Add(Text(StringId::waitingWait), CMessageBox::RejectRole);
    box->setDefaultButton(wait);
    box->setEscapeButton(wait);
    QObject::connect(use, &QPushButton::clicked, &window, [&window] { window.setEnabled(true); });
    QObject::connect(close, &QPushButton::clicked, &window, [&window] {
        window.setEnabled(true);
        window.close();
    });
    box->Open();
}

}  // namespace ui

// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CMessageBox: a message or a question to the user, dressed after the skin's "dialog.ini".
//
// Its texts are plain. It deletes itself when it is closed after open(). In the layout file its sign is
// called "picture", "question", "warning" or "about", its texts "text" and "more", its buttons "ok" (the one
// that agrees), "cancel" (the one that does not) and "other". Without a button of its own it has an OK.
#pragma once

#include "ui/controls/button_ex.h"

#include <QMessageBox>

namespace ui
{

class CMessageBox : public QMessageBox
{
    Q_OBJECT

public:
    CMessageBox(Icon icon, const QString& title, const QString& text, QWidget* parent);
    CButtonEx* Add(const QString& text, ButtonRole role);
    CButtonEx* Add(StandardButton which);
    // Shows it without waiting for the answer.
    void Open();

protected:
    bool event(QEvent* event) override;

private:
    void NameParts();
};

}  // namespace ui

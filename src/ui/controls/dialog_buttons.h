// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Buttons that the skin draws, in Qt's boxes for buttons: QDialogButtonBox and QMessageBox.
//
// `name` is the button's element in the window's layout file. The box owns the button.
#pragma once

#include "ui/controls/button_ex.h"

namespace ui
{

template <typename Box>
CButtonEx* AddButton(Box& box, const QString& text, typename Box::ButtonRole role, const char* name)
{
    auto* button = new CButtonEx(text, &box);
    button->setObjectName(QString::fromLatin1(name));
    box.addButton(button, role);
    return button;
}

// One of the usual buttons, with the desktop's word for it.
template <typename Box> CButtonEx* AddButton(Box& box, typename Box::StandardButton which, const char* name)
{
    QPushButton* plain = box.addButton(which);
    const QString text = plain->text();
    const auto role = box.buttonRole(plain);
    box.removeButton(plain);
    delete plain;
    return AddButton(box, text, role, name);
}

}  // namespace ui

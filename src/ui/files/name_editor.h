// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CNameEditor: a new name typed in place, over the item that it is for.
//
// Enter takes the name, Escape and a click elsewhere leave the old one. A name that cannot be is refused in
// place, with the reason below it. The editor deletes itself when it is done.
#pragma once

#include <QLineEdit>

#include <functional>
#include <string>

class QLabel;

namespace ui
{

// Why a name cannot be given; empty when it can.
QString NameObjection(const std::string& name);
// Shows `text` in `line` with the part selected that a new name usually replaces.
void SelectStem(QLineEdit& line, bool isFolder);

class CNameEditor : public QLineEdit
{
    Q_OBJECT

public:
    // `name`: the item's own; `place`: where in `parent` (a view's viewport) it stands.
    CNameEditor(const std::string& name, bool isFolder, const QRect& place, QWidget* parent);
    // Asked for a name that NameObjection has nothing against: a reason not to give it, or nothing.
    std::function<QString(const std::string& name)> objection;
    // What is said of the name below it; empty when nothing is.
    QString Message() const;

Q_SIGNALS:
    void Accepted(const std::string& name);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void Accept();
    void Refuse(const QString& reason);
    void Close();

    std::string former;
    QLabel* message;
    bool closing = false;
};

}  // namespace ui

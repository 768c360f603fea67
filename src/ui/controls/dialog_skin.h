// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CDialogSkin: dresses a window after its layout file, and again when theme, font or language change.
//
// The window is built with Qt layouts and is whole without a skin. Its elements are the widgets in it that
// have an object name: that name is the section of the file ("star#2" the second of section "star"). A
// rectangle is the element's least size. Where the file places every direct child of the window, no two of
// them overlap and every text fits its place in the present language and font, the window takes exactly those
// places (from the right in a right-to-left language) and a fixed size; in any other case the Qt layout
// stands. The buttons of a QDialogButtonBox count as children of the window. What the file adds to the window
// is shown only while the window is placed; a message box of Qt, which minds its own size, never is.
// docs/formats/skin.md has the keys, docs/decisions/0012-skin.md the reasons.
#pragma once

#include "app/skin_layout.h"

#include <QAbstractButton>
#include <QDialog>
#include <QPointer>

#include <vector>

namespace ui
{

class CDialogSkin : public QObject
{
    Q_OBJECT

public:
    // Call when all elements are there. The object belongs to the window.
    CDialogSkin(QWidget& dressed, std::string file);
    // Whether the elements stand where the file has them.
    bool IsPlaced() const { return placed; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Element {
        QPointer<QWidget> widget;
        std::optional<platform::Rect> rect;
        QSize ownLeast;
    };
    struct Addition {
        QPointer<QWidget> widget;
        platform::Rect rect;
        QPointer<QAbstractButton> pressed;
    };

    void CollectElements();
    void Dress();
    void Add(const std::vector<app::SkinElement>& looks);
    QWidget* MakeAddition(const app::SkinElement& look, QAbstractButton* pressed);
    void Place();
    void PlaceAll();
    void LeaveToLayout();
    bool CanPlace() const;
    QSize DesignSize() const;
    // The visible children to be placed; in place of a box of buttons, its buttons.
    QList<QWidget*> Parts() const;
    const Element* ElementOf(const QWidget& widget) const;

    QWidget& window;
    std::string fileName;
    std::string dressedFrom;  // the skin folder
    app::WindowLayout read;
    std::vector<Element> elements;
    std::vector<Addition> additions;
    std::optional<platform::Rect> panelRect;
    bool placed = false;
    bool working = false;
};

// Dresses a dialog after the file of its object name ("NewFolderDlg.ini"), else after "dialog.ini". The style
// does so before a dialog is first shown, so that none is forgotten; a second call does nothing.
void DressDialog(QDialog& dialog);

}  // namespace ui

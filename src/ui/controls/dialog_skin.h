// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CDialogSkin: dresses a window after its layout file, and again when theme, font or language change.
//
// The window is built with Qt layouts and is whole without a skin. Its elements are the widgets in it that
// have an object name: that name is the section of the file ("star#2" the second of section "star"). A
// rectangle is the element's least size. Where the file places every direct child of the window, no two of
// them overlap and every text fits its place in the present language and font, the window takes exactly those
// places (from the right in a right-to-left language) and a fixed size; in any other case the Qt layout
// stands. docs/formats/skin.md has the keys, docs/decisions/0012-skin.md the reasons.
#pragma once

#include "app/skin_layout.h"

#include <QPointer>
#include <QWidget>

#include <vector>

namespace ui
{

class CDialogSkin : public QObject
{
    Q_OBJECT

public:
    // Call when all elements are there. The object belongs to the window.
    CDialogSkin(QWidget& window, std::string file);
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

    void CollectElements();
    void Dress();
    void DressElement(Element& element, const app::SkinElement& look, const app::WindowLayout& layout);
    void Place();
    bool CanPlace() const;
    QSize DesignSize() const;

    QWidget& window;
    std::string fileName;
    std::string dressedFrom;  // the skin folder
    app::WindowLayout read;
    std::vector<Element> elements;
    std::optional<platform::Rect> panelRect;
    bool placed = false;
    bool working = false;
};

}  // namespace ui

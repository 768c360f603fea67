// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/path_label.h"

#include "browser/file_names.h"
#include "platform/services.h"
#include "platform/shell.h"
#include "ui/display_text.h"
#include "ui/theme.h"
#include "ui/words.h"

#include <QPainter>

namespace ui
{

CPathLabel::CPathLabel(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void CPathLabel::SetPath(const std::string& path)
{
    parents.clear();
    name = path == "/" ? Text(StringId::placeFileSystem) : Shown(browser::FileName(path));
    std::string above = path == "/" ? std::string{} : std::string(browser::FolderOf(path));
    const std::string home =
        platform::Os().shell->GetFolderPath(platform::KnownFolder::home, false).value_or(std::string{});
    if (path == home)
        name = Text(StringId::placeHome);
    while (!above.empty() && above != "/" && path != home) {
        if (above == home) {
            parents.prepend(Text(StringId::placeHome));
            break;
        }
        parents.prepend(Shown(browser::FileName(above)));
        above = browser::FolderOf(above);
    }
    setAccessibleName(Shown(path));
    setToolTip(Shown(path).toHtmlEscaped());
    update();
}

QSize CPathLabel::sizeHint() const
{
    return {60 * kGrid, fontMetrics().height() + 2 * kGrid};
}

QSize CPathLabel::minimumSizeHint() const
{
    return {20 * kGrid, fontMetrics().height()};
}

void CPathLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QFont strong = font();
    strong.setWeight(QFont::DemiBold);
    const QFontMetrics strongMetrics(strong);
    const QString nameText = strongMetrics.elidedText(name, Qt::ElideMiddle, width());
    const QString divider = QStringLiteral("  \u203a  ");
    const int room = width() - strongMetrics.horizontalAdvance(nameText);
    QString before;
    for (auto part = parents.crbegin(); part != parents.crend(); ++part) {
        const QString longer = *part + divider + before;
        if (fontMetrics().horizontalAdvance(longer) > room) {
            const QString cut = QStringLiteral("\u2026") + divider + before;
            if (fontMetrics().horizontalAdvance(cut) <= room)
                before = cut;
            break;
        }
        before = longer;
    }
    // A path reads from left to right in every language; only its place follows the layout.
    painter.setLayoutDirection(Qt::LeftToRight);
    const int beforeWidth = fontMetrics().horizontalAdvance(before);
    QRect box = rect();
    if (isRightToLeft())
        box.setLeft(room - beforeWidth);
    painter.setPen(CTheme::Colours().dimText);
    painter.drawText(box, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, before);
    painter.setFont(strong);
    painter.setPen(CTheme::Colours().text);
    painter.drawText(box.adjusted(beforeWidth, 0, 0, 0),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, nameText);
}

}  // namespace ui

// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/controls/skin.h"

#include "platform/services.h"
#include "platform/utility.h"
#include "ui/display_text.h"
#include "ui/icons.h"
#include "ui/theme.h"

#include <QApplication>
#include <QFontDatabase>
#include <QIconEngine>
#include <QPainter>

#include <cmath>
#include <map>

namespace ui
{

namespace
{

// Of decoded pictures, in bytes.
constexpr qsizetype kMostPictures = 32 << 20;

struct Skin {
    std::string lightFolder;
    std::string folder;
    std::map<std::pair<QString, bool>, StatePixmaps> states;
    std::map<std::pair<QString, bool>, QPixmap> pictures;
    qsizetype bytes = 0;
    bool setsFont = false;
};

Skin& Current()
{
    static Skin skin;
    return skin;
}

QPixmap Taken(const app::SkinPicture& picture)
{
    if (!picture.bitmap || picture.bitmap->pixels.empty())
        return {};
    const platform::Bitmap& bitmap = *picture.bitmap;
    const auto size = static_cast<qsizetype>(bitmap.pixels.size() * sizeof bitmap.pixels.front());
    if (Current().bytes + size > kMostPictures)
        return {};
    Current().bytes += size;
    const QImage image(reinterpret_cast<const uchar*>(bitmap.pixels.data()), bitmap.width, bitmap.height,
                       QImage::Format_ARGB32);
    QPixmap pixmap = QPixmap::fromImage(image.copy());
    pixmap.setDevicePixelRatio(picture.scale);
    return pixmap;
}

app::ButtonState StateOf(QIcon::Mode mode, QIcon::State state)
{
    if (mode == QIcon::Disabled)
        return app::ButtonState::gray;
    if (mode == QIcon::Selected || state == QIcon::On)
        return app::ButtonState::down;
    return mode == QIcon::Active ? app::ButtonState::hover : app::ButtonState::normal;
}

class CSkinIconEngine : public QIconEngine
{
public:
    CSkinIconEngine(QString skinImage, QString drawing)
        : image(std::move(skinImage)), name(std::move(drawing)), drawn(ThemedIcon(name))
    {
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal ratio = painter->device()->devicePixelRatioF();
        painter->drawPixmap(rect, Draw(rect.size() * ratio, mode, state, ratio));
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return Draw(size, mode, state, 1);
    }
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal scale) override
    {
        return Draw(size, mode, state, scale);
    }
    QIconEngine* clone() const override { return new CSkinIconEngine(image, name); }

private:
    // `size` in pixels of the screen.
    QPixmap Draw(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal ratio) const
    {
        const StatePixmaps states = SkinStates(image, ratio);
        const auto wanted = static_cast<std::size_t>(StateOf(mode, state));
        QPixmap picture = states[states[wanted].isNull() ? 0 : wanted];
        // Made smaller it stays sharp, made larger it does not.
        if (!picture.isNull() && picture.width() < size.width()) {
            const StatePixmaps dense = SkinStates(image, 2);
            picture = dense[dense[wanted].isNull() ? 0 : wanted];
        }
        if (picture.isNull())
            return drawn.pixmap((QSizeF(size) / ratio).toSize(), ratio, mode, state);
        if (picture.size() != size)
            picture = picture.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        picture.setDevicePixelRatio(ratio);
        return picture;
    }

    QString image;
    QString name;
    QIcon drawn;
};

// The part of the light that a colour gives back, as the guidelines for readable texts define it.
double Luminance(const QColor& colour)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double Contrast(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

// The skin's font, or the desktop's again where the last skin had one and this one has none.
void TakeFont(Skin& skin)
{
    const app::FontGroup named = app::ReadSkinFont(skin.folder);
    const bool had = std::exchange(skin.setsFont, !named.faceName.empty() || named.size > 0);
    if (skin.setsFont || had)
        QApplication::setFont(SkinFont(named, QFontDatabase::systemFont(QFontDatabase::GeneralFont)));
}

}  // namespace

void UseSkin(const std::string& folder)
{
    Current().lightFolder = folder;
    RefreshSkin();
}

void RefreshSkin()
{
    Skin& skin = Current();
    if (skin.lightFolder.empty())
        return;
    const std::string folder = CTheme::IsDark() ? app::DarkSkinFolder(skin.lightFolder) : skin.lightFolder;
    if (folder != skin.folder) {
        skin = {skin.lightFolder, folder, {}, {}, 0, skin.setsFont};
        TakeFont(skin);
    }
    app::SetPropertyDialogColours(skin.folder);
}

const std::string& SkinFolder()
{
    return Current().folder;
}

StatePixmaps SkinStates(const QString& image, qreal pixelRatio)
{
    Skin& skin = Current();
    const bool dense = pixelRatio > 1;
    const auto [at, isNew] = skin.states.try_emplace({image, dense});
    if (isNew && !skin.folder.empty()) {
        const app::StateImages loaded = app::LoadStateImages(skin.folder, image.toStdString(), dense);
        std::transform(loaded.begin(), loaded.end(), at->second.begin(), Taken);
    }
    return at->second;
}

QPixmap SkinPicture(const QString& image, qreal pixelRatio)
{
    Skin& skin = Current();
    const bool dense = pixelRatio > 1;
    const auto [at, isNew] = skin.pictures.try_emplace({image, dense});
    if (isNew && !skin.folder.empty())
        at->second = Taken(app::LoadSkinPicture(skin.folder, image.toStdString(), dense));
    return at->second;
}

QIcon SkinIcon(const QString& image, const QString& drawing)
{
    return QIcon(new CSkinIconEngine(image, drawing));
}

QFont SkinFont(const app::FontGroup& group, const QFont& base)
{
    if (group.faceName.empty() && group.size == 0)
        return base;
    const platform::LogFont read = platform::Os().utility->ql_GetLogfont(group.faceName, group.size);
    QFont font = base;
    if (!group.faceName.empty())
        font.setFamily(Shown(read.faceName));
    // Through points, so that the desktop's text scale holds for it.
    constexpr double kPointsPerPixel = 72.0 / 96.0;
    if (group.size > 0 && read.height == group.size)
        font.setPointSizeF(read.height * kPointsPerPixel);
    return font;
}

QColor SkinColour(platform::ColorRef colour)
{
    return QColor(int(colour & 0xFF), int(colour >> 8 & 0xFF), int(colour >> 16 & 0xFF));
}

QColor Readable(const QColor& text, const QColor& ground)
{
    constexpr double kLeastContrast = 3;
    if (Contrast(text, ground) >= kLeastContrast)
        return text;
    const QColor black(Qt::black);
    const QColor white(Qt::white);
    return Contrast(black, ground) > Contrast(white, ground) ? black : white;
}

}  // namespace ui

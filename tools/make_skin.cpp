// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// make_skin NAME SOURCE OUTPUT [TEXTS]: makes the pictures of the skin NAME from the drawings of the folder
// SOURCE, in the colours of NAME.ini there, at normal and double density. With TEXTS, the folder of another
// skin, its INI files are taken over with their colours exchanged.
//
// Used while building; not installed. Anything missing or odd ends it with a message and status 1.
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QSettings>
#include <QSvgRenderer>

#include <array>
#include <cstdio>
#include <cstdlib>

namespace
{

constexpr std::array kStates = {"normal", "down", "hl", "gray"};

[[noreturn]] void Fail(const QString& what)
{
    std::fprintf(stderr, "make_skin: %s\n", qPrintable(what));
    std::exit(1);
}

QByteArray ReadAll(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        Fail(path + ": " + file.errorString());
    return file.readAll();
}

class CSkinMaker
{
public:
    CSkinMaker(const QString& name, QString sourceFolder, QString outputFolder)
        : source(std::move(sourceFolder)), output(std::move(outputFolder)),
          colours(source + "/" + name + ".ini", QSettings::IniFormat)
    {
        if (colours.allKeys().isEmpty())
            Fail("no colours for the skin " + name);
    }

    void MakePictures()
    {
        // Those of an earlier list do not stay behind.
        for (QDirIterator at(output, {"*.png"}, QDir::Files, QDirIterator::Subdirectories); at.hasNext();)
            QFile::remove(at.next());
        static const QRegularExpression line("^(\\w+) (\\d+) ([^=]+) = (\\S.*)$");
        for (const QString& text : QString::fromUtf8(ReadAll(source + "/pictures.txt")).split('\n')) {
            if (text.isEmpty() || text.startsWith('#'))
                continue;
            const QRegularExpressionMatch found = line.match(text);
            if (!found.hasMatch())
                Fail("pictures.txt: " + text);
            const QByteArray drawing = ReadAll(source + "/drawings/" + found.captured(3) + ".svg");
            Make(found.captured(1), found.captured(2).toInt(), drawing, found.captured(4));
        }
    }

    void TakeTexts(const QString& texts) const
    {
        for (QDirIterator at(texts, {"*.ini"}, QDir::Files, QDirIterator::Subdirectories); at.hasNext();) {
            const QString path = at.next();
            QStringList lines = QString::fromUtf8(ReadAll(path)).split('\n');
            for (QString& text : lines)
                text = Exchanged(text);
            Write(QDir(texts).relativeFilePath(path), lines.join('\n').toUtf8());
        }
    }

private:
    void Make(const QString& kind, int side, const QByteArray& drawing, const QString& name)
    {
        if (kind != "pieces")
            Save(name, "", [&](int scale) { return Draw(drawing, kStates[0], side, scale); });
        if (kind == "single")
            return;
        for (const char* state : kStates) {
            const QString suffix = QString("_") + state;
            const auto draw = [&](int scale) { return Draw(drawing, state, side, scale); };
            if (kind == "states") {
                Save(name, suffix, draw);
                continue;
            }
            for (int part = 0; part < 3; ++part) {
                static constexpr std::array kParts = {"_left", "_center", "_right"};
                Save(name + kParts[std::size_t(part)], suffix, [&](int scale) {
                    const QImage whole = draw(scale);
                    const int width = whole.width() / 3;
                    return whole.copy(part * width, 0, width, whole.height());
                });
            }
        }
    }

    // `height` in pixels at normal density; the width follows from the drawing.
    QImage Draw(QByteArray drawing, const char* state, int height, int scale) const
    {
        static constexpr std::array<std::array<const char*, 2>, 4> kMarks = {
            {{"currentColor", "line"}, {"#2f7de1", "accent"}, {"#faceee", "face"}, {"#ed9ee0", "edge"}}};
        for (const auto& [mark, key] : kMarks) {
            const QString colour = colours.value(QString(state) + "/" + key).toString();
            if (!QColor::isValidColor(colour))
                Fail(QString("no colour %1 for the state %2").arg(key, state));
            drawing.replace(mark, colour.toLatin1());
        }
        QSvgRenderer renderer(drawing);
        if (!renderer.isValid())
            Fail("not a drawing: " + drawing.left(60));
        const QSize size = renderer.defaultSize().scaled(INT_MAX / 2, height * scale, Qt::KeepAspectRatio);
        QImage image(size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        renderer.render(&painter, QRectF({0, 0}, size));
        return image;
    }

    template <typename DrawAt> void Save(const QString& name, const QString& suffix, DrawAt draw) const
    {
        for (const int scale : {1, 2}) {
            const QString path = output + "/" + name + suffix + (scale == 2 ? "@2x.png" : ".png");
            QDir().mkpath(QFileInfo(path).path());
            if (!draw(scale).convertToFormat(QImage::Format_ARGB32).save(path, "PNG"))
                Fail("cannot write " + path);
        }
    }

    // A value of three numbers is a colour.
    QString Exchanged(const QString& text) const
    {
        static const QRegularExpression line("^([^;=]+=)(\\d+,\\d+,\\d+)$");
        const QRegularExpressionMatch found = line.match(text);
        if (!found.hasMatch())
            return text;
        const QStringList parts = colours.value("colours/" + found.captured(2)).toStringList();
        if (parts.size() != 3)
            Fail("no exchange for the colour of " + text);
        return found.captured(1) + parts.join(',');
    }

    void Write(const QString& name, const QByteArray& bytes) const
    {
        const QString path = output + "/" + name;
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            Fail("cannot write " + path);
    }

    QString source;
    QString output;
    QSettings colours;
};

}  // namespace

int main(int argc, char** argv)
{
    if (argc < 4 || argc > 5)
        Fail("usage: make_skin NAME SOURCE OUTPUT [TEXTS]");
    CSkinMaker maker(argv[1], argv[2], argv[3]);
    maker.MakePictures();
    if (argc == 5)
        maker.TakeTexts(argv[4]);
    return 0;
}

#pragma once

#include <QImage>
#include <QSize>
#include <QString>

// Makes the picture that stands for a file or folder, always giving an image: the
// freedesktop thumbnail cache if it holds one, else a scaled decode of an image file,
// else the icon theme's icon for the file's type, else a drawn generic icon.
// Safe to call from any thread; the icon theme is only asked with a GUI application.
class ThumbnailRenderer
{
public:
    static QImage render(const QString &path, QSize size);

private:
    static QImage fromThumbnailCache(const QString &path, QSize size);
    static QImage fromImageFile(const QString &path, QSize size);
    static QImage fromIconTheme(const QString &path, QSize size);
    static QImage genericIcon(bool folder, QSize size);
};

// Renders the application icon into the PNG sizes of the hicolor theme, for desktops and
// software centres that do not read SVG icons. Runs at build time, without a display.
//
// Usage: quillmere-icon-renderer SVG OUTPUT_FOLDER SIZE...   (writes OUTPUT_FOLDER/SIZE.png)

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 4) {
        std::fputs("Usage: quillmere-icon-renderer SVG OUTPUT_FOLDER SIZE...\n", stderr);
        return 2;
    }
    QSvgRenderer svg(arguments.at(1));
    if (!svg.isValid()) {
        std::fprintf(stderr, "quillmere-icon-renderer: %s is not an SVG image Qt can read\n",
                     qPrintable(arguments.at(1)));
        return 1;
    }
    for (const QString &sizeText : arguments.mid(3)) {
        bool isNumber = false;
        const int size = sizeText.toInt(&isNumber);
        if (!isNumber || size <= 0 || size > 1024) {
            std::fprintf(stderr, "quillmere-icon-renderer: %s is not an icon size\n",
                         qPrintable(sizeText));
            return 2;
        }
        QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        svg.render(&painter, QRectF(0, 0, size, size));
        painter.end();
        const QString path = arguments.at(2) + u'/' + sizeText + QStringLiteral(".png");
        if (!image.save(path, "PNG")) {
            std::fprintf(stderr, "quillmere-icon-renderer: could not write %s\n", qPrintable(path));
            return 1;
        }
    }
    return 0;
}

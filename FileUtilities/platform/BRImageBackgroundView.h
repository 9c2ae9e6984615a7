#pragma once

#include <QSvgRenderer>
#include <QWidget>

// A view whose background is one of the program's images, scaled to cover it whole, as
// the intro, home folder and scan screens are painted. Without the image, the view
// keeps its ordinary background.
class BRImageBackgroundView : public QWidget
{
    Q_OBJECT

public:
    // Text on a dark image is drawn light, on a light image dark.
    enum class Tone
    {
        Light,
        Dark
    };

    BRImageBackgroundView(const QString &imageName, Tone imageTone, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QSvgRenderer m_image;
};

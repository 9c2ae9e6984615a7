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
    explicit BRImageBackgroundView(const QString &imageName, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QSvgRenderer m_image;
};

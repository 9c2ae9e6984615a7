#pragma once

#include <QPushButton>

// About's quieter links: white on a translucent dark ground with a thin grey border.
class BRAboutScreenContactAndTermsOfUseButton : public QPushButton
{
    Q_OBJECT

public:
    explicit BRAboutScreenContactAndTermsOfUseButton(const QString &title,
                                                     QWidget *parent = nullptr);
};

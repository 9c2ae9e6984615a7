#pragma once

#include <QPushButton>

// About's main link: white on green, with rounded corners.
class BRAboutScreenMoreAppsButton : public QPushButton
{
    Q_OBJECT

public:
    explicit BRAboutScreenMoreAppsButton(const QString &title, QWidget *parent = nullptr);
};

#pragma once

#include <QString>
#include <QStringList>

// A modal alert: a title, a text and its buttons, the action first.
struct AlertRequest
{
    QString title;
    QString text;
    QStringList buttons; // the first answers firstButton, the second secondButton
};

// Shows alerts and gives the button pressed. Screens take one of these instead of
// opening dialogs themselves, so that tests answer alerts without a modal loop.
class AlertPresenter
{
public:
    static constexpr int firstButton = 1000;
    static constexpr int secondButton = 1001;

    virtual ~AlertPresenter() = default;
    virtual int runModal(const AlertRequest &request) = 0;
};

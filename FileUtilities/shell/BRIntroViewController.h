#pragma once

#include "BRIntroView.h"

class QPushButton;

// The first screen a new user sees: what Quillmere does, and "Got it!".
class BRIntroViewController : public BRIntroView
{
    Q_OBJECT

public:
    explicit BRIntroViewController(QWidget *parent = nullptr);
    QPushButton *gotItButton() const { return m_gotItButton; }

Q_SIGNALS:
    void gotItAction();

private:
    QPushButton *m_gotItButton;
};

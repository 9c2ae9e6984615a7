#pragma once

#include "BRImageBackgroundView.h"

class QLabel;
class QPushButton;
class Workspace;

// The About screen: the version, and the ways to the maker.
class BRAboutViewController : public BRImageBackgroundView
{
    Q_OBJECT

public:
    explicit BRAboutViewController(Workspace &workspace, QWidget *parent = nullptr);

    // "Version 1.0 (7)": the release and the build compiled into this program.
    static QString versionText();

    QLabel *versionLabel() const { return m_versionLabel; }

private:
    QLabel *m_versionLabel;
    QPushButton *m_contactSupportButton;
    QPushButton *m_termsOfUseButton;
    QPushButton *m_urlButton;
};

#include "BRAboutViewController.h"

#include "BRColorHelper.h"
#include "BRObjectClass.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

QPushButton *makeLinkButton(const QString &objectName, const QString &title, int pointSize,
                            QWidget *parent)
{
    auto *button = new QPushButton(title, parent);
    button->setObjectName(objectName);
    QFont font = button->font();
    font.setPointSize(pointSize);
    button->setFont(font);
    QPalette palette = button->palette();
    palette.setColor(QPalette::ButtonText, Qt::white);
    palette.setColor(QPalette::Button, BRColorHelper::color(35, 196, 142, 1.0));
    button->setPalette(palette);
    button->setAutoFillBackground(true);
    return button;
}

} // namespace

BRAboutViewController::BRAboutViewController(Workspace &workspace, QWidget *parent)
    : QWidget(parent), m_versionLabel(new QLabel(versionText(), this)),
      m_contactSupportButton(makeLinkButton(QStringLiteral("contactSupportButton"),
                                            QStringLiteral("Contact Support"), 13, this)),
      m_termsOfUseButton(makeLinkButton(QStringLiteral("termsOfUseButton"),
                                        QStringLiteral("Terms of Use"), 13, this)),
      m_urlButton(makeLinkButton(QStringLiteral("urlButton"),
                                 QStringLiteral("More Apps from Brackenhale"), 14, this))
{
    setObjectName(QStringLiteral("BRAboutViewController"));
    m_versionLabel->setObjectName(QStringLiteral("versionLabel"));
    auto *name = new QLabel(QStringLiteral("Quillmere"), this);
    QFont nameFont = name->font();
    nameFont.setPointSizeF(nameFont.pointSizeF() * 2);
    name->setFont(nameFont);

    auto *links = new QHBoxLayout;
    links->addWidget(m_contactSupportButton);
    links->addWidget(m_termsOfUseButton);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(32, 24, 32, 24);
    layout->addWidget(name, 0, Qt::AlignHCenter);
    layout->addWidget(m_versionLabel, 0, Qt::AlignHCenter);
    layout->addSpacing(16);
    layout->addWidget(m_urlButton);
    layout->addLayout(links);

    connect(m_contactSupportButton, &QPushButton::clicked, this,
            [&workspace] { BRObjectClass::contactSupport(workspace); });
    connect(m_termsOfUseButton, &QPushButton::clicked, this,
            [&workspace] { BRObjectClass::openTermsOfUse(workspace); });
    connect(m_urlButton, &QPushButton::clicked, this,
            [&workspace] { BRObjectClass::openWebsite(workspace); });
}

QString BRAboutViewController::versionText()
{
    return QStringLiteral("Version ") + QStringLiteral(QUILLMERE_RELEASE_VERSION) +
           QStringLiteral(" (") + QStringLiteral(QUILLMERE_BUILD_NUMBER) + u')';
}

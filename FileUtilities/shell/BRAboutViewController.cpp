#include "BRAboutViewController.h"

#include "BRAboutScreenContactAndTermsOfUseButton.h"
#include "BRAboutScreenMoreAppsButton.h"
#include "BRObjectClass.h"
#include "Look.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

template <typename Button>
Button *makeLinkButton(const QString &objectName, const QString &title, int pixelSize,
                       QWidget *parent)
{
    auto *button = new Button(title, parent);
    button->setObjectName(objectName);
    button->setFont(Look::font(pixelSize));
    return button;
}

} // namespace

BRAboutViewController::BRAboutViewController(Workspace &workspace, QWidget *parent)
    : BRImageBackgroundView(QStringLiteral("intro_bg"), Tone::Dark, parent),
      m_versionLabel(new QLabel(versionText(), this)),
      m_contactSupportButton(makeLinkButton<BRAboutScreenContactAndTermsOfUseButton>(
          QStringLiteral("contactSupportButton"),
          QCoreApplication::translate("BRAboutViewController", "Contact Support"), 17, this)),
      m_termsOfUseButton(makeLinkButton<BRAboutScreenContactAndTermsOfUseButton>(
          QStringLiteral("termsOfUseButton"),
          QCoreApplication::translate("BRAboutViewController", "Terms of Use"), 17, this)),
      m_urlButton(makeLinkButton<BRAboutScreenMoreAppsButton>(
          QStringLiteral("urlButton"),
          QCoreApplication::translate("BRAboutViewController", "More Apps from Brackenhale"), 19,
          this))
{
    setObjectName(QStringLiteral("BRAboutViewController"));
    m_versionLabel->setObjectName(QStringLiteral("versionLabel"));
    auto *name = new QLabel(QStringLiteral("Quillmere"), this);
    name->setFont(Look::font(24));

    auto *links = new QHBoxLayout;
    links->addWidget(m_contactSupportButton);
    links->addWidget(m_termsOfUseButton);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(32, 24, 32, 24);
    auto *icon = new QLabel(this);
    icon->setPixmap(QIcon(QStringLiteral(":/images/quillmere.svg")).pixmap(QSize(64, 64)));
    icon->setAccessibleName(QCoreApplication::translate("BRAboutViewController", "Quillmere icon"));
    layout->addWidget(icon, 0, Qt::AlignHCenter);
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
    return QCoreApplication::translate("BRAboutViewController", "Version %1 (%2)")
        .arg(QStringLiteral(QUILLMERE_RELEASE_VERSION), QStringLiteral(QUILLMERE_BUILD_NUMBER));
}

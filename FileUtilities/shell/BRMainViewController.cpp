#include "BRMainViewController.h"

#include "AlertPresenter.h"
#include "BRDuplicateFilesMainViewController.h"
#include "BRMainViewTabButton.h"
#include "BRTabViewController.h"
#include "ChoiceToolButton.h"
#include "Look.h"

#include <QCoreApplication>
#include <QFile>
#include <QHBoxLayout>
#include <QIcon>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

QToolButton *makeImageButton(const QString &objectName, const QString &accessibleName,
                             QWidget *parent)
{
    // The tool switch is a choice of two: checked while its tool is shown.
    auto *button = new ChoiceToolButton(parent);
    button->setObjectName(objectName);
    // The icon alone says nothing to a screen reader or a script on the accessibility bus.
    button->setAccessibleName(accessibleName);
    button->setAutoRaise(true);
    button->setIconSize(QSize(32, 32));
    return button;
}

QPushButton *makeTitleButton(const QString &objectName, QWidget *parent)
{
    auto *button = new BRMainViewTabButton(parent);
    button->setObjectName(objectName);
    return button;
}

} // namespace

BRMainViewController::BRMainViewController(AlertPresenter &alerts, QWidget *duplicatesSide,
                                           QWidget *renameSide, QWidget *parent)
    : QWidget(parent), m_alerts(alerts),
      m_tabViewController(new BRTabViewController(duplicatesSide, renameSide, this)),
      m_duplicateButton(makeTitleButton(QStringLiteral("duplicateButton"), this)),
      m_renameButton(makeTitleButton(QStringLiteral("renameButton"), this)),
      m_duplicateImageButton(
          makeImageButton(QStringLiteral("duplicateImageButton"),
                          QCoreApplication::translate("BRMainViewController", "Duplicates"), this)),
      m_renameImageButton(
          makeImageButton(QStringLiteral("renameImageButton"),
                          QCoreApplication::translate("BRMainViewController", "Rename"), this))
{
    setObjectName(QStringLiteral("BRMainViewController"));
    // The tab titles are light on purpose: they stand on a dark bar across the window.
    auto *tabBar = new QWidget(this);
    tabBar->setObjectName(QStringLiteral("tabBar"));
    tabBar->setAutoFillBackground(true);
    QPalette barPalette = tabBar->palette();
    barPalette.setColor(QPalette::Window, Look::color(Look::Color::TabBarGround));
    tabBar->setPalette(barPalette);
    auto *tabs = new QHBoxLayout(tabBar);
    tabs->setContentsMargins(12, 8, 12, 8);
    tabs->addStretch();
    for (QWidget *half :
         {static_cast<QWidget *>(m_duplicateImageButton), static_cast<QWidget *>(m_duplicateButton),
          static_cast<QWidget *>(m_renameImageButton), static_cast<QWidget *>(m_renameButton)})
        tabs->addWidget(half);
    tabs->addStretch();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(tabBar);
    layout->addWidget(m_tabViewController, 1);

    connect(m_duplicateButton, &QPushButton::clicked, this,
            &BRMainViewController::changeDuplicateButtonImageAndTitleColor);
    connect(m_duplicateImageButton, &QToolButton::clicked, this,
            &BRMainViewController::changeDuplicateButtonImageAndTitleColor);
    connect(m_renameButton, &QPushButton::clicked, this,
            &BRMainViewController::changeRenameButtonImageAndTitleColor);
    connect(m_renameImageButton, &QToolButton::clicked, this,
            &BRMainViewController::changeRenameButtonImageAndTitleColor);

    setButtonImage(m_renameImageButton, QStringLiteral("rename_icon"));
    showTool(true);

    // The duplicate side and this view speak to each other through their delegates.
    if (auto *side = qobject_cast<BRDuplicateFilesMainViewController *>(duplicatesSide)) {
        setDuplicateMainViewDelegate(side);
        side->setMainViewDelegate([this](bool scanRuns) { updateTabStatus(scanRuns); });
    }
}

QColor BRMainViewController::selectedTitleColor()
{
    return Look::color(Look::Color::TabTitleSelected);
}

QColor BRMainViewController::unselectedTitleColor()
{
    return Look::color(Look::Color::TabTitle);
}

void BRMainViewController::setDuplicateMainViewDelegate(BRDuplicateFilesMainViewDelegate *delegate)
{
    m_duplicateMainViewDelegate = delegate;
}

void BRMainViewController::updateTabStatus(bool scanRuns)
{
    m_renameDisableStatus = scanRuns;
}

void BRMainViewController::changeDuplicateButtonImageAndTitleColor()
{
    showTool(true);
    selectTabAtIndex(BRTabViewController::duplicatesIndex);
}

void BRMainViewController::changeRenameButtonImageAndTitleColor()
{
    if (!m_renameDisableStatus) {
        switchRenameTab();
        return;
    }
    const int answer = m_alerts.runModal(
        {QCoreApplication::translate("BRMainViewController",
                                     "Stop duplicate files scan & switch to rename?"),
         QCoreApplication::translate(
             "BRMainViewController",
             "Duplicate files scanning is in progress. Do you want to stop the scan "
             "and switch to renaming files?"),
         {QCoreApplication::translate("BRMainViewController", "Stop scan"),
          QCoreApplication::translate("BRMainViewController", "Cancel")}});
    if (answer == AlertPresenter::firstButton) {
        if (m_duplicateMainViewDelegate)
            m_duplicateMainViewDelegate->updateDuplicateScanStatus(true);
        switchRenameTab();
        m_renameDisableStatus = false;
    } else {
        // The click already checked the Rename tab; the tool shown has not changed.
        showTool(m_tabViewController->currentIndex() == BRTabViewController::duplicatesIndex);
        if (m_duplicateMainViewDelegate)
            m_duplicateMainViewDelegate->updateDuplicateScanStatus(false);
    }
}

void BRMainViewController::switchRenameTab()
{
    showTool(false);
    selectTabAtIndex(BRTabViewController::renameIndex);
}

void BRMainViewController::showTool(bool duplicates)
{
    setButtonImage(m_duplicateImageButton, duplicates ? QStringLiteral("duplicates_icon_selected")
                                                      : QStringLiteral("duplicates_icon"));
    setButtonImage(m_renameImageButton, duplicates ? QStringLiteral("rename_icon")
                                                   : QStringLiteral("rename_icon_selected"));
    setButtonTitleAndColor(m_duplicateButton,
                           QCoreApplication::translate("BRMainViewController", "Duplicates"),
                           duplicates ? selectedTitleColor() : unselectedTitleColor());
    setButtonTitleAndColor(m_renameButton,
                           QCoreApplication::translate("BRMainViewController", "Rename"),
                           duplicates ? unselectedTitleColor() : selectedTitleColor());
    m_duplicateButton->setChecked(duplicates);
    m_duplicateImageButton->setChecked(duplicates);
    m_renameButton->setChecked(!duplicates);
    m_renameImageButton->setChecked(!duplicates);
}

void BRMainViewController::selectTabAtIndex(int index)
{
    m_tabViewController->setCurrentIndex(index);
}

void BRMainViewController::setButtonTitleAndColor(QPushButton *button, const QString &title,
                                                  const QColor &color)
{
    button->setText(title);
    button->setFont(Look::font(20));
    QPalette palette = button->palette();
    palette.setColor(QPalette::ButtonText, color);
    button->setPalette(palette);
}

// An image that cannot be had leaves the button's image as it was.
void BRMainViewController::setButtonImage(QToolButton *button, const QString &imageName)
{
    const QString path = QStringLiteral(":/images/") + imageName + QStringLiteral(".svg");
    if (!QFile::exists(path))
        return;
    button->setIcon(QIcon(path));
}

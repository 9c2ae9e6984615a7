#include "BRDuplicateSortViewController.h"

#include "BRDuplicateBarDivider.h"
#include "BRDuplicateFilesViewDelegate.h"
#include "BRDuplicateSortPopUpButton.h"
#include "ChoiceButton.h"
#include "ChoiceToolButton.h"
#include "Look.h"

#include <QFile>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QIcon>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include <QCoreApplication>
#include <optional>

namespace {

const QString allKey = QStringLiteral("All");
const QString photoKey = QStringLiteral("photo");
const QString musicKey = QStringLiteral("music");
const QString documentKey = QStringLiteral("document");
const QString folderKey = QStringLiteral("folder");

QString lookKey(SubType subType)
{
    switch (subType) {
    case SubType::All:
        return allKey;
    case SubType::Photo:
        return photoKey;
    case SubType::Music:
        return musicKey;
    case SubType::Document:
        return documentKey;
    case SubType::Folder:
        return folderKey;
    }
    Q_UNREACHABLE();
    return {};
}

constexpr int titlePixelSize = 16;

void applyTitle(QAbstractButton *button, const QString &title, Look::Color color)
{
    button->setText(title);
    Look::setTextStyle(button, titlePixelSize, QFont::Normal, color);
}

// The images of the four image buttons, selected first.
struct SubTypeImages
{
    QString selected;
    QString unselected;
};

std::optional<SubTypeImages> imagesForKey(const QString &key)
{
    if (key == photoKey)
        return SubTypeImages{QStringLiteral("photos_selected"), QStringLiteral("photos")};
    if (key == musicKey)
        return SubTypeImages{QStringLiteral("music_n_videos_selected"),
                             QStringLiteral("music_n_videos")};
    if (key == documentKey)
        return SubTypeImages{QStringLiteral("documents_selected"), QStringLiteral("documents")};
    if (key == folderKey)
        return SubTypeImages{QStringLiteral("folders_selected"), QStringLiteral("folders")};
    return std::nullopt;
}

QToolButton *makeImageButton(const QString &objectName, const QString &accessibleName,
                             QWidget *parent)
{
    // A sub-type is a choice: checked while chosen, for assistive tools.
    auto *button = new ChoiceToolButton(parent);
    button->setObjectName(objectName);
    // The icon alone says nothing to a screen reader or a script on the accessibility bus.
    button->setAccessibleName(accessibleName);
    button->setToolTip(accessibleName);
    button->setAutoRaise(true);
    button->setIconSize(QSize(24, 24));
    button->setCursor(Qt::PointingHandCursor);
    return button;
}

QPushButton *makeTitleButton(const QString &objectName, QWidget *parent)
{
    auto *button = new QPushButton(parent);
    button->setObjectName(objectName);
    button->setFlat(true);
    button->setCursor(Qt::PointingHandCursor);
    return button;
}

QPushButton *makeChoiceButton(const QString &objectName, QWidget *parent)
{
    auto *button = new ChoiceButton(parent);
    button->setObjectName(objectName);
    button->setCursor(Qt::PointingHandCursor);
    return button;
}

} // namespace

QStringList BRDuplicateSortViewController::sortTypes()
{
    QStringList titles;
    for (const SortOrder order : allSortOrders)
        titles.append(sortOrderTitle(order));
    return titles;
}

BRDuplicateSortViewController::BRDuplicateSortViewController(QWidget *parent)
    : QWidget(parent), m_allButton(makeChoiceButton(QStringLiteral("allButton"), this)),
      m_photoButton(makeImageButton(
          QStringLiteral("photoButton"),
          QCoreApplication::translate("BRDuplicateSortViewController", "Photo"), this)),
      m_documentButton(makeImageButton(
          QStringLiteral("documentButton"),
          QCoreApplication::translate("BRDuplicateSortViewController", "Document"), this)),
      m_musicButton(makeImageButton(
          QStringLiteral("musicButton"),
          QCoreApplication::translate("BRDuplicateSortViewController", "Music & Videos"), this)),
      m_folderButton(makeImageButton(
          QStringLiteral("folderButton"),
          QCoreApplication::translate("BRDuplicateSortViewController", "Folder"), this)),
      m_newScanButton(makeTitleButton(QStringLiteral("newScanButton"), this)),
      m_sortByButton(new BRDuplicateSortPopUpButton(this))
{
    setObjectName(QStringLiteral("BRDuplicateSortViewController"));
    m_sortByButton->setObjectName(QStringLiteral("sortByButton"));
    m_sortByButton->setAccessibleName(
        QCoreApplication::translate("BRDuplicateSortViewController", "Sort By"));
    m_sortByButton->addItems(sortTypes());
    m_allButton->setMinimumWidth(44);

    auto *line = new BRDuplicateBarDivider(this);

    auto *subTypes = new QHBoxLayout;
    subTypes->setSpacing(6);
    for (QWidget *button :
         {static_cast<QWidget *>(m_allButton), static_cast<QWidget *>(m_photoButton),
          static_cast<QWidget *>(m_musicButton), static_cast<QWidget *>(m_documentButton),
          static_cast<QWidget *>(m_folderButton)})
        subTypes->addWidget(button);
    // Two outer columns of equal stretch keep the sub-types in the middle of the bar,
    // whatever the widths of the buttons at the ends.
    auto *bar = new QGridLayout;
    bar->setContentsMargins(16, 6, 16, 6);
    bar->addWidget(m_newScanButton, 0, 0, Qt::AlignLeft | Qt::AlignVCenter);
    bar->addLayout(subTypes, 0, 1, Qt::AlignCenter);
    bar->addWidget(m_sortByButton, 0, 2, Qt::AlignRight | Qt::AlignVCenter);
    bar->setColumnStretch(0, 1);
    bar->setColumnStretch(2, 1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(line);
    layout->addLayout(bar);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);

    connect(m_newScanButton, &QPushButton::clicked, this,
            &BRDuplicateSortViewController::newScanAction);
    connect(m_allButton, &QPushButton::clicked, this,
            &BRDuplicateSortViewController::allButtonAction);
    connect(m_photoButton, &QToolButton::clicked, this,
            &BRDuplicateSortViewController::photoButtonAction);
    connect(m_musicButton, &QToolButton::clicked, this,
            &BRDuplicateSortViewController::musicButtonAction);
    connect(m_documentButton, &QToolButton::clicked, this,
            &BRDuplicateSortViewController::docButtonAction);
    connect(m_folderButton, &QToolButton::clicked, this,
            &BRDuplicateSortViewController::folderButtonAction);
    // Only the user's own choice sorts: the placeholder going in or out must not.
    connect(m_sortByButton, &QComboBox::activated, this,
            &BRDuplicateSortViewController::sortAction);
    connect(m_sortByButton, &BRDuplicateSortPopUpButton::willPopUp, this,
            &BRDuplicateSortViewController::removeTitleFromPopUp);

    for (const QString &key : {photoKey, musicKey, documentKey, folderKey})
        applyLook(key, false);
    setButtonTextColor();
}

void BRDuplicateSortViewController::setDuplicateFileViewDelegate(
    BRDuplicateFilesViewDelegate *delegate)
{
    m_duplicateFileViewDelegate = delegate;
}

void BRDuplicateSortViewController::setButtonTextColor()
{
    applyTitle(m_newScanButton, QCoreApplication::translate("BRDuplicateSortViewController", "New"),
               Look::Color::PrimaryText);
    applyLook(allKey, true);
}

void BRDuplicateSortViewController::newScanAction()
{
    if (m_duplicateFileViewDelegate)
        m_duplicateFileViewDelegate->startNewScanProcess();
}

void BRDuplicateSortViewController::allButtonAction()
{
    updateSubTypeStatusWithIsEnabled(allKey, photoKey, musicKey, documentKey, folderKey);
    m_subTypeActive = false;
    if (m_duplicateFileViewDelegate)
        m_duplicateFileViewDelegate->sortMainType(m_selectedSortOrder, m_subTypeActive);
}

void BRDuplicateSortViewController::photoButtonAction()
{
    subTypeButtonAction(SubType::Photo);
}

void BRDuplicateSortViewController::musicButtonAction()
{
    subTypeButtonAction(SubType::Music);
}

void BRDuplicateSortViewController::docButtonAction()
{
    subTypeButtonAction(SubType::Document);
}

void BRDuplicateSortViewController::folderButtonAction()
{
    subTypeButtonAction(SubType::Folder);
}

void BRDuplicateSortViewController::subTypeButtonAction(SubType subType)
{
    const QString key = lookKey(subType);
    QStringList others{allKey, photoKey, musicKey, documentKey, folderKey};
    others.removeOne(key);
    updateSubTypeStatusWithIsEnabled(key, others[0], others[1], others[2], others[3]);
    m_subTypeActive = true;
    if (m_duplicateFileViewDelegate)
        m_duplicateFileViewDelegate->sortSubType(subType, m_selectedSortOrder);
}

void BRDuplicateSortViewController::sortAction()
{
    // The keyboard and the wheel can reach the placeholder without opening the list; it
    // names no order.
    const std::optional<SortOrder> order = sortOrderFromTitle(m_sortByButton->currentText());
    if (!order)
        return;
    m_selectedSortOrder = *order;
    if (m_duplicateFileViewDelegate)
        m_duplicateFileViewDelegate->sortMainType(*order, m_subTypeActive);
}

void BRDuplicateSortViewController::enableSortType(SubType subType)
{
    disableSubTypes();
    enableSubType(lookKey(subType));
    if (m_sortByButton->findText(sortByTitle()) < 0)
        m_sortByButton->insertItem(0, sortByTitle());
    m_sortByButton->setCurrentIndex(m_sortByButton->findText(sortByTitle()));
}

// Opening the list already sorts by its first real item; the bar's own selected order is
// left as it was, so the sub-type buttons keep sending the last order the user picked.
void BRDuplicateSortViewController::removeTitleFromPopUp()
{
    const int placeholder = m_sortByButton->findText(sortByTitle());
    if (placeholder < 0)
        return;
    m_sortByButton->removeItem(placeholder);
    m_sortByButton->setCurrentIndex(0);
    const std::optional<SortOrder> order = sortOrderFromTitle(m_sortByButton->currentText());
    if (order && m_duplicateFileViewDelegate)
        m_duplicateFileViewDelegate->sortMainType(*order, m_subTypeActive);
}

void BRDuplicateSortViewController::updateSubTypeStatusWithIsEnabled(const QString &isEnabled,
                                                                     const QString &isDisabled1,
                                                                     const QString &isDisabled2,
                                                                     const QString &isDisabled3,
                                                                     const QString &isDisabled4)
{
    enableSubType(isEnabled);
    for (const QString &key : {isDisabled1, isDisabled2, isDisabled3, isDisabled4})
        disableSubType(key);
}

void BRDuplicateSortViewController::enableSubType(const QString &key)
{
    applyLook(key, true);
}

void BRDuplicateSortViewController::disableSubType(const QString &key)
{
    applyLook(key, false);
}

void BRDuplicateSortViewController::disableSubTypes()
{
    m_subTypeActive = false;
    for (const QString &key : {allKey, photoKey, musicKey, documentKey, folderKey})
        disableSubType(key);
}

QToolButton *BRDuplicateSortViewController::imageButtonForKey(const QString &key) const
{
    if (key == photoKey)
        return m_photoButton;
    if (key == musicKey)
        return m_musicButton;
    if (key == documentKey)
        return m_documentButton;
    return m_folderButton;
}

void BRDuplicateSortViewController::applyLook(const QString &key, bool selected)
{
    if (key == allKey) {
        applyTitle(m_allButton, QCoreApplication::translate("BRDuplicateSortViewController", "All"),
                   selected ? Look::Color::DuplicatesAccent : Look::Color::SecondaryText);
        m_allButton->setChecked(selected);
    } else if (const auto images = imagesForKey(key)) {
        QToolButton *button = imageButtonForKey(key);
        button->setChecked(selected);
        const QString path = Look::imagePath(selected ? images->selected : images->unselected);
        // A missing image leaves the button's image as it was.
        if (QFile::exists(path))
            button->setIcon(QIcon(path));
    } else {
        return;
    }
    if (selected)
        m_selectedKeys.insert(key);
    else
        m_selectedKeys.remove(key);
}

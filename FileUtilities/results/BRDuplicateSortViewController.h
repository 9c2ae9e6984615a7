#pragma once

#include "BRDuplicateSortViewDelegate.h"
#include "SortOrder.h"

#include <QCoreApplication>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QWidget>

class BRDuplicateFilesViewDelegate;
class BRDuplicateSortPopUpButton;
class QPushButton;
class QToolButton;

// The bar under the results list once a scan has ended: a new-scan button, the five
// sub-type buttons and the "Sort By" menu. It decides nothing about the data; it keeps
// the buttons' looks in step with the choice and hands the choice to the results screen.
// Selected and not selected are looks only: every button stays enabled.
class BRDuplicateSortViewController : public QWidget, public BRDuplicateSortViewDelegate
{
    Q_OBJECT

public:
    // The placeholder the menu shows from the start of a scan until it is first opened.
    static QString sortByTitle()
    {
        return QCoreApplication::translate("BRDuplicateSortViewController", "Sort By");
    }
    // The menu's items, one per order.
    static QStringList sortTypes();

    explicit BRDuplicateSortViewController(QWidget *parent = nullptr);

    void setDuplicateFileViewDelegate(BRDuplicateFilesViewDelegate *delegate);

    void enableSortType(SubType subType) override;
    void updateSubTypeStatusWithIsEnabled(const QString &isEnabled, const QString &isDisabled1,
                                          const QString &isDisabled2, const QString &isDisabled3,
                                          const QString &isDisabled4);
    // The keys of the looks are "All", "photo", "music", "document" and "folder".
    // Apply the selected or the unselected look of a key; an unknown key does nothing.
    void enableSubType(const QString &key);
    void disableSubType(const QString &key);
    void disableSubTypes();
    void setButtonTextColor();

    bool subTypeActive() const { return m_subTypeActive; }
    SortOrder selectedSortOrder() const { return m_selectedSortOrder; }
    // Whether the key currently wears its selected look.
    bool isSubTypeSelected(const QString &key) const { return m_selectedKeys.contains(key); }

    QPushButton *newScanButton() const { return m_newScanButton; }
    QPushButton *allButton() const { return m_allButton; }
    QToolButton *photoButton() const { return m_photoButton; }
    QToolButton *musicButton() const { return m_musicButton; }
    QToolButton *documentButton() const { return m_documentButton; }
    QToolButton *folderButton() const { return m_folderButton; }
    BRDuplicateSortPopUpButton *sortByButton() const { return m_sortByButton; }

public Q_SLOTS:
    void newScanAction();
    void allButtonAction();
    void photoButtonAction();
    void musicButtonAction();
    void docButtonAction();
    void folderButtonAction();
    void sortAction();
    void removeTitleFromPopUp();

private:
    void subTypeButtonAction(SubType subType);
    void applyLook(const QString &key, bool selected);
    QToolButton *imageButtonForKey(const QString &key) const;

    QPushButton *m_allButton;
    QToolButton *m_photoButton;
    QToolButton *m_documentButton;
    QToolButton *m_musicButton;
    QToolButton *m_folderButton;
    QPushButton *m_newScanButton;
    BRDuplicateSortPopUpButton *m_sortByButton;
    bool m_subTypeActive = false;
    SortOrder m_selectedSortOrder = SortOrder::All;
    QSet<QString> m_selectedKeys;
    BRDuplicateFilesViewDelegate *m_duplicateFileViewDelegate = nullptr;
};

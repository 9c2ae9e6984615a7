#pragma once

#include "BRMainViewDelegate.h"

#include <QColor>
#include <QWidget>

class AlertPresenter;
class BRDuplicateFilesMainViewDelegate;
class BRTabViewController;
class QAbstractButton;
class QPushButton;
class QToolButton;

// The main view: a pair of tabs, Duplicates and Rename, over the two tools. Each tab is
// a text half and an icon half that act as one. The user may always go to Duplicates,
// but leaves a running scan for Rename only after agreeing that the scan stops.
class BRMainViewController : public QWidget, public BRMainViewDelegate
{
    Q_OBJECT

public:
    BRMainViewController(AlertPresenter &alerts, QWidget *duplicatesSide, QWidget *renameSide,
                         QWidget *parent = nullptr);

    void setDuplicateMainViewDelegate(BRDuplicateFilesMainViewDelegate *delegate);
    void updateTabStatus(bool scanRuns) override;
    bool renameDisableStatus() const { return m_renameDisableStatus; }

    BRTabViewController *tabViewController() const { return m_tabViewController; }
    QPushButton *duplicateButton() const { return m_duplicateButton; }
    QPushButton *renameButton() const { return m_renameButton; }
    QToolButton *duplicateImageButton() const { return m_duplicateImageButton; }
    QToolButton *renameImageButton() const { return m_renameImageButton; }

    static QColor selectedTitleColor();
    static QColor unselectedTitleColor();

public Q_SLOTS:
    void changeDuplicateButtonImageAndTitleColor();
    void changeRenameButtonImageAndTitleColor();

private:
    void switchRenameTab();
    void showTool(bool duplicates);
    void selectTabAtIndex(int index);
    static void setButtonTitleAndColor(QPushButton *button, const QString &title,
                                       const QColor &color);
    static void setButtonImage(QToolButton *button, const QString &imageName);

    AlertPresenter &m_alerts;
    BRDuplicateFilesMainViewDelegate *m_duplicateMainViewDelegate = nullptr;
    bool m_renameDisableStatus = false;
    BRTabViewController *m_tabViewController;
    QPushButton *m_duplicateButton;
    QPushButton *m_renameButton;
    QToolButton *m_duplicateImageButton;
    QToolButton *m_renameImageButton;
};

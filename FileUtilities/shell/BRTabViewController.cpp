#include "BRTabViewController.h"

BRTabViewController::BRTabViewController(QWidget *duplicatesSide, QWidget *renameSide,
                                         QWidget *parent)
    : QStackedWidget(parent)
{
    setObjectName(QStringLiteral("BRTabViewController"));
    insertWidget(duplicatesIndex, duplicatesSide);
    insertWidget(renameIndex, renameSide);
    setCurrentIndex(duplicatesIndex);
}

#include "BRRenameTabViewController.h"

#include "BRAddTextViewController.h"
#include "BRChangeFileNameViewController.h"

BRRenameTabViewController::BRRenameTabViewController(RenameNotificationCenter *center,
                                                     QWidget *parent)
    : QStackedWidget(parent), m_changeFileName(new BRChangeFileNameViewController(center, this)),
      m_addText(new BRAddTextViewController(center, this))
{
    setObjectName(QStringLiteral("BRRenameTabViewController"));
    insertWidget(changeFileNameIndex, m_changeFileName);
    insertWidget(addTextIndex, m_addText);
    setCurrentIndex(changeFileNameIndex);
}

int BRRenameTabViewController::indexOf(RenameRule rule)
{
    switch (rule) {
    case RenameRule::ChangeFullNames:
        return changeFileNameIndex;
    case RenameRule::AddText:
        return addTextIndex;
    }
    Q_UNREACHABLE();
    return changeFileNameIndex;
}

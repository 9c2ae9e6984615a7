#include "BRNoSubTypeFoundCell.h"
#include <QCoreApplication>

QString BRNoSubTypeFoundCell::text(std::optional<SubType> selectedSubType)
{
    // The bar calls it "Music & Videos"; the store knows it as "Music".
    QString name;
    if (selectedSubType)
        name = selectedSubType == SubType::Music
                   ? QCoreApplication::translate("BRNoSubTypeFoundCell", "Music & Videos")
                   : subTypeName(*selectedSubType);
    return QCoreApplication::translate("BRNoSubTypeFoundCell", "No duplicate %1").arg(name);
}

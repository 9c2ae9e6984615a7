#include "BRNoSubTypeFoundCell.h"

QString BRNoSubTypeFoundCell::text(std::optional<SubType> selectedSubType)
{
    // The bar calls it "Music & Videos"; the store knows it as "Music".
    QString name;
    if (selectedSubType)
        name = selectedSubType == SubType::Music ? QStringLiteral("Music & Videos")
                                                 : subTypeName(*selectedSubType);
    return QStringLiteral("No duplicate ") + name;
}

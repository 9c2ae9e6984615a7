#include "BRNoSubTypeFoundCell.h"

QString BRNoSubTypeFoundCell::text(const QString &selectedSubType)
{
    // The bar calls it "Music & Videos"; the store knows it as "Music".
    const QString name =
        selectedSubType == u"Music" ? QStringLiteral("Music & Videos") : selectedSubType;
    return QStringLiteral("No duplicate ") + name;
}

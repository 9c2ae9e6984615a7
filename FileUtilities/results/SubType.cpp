#include "SubType.h"

QString subTypeName(SubType subType)
{
    switch (subType) {
    case SubType::All:
        return QStringLiteral("All");
    case SubType::Photo:
        return QStringLiteral("Photo");
    case SubType::Music:
        return QStringLiteral("Music");
    case SubType::Document:
        return QStringLiteral("Document");
    case SubType::Folder:
        return QStringLiteral("Folder");
    }
    Q_UNREACHABLE();
    return {};
}

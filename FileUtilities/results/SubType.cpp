#include "SubType.h"
#include <QCoreApplication>

QString subTypeName(SubType subType)
{
    switch (subType) {
    case SubType::All:
        return QCoreApplication::translate("SubType", "All");
    case SubType::Photo:
        return QCoreApplication::translate("SubType", "Photo");
    case SubType::Music:
        return QCoreApplication::translate("SubType", "Music");
    case SubType::Document:
        return QCoreApplication::translate("SubType", "Document");
    case SubType::Folder:
        return QCoreApplication::translate("SubType", "Folder");
    }
    Q_UNREACHABLE();
    return {};
}

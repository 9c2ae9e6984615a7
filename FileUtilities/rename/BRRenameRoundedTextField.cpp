#include "BRRenameRoundedTextField.h"

BRRenameRoundedTextField::BRRenameRoundedTextField(QWidget *parent) : CustomTextField(parent)
{
    setStyleSheet(QStringLiteral("QLineEdit { border: 1px solid rgba(128, 128, 128, 0.5);"
                                 " border-radius: 5px; padding: 3px 6px; }"));
}

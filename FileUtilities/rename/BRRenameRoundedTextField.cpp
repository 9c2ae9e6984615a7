#include "BRRenameRoundedTextField.h"

#include "LookStyleSheets.h"

BRRenameRoundedTextField::BRRenameRoundedTextField(QWidget *parent) : CustomTextField(parent)
{
    setStyleSheet(Look::StyleSheet::roundedTextField());
}

#include "BRToolPlaceholderView.h"

#include <QLabel>
#include <QVBoxLayout>

BRToolPlaceholderView::BRToolPlaceholderView(const QString &toolName, const QString &description,
                                             QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("BRToolPlaceholderView"));
    auto *title = new QLabel(toolName, this);
    QFont titleFont = title->font();
    titleFont.setPointSizeF(titleFont.pointSizeF() * 1.8);
    title->setFont(titleFont);
    auto *text = new QLabel(description, this);
    text->setWordWrap(true);
    text->setAlignment(Qt::AlignCenter);
    auto *layout = new QVBoxLayout(this);
    layout->addStretch();
    layout->addWidget(title, 0, Qt::AlignHCenter);
    layout->addWidget(text); // full width, so that wrapping has room
    layout->addStretch();
}

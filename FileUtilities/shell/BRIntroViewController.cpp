#include "BRIntroViewController.h"

#include "BRIntroGotItButton.h"
#include "Look.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

BRIntroViewController::BRIntroViewController(QWidget *parent)
    : BRIntroView(parent), m_gotItButton(new BRIntroGotItButton(this))
{
    setObjectName(QStringLiteral("BRIntroViewController"));
    m_gotItButton->setObjectName(QStringLiteral("gotItButton"));
    m_gotItButton->setText(QCoreApplication::translate("BRIntroViewController", "Got it!"));
    auto *title = new QLabel(tr("Welcome to Quillmere"), this);
    // The colour comes from the picture behind: light on it, dark without it.
    title->setFont(Look::font(24));
    auto *text = new QLabel(tr("Duplicates finds equal files and folders in one pass and moves "
                               "the copies you choose to the Trash.\nRename renames many files "
                               "at once, and never overwrites a file."),
                            this);
    text->setWordWrap(true);
    text->setAlignment(Qt::AlignCenter);

    m_gotItButton->setFont(Look::font(27));
    m_gotItButton->setMinimumSize(180, 52);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(48, 48, 48, 48);
    layout->addStretch();
    layout->addWidget(title, 0, Qt::AlignHCenter);
    layout->addSpacing(12);
    layout->addWidget(text);
    layout->addSpacing(24);
    layout->addWidget(m_gotItButton, 0, Qt::AlignHCenter);
    layout->addStretch();
    connect(m_gotItButton, &QPushButton::clicked, this, &BRIntroViewController::gotItAction);
}

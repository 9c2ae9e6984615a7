#include "BRSelectHomeFolderViewController.h"

#include "BRObjectClass.h"
#include "BRRealHomeDirectory.h"
#include "Look.h"
#include "OpenPanel.h"

#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

BRSelectHomeFolderViewController::BRSelectHomeFolderViewController(OpenPanel &panel,
                                                                   QSettings *settings,
                                                                   QWidget *parent)
    : BRSelectHomeView(parent), m_panel(panel), m_settings(settings),
      m_selectHomeFolderButton(new QPushButton(tr("Select Home Folder"), this))
{
    setObjectName(QStringLiteral("BRSelectHomeFolderViewController"));
    m_selectHomeFolderButton->setObjectName(QStringLiteral("selectHomeFolderButton"));
    auto *title = new QLabel(tr("Choose a Home Folder"), this);
    title->setFont(Look::font(22));
    m_selectHomeFolderButton->setMinimumSize(200, 44);
    auto *explanation = new QLabel(
        tr("Quillmere works inside the folder you choose here. You are asked once."), this);
    explanation->setWordWrap(true);
    explanation->setAlignment(Qt::AlignCenter);
    auto *layout = new QVBoxLayout(this);
    layout->addStretch();
    layout->addWidget(title, 0, Qt::AlignHCenter);
    layout->addSpacing(8);
    layout->addWidget(explanation); // full width, so that wrapping has room
    layout->addSpacing(20);
    layout->addWidget(m_selectHomeFolderButton, 0, Qt::AlignHCenter);
    layout->addStretch();
    connect(m_selectHomeFolderButton, &QPushButton::clicked, this,
            &BRSelectHomeFolderViewController::selectHomeFolderAction);
}

bool BRSelectHomeFolderViewController::panelShouldEnablePath(const QString &path,
                                                             const QString &home)
{
    return !path.isEmpty() && !home.isEmpty() && path.startsWith(home);
}

void BRSelectHomeFolderViewController::selectHomeFolderAction()
{
    // Without a password entry the home the environment names is the best there is.
    const QString home = BRRealHomeDirectory::RealHomeDirectory().value_or(QDir::homePath());
    OpenPanelRequest request;
    request.directory = home;
    request.message = tr("Choose a Home Folder");
    request.prompt = tr("Choose");
    request.canChooseFiles = false;
    request.canChooseDirectories = true;
    request.canCreateDirectories = false;
    request.allowsMultipleSelection = false;
    request.showsHiddenFiles = false;
    request.shouldEnable = [home](const QString &path) {
        return panelShouldEnablePath(path, home);
    };
    request.refusal = tr("\u201C%1\u201D is not inside your home folder, %2. Choose your home "
                         "folder or a folder inside it.")
                          .arg(QStringLiteral("%1"), home);
    const QList<QUrl> chosen = m_panel.runModal(request);
    if (chosen.isEmpty())
        return;

    BRObjectClass objects(m_settings);
    objects.saveBookmark(chosen.first());
    const auto granted = objects.resolveBookmarkForPath(chosen.first().toLocalFile());
    if (!granted || !BRObjectClass::startAccessingSecurityScopedResource(*granted))
        return;
    Q_EMIT mainSegue(this);
}

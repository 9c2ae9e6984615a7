#include <QApplication>
#include <QMainWindow>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Brackenhale"));
    QApplication::setApplicationName(QStringLiteral("Quillmere"));
    QApplication::setApplicationVersion(QStringLiteral(QUILLMERE_VERSION));

    QMainWindow window;
    window.setWindowTitle(QStringLiteral("Quillmere"));
    window.resize(960, 640);
    window.show();
    return application.exec();
}

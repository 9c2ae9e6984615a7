#include "QtAlertPresenter.h"

#include <QCoreApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

QtAlertPresenter::QtAlertPresenter(QWidget *window) : m_window(window) {}

int QtAlertPresenter::runModal(const AlertRequest &request)
{
    QMessageBox box(m_window);
    // A question that risks something warns; a plain notice informs.
    const bool warns = request.buttons.size() > 1;
    box.setIcon(warns ? QMessageBox::Warning : QMessageBox::Information);
    // The icon says what kind of alert this is; a reader says it too.
    if (auto *icon = box.findChild<QLabel *>(QStringLiteral("qt_msgboxex_icon_label")))
        icon->setAccessibleName(
            warns ? QCoreApplication::translate("QtAlertPresenter", "Warning")
                  : QCoreApplication::translate("QtAlertPresenter", "Information"));
    box.setText(request.title);
    box.setInformativeText(request.text);
    const QStringList buttons =
        request.buttons.isEmpty()
            ? QStringList{QCoreApplication::translate("QtAlertPresenter", "OK")}
            : request.buttons;
    QList<QAbstractButton *> added;
    for (qsizetype i = 0; i < buttons.size(); ++i) {
        // The action first and default; a second button is the way out, also for Escape.
        const auto role = i == 0 ? QMessageBox::AcceptRole : QMessageBox::RejectRole;
        added.append(box.addButton(buttons.at(i), role));
    }
    box.setDefaultButton(qobject_cast<QPushButton *>(added.first()));
    box.setEscapeButton(added.last());
    box.exec();
    const auto index = added.indexOf(box.clickedButton());
    return firstButton + static_cast<int>(index < 0 ? added.size() - 1 : index);
}

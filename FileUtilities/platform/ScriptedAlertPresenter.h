#pragma once

#include "AlertPresenter.h"

#include <QList>

// Answers alerts from a script, for tests: each alert takes the next answer (the first
// button when the script has run out) and is kept for inspection.
class ScriptedAlertPresenter final : public AlertPresenter
{
public:
    QList<int> answers;
    QList<AlertRequest> shown;

    int runModal(const AlertRequest &request) override
    {
        shown.append(request);
        return answers.isEmpty() ? firstButton : answers.takeFirst();
    }
};

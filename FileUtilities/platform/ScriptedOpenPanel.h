#pragma once

#include "OpenPanel.h"

// Chooses from a script, for tests: each panel takes the next list of URLs (none, as if
// cancelled, when the script has run out) and is kept for inspection.
class ScriptedOpenPanel final : public OpenPanel
{
public:
    QList<QList<QUrl>> choices;
    QList<OpenPanelRequest> shown;

    QList<QUrl> runModal(const OpenPanelRequest &request) override
    {
        shown.append(request);
        return choices.isEmpty() ? QList<QUrl>{} : choices.takeFirst();
    }
};

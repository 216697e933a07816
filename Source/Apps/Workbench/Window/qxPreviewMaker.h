#pragma once

#include "qxPreviewRun.h"

#include <QTimer>

class qxPanelEvents;
class qxVariantSetsDock;

/// Makes the previews that the dock of sets asks for, and tells it which ones are stale.
class qxPreviewMaker : public QObject {
    Q_OBJECT

public:
    qxPreviewMaker(qxVariantSetsDock *sets, qxPanelEvents *events, QObject *parent);
    ~qxPreviewMaker() override;

    /// The user has changed the scene itself: previews made before do not show that.
    void noteEdit();
    bool isRunning() const { return m_run.isRunning(); }

private:
    QByteArray surroundings() const;

    qxVariantSetsDock *m_sets;
    qxPreviewRun m_run;
    QTimer m_look; ///< several changes of the light are looked at once
    int m_requests; ///< listener's id
    int m_number = 0; ///< of the run
    int m_edits = 0; ///< of the scene
};

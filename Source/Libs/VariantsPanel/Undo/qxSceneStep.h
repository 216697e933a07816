#pragma once

#include "qxEditStep.h"
#include "qxPanelChanges.h"
#include "qxSceneUndo.h"

/// A change of the scene that is made between construction and finish, as a step that is done.
class qxSceneStep : public qxEditStep {
public:
    qxSceneStep() : qxEditStep(QString(), true) {}
    void finish() { m_scene.finish(); }

protected:
    bool perform(bool forward) override
    {
        forward ? m_scene.redo() : m_scene.undo();
        Q_EMIT qxPanelChanges::the().sceneRestored();
        return true;
    }

private:
    qxSceneUndo m_scene;
};

#pragma once

#include <QUndoCommand>

/// One step of an edit, to undo and to redo.
class qxEditStep : public QUndoCommand {
public:
    /// With `isDone` the change is there already when the step is pushed.
    explicit qxEditStep(const QString &text, bool isDone = false)
        : QUndoCommand(text), m_isDone(isDone)
    {
    }
    void redo() final;
    void undo() final;
    /// Makes the change before the step is pushed; being pushed leaves it as it is then.
    void makeNow();

protected:
    /// Makes the change, or takes it back. False when it is not possible any more, because others
    /// have changed the same: nothing is changed then.
    virtual bool perform(bool forward) = 0;

private:
    bool m_isDone;
};

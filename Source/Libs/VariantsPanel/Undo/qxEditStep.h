#pragma once

#include <QUndoCommand>

/// One step of the undo stack.
class qxEditStep : public QUndoCommand {
public:
    /// With `isDone` the change is already made when the step is pushed.
    explicit qxEditStep(const QString &text, bool isDone = false)
        : QUndoCommand(text), m_isDone(isDone)
    {
    }
    void redo() final;
    void undo() final;
    /// Makes the change before the step is pushed; pushing it then changes nothing.
    void makeNow();
    /// Says that the change is already made: pushing the step then changes nothing.
    void markDone() { m_isDone = true; }

protected:
    /// Makes the change, or reverts it. False, without any change, if it is no longer possible
    /// because others have changed the same.
    virtual bool perform(bool forward) = 0;

private:
    bool m_isDone;
};

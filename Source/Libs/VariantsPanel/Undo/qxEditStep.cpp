#include "qxEditStep.h"

void qxEditStep::redo()
{
    if (m_isDone)
        m_isDone = false;
    else if (!isObsolete() && !perform(true))
        setObsolete(true);
}

// As a part of a step that goes on, one that was not possible is not tried again.
void qxEditStep::undo()
{
    if (!isObsolete() && !perform(false))
        setObsolete(true);
}

void qxEditStep::makeNow()
{
    redo();
    m_isDone = true;
}

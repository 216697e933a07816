#include "qxEditStep.h"

void qxEditStep::redo()
{
    if (m_isDone)
        m_isDone = false;
    else if (!perform(true))
        setObsolete(true);
}

void qxEditStep::undo()
{
    if (!perform(false))
        setObsolete(true);
}

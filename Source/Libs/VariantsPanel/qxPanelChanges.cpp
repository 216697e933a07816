#include "qxPanelChanges.h"

qxPanelChanges &qxPanelChanges::the()
{
    static qxPanelChanges changes;
    return changes;
}

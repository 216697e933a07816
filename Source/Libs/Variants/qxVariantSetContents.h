#pragma once

#include "qxAnalyzerVariant.h"
#include "qxVariantReferences.h"

#include "qxUniqueNames.h"

#include <QByteArray>
#include <QMap>

class qxVariantGroup;

/// What a variant set holds: names of variants and states, and settings of the scene.
struct qxVariantSetContents : qxVariantReferences {
    QString name; ///< unique among the sets of the registry
    QString hotkey; ///< key-sequence text, as it was given; empty for none
    QString comment; ///< free text
    QString script; ///< run when the set is selected in full; empty for none
    int key = -1; ///< the key code in `hotkey`; 0 when it names none, -1 when it was never read
    Qt::KeyboardModifiers modifiers; ///< those in `hotkey`
    QString defaultViewpoint; ///< where "home" leads after a full selection; empty for none
    qxUniqueNames viewpoints; ///< selecting moves to the first one
    qxUniqueNames animations; ///< clips that a full selection starts: all, or one of them in turn
    unsigned int animationIndex = 0; ///< the next one to start when they start in turn
    bool sequentialAnimation = false; ///< whether they start in turn, one each time
    qxUniqueNames geometries; ///< names of nodes for qxVariantSet::showGeometry
    QMap<QString, QString> values; ///< what users note by key, such as a price
    qxVariantGroup *group = nullptr; ///< maintained by the group; null for none
    qxAnalyzerVariant analyzer; ///< what becomes of the clipping plane
    QByteArray preview; ///< an encoded picture; empty for none
    qxUniqueNames targetNodeNames; ///< the nodes that were captured; see inclNodes
    QMap<QString, QString> materialSnapshots; ///< material names by node path
    ///@{
    /// What the last capture took, of nodes, materials, lights, environments and viewpoint. With
    /// `inclNodes` qxVariants::selectVariantSet shows the target nodes first.
    bool inclNodes = false;
    bool inclMats = false;
    bool inclLights = false;
    bool inclEnv = false;
    bool inclView = false;
    ///@}
};

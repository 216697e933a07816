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
    QString hotkey;
    QString comment;
    QString script;
    int key = -1; ///< read from `hotkey`, as are the modifiers
    Qt::KeyboardModifiers modifiers;
    QString defaultViewpoint;
    qxUniqueNames viewpoints; ///< selecting moves to the first one
    qxUniqueNames animations;
    unsigned int animationIndex = 0; ///< the next one to start when they start in turn
    bool sequentialAnimation = false;
    qxUniqueNames geometries; ///< names of nodes
    QMap<QString, QString> values;
    qxVariantGroup *group = nullptr; ///< maintained by the group
    qxAnalyzerVariant analyzer;
    QByteArray preview;
    qxUniqueNames targetNodeNames;
    QMap<QString, QString> materialSnapshots; ///< material names by node path
    bool inclNodes = false;
    bool inclMats = false;
    bool inclLights = false;
    bool inclEnv = false;
    bool inclView = false;
};

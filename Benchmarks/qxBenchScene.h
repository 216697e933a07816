#pragma once

#include "qxHost.h"

#include <OpenSG/OSGNode.h>

#include <QString>

/// A host with a scene of `switches` switch nodes of four children each, and a node variant for the
/// first `variants` of them. Everything is gone when it goes out of scope.
class qxBenchScene {
public:
    qxBenchScene(int switches, int variants);
    ~qxBenchScene();

    /// Adds a light or an overlay and the variant of its name.
    static void addLight(const QString &name);
    static void addOverlay(const QString &name);
    static void addViewpoint(const QString &name);

    static QString switchName(int index) { return QStringLiteral("Switch %1").arg(index); }
    static QString childName(int index) { return QStringLiteral("Child %1").arg(index); }

private:
    qxHost m_host;
};

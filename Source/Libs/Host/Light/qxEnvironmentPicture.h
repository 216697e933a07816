#pragma once

#include "Light/qxEnvironmentLight.h"

#include <OpenSG/OSGNode.h>

#include <QByteArray>

#include <optional>

/// The picture of all directions that a scene has for one of its environments. It is decoded when
/// it is first shown.
struct qxEnvironmentPicture {
    /// Gives it to a node, a child of the switch over the environments.
    void attachTo(const osg::NodePtr &node) const;

    /// The attachment with the picture that a switch over environments shows, by its id: that of
    /// the first chosen child that has one; 0 without. `environments` may be null.
    static osg::UInt32 shownBy(const osg::NodePtr &environments);
    /// The light of such an attachment; null, with a warning in the log, when the picture cannot be
    /// decoded.
    static std::optional<qxEnvironmentLight> lightOf(osg::UInt32 attachment);

    QByteArray bytes; ///< of the file, Radiance or OpenEXR
    float exposure = 0; ///< in steps of a camera
    float rotation = 0; ///< in degrees, to the left as seen from the middle
};

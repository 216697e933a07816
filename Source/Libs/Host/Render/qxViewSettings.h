#pragma once

#include <OpenSG/OSGColor.h>

#include <QString>

#include <memory>

class qxEnvironmentLight;

/// How pictures show the scene, whatever their size and quality.
struct qxViewSettings {
    /// Those of the program, for every picture that is not made with others. They stay when the
    /// scene is cleared.
    static qxViewSettings &the();

    /// The picture of all directions in a file, Radiance (.hdr, .pic) or OpenEXR, as light; null,
    /// with the reason, when it cannot be read.
    static std::shared_ptr<const qxEnvironmentLight> readEnvironment(const QString &file,
                                                                     QString &error);
    /// The default light.
    static std::shared_ptr<const qxEnvironmentLight> studio();

    /// Lights the scene; null for its own environment, or the studio if it has none.
    std::shared_ptr<const qxEnvironmentLight> environment;
    /// In degrees: how far the environment is turned to the left, as seen from the middle.
    float environmentRotation = 0;
    float exposure = 0; ///< in steps of a camera: each 1 doubles all light

    /// What is seen behind the scene.
    enum Background {
        Automatic, ///< the environment, but a gradient instead of the studio
        Environment,
        Gradient,
        Plain, ///< one colour
        None ///< nothing: the picture is transparent
    };
    Background background = Automatic; ///< behind whatever the scene shows
    ///@{
    /// Of Gradient, from the upper to the lower edge; sRGB.
    osg::Color3f gradientTop = osg::Color3f(0.88f, 0.9f, 0.92f);
    osg::Color3f gradientBottom = osg::Color3f(0.64f, 0.66f, 0.69f);
    ///@}
    /// Whether an invisible ground below the scene shows its shadows.
    enum Ground {
        GroundWhereMissing, ///< unless the scene has a floor of its own (Docs/Rendering.md)
        AlwaysGround,
        NoGround
    };
    Ground ground = GroundWhereMissing; ///< seen from above alone
    osg::Color3f plainColour = osg::Color3f(1, 1, 1); ///< of Plain; sRGB
};

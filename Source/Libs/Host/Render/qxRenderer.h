#pragma once

#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGNode.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

/// What a picture is made with.
struct qxPictureSettings {
    enum Quality { Best = -1, Quick = 0 };

    static constexpr int largest = 16384;

    int width = 264; ///< in pixels, from 1 to `largest`
    int height = 256;
    /// Quick: one sample per pixel in hard light. Above 0: ray tracing with so many samples per
    /// pixel, soft shadows and reflections. Best: ray tracing with as many samples as help.
    int quality = Quick;
    /// Behind the scene, from the upper to the lower edge; sRGB.
    osg::Color3f backgroundTop = osg::Color3f(0.88f, 0.9f, 0.92f);
    osg::Color3f backgroundBottom = osg::Color3f(0.64f, 0.66f, 0.69f);
    int threads = 0; ///< 0 for one per processor; the picture is the same with any number
};

/// A finished picture.
struct qxPicture {
    /// What is to be seen of the scene, or why nothing is.
    enum Content {
        Shown, ///< something, if it be fully translucent; also when the scene is hidden on purpose
        Hidden, ///< there is nothing that is shown
        LookedPast,
        FromBehind, ///< surfaces that have only a front
        CutAway, ///< by the clipping plane or the planes of the camera
        TooSmall
    };

    bool isEmpty() const { return rgba.empty(); }

    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> rgba; ///< four bytes per pixel, opaque, bottom row first, sRGB
    Content content = Shown;
};

/// Makes pictures of the running host's scene from the main view (qxMainView), with its overlays
/// and its clipping plane. As long as the view has no camera, all of the scene is shown.
///
/// What was prepared for a picture serves the next one: only what changed in the scene meanwhile is
/// prepared anew. Pictures of the same scene are the same, byte by byte, whether anything was kept
/// or not. Docs/Rendering.md tells what is drawn.
class qxRenderer {
public:
    /// Hears how many of the `total` steps are done, in the thread that renders; first with 0.
    /// Answers false to cancel. Whatever it does to the scene shows in the next picture only.
    typedef std::function<bool(int done, int total)> Progress;

    qxRenderer();
    qxRenderer(const qxRenderer &) = delete;
    ~qxRenderer();

    /// An empty picture when it was cancelled, when no host runs, and, with an error line, when the
    /// size is out of range or the scene does not fit into the memory.
    qxPicture render(const qxPictureSettings &settings, const Progress &progress = Progress());
    /// Draws a picture of the scene as it was, in any thread, as long as the renderer lives and
    /// serves nothing else.
    typedef std::function<qxPicture(const Progress &progress)> Drawing;
    /// The first half of render(): reads the scene. Empty when there can be no picture.
    Drawing prepared(const qxPictureSettings &settings);
    /// The node that such a picture shows at a place, in pixels from its lower left corner; null
    /// for the background. Overlays are looked through.
    osg::NodePtr nodeAt(const qxPictureSettings &settings, float x, float y);

private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};

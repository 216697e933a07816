#pragma once

#include "Render/qxNodeMask.h"
#include "Render/qxPicture.h"
#include "qxUberCameraPool.h"

#include <OpenSG/OSGNode.h>

#include <QByteArray>

#include <memory>

class qxReprojection;
struct qxSceneLighting;

/// Makes pictures of the running host's scene from the main view (qxMainView), with its overlays
/// and its clipping plane. As long as the view has no camera, all of the scene is shown.
///
/// What was prepared for a picture serves the next one: only what changed in the scene meanwhile is
/// prepared anew. Pictures of the same scene are the same, byte by byte, whether anything was kept
/// or not. Docs/Rendering.md tells what is drawn.
class qxRenderer {
public:
    qxRenderer();
    qxRenderer(const qxRenderer &) = delete;
    ~qxRenderer();

    /// An empty picture when it was cancelled, when no host runs, and, with an error line, when the
    /// size is out of range or the scene does not fit into the memory.
    qxPicture render(const qxPictureSettings &settings, const qxPicture::Progress &progress = {});
    /// Draws a picture of the scene as it was, in any thread, as long as the renderer lives and
    /// serves nothing else.
    typedef std::function<qxPicture(const qxPicture::Progress &progress)> Drawing;
    /// The first half of render(): reads the scene. Empty when there can be no picture.
    Drawing prepared(const qxPictureSettings &settings);
    ///@{
    /// The same for a camera that moves (qxReprojection), in quick quality: about so many pixels
    /// are drawn anew. `memory` lives as long as the drawing; what it holds of another scene is
    /// forgotten.
    qxPicture renderMoving(const qxPictureSettings &settings, qxReprojection &memory, int drawn);
    Drawing preparedMoving(const qxPictureSettings &settings, qxReprojection &memory, int drawn);
    ///@}
    /// What such a picture depends on, as 40 hexadecimal digits: pictures of the same fingerprint
    /// are the same, byte by byte, in this and in other processes of this version. What is not
    /// shown does not count. Reads the scene, but prepares no drawing; empty when there can be no
    /// picture.
    QByteArray fingerprint(const qxPictureSettings &settings);
    /// How such a picture looks at the scene.
    struct View {
        qxUberCamera camera; ///< also when the main view has none
        osg::Vec3f middle; ///< of the box around what is shown; the origin when nothing is
    };
    View view(const qxPictureSettings &settings); ///< reads the scene
    /// What lights the scene in such a picture; reads the scene.
    qxSceneLighting lighting(const qxPictureSettings &settings);
    /// The node that such a picture shows at a place, in pixels from its lower left corner; null
    /// for the background. Overlays are looked through.
    osg::NodePtr nodeAt(const qxPictureSettings &settings, float x, float y);
    /// Where such a picture has these nodes with all that is below them. The scene is as the last
    /// picture had it; without a picture, and for nodes that show nothing, the mask is empty.
    qxNodeMask mask(const qxPictureSettings &settings, const std::vector<osg::NodePtr> &nodes);

private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};

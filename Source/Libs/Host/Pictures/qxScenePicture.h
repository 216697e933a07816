#pragma once

#include "Pictures/qxMovingPicture.h"

/// Pictures of the running host's scene, all made by one renderer, so that its caches are reused.
class qxScenePicture {
public:
    /// As qxRenderer::render. It may be called while another picture is being made.
    static qxPicture render(const qxPictureSettings &settings,
                            const qxPicture::Progress &progress = {});
    /// The same of a camera that moves.
    static qxPicture render(const qxPictureSettings &settings, qxMovingPicture &moving);
    /// Whether render is running, for code in events that its progress display processes.
    static bool isRendering();
    /// What the last picture of render shows.
    static qxPicture::Content content();
    /// How many pictures render has made.
    static int count();
    /// The quality that the settings of ray tracing ask for (qxPictureSettings::quality).
    static int quality();
    /// What a picture of that size is made with: this quality, and the program's light.
    static qxPictureSettings settings(int width, int height);
    /// As qxRenderer::fingerprint.
    static QByteArray fingerprint(const qxPictureSettings &settings);
    /// As qxRenderer::view.
    static qxRenderer::View view(const qxPictureSettings &settings);
    /// As qxRenderer::lighting.
    static qxSceneLighting lighting(const qxPictureSettings &settings);
    /// As qxRenderer::nodeAt.
    static osg::NodePtr nodeAt(const qxPictureSettings &settings, float x, float y);
    /// As qxRenderer::mask.
    static qxNodeMask mask(const qxPictureSettings &settings,
                           const std::vector<osg::NodePtr> &nodes);
    ///@{
    /// The renderer of all these pictures, for a long rendering; pictures made meanwhile get
    /// another one.
    static std::unique_ptr<qxRenderer> takeRenderer();
    static void giveBack(std::unique_ptr<qxRenderer> renderer);
    ///@}
    /// Who takes it for long is asked by this to give it back at once when another picture needs
    /// it.
    static void setBorrower(const std::function<void()> &giveBack);
    /// Frees what was prepared for the next picture.
    static void forget();
};

#include "Pictures/qxScenePicture.h"

#include "Render/qxSceneLighting.h"
#include "qxOSGWidget.h"
#include "qxRaytracingManager.h"

namespace {

/// Null until the first picture, and while one is being made.
std::unique_ptr<qxRenderer> &idleRenderer()
{
    static std::unique_ptr<qxRenderer> renderer;
    return renderer;
}

struct Made {
    qxPicture::Content content = qxPicture::Shown; ///< of the last one
    int count = 0;
};

Made &made()
{
    static Made made;
    return made;
}

/// Counts the pictures that are being made, one within the events of another.
class qxRendering {
public:
    qxRendering() { ++depth(); }
    qxRendering(const qxRendering &) = delete;
    ~qxRendering() { --depth(); }

    static int &depth()
    {
        static int count = 0;
        return count;
    }
};

std::function<void()> &borrower()
{
    static std::function<void()> giveBack;
    return giveBack;
}

/// Another renderer would take as long to read the scene as the scene is large.
void getRendererBack()
{
    if (borrower())
        borrower()();
}

qxPicture rendered(const std::function<qxPicture(qxRenderer &)> &render)
{
    getRendererBack();
    std::unique_ptr<qxRenderer> renderer = qxScenePicture::takeRenderer();
    qxPicture picture;
    {
        const qxRendering rendering;
        picture = render(*renderer);
    }
    qxScenePicture::giveBack(std::move(renderer));
    made() = {picture.content, made().count + 1};
    return picture;
}

qxRenderer &presentRenderer()
{
    getRendererBack();
    if (!idleRenderer())
        idleRenderer() = std::make_unique<qxRenderer>();
    return *idleRenderer();
}

} // namespace

qxPicture qxScenePicture::render(const qxPictureSettings &settings,
                                 const qxPicture::Progress &progress)
{
    return rendered([&](qxRenderer &renderer) { return renderer.render(settings, progress); });
}

qxPicture qxScenePicture::render(const qxPictureSettings &settings, qxMovingPicture &moving)
{
    return rendered([&](qxRenderer &renderer) { return moving.next(renderer, settings); });
}

qxPicture::Content qxScenePicture::content()
{
    return made().content;
}

int qxScenePicture::count()
{
    return made().count;
}

bool qxScenePicture::isRendering()
{
    return qxRendering::depth() > 0;
}

void qxScenePicture::setBorrower(const std::function<void()> &giveBack)
{
    borrower() = giveBack;
}

std::unique_ptr<qxRenderer> qxScenePicture::takeRenderer()
{
    std::unique_ptr<qxRenderer> renderer = std::move(idleRenderer());
    return renderer ? std::move(renderer) : std::make_unique<qxRenderer>();
}

void qxScenePicture::giveBack(std::unique_ptr<qxRenderer> renderer)
{
    idleRenderer() = std::move(renderer);
}

qxRenderer::View qxScenePicture::view(const qxPictureSettings &settings)
{
    return presentRenderer().view(settings);
}

qxSceneLighting qxScenePicture::lighting(const qxPictureSettings &settings)
{
    return presentRenderer().lighting(settings);
}

osg::NodePtr qxScenePicture::nodeAt(const qxPictureSettings &settings, float x, float y)
{
    return presentRenderer().nodeAt(settings, x, y);
}

qxNodeMask qxScenePicture::mask(const qxPictureSettings &settings,
                                const std::vector<osg::NodePtr> &nodes)
{
    return presentRenderer().mask(settings, nodes);
}

int qxScenePicture::quality()
{
    return qxOSGWidget::getRaytracing()
        ? qxRaytracingManager::getRaytracingUtils()->getImageQuality()
        : int(qxPictureSettings::Quick);
}

qxPictureSettings qxScenePicture::settings(int width, int height)
{
    qxPictureSettings settings;
    settings.width = width;
    settings.height = height;
    settings.quality = quality();
    return settings;
}

QByteArray qxScenePicture::fingerprint(const qxPictureSettings &settings)
{
    return presentRenderer().fingerprint(settings);
}

void qxScenePicture::forget()
{
    getRendererBack();
    idleRenderer().reset();
}

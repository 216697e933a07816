#include "Cameras/qxMainView.h"
#include "Files/qxSceneFile.h"
#include "Pictures/qxMovingPicture.h"
#include "Pictures/qxScenePicture.h"
#include "Render/qxEmbree.h"
#include "Render/qxRenderCamera.h"
#include "Render/qxRenderer.h"
#include "Render/qxShownWalk.h"
#include "Window/qxOutline.h"
#include "qxCameraService.h"
#include "qxFlip.h"
#include "qxHost.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGSimpleGeometry.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGTransform.h>
#include <OpenSG/OSGTriangleIterator.h>

#include <QCoreApplication>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <chrono>
#include <cmath>
#include <limits>

const int _width = 264;
const int _height = 256;

/// What the argument of the benchmarks means when it is no number of triangles.
const int _demo = 0;

/// A hilly field of 10,000 triangles.
static osg::GeometryPtr makeField()
{
    const int side = 71;
    const auto positions = osg::GeoPositions3f::create();
    const auto indices = osg::GeoIndicesUI32::create();
    for (int z = 0; z < side; ++z) {
        for (int x = 0; x < side; ++x) {
            const float height = 0.05f * std::sin(float(x) * 0.5f) * std::cos(float(z) * 0.3f);
            positions->push_back(osg::Pnt3f(float(x) / 70.0f, height, float(z) / 70.0f));
            const osg::UInt32 first = osg::UInt32(z * side + x);
            const osg::UInt32 corners[] = {first,     first + side, first + 1,
                                           first + 1, first + side, first + side + 1};
            for (const osg::UInt32 corner : corners) {
                if (x + 1 < side && z + 1 < side)
                    indices->push_back(corner);
            }
        }
    }
    const auto types = osg::GeoPTypesUI8::create();
    types->push_back(GL_TRIANGLES);
    const auto lengths = osg::GeoPLengthsUI32::create();
    lengths->push_back(indices->size());
    const osg::GeometryPtr field = osg::Geometry::create();
    field->setPositions(positions);
    field->setIndices(indices);
    field->setTypes(types);
    field->setLengths(lengths);
    return field;
}

/// A host whose scene is the demo, or a square of nodes whose geometries take turns.
class RenderedScene {
public:
    explicit RenderedScene(int triangles)
    {
        settings.width = _width;
        settings.height = _height;
        if (triangles == _demo)
            loadDemo();
        else
            addNodes(triangles / 9800, makeGeometries(triangles / 9800, makeField()));
    }
    /// Small geometries, each shown by ten nodes, and pictures of one pixel.
    struct Small {
        int nodes;
    };
    explicit RenderedScene(const Small &small)
    {
        settings.width = settings.height = 1;
        addNodes(small.nodes, makeGeometries(small.nodes / 10, osg::makeBoxGeo(1, 1, 1, 1, 1, 1)));
    }
    RenderedScene(const RenderedScene &) = delete;
    ~RenderedScene() { m_host.clearScene(); }

    qxPictureSettings settings;

private:
    typedef std::vector<osg::GeometryPtr> Geometries;

    static Geometries makeGeometries(int count, const osg::GeometryPtr &first)
    {
        const osg::SimpleMaterialPtr material = osg::SimpleMaterial::create();
        material->setDiffuse(osg::Color3f(0.5f, 0.6f, 0.4f));
        first->setMaterial(material);
        Geometries geometries(1, first);
        while (int(geometries.size()) < count)
            geometries.push_back(first->clone());
        return geometries;
    }

    static void addNodes(int count, const Geometries &geometries)
    {
        const int side = int(std::ceil(std::sqrt(float(count))));
        for (int i = 0; i < count; ++i) {
            const osg::TransformPtr place = osg::Transform::create();
            place->getMatrix().setTranslate(float(i % side), 0, float(i / side));
            const osg::NodePtr mover = osg::makeNodeFor(place);
            mover->addChild(osg::makeNodeFor(geometries[std::size_t(i) % geometries.size()]));
            qxScenegraph::getRoot()->addChild(mover);
        }
    }

    void loadDemo()
    {
        const QTemporaryDir folder;
        QProcess generator;
        generator.setStandardOutputFile(QProcess::nullDevice());
        generator.start(QStringLiteral(QX_DEMOS "/Roadster/make-roadster"), {folder.path()});
        generator.waitForFinished(-1);
        qxSceneFile file;
        if (!file.load(folder.filePath("roadster.gltf")))
            qFatal("%s", qPrintable(file.errorString()));
    }

    qxHost m_host;
};

/// The triangles that the scene shows, in world coordinates, with nothing but the library for rays.
class BareScene {
public:
    BareScene()
    {
        qxShownListener listener;
        listener.part = [this](const qxShownPart &part) { collect(part); };
        qxWalkShown(qxScenegraph::getRoot(), listener);
    }

    void build()
    {
        m_scene.reset(rtcNewScene(m_device.get()));
        const qxEmbreeGeometry mesh(rtcNewGeometry(m_device.get(), RTC_GEOMETRY_TYPE_TRIANGLE));
        void *const corners = rtcSetNewGeometryBuffer(mesh.get(), RTC_BUFFER_TYPE_VERTEX, 0,
                                                      RTC_FORMAT_FLOAT3, 12, m_corners.size());
        std::copy(m_corners.begin(), m_corners.end(), static_cast<osg::Vec3f *>(corners));
        void *const indices = rtcSetNewGeometryBuffer(mesh.get(), RTC_BUFFER_TYPE_INDEX, 0,
                                                      RTC_FORMAT_UINT3, 12, m_corners.size() / 3);
        for (std::size_t i = 0; i < m_corners.size(); ++i)
            static_cast<unsigned *>(indices)[i] = unsigned(i);
        rtcCommitGeometry(mesh.get());
        rtcAttachGeometry(m_scene.get(), mesh.get());
        rtcCommitScene(m_scene.get());
    }

    /// A ray per pixel, and from what it meets one towards a light.
    int trace() const
    {
        RTCBounds bounds;
        rtcGetSceneBounds(m_scene.get(), &bounds);
        qxBox box;
        box.lower = osg::Vec3f(bounds.lower_x, bounds.lower_y, bounds.lower_z);
        box.upper = osg::Vec3f(bounds.upper_x, bounds.upper_y, bounds.upper_z);
        const qxRenderCamera camera(qxMainView::the().camera, box, _width, _height);
        int lit = 0;
        for (int pixel = 0; pixel < _width * _height; ++pixel)
            lit +=
                tracePixel(camera.ray(float(pixel % _width) + 0.5f, float(pixel / _width) + 0.5f));
        return lit;
    }

private:
    void collect(const qxShownPart &part)
    {
        const osg::TriangleIterator end = part.core->endTriangles();
        for (osg::TriangleIterator it = part.core->beginTriangles(); it != end; ++it) {
            for (int k = 0; k < 3; ++k) {
                osg::Pnt3f corner;
                part.toWorld.multMatrixPnt(it.getPosition(k), corner);
                m_corners.push_back(osg::Vec3f(corner));
            }
        }
    }

    static RTCRay rayFrom(const osg::Vec3f &origin, const osg::Vec3f &direction)
    {
        RTCRay ray = {};
        ray.org_x = origin[0];
        ray.org_y = origin[1];
        ray.org_z = origin[2];
        ray.dir_x = direction[0];
        ray.dir_y = direction[1];
        ray.dir_z = direction[2];
        ray.tfar = std::numeric_limits<float>::infinity();
        ray.mask = ~0u;
        return ray;
    }

    int tracePixel(const qxRay &ray) const
    {
        RTCIntersectContext context;
        rtcInitIntersectContext(&context);
        RTCRayHit hit = {};
        hit.ray = rayFrom(ray.origin, ray.direction);
        hit.hit.geomID = RTC_INVALID_GEOMETRY_ID;
        rtcIntersect1(m_scene.get(), &context, &hit);
        if (hit.hit.geomID == RTC_INVALID_GEOMETRY_ID)
            return 0;
        const osg::Vec3f place = ray.at(hit.ray.tfar * 0.9999f);
        RTCRay shadow = rayFrom(place, osg::Vec3f(0.3f, 0.9f, 0.2f));
        rtcOccluded1(m_scene.get(), &context, &shadow);
        return shadow.tfar > 0.0f;
    }

    qxEmbreeDevice m_device{rtcNewDevice(nullptr)};
    qxEmbreeScene m_scene;
    std::vector<osg::Vec3f> m_corners;
};

static void renderPicture(benchmark::State &state)
{
    const RenderedScene scene(int(state.range(0)));
    qxRenderer renderer;
    renderer.render(scene.settings);
    for (auto _ : state)
        benchmark::DoNotOptimize(renderer.render(scene.settings).rgba.data());
}

/// What a picture is made from, when the one before is known.
static void renderFingerprint(benchmark::State &state)
{
    const RenderedScene scene(int(state.range(0)));
    qxRenderer renderer;
    renderer.fingerprint(scene.settings);
    for (auto _ : state)
        benchmark::DoNotOptimize(renderer.fingerprint(scene.settings));
}

/// The same of a scene that nobody has looked at.
static void renderFirstFingerprint(benchmark::State &state)
{
    const RenderedScene scene(int(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(qxRenderer().fingerprint(scene.settings));
}

static QImage imageOf(const qxPicture &picture)
{
    return QImage(picture.rgba.data(), picture.width, picture.height, QImage::Format_RGBA8888)
        .copy();
}

/// The same picture of 4,096 samples per pixel, which is made once and kept beside the program.
static QImage referenceOf(qxRenderer &renderer, qxPictureSettings settings)
{
    const QString file = QCoreApplication::applicationDirPath() + "/reference.png";
    if (!QFile::exists(file)) {
        qInfo("Making %s, which takes some minutes", qPrintable(file));
        settings.quality = 4096;
        imageOf(renderer.render(settings)).save(file);
    }
    return QImage(file).convertToFormat(QImage::Format_RGBA8888);
}

/// As a preview is made, from the first viewpoint, and how different it looks from one that took as
/// long as it needs.
static void renderBest(benchmark::State &state)
{
    RenderedScene scene(int(state.range(0)));
    scene.settings.quality = qxPictureSettings::Best;
    qxKernelServiceFactory::the()->getService<qxCameraService>()->moveToViewpoint(0, 0, 0, 0);
    qxRenderer renderer;
    const QImage picture = imageOf(renderer.render(scene.settings));
    for (auto _ : state)
        benchmark::DoNotOptimize(renderer.render(scene.settings).rgba.data());
    static const float error = qxMeanFlip(referenceOf(renderer, scene.settings), picture);
    state.counters["error"] = double(error);
}

static void renderPictureBare(benchmark::State &state)
{
    const RenderedScene scene(int(state.range(0)));
    BareScene bare;
    bare.build();
    for (auto _ : state)
        benchmark::DoNotOptimize(bare.trace());
}

static void renderFirst(benchmark::State &state)
{
    const RenderedScene scene(int(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(qxRenderer().render(scene.settings).rgba.data());
}

static void renderFirstBare(benchmark::State &state)
{
    const RenderedScene scene(int(state.range(0)));
    BareScene bare;
    for (auto _ : state) {
        bare.build();
        benchmark::DoNotOptimize(bare.trace());
    }
}

/// 100,000 nodes, of which ten appear or disappear between pictures of one pixel, or between
/// fingerprints of them.
static void renderChanged(benchmark::State &state, bool isDrawn)
{
    const RenderedScene scene(RenderedScene::Small{int(state.range(0))});
    qxRenderer renderer;
    renderer.render(scene.settings);
    osg::UInt32 mask = 0;
    for (auto _ : state) {
        for (osg::UInt32 i = 0; i < 10; ++i) {
            const osg::NodePtr node = qxScenegraph::getRoot()->getChild(i * 997);
            const osg::CPEditor edit(node, osg::Node::TravMaskFieldMask);
            node->setTravMask(mask);
        }
        mask = ~mask;
        if (isDrawn)
            benchmark::DoNotOptimize(renderer.render(scene.settings).rgba.data());
        else
            benchmark::DoNotOptimize(renderer.fingerprint(scene.settings));
    }
}

/// The same by a renderer that has seen nothing yet.
static void renderAnew(benchmark::State &state)
{
    const RenderedScene scene(RenderedScene::Small{int(state.range(0))});
    for (auto _ : state)
        benchmark::DoNotOptimize(qxRenderer().render(scene.settings).rgba.data());
}

/// A camera that goes around the scene, with some 30 degrees in a second.
class Orbit {
public:
    explicit Orbit(const qxPictureSettings &settings) : m_view(qxRenderer().view(settings)) {}

    void look(int picture) const
    {
        osg::Quaternion turn;
        turn.setValueAsAxisRad(0, 1, 0, 0.026f * float(picture));
        osg::Matrix camera;
        camera.setTransform(m_view.middle, turn);
        osg::Matrix back;
        back.setTransform(-m_view.middle);
        camera.mult(back);
        camera.mult(m_view.camera.toWorld);
        qxMainView::the().camera = m_view.camera;
        qxMainView::the().camera.toWorld = camera;
    }

private:
    qxRenderer::View m_view;
};

/// As the window's view does it, with or without an outline around what two clicks in its middle
/// pick.
static void renderOrbit(benchmark::State &state, bool isOutlined)
{
    RenderedScene scene(int(state.range(0)));
    scene.settings.width = 1280;
    scene.settings.height = 720;
    const QSize size(scene.settings.width, scene.settings.height);
    const Orbit orbit(scene.settings);
    qxMovingPicture moving;
    int picture = 0;
    for (; picture < 20; ++picture) { // until its times are known
        orbit.look(picture);
        qxScenePicture::render(scene.settings, moving);
    }
    qxOutline outline;
    if (isOutlined)
        outline.setNodes({qxScenePicture::nodeAt(scene.settings, 640, 360)->getParent()});
    float share = 0;
    const auto start = std::chrono::steady_clock::now();
    for (auto _ : state) {
        orbit.look(++picture);
        benchmark::DoNotOptimize(qxScenePicture::render(scene.settings, moving).rgba.data());
        outline.follow(size, 1);
        share += moving.share();
    }
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
    state.counters["fps"] = double(state.iterations()) / time.count();
    state.counters["share"] = double(share) / double(state.iterations());
    qxScenePicture::forget();
}

static void renderWhole(benchmark::State &state)
{
    RenderedScene scene(int(state.range(0)));
    scene.settings.width = 1280;
    scene.settings.height = 720;
    qxRenderer renderer;
    renderer.render(scene.settings);
    for (auto _ : state)
        benchmark::DoNotOptimize(renderer.render(scene.settings).rgba.data());
}

static void threads(benchmark::internal::Benchmark *benchmark)
{
    benchmark->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);
}

// Argument: number of triangles, 0 for the demo. Processor time of all threads.
BENCHMARK(renderPicture)->Name("Rendering/picture")->Arg(_demo)->Arg(1000000)->Apply(threads);
BENCHMARK(renderBest)->Name("Rendering/best")->Arg(_demo)->Apply(threads);
BENCHMARK(renderPictureBare)
    ->Name("Rendering/barePicture")
    ->Arg(_demo)
    ->Arg(1000000)
    ->Apply(threads);
BENCHMARK_CAPTURE(renderOrbit, orbit, false)
    ->Name("Moving/orbit")
    ->Arg(_demo)
    ->Arg(1000000)
    ->Apply(threads);
BENCHMARK_CAPTURE(renderOrbit, outlined, true)->Name("Moving/outlined")->Arg(_demo)->Apply(threads);
BENCHMARK(renderWhole)->Name("Moving/bareWhole")->Arg(_demo)->Arg(1000000)->Apply(threads);
BENCHMARK(renderFingerprint)
    ->Name("Rendering/fingerprint")
    ->Arg(_demo)
    ->Arg(1000000)
    ->Apply(threads);
BENCHMARK(renderFirstFingerprint)
    ->Name("Rendering/firstFingerprint")
    ->Arg(_demo)
    ->Arg(1000000)
    ->Apply(threads);
BENCHMARK(renderFirst)->Name("Rendering/first")->Arg(_demo)->Arg(1000000)->Apply(threads);
BENCHMARK(renderFirstBare)->Name("Rendering/bareFirst")->Arg(_demo)->Arg(1000000)->Apply(threads);
// Argument: number of nodes.
BENCHMARK_CAPTURE(renderChanged, drawn, true)
    ->Name("RenderUpdate/tenChanged")
    ->Arg(100000)
    ->Apply(threads);
BENCHMARK_CAPTURE(renderChanged, fingerprint, false)
    ->Name("RenderUpdate/fingerprint")
    ->Arg(100000)
    ->Apply(threads);
BENCHMARK(renderAnew)->Name("RenderUpdate/bareAnew")->Arg(100000)->Apply(threads);

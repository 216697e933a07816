#include "Files/qxSceneFile.h"

#include "Files/Gltf/Common/qxGltfExtras.h"
#include "Files/Gltf/Common/qxGltfFiles.h"
#include "Files/Gltf/Common/qxGltfUri.h"
#include "Files/Gltf/Common/qxGltfVariants.h"
#include "Files/Gltf/Export/qxGltfExporter.h"
#include "Files/Gltf/Read/qxGltfExtensions.h"
#include "Files/Gltf/Read/qxGltfModel.h"
#include "Files/Gltf/Read/qxGltfScene.h"
#include "Files/Gltf/Read/qxGltfSceneBuilder.h"
#include "Files/Gltf/Write/qxGltfCameraPatch.h"
#include "Files/Gltf/Write/qxGltfMeshPatch.h"
#include "Files/Gltf/Write/qxGltfOutput.h"
#include "Files/Gltf/Write/qxGltfPatch.h"
#include "Files/qxMemoryBudget.h"
#include "Files/qxOutputFile.h"
#include "qxOverlays.h"
#include "qxScenegraph.h"
#include "qxText.h"
#include "qxUberCameraPool.h"

#include <QDir>
#include <QFileInfo>
#include <QMap>
#include <QScopeGuard>

#include <algorithm>

/// The file as it was loaded, what was made of it, and the variants document as it is now.
struct qxSceneFile::Content {
    qxGltfDocument document = qxGltfDocument::empty();
    std::vector<QByteArray> buffers;
    qxMemoryBudget budget{qxMemoryBudget::limit()}; ///< what is left of it
    std::vector<qxFileStamp> bufferFiles; ///< of the buffers that are files
    bool hasTakenIn = false; ///< whether the saved file holds what others have changed of these
    QMap<QString, qxFileStamp> known; ///< files that were loaded or saved, by all their names
    int scene = 0;
    qxGltfOrigin origin;
    qxGltfState before;
    qxGltfMaterialPatch::Before materials;
    qxGltfSwitchMaterialUse loaded;
    qxGltfSwitchMaterialUse mapped;
    int viewpoints = 0; ///< how many the file has
    QByteArray variants;
    std::vector<qxSceneVariant> materialVariants;
    qxSceneFileInfo info;

    static std::unique_ptr<Content> load(const QString &path, QStringList &warnings,
                                         const StepListener &listener);
    /// The JSON of the file with what changed in the scene since.
    qxGltfEdited edited() const;
    bool isBufferOutdated() const;
    /// The place of a geometry below a node of the file.
    qxFilePlace partOf(const osg::NodePtr &node) const;
    /// Notes what a file holds that is read or written now.
    void note(const QString &path, const qxFileStamp &stamp);
};

namespace {

/// How the file is called, and how it is really called, whichever way leads there.
QStringList namesOf(const QString &path)
{
    return {QFileInfo(path).absoluteFilePath(), qxOutputFile::realTargetOf(path)};
}

std::vector<qxFileStamp> stampsOf(const qxGltfModel &model)
{
    std::vector<qxFileStamp> stamps(model.buffers.size());
    for (std::size_t i = 0; i < stamps.size(); ++i) {
        const qxJson &uri = qxGltfMember(model.document.json["buffers"][i], "uri");
        if (model.buffers[i].isNull() || !uri.is_string()
            || qxGltfIsDataUri(uri.get_ref<const std::string &>()))
            continue;
        const QString name = qxGltfRelativePath(uri.get<std::string>());
        stamps[i] = qxFileStamp(QDir(model.document.folder()).filePath(name), model.buffers[i]);
    }
    return stamps;
}

QString assetText(const qxJson &document, const char *name)
{
    const qxJson &text = qxGltfMember(qxGltfMember(document, "asset"), name);
    return text.is_string() ? qxText::fromUtf8(text.get<std::string>()) : QString();
}

qxSceneFileInfo infoOf(const qxGltfModel &model)
{
    const qxJson &json = model.document.json;
    const auto count = [&json](const char *name) { return int(qxGltfSection(json, name).size()); };
    qxSceneFileInfo info;
    info.version = assetText(json, "version");
    info.generator = assetText(json, "generator");
    info.scenes = count("scenes");
    info.nodes = count("nodes");
    info.meshes = count("meshes");
    info.triangles = qxGltfTriangles(json);
    info.materials = count("materials");
    info.textures = count("textures");
    info.cameras = count("cameras");
    info.animations = count("animations");
    info.extensionsUsed = qxGltfExtensionNames(json, "extensionsUsed");
    info.extensionsRequired = qxGltfExtensionNames(json, "extensionsRequired");
    info.extensionsNotUnderstood = qxGltfNotUnderstood(json, "extensionsUsed");
    info.extensionsMissing = qxGltfNotUnderstood(json, "extensionsRequired");
    return info;
}

std::vector<osg::NodePtr> childrenOf(const osg::NodePtr &node)
{
    return {node->getMFChildren()->begin(), node->getMFChildren()->end()};
}

} // namespace

std::unique_ptr<qxSceneFile::Content>
qxSceneFile::Content::load(const QString &path, QStringList &warnings, const StepListener &listener)
{
    listener(Reading);
    qxGltfModel model = qxGltfModel::read(path);
    qxGltfScene scene;
    listener(Materials);
    scene.materials = qxGltfMaterials(model);
    listener(Building);
    qxGltfBuildScene(model, scene);
    model.forgetDecoded();
    auto content = std::make_unique<Content>();
    content->info = infoOf(model);
    content->scene = model.sceneIndex();
    content->variants = qxGltfVariantsIn(model.document.json, content->scene);
    for (const qxGltfMaterialRef &material : scene.materials) {
        content->materials.push_back(
            qxGltfMaterialState::of(osg::SimpleMaterialPtr::dcast(material.get())));
    }
    content->mapped = scene.mapped;
    const std::vector<osg::NodePtr> roots(scene.roots.begin(), scene.roots.end());
    const std::vector<osg::NodePtr> overlays(scene.overlays.begin(), scene.overlays.end());
    content->before = qxGltfState::of(roots, overlays, scene.environment.get(), scene.origin);
    content->materialVariants = scene.variants;
    content->origin = scene.origin;
    listener(Showing);
    scene.show();
    content->viewpoints = qxUberCameraPool::the()->count();
    content->loaded = qxGltfSwitchMaterialUse::of(content->before, content->origin);
    content->bufferFiles = stampsOf(model);
    content->note(path, model.document.stamp);
    content->document = std::move(model.document);
    content->buffers = std::move(model.buffers);
    content->budget = model.budget;
    warnings = model.warnings;
    return content;
}

qxGltfEdited qxSceneFile::Content::edited() const
{
    qxGltfEdited result;
    qxJson &json = result.json;
    json = document.json;
    qxGltfState &after = result.state;
    after =
        qxGltfState::of(childrenOf(qxScenegraph::getRoot()), childrenOf(qxOverlays::getPoolRoot()),
                        qxScenegraph::environmentGeometrySwitch(), origin);
    qxGltfMaterialPatch materialPatch(json, origin, materials);
    materialPatch.writePool();
    const qxGltfSwitchMaterialUse use = qxGltfSwitchMaterialUse::of(after, origin);
    materialPatch.writeSwitches(loaded, mapped, use);
    materialPatch.writeGeometries(after, use);
    const std::vector<int> meshes = qxGltfMeshPatch(json, origin, materialPatch).write(after);
    materialPatch.settleNames();
    result.materials = materialPatch.places();
    result.nodes = qxGltfPatch(json, before, after).write(meshes, scene);
    qxGltfKeepViewpoints(json, origin, after);
    qxGltfAddViewpoints(json, scene, viewpoints);
    if (qxGltfSection(document.json, "scenes").empty() && !qxGltfSection(json, "scenes").empty())
        qxGltfSetExtra(json, qxGltfKeys::variants, qxJson()); // a scene holds it from now on
    qxGltfSetVariants(json, scene, variants);
    for (std::size_t i = 0; i < bufferFiles.size(); ++i) {
        if (!bufferFiles[i].isUpToDate())
            json["buffers"][i]["uri"] = qxGltfDataUriOf(buffers[i]);
    }
    return result;
}

bool qxSceneFile::Content::isBufferOutdated() const
{
    return std::any_of(bufferFiles.begin(), bufferFiles.end(),
                       [](const qxFileStamp &stamp) { return !stamp.isUpToDate(); });
}

qxFilePlace qxSceneFile::Content::partOf(const osg::NodePtr &node) const
{
    const osg::NodePtr above = node->getParent();
    const auto part = node->getCore() == osg::NullFC
        ? origin.geometries.end()
        : origin.geometries.find(node->getCore().getFieldContainerId());
    if (above == osg::NullFC || part == origin.geometries.end())
        return {};
    const auto owner = origin.nodes.find(above.getFieldContainerId());
    const bool isOwn = owner != origin.nodes.end()
        && qxGltfIndex(document.json["nodes"][std::size_t(owner->second)], "mesh")
            == part->second.mesh;
    return isOwn ? qxFilePlace{owner->second, part->second.primitive} : qxFilePlace();
}

void qxSceneFile::Content::note(const QString &path, const qxFileStamp &stamp)
{
    if (!QFileInfo(path).isFile())
        return;
    for (const QString &name : namesOf(path))
        known[name] = stamp;
}

qxSceneFile::qxSceneFile() : m_content(std::make_unique<Content>()) {}

qxSceneFile::~qxSceneFile() = default;

bool qxSceneFile::attempt(const QString &path, const std::function<void()> &work)
{
    m_warnings.clear();
    m_error = qxGltfAttempt(path, work);
    return m_error.isEmpty();
}

bool qxSceneFile::load(const QString &path, const StepListener &listener)
{
    return attempt(path, [&] { m_content = Content::load(path, m_warnings, listener); });
}

bool qxSceneFile::save(const QString &path)
{
    return save(path, qxEmbeddedFiles());
}

bool qxSceneFile::save(const QString &path, const qxEmbeddedFiles &files)
{
    return attempt(path, [&] {
        qxGltfOutput output(m_content->document, path, qxGltfOutput::isBinary(path));
        const auto note = qScopeGuard([&] {
            m_warnings += output.warnings();
            if (output.isReplaced())
                m_content->note(path, qxFileStamp(path, output.sum()));
        });
        const bool isOutdated = m_content->isBufferOutdated();
        output.write(m_content->edited().json, m_content->buffers, files);
        m_content->hasTakenIn = isOutdated;
        if (m_content->hasTakenIn)
            m_warnings << qxFileText::tr("buffers whose files have changed on the disk stand in "
                                         "the scene file now, as they were loaded");
    });
}

QString qxSceneFile::makeExport(const qxExportOptions &options, qxExport &result) const
{
    return qxGltfAttempt(m_content->document.path, [&] {
        const qxGltfEdited edited = m_content->edited();
        qxGltfModel model = qxGltfModel::of(m_content->document, edited.json, m_content->buffers);
        result = qxGltfExporter(model, edited, m_content->origin, options).make();
    });
}

bool qxSceneFile::isChangedByOthers(const QString &path) const
{
    if (!QFileInfo(path).isFile())
        return false;
    bool isKnown = false;
    for (const QString &name : namesOf(path)) {
        const auto known = m_content->known.constFind(name);
        if (known == m_content->known.constEnd())
            continue;
        if (!known->isUpToDate())
            return true;
        isKnown = true;
    }
    return isKnown && !m_content->hasTakenIn && qxGltfOutput::isBeside(m_content->document, path)
        && m_content->isBufferOutdated();
}

QString qxSceneFile::errorString() const
{
    return m_error;
}

QStringList qxSceneFile::warnings() const
{
    return m_warnings;
}

QByteArray qxSceneFile::variantsDocument() const
{
    return m_content->variants;
}

void qxSceneFile::setVariantsDocument(const QByteArray &document)
{
    m_content->variants = document;
}

bool qxSceneFile::hasRoomFor(const QByteArray &document)
{
    return attempt(m_content->document.path,
                   [&] { qxMemoryBudget(m_content->budget).takeDocument(document); });
}

std::vector<qxSceneVariant> qxSceneFile::materialVariants() const
{
    return m_content->materialVariants;
}

qxSceneFileInfo qxSceneFile::info() const
{
    return m_content->info;
}

qxFilePlace qxSceneFile::placeOf(const osg::NodePtr &node) const
{
    const qxGltfOrigin &origin = m_content->origin;
    for (const auto *list : {&origin.nodes, &origin.uppers}) {
        const auto found = list->find(node.getFieldContainerId());
        if (found != list->end())
            return {found->second, -1};
    }
    return m_content->partOf(node);
}

std::optional<int> qxSceneFile::materialOf(const osg::MaterialPtr &material) const
{
    if (material == osg::NullFC)
        return -1;
    const auto found = m_content->origin.materials.find(material.getFieldContainerId());
    return found == m_content->origin.materials.end() ? std::nullopt
                                                      : std::optional<int>(found->second);
}

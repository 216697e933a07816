#include "Files/Gltf/Read/qxGltfModel.h"

#include "Files/Gltf/Common/qxGltfUri.h"
#include "Files/Gltf/Common/qxGltfVariants.h"
#include "Files/Gltf/Read/qxGltfCheck.h"
#include "Files/Gltf/Read/qxGltfExtensions.h"
#include "Files/Gltf/Read/qxGltfMeshopt.h"
#include "qxText.h"

namespace {

/// Of a node, a material and the like with all that is kept to tell what changed.
const qint64 _bytesPerEntry = 2000;
/// Of a node that shows a part of a mesh.
const qint64 _bytesPerPart = 600;

/// What the typed reader is asked for. Data, pictures and what the host does not show are not its
/// business: they are resolved elsewhere or stay as they are.
qxJson shownPart(const qxJson &document)
{
    qxJson part = {{"asset", document.at("asset")}};
    for (const char *name :
         {"bufferViews", "accessors", "meshes", "materials", "textures", "cameras", "nodes"}) {
        if (!qxGltfSection(document, name).empty())
            part[name] = document.at(name);
    }
    // It would refuse those that are compressed or sparse.
    if (part.contains("meshes")) {
        for (qxJson &mesh : part["meshes"]) {
            for (qxJson &primitive : mesh["primitives"])
                primitive.erase("indices");
        }
    }
    return part;
}

void parse(const qxJson &document, tinygltf::Model &model)
{
    const std::string text = shownPart(document).dump();
    tinygltf::TinyGLTF reader;
    std::string error;
    std::string warning;
    if (reader.LoadASCIIFromString(&model, &error, &warning, text.data(), unsigned(text.size()), "",
                                   tinygltf::NO_REQUIRE))
        return;
    throw qxGltfError(qxText::fromUtf8(error).simplified());
}

qint64 parts(const qxJson &mesh)
{
    return qint64(qxGltfSection(mesh, "primitives").size());
}

/// Takes what the nodes and all else that the lists hold become. A mesh is shown by a node of its
/// own for each of its parts, below each node that refers to it.
void takeStructure(const qxJson &document, qxMemoryBudget &budget)
{
    for (const auto &[name, section] : document.items()) {
        if (section.is_array())
            budget.take(qxText::fromUtf8(name), qint64(section.size()), _bytesPerEntry);
    }
    const qxJson &meshes = qxGltfSection(document, "meshes");
    for (std::size_t i = 0; i < meshes.size(); ++i)
        budget.take(qxGltfLabel("mesh", int(i), meshes[i]), parts(meshes[i]), _bytesPerEntry);
    const qxJson &nodes = qxGltfSection(document, "nodes");
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        const int mesh = qxGltfIndex(nodes[i], "mesh");
        if (mesh >= 0)
            budget.take(qxGltfLabel("node", int(i), nodes[i]), parts(meshes[std::size_t(mesh)]),
                        _bytesPerPart);
    }
}

} // namespace

qxGltfModel qxGltfModel::read(const QString &path)
{
    qxGltfModel model;
    model.document = qxGltfDocument::read(path, model.budget);
    qxGltfCheck(model.document.json);
    takeStructure(model.document.json, model.budget);
    model.buffers = qxGltfReadBuffers(model.document, model.budget, model.warnings);
    model.decode();
    const QStringList missing = qxGltfNotUnderstood(model.document.json, "extensionsRequired");
    if (!missing.isEmpty())
        model.warnings
            << qxFileText::tr("what needs the extension %1 is not shown").arg(missing.join(", "));
    return model;
}

qxGltfModel qxGltfModel::of(const qxGltfDocument &document, const qxJson &edited,
                            const std::vector<QByteArray> &buffers)
{
    qxGltfModel model;
    model.budget = qxMemoryBudget();
    model.document = document;
    model.document.json = edited;
    model.buffers = buffers;
    const qxJson &stated = qxGltfSection(edited, "buffers");
    for (std::size_t i = buffers.size(); i < stated.size(); ++i)
        model.buffers.push_back(
            qxGltfDataOf(stated[i]["uri"].get_ref<const std::string &>(), model.budget));
    model.decode();
    return model;
}

void qxGltfModel::decode()
{
    parse(document.json, typed);
    decodedViews = qxGltfDecodedViews(document.json, buffers, budget, warnings);
}

int qxGltfModel::sceneIndex() const
{
    return qxGltfShownScene(document.json);
}

const qxJson &qxGltfModel::scene() const
{
    static const qxJson none;
    const int index = sceneIndex();
    return index < 0 ? none : document.json["scenes"][std::size_t(index)];
}

std::vector<int> qxGltfModel::roots() const
{
    std::vector<int> roots;
    if (sceneIndex() >= 0) {
        for (const qxJson &root : qxGltfMember(scene(), "nodes"))
            roots.push_back(root.get<int>());
        return roots;
    }
    std::vector<bool> isChild(typed.nodes.size(), false);
    for (const tinygltf::Node &node : typed.nodes) {
        for (const int child : node.children)
            isChild[std::size_t(child)] = true;
    }
    for (std::size_t i = 0; i < isChild.size(); ++i) {
        if (!isChild[i])
            roots.push_back(int(i));
    }
    return roots;
}

const qxJson &qxGltfModel::node(int index) const
{
    return document.json["nodes"][std::size_t(index)];
}

QByteArray qxGltfModel::bytesOfView(int index) const
{
    const auto decoded = decodedViews.find(index);
    if (decoded != decodedViews.end())
        return decoded->second;
    const tinygltf::BufferView &view = typed.bufferViews[std::size_t(index)];
    const QByteArray &buffer = buffers[std::size_t(view.buffer)];
    if (buffer.isNull())
        return QByteArray();
    return QByteArray::fromRawData(buffer.constData() + view.byteOffset, int(view.byteLength));
}

bool qxGltfModel::isOptional(const char *extension) const
{
    return !qxGltfExtensionNames(document.json, "extensionsRequired")
                .contains(QLatin1String(extension));
}

void qxGltfModel::forgetDecoded()
{
    for (const auto &view : decodedViews)
        budget.giveBack(view.second.size());
    decodedViews.clear();
}

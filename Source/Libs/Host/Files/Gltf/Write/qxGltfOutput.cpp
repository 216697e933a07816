#include "Files/Gltf/Write/qxGltfOutput.h"

#include "Files/Gltf/Common/qxGltfExtras.h"
#include "Files/Gltf/Common/qxGltfFiles.h"
#include "Files/Gltf/Common/qxGltfUri.h"
#include "Files/qxMemoryBudget.h"
#include "Files/qxSystemCall.h"
#include "Light/qxLightPictureReader.h"
#include "qxText.h"

#include <QDir>
#include <QFileInfo>
#include <QMimeDatabase>

#include <system_error>

namespace {

bool holds(const QString &path, const QByteArray &bytes)
{
    qxMemoryBudget budget;
    const QFileInfo file(path);
    return file.isFile() && file.size() == bytes.size() && qxGltfReadFile(path, budget) == bytes;
}

/// A scene may name any file that lies beside it. What programs look for by hidden names, such as
/// what they start with, does not get such a name by a copy.
QString visibleName(const QString &path)
{
    QStringList parts = path.split('/');
    for (QString &part : parts) {
        if (part.startsWith('.'))
            part[0] = '_';
    }
    return parts.join('/');
}

bool isFile(const qxJson &entry)
{
    const qxJson &uri = qxGltfMember(entry, "uri");
    return uri.is_string() && !qxGltfIsDataUri(uri.get_ref<const std::string &>());
}

bool isPicture(const QByteArray &bytes)
{
    try {
        return QMimeDatabase().mimeTypeForData(bytes).name().startsWith("image/")
            || !qxLightPictureSize(bytes).isEmpty();
    } catch (const qxGltfError &) {
        return false;
    }
}

/// A place in the JSON that names a file beside the scene.
template <class Json>
struct Named {
    Json *holder;
    const char *key;
    QString label;

    const std::string &uri() const
    {
        return holder->at(key).template get_ref<const std::string &>();
    }
};

/// The pictures of images and environments.
template <class Json>
std::vector<Named<Json>> picturesOf(Json &json)
{
    std::vector<Named<Json>> result;
    for (std::size_t i = 0; i < qxGltfSection(json, "images").size(); ++i) {
        Json &image = json["images"][i];
        if (isFile(image))
            result.push_back({&image, "uri", qxGltfLabel("image", int(i), image)});
    }
    for (std::size_t i = 0; i < qxGltfSection(json, "nodes").size(); ++i) {
        Json &node = json["nodes"][i];
        const char *const key = qxGltfKeys::environmentPicture;
        const qxJson &uri = qxGltfMember(qxGltfMember(node, "extras"), key);
        if (uri.is_string() && !qxGltfIsDataUri(uri.get_ref<const std::string &>()))
            result.push_back({&node["extras"], key, qxGltfLabel("node", int(i), node)});
    }
    return result;
}

/// Makes the folder of the file and those around it. Once the names of the new ones are on the
/// disk, true; else false with the reason in errno.
bool makeFolder(const QString &path)
{
    const QString folder = QFileInfo(path).absolutePath();
    if (QFileInfo::exists(folder))
        return true;
    return makeFolder(folder) && QDir().mkdir(folder)
        && qxSystemCall::syncFolder(QFile::encodeName(QFileInfo(folder).absolutePath()));
}

} // namespace

qxGltfOutput::qxGltfOutput(const qxGltfDocument &document, const QString &path, bool binary)
    : m_document(document), m_path(path), m_binary(binary), m_bin(document.bin)
{
}

bool qxGltfOutput::isBinary(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix != "gltf" && suffix != "glb")
        throw qxGltfError(qxFileText::tr("scene files end in .gltf or .glb"));
    return suffix == "glb";
}

void qxGltfOutput::write(qxJson json, const std::vector<QByteArray> &buffers,
                         const qxEmbeddedFiles &files)
{
    refuseOwnFiles();
    if (m_binary && !m_document.binary)
        packFirstBuffer(json, buffers);
    if (!isBeside(m_document, m_path)) {
        copyBuffers(json, buffers);
        copyPictures(json);
    }
    if (!m_binary && m_document.binary)
        unpackFirstBuffer(json);
    const qxFileContent text = files.in(m_document.textOf(json));
    m_files.emplace_back(m_path,
                         m_binary ? qxGltfPackBinary(text, m_bin, m_document.moreChunks) : text);
    commit();
}

bool qxGltfOutput::isBeside(const qxGltfDocument &document, const QString &path)
{
    return document.path.isEmpty()
        || QFileInfo(document.folder()).canonicalFilePath()
        == QFileInfo(qxGltfFolderOf(path)).canonicalFilePath();
}

/// Buffers and pictures may have any name, also that of a scene file.
void qxGltfOutput::refuseOwnFiles() const
{
    const QDir folder(m_document.folder());
    const auto check = [&](const std::string &uri) {
        const QString name = qxGltfRelativePath(uri);
        if (!name.isEmpty() && qxOutputFile::isSame(folder.filePath(name), m_path))
            fail(m_path, qxFileText::tr("it is a file that the scene uses"));
    };
    for (const std::string &uri : filesOf(m_document.json))
        check(uri);
}

std::vector<std::string> qxGltfOutput::filesOf(const qxJson &json)
{
    std::vector<std::string> files;
    for (const qxJson &buffer : qxGltfSection(json, "buffers")) {
        if (isFile(buffer))
            files.push_back(buffer["uri"].get_ref<const std::string &>());
    }
    for (const Named<const qxJson> &picture : picturesOf(json))
        files.push_back(picture.uri());
    return files;
}

/// The first buffer becomes the BIN chunk.
void qxGltfOutput::packFirstBuffer(qxJson &json, const std::vector<QByteArray> &buffers)
{
    if (buffers.empty() || buffers[0].isNull())
        return;
    json["buffers"][0].erase("uri");
    m_bin = buffers[0];
}

/// The BIN chunk becomes a file of its own.
void qxGltfOutput::unpackFirstBuffer(qxJson &json)
{
    if (!m_document.moreChunks.isEmpty())
        m_warnings << qxFileText::tr("a .gltf has no place for the further chunks of the .glb");
    const qxJson &buffers = qxGltfSection(json, "buffers");
    if (m_bin.isNull() || buffers.empty() || buffers[0].contains("uri"))
        return;
    const QByteArray bytes = m_bin.left(buffers[0]["byteLength"].get<int>());
    const QString name = place(QFileInfo(m_path).completeBaseName() + ".bin", bytes);
    json["buffers"][0]["uri"] = qxGltfUriOf(name);
}

/// The content is what was read from the files, as far as the scene says that it is its.
void qxGltfOutput::copyBuffers(qxJson &json, const std::vector<QByteArray> &buffers)
{
    for (std::size_t i = 0; i < buffers.size(); ++i) {
        if (isFile(json["buffers"][i]) && !buffers[i].isNull())
            copy(json["buffers"][i], "uri", buffers[i]);
    }
}

void qxGltfOutput::copyPictures(qxJson &json)
{
    qxMemoryBudget budget(qxMemoryBudget::limit());
    for (const Named<qxJson> &picture : picturesOf(json)) {
        try {
            const QByteArray bytes = qxGltfReadUri(m_document, picture.uri(), budget);
            if (!isPicture(bytes))
                throw qxGltfError(qxFileText::tr("it is no picture"));
            copy(*picture.holder, picture.key, bytes);
        } catch (const qxGltfError &error) {
            m_warnings << qxFileText::tr("%1 is not copied: %2").arg(picture.label, error.reason());
        }
    }
}

void qxGltfOutput::copy(qxJson &holder, const char *key, const QByteArray &bytes)
{
    const QString wanted = qxGltfRelativePath(holder[key].get_ref<const std::string &>());
    const QString name = place(visibleName(wanted), bytes);
    if (name == wanted)
        return;
    holder[key] = qxGltfUriOf(name);
    m_warnings << qxFileText::tr("the copy of \"%1\" is called \"%2\"").arg(wanted, name);
}

/// Plans a file beside the scene, under another name when the wanted one is taken.
QString qxGltfOutput::place(const QString &wanted, const QByteArray &bytes)
{
    const QDir folder(qxGltfFolderOf(m_path));
    const QFileInfo parts(wanted);
    const QString stem = parts.path() == "." ? parts.completeBaseName()
                                             : parts.path() + '/' + parts.completeBaseName();
    QString name = wanted;
    for (int number = 1;; ++number) {
        const auto planned = m_placed.find(name);
        const QString path = folder.filePath(name);
        if (planned != m_placed.end() && planned->second == bytes)
            return name;
        if (planned == m_placed.end() && !qxOutputFile::isSame(path, m_path)
            && (!QFileInfo::exists(path) || holds(path, bytes)))
            break;
        name = QString("%1-%2.%3").arg(stem).arg(number).arg(parts.suffix());
    }
    if (!qxGltfIsInside(folder.path(), name))
        throw qxGltfError(
            qxFileText::tr("\"%1\" leads out of the folder of the scene file").arg(name));
    m_placed[name] = bytes;
    if (!QFileInfo::exists(folder.filePath(name)))
        m_files.emplace_back(folder.filePath(name), qxFileContent(bytes));
    return name;
}

void qxGltfOutput::commit()
{
    // Folders are made below the scene's own, never that itself.
    const QString flaw = qxOutputFile::flawOf(m_path);
    if (!flaw.isEmpty())
        fail(m_path, flaw);
    std::vector<std::unique_ptr<qxOutputFile>> files;
    for (const auto &file : m_files) {
        const QString &path = file.first;
        if (!makeFolder(path))
            fail(path, qxText::fromUtf8(std::generic_category().message(errno)));
        files.push_back(std::make_unique<qxOutputFile>(path));
        const auto give = [&content = file.second](const qxOutputFile::Sink &sink) {
            return content.giveTo(sink);
        };
        if (!files.back()->prepare(give))
            fail(path, files.back()->errorString());
    }
    for (const auto &file : files)
        settle(*file);
}

/// The scene file is the last one, and once it is there the others are needed.
void qxGltfOutput::settle(qxOutputFile &file)
{
    const bool isSettled = file.commit();
    const bool isScene = file.path() == m_path;
    if (isScene) {
        m_isReplaced = file.isReplaced();
        m_sum = file.sum();
    } else if (file.isReplaced()) {
        m_written << file.path();
    }
    m_warnings += file.warnings();
    if (isSettled)
        return;
    if (!m_isReplaced)
        takeBack();
    fail(file.path(), file.errorString());
}

void qxGltfOutput::takeBack() const
{
    for (const QString &path : m_written)
        QFile::remove(path);
}

/// Every message about a save begins with the path of the scene file.
void qxGltfOutput::fail(const QString &path, const QString &reason) const
{
    if (m_isReplaced)
        throw qxGltfError(reason);
    if (path == m_path)
        throw qxGltfError(qxFileText::tr("the file cannot be written: %1").arg(reason));
    throw qxGltfError(qxFileText::tr("%1 cannot be written: %2").arg(path, reason));
}

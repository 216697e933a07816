#include "Files/qxDocumentFile.h"

#include "Files/Gltf/Common/qxGltfDocument.h"
#include "Files/Gltf/Common/qxGltfFiles.h"
#include "Files/Gltf/Common/qxGltfMerge.h"
#include "Files/Gltf/Common/qxGltfUri.h"
#include "Files/Gltf/Common/qxGltfVariants.h"
#include "Files/Gltf/Read/qxGltfCheck.h"
#include "Files/Gltf/Write/qxGltfOutput.h"
#include "Files/qxMemoryBudget.h"
#include "Files/qxOutputFile.h"
#include "qxText.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QScopeGuard>
#include <QTextCodec>

#include <optional>

/// The file as it was read.
struct qxDocumentFile::Content {
    QString path;
    qxFileStamp stamp;
    bool isScene = false;
    qxGltfDocument scene; ///< of a scene file
    std::optional<qxJson> merged; ///< instead of its JSON
    bool isBinary = false; ///< whether it is written as a .glb where the suffix does not say
    qxMemoryBudget budget{qxMemoryBudget::limit()}; ///< what is left of it
    QByteArray document;

    static std::unique_ptr<Content> load(const QString &path);
    void saveScene(const QString &to, const QByteArray &variants, QStringList &warnings);
    void saveAlone(const QString &to, const QByteArray &variants, QStringList &warnings);
};

namespace {

const qint64 _streamBlock = 1 << 20;

bool hasSceneSuffix(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    return suffix == "gltf" || suffix == "glb";
}

/// Nobody knows how much comes.
QByteArray readStream(const QString &path, qxMemoryBudget &budget)
{
    QFile stream(path);
    QByteArray bytes;
    if (stream.open(QIODevice::ReadOnly)) {
        QByteArray block;
        while (!(block = stream.read(_streamBlock)).isEmpty()) {
            budget.take(block.size(), 2); // appending moves what is there
            bytes += block;
        }
    }
    if (stream.error() != QFileDevice::NoError)
        throw qxGltfError(stream.errorString());
    return bytes;
}

QByteArray readAny(const QString &path, qxMemoryBudget &budget)
{
    return qxOutputFile::isStream(path) ? readStream(path, budget) : qxGltfReadFile(path, budget);
}

/// Whether the bytes begin as a .glb or as JSON does.
bool beginsAsScene(const QByteArray &bytes)
{
    const QByteArray mark = "\xEF\xBB\xBF";
    int begin = bytes.startsWith(mark) ? mark.size() : 0;
    while (begin < bytes.size() && QByteArray(" \t\r\n").contains(bytes[begin]))
        ++begin;
    return bytes.startsWith("glTF") || (begin < bytes.size() && bytes[begin] == '{');
}

qxGltfDocument withJson(const qxGltfDocument &scene, const qxJson &json)
{
    qxGltfDocument document = scene;
    document.json = json;
    return document;
}

/// The file without its variants document.
qxGltfDocument bare(const qxGltfDocument &scene)
{
    qxJson json = scene.json;
    qxGltfSetVariants(json, qxGltfShownScene(json), QByteArray());
    return withJson(scene, json);
}

/// Refuses files of theirs that ours has not beside it.
void checkFilesBeside(const qxGltfDocument &ours, const qxGltfDocument &theirs,
                      qxMemoryBudget budget)
{
    if (qxGltfOutput::isBeside(ours, theirs.path))
        return;
    for (const std::string &uri : qxGltfOutput::filesOf(theirs.json)) {
        qxMemoryBudget left = budget;
        if (qxGltfReadUri(ours, uri, left) != qxGltfReadUri(theirs, uri, left))
            throw qxGltfError(qxFileText::tr("\"%1\" is another file beside %2")
                                  .arg(qxText::fromUtf8(uri), theirs.path));
    }
}

} // namespace

std::unique_ptr<qxDocumentFile::Content> qxDocumentFile::Content::load(const QString &path)
{
    auto content = std::make_unique<Content>();
    content->path = path;
    const QByteArray bytes = readAny(path, content->budget);
    content->stamp = qxFileStamp(path, bytes);
    content->isScene = beginsAsScene(bytes) || (!bytes.isEmpty() && hasSceneSuffix(path));
    if (content->isScene) {
        content->scene = qxGltfDocument::of(path, bytes, content->budget);
        content->isBinary = content->scene.binary;
        qxGltfCheck(content->scene.json);
        content->document =
            qxGltfVariantsIn(content->scene.json, qxGltfShownScene(content->scene.json));
    } else {
        content->document = bytes;
    }
    const QString flaw = flawOf(content->document);
    if (!flaw.isEmpty())
        throw qxGltfError(qxFileText::tr("the variants document cannot be read: %1").arg(flaw));
    qxMemoryBudget(content->budget).takeDocumentData(content->document);
    return content;
}

void qxDocumentFile::Content::saveScene(const QString &to, const QByteArray &variants,
                                        QStringList &warnings)
{
    qxJson json = merged ? *merged : scene.json;
    qxGltfSetVariants(json, qxGltfShownScene(json), variants);
    const bool binary = hasSceneSuffix(to) ? qxGltfOutput::isBinary(to) : isBinary;
    std::vector<QByteArray> buffers;
    if (binary != scene.binary || !qxGltfOutput::isBeside(scene, to))
        buffers = qxGltfReadBuffers(withJson(scene, json), budget, warnings);
    qxGltfOutput output(scene, to, binary);
    const auto note = qScopeGuard([&] {
        warnings += output.warnings();
        if (output.isReplaced() && qxOutputFile::isSame(to, path))
            stamp = qxFileStamp(path, output.sum());
    });
    output.write(json, buffers);
}

void qxDocumentFile::Content::saveAlone(const QString &to, const QByteArray &variants,
                                        QStringList &warnings)
{
    if (hasSceneSuffix(to))
        throw qxGltfError(qxFileText::tr("the file cannot be written: %1")
                              .arg(qxFileText::tr("a variants document alone is no scene")));
    qxOutputFile file(to);
    const bool isWritten = file.prepare(variants) && file.commit();
    warnings += file.warnings();
    if (file.isReplaced() && qxOutputFile::isSame(to, path))
        stamp = qxFileStamp(path, variants);
    if (!isWritten)
        throw qxGltfError(qxFileText::tr("the file cannot be written: %1").arg(file.errorString()));
}

qxDocumentFile::qxDocumentFile() : m_content(std::make_unique<Content>()) {}

qxDocumentFile::~qxDocumentFile() = default;

bool qxDocumentFile::attempt(const QString &path, const std::function<void()> &work)
{
    m_warnings.clear();
    m_error = qxGltfAttempt(path, work);
    return m_error.isEmpty();
}

bool qxDocumentFile::load(const QString &path)
{
    return attempt(path, [&] { m_content = Content::load(path); });
}

bool qxDocumentFile::isScene() const
{
    return m_content->isScene;
}

const QByteArray &qxDocumentFile::document() const
{
    return m_content->document;
}

bool qxDocumentFile::mergeScene(const qxDocumentFile &base, const qxDocumentFile &theirs,
                                bool prefersTheirs, QVector<qxSceneConflict> &conflicts)
{
    return attempt(m_content->path, [&] {
        qxGltfDocument &scene = m_content->scene;
        const qxGltfDocument &other = theirs.m_content->scene;
        const qxGltfDocument ours = bare(scene);
        const qxGltfDocument before = bare(base.m_content->scene);
        const qxGltfDocument after = bare(other);
        const qxGltfMerge merge =
            qxGltfMerge::of(base.isScene() ? &before : nullptr, ours, after, prefersTheirs);
        conflicts = merge.conflicts;
        if (merge.json == ours.json && !merge.takesData)
            return;
        checkFilesBeside(scene, other, m_content->budget);
        if (merge.takesData) {
            scene.bin = other.bin;
            scene.moreChunks = other.moreChunks;
            scene.binary = other.binary;
        }
        if (merge.json != after.json) {
            m_content->merged = merge.json;
            return;
        }
        scene.json = other.json; // as it was written
        scene.text = other.text;
    });
}

QJsonObject qxDocumentFile::sceneJson() const
{
    if (!isScene())
        return QJsonObject();
    qxJson json = m_content->scene.json;
    qxGltfSetVariants(json, qxGltfShownScene(json), QByteArray());
    return QJsonDocument::fromJson(QByteArray::fromStdString(json.dump())).object();
}

const QByteArray &qxDocumentFile::binaryChunk() const
{
    return m_content->scene.bin;
}

bool qxDocumentFile::save(const QString &path, const QByteArray &document, bool overwrites)
{
    return attempt(path, [&] {
        const bool isOurs =
            !m_content->path.isEmpty() && qxOutputFile::isSame(path, m_content->path);
        if (isOurs && !overwrites && !m_content->stamp.isUpToDate())
            throw qxGltfError(
                qxFileText::tr("the file cannot be written: %1")
                    .arg(qxFileText::tr("somebody has changed it since it was read")));
        if (m_content->isScene)
            m_content->saveScene(path, document, m_warnings);
        else
            m_content->saveAlone(path, document, m_warnings);
    });
}

QString qxDocumentFile::errorString() const
{
    return m_error;
}

QStringList qxDocumentFile::warnings() const
{
    return m_warnings;
}

QString qxDocumentFile::flawOf(const QByteArray &xml)
{
    const int nul = xml.indexOf('\0');
    if (nul >= 0)
        return qxFileText::tr("byte %1 is NUL").arg(nul);
    QTextCodec::ConverterState state;
    QTextCodec::codecForName("UTF-8")->toUnicode(xml.constData(), xml.size(), &state);
    if (state.invalidChars > 0 || state.remainingChars > 0)
        return qxFileText::tr("it is not UTF-8");
    return QString();
}

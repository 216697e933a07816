#include "Files/Gltf/Common/qxGltfDocument.h"

#include "Files/Gltf/Common/qxGltfFiles.h"
#include "Files/qxMemoryBudget.h"

#include <QtEndian>

#include <limits>
#include <vector>

namespace {

const quint32 _jsonChunk = 0x4E4F534A;
const quint32 _binChunk = 0x004E4942;
const int _chunkHeader = 8;
const int _fileHeader = 12;
const std::size_t _maxDepth = 200;
const int _maxMembers = 10000;
const int _bytesPerValue = 100; ///< of the JSON in memory, besides its texts

quint32 numberAt(const QByteArray &bytes, int offset)
{
    return qFromLittleEndian<quint32>(bytes.constData() + offset);
}

void appendNumber(QByteArray &bytes, quint32 number)
{
    char raw[4];
    qToLittleEndian(number, raw);
    bytes.append(raw, 4);
}

/// Counts the members of one object; lists have no limit.
struct Level {
    bool object = false;
    int members = 0;
};

void addMember(std::vector<Level> &levels)
{
    if (levels.empty() || !levels.back().object || ++levels.back().members < _maxMembers)
        return;
    throw qxGltfError(qxFileText::tr("an object has more than %1 members").arg(_maxMembers));
}

void openLevel(std::vector<Level> &levels, bool object)
{
    levels.push_back({object, 0});
    if (levels.size() > _maxDepth)
        throw qxGltfError(
            qxFileText::tr("the JSON is nested deeper than %1 levels").arg(_maxDepth));
}

/// The position of the quote that ends the string beginning at `begin`.
int endOfString(const QByteArray &text, int begin)
{
    int i = begin + 1;
    while (i < text.size() && text[i] != '"')
        i += text[i] == '\\' ? 2 : 1;
    return i;
}

/// Writing recurses per level and objects are searched member by member: refuses what would make
/// either take forever, and what would fill the memory, before anything is parsed.
void checkShape(const QByteArray &text, qxMemoryBudget &budget)
{
    std::vector<Level> levels;
    qint64 values = 1;
    for (int i = 0; i < text.size(); ++i) {
        const char c = text[i];
        values += c == '{' || c == '[' || c == ',';
        if (c == '"')
            i = endOfString(text, i);
        else if (c == '{' || c == '[')
            openLevel(levels, c == '{');
        else if (c == ',')
            addMember(levels);
        else if ((c == '}' || c == ']') && !levels.empty())
            levels.pop_back();
    }
    const QString called = qxFileText::tr("its JSON");
    budget.take(called, values, _bytesPerValue);
    budget.take(called, text.size(), 1);
}

qxJson parse(const QByteArray &text, qxMemoryBudget &budget)
{
    checkShape(text, budget);
    try {
        qxJson json = qxJson::parse(text.begin(), text.end());
        if (json.is_object())
            return json;
    } catch (const qxJson::exception &error) {
        const QString words = QString::fromUtf8(error.what());
        throw qxGltfError(
            qxFileText::tr("not valid JSON: %1").arg(words.mid(words.indexOf("] ") + 2)));
    }
    throw qxGltfError(qxFileText::tr("not a scene: the JSON is not an object"));
}

/// The content of the chunk at `offset`, which moves behind it.
QByteArray takeChunk(const QByteArray &bytes, int &offset, quint32 type, const char *name)
{
    const qint64 left = qint64(bytes.size()) - offset - _chunkHeader;
    if (left < 0)
        throw qxGltfError(
            qxFileText::tr("the file ends within the header of its %1 chunk").arg(name));
    const qint64 length = numberAt(bytes, offset);
    if (length > left) {
        throw qxGltfError(qxFileText::tr("the %1 chunk is cut off: %2 bytes announced, %3 there")
                              .arg(name)
                              .arg(length)
                              .arg(left));
    }
    if (numberAt(bytes, offset + 4) != type)
        throw qxGltfError(
            qxFileText::tr("the chunk at byte %1 is not the %2 chunk").arg(offset).arg(name));
    const QByteArray content = bytes.mid(offset + _chunkHeader, int(length));
    offset += _chunkHeader + int(length);
    return content;
}

void unpackBinary(const QByteArray &bytes, qxGltfDocument &document)
{
    if (bytes.size() < _fileHeader)
        throw qxGltfError(qxFileText::tr("the file ends within its header"));
    if (numberAt(bytes, 4) != 2)
        throw qxGltfError(
            qxFileText::tr("container version %1 instead of 2").arg(numberAt(bytes, 4)));
    if (numberAt(bytes, 8) != quint32(bytes.size())) {
        throw qxGltfError(qxFileText::tr("the header says %1 bytes, the file has %2")
                              .arg(numberAt(bytes, 8))
                              .arg(bytes.size()));
    }
    int offset = _fileHeader;
    document.binary = true;
    document.text = takeChunk(bytes, offset, _jsonChunk, "JSON");
    const bool more = offset < bytes.size();
    if (more && (bytes.size() - offset < _chunkHeader || numberAt(bytes, offset + 4) == _binChunk))
        document.bin = takeChunk(bytes, offset, _binChunk, "BIN");
    document.moreChunks = bytes.mid(offset);
}

void appendChunk(qxFileContent &file, quint32 type, const qxFileContent &content, char padding)
{
    const int missing = int((4 - content.size() % 4) % 4);
    QByteArray header;
    appendNumber(header, quint32(content.size() + missing));
    appendNumber(header, type);
    file.append(header);
    file.append(content);
    file.append(QByteArray(missing, padding));
}

/// The white space in front of the first member tells how the file is indented.
QByteArray firstIndent(const QByteArray &text)
{
    const int begin = text.indexOf('\n') + 1;
    int end = begin;
    while (begin > 0 && end < text.size() && (text[end] == ' ' || text[end] == '\t'))
        ++end;
    return text.mid(begin, end - begin);
}

} // namespace

qxFileContent qxGltfPackBinary(const qxFileContent &text, const QByteArray &bin,
                               const QByteArray &moreChunks)
{
    const qint64 size = text.size() + bin.size() + moreChunks.size() + 64;
    if (size > std::numeric_limits<int>::max())
        throw qxGltfError(qxFileText::tr("the scene is too large for one .glb file"));
    qxFileContent chunks;
    appendChunk(chunks, _jsonChunk, text, ' ');
    if (!bin.isNull())
        appendChunk(chunks, _binChunk, qxFileContent(bin), '\0');
    chunks.append(moreChunks);
    QByteArray header = "glTF";
    appendNumber(header, 2);
    appendNumber(header, quint32(_fileHeader + chunks.size()));
    qxFileContent file(header);
    file.append(chunks);
    return file;
}

qxGltfDocument qxGltfDocument::read(const QString &path, qxMemoryBudget &budget)
{
    return of(path, qxGltfReadFile(path, budget), budget);
}

qxGltfDocument qxGltfDocument::of(const QString &path, const QByteArray &bytes,
                                  qxMemoryBudget &budget)
{
    qxGltfDocument document;
    document.path = path;
    document.stamp = qxFileStamp(path, bytes);
    if (bytes.startsWith("glTF"))
        unpackBinary(bytes, document);
    else
        document.text = bytes;
    document.json = parse(document.text, budget);
    return document;
}

qxGltfDocument qxGltfDocument::empty()
{
    qxGltfDocument document;
    document.json = {{"asset", {{"version", "2.0"}, {"generator", "qxVariants Workbench"}}},
                     {"scene", 0},
                     {"scenes", qxJson::array({qxJson::object()})}};
    return document;
}

QString qxGltfDocument::folder() const
{
    return qxGltfFolderOf(path);
}

QByteArray qxGltfDocument::textOf(const qxJson &edited) const
{
    if (!text.isEmpty() && edited == json)
        return text;
    const QByteArray indent = text.isEmpty() ? QByteArray("    ") : firstIndent(text);
    const int width = indent.isEmpty() ? -1 : indent.size();
    const char filler = indent.isEmpty() ? ' ' : indent[0];
    return QByteArray::fromStdString(
        edited.dump(width, filler, false, qxJson::error_handler_t::replace));
}

#include "qxSyntaxTreeReader.h"

#include "qxControlCharacters.h"

#include <QCryptographicHash>

#include <algorithm>

namespace {

const QString nameAttribute = QStringLiteral("name");

QString below(const QString &parent, const QString &tag, int ordinal)
{
    return QStringLiteral("%1/%2[%3]").arg(parent, tag).arg(ordinal);
}

/// The path of an element that is known by its name as well.
QString namedPath(const QString &parent, const QString &tag, int ordinal, const QString &name)
{
    return below(parent, tag, ordinal) + QStringLiteral(" \"%1\"").arg(name);
}

const QString root = QStringLiteral("Variants");
const QString setTag = QStringLiteral("VariantSet");
const QString groupTag = QStringLiteral("VariantGroup");
/// Elements that are somebody else's and are passed over.
const QStringList reserved{QStringLiteral("KeloNodeVariant"),
                           QStringLiteral("KeloMaterialVariant")};
const QString hotkeyTag = QStringLiteral("Hotkey");

/// The element of each list of names, and the attribute that holds the name.
struct NameTag {
    const char *tag;
    const char *attribute;
};

const NameTag nameTags[qxNameLists] = {{"ViewpointRef", "ref"},
                                       {"AnimationRef", "ref"},
                                       {"GeometryRef", "ref"},
                                       {"TargetName", "name"}};

/// The place of `tag` in the table; -1 for another element.
int nameListOf(const QString &tag)
{
    for (int i = 0; i < qxNameLists; ++i) {
        if (tag == QLatin1String(nameTags[i].tag))
            return i;
    }
    return -1;
}

} // namespace

qxSyntaxTreeReader::qxSyntaxTreeReader(const QByteArray &document, qxSyntaxTree &tree,
                                       qxFindingList &findings)
    : m_xml(qxControlCharacters::replaced(document, m_forbidden)), m_tree(tree),
      m_findings(findings)
{
    if (m_forbidden >= 0)
        noteForbidden(document);
    // The document's own reader knows no name spaces either.
    m_xml.setNamespaceProcessing(false);
}

void qxSyntaxTreeReader::noteForbidden(const QByteArray &document)
{
    const QByteArray before = document.left(m_forbidden);
    const QString inLine = QString::fromUtf8(before.mid(before.lastIndexOf('\n') + 1));
    add(qxCode::ForbiddenCharacter, QStringLiteral("XML forbids this character; saving drops it"),
        QString(), {1 + before.count('\n'), 1 + inLine.size(), 0});
}

void qxSyntaxTreeReader::read()
{
    if (m_xml.readNextStartElement()) {
        eachChild([this](const QString &tag, const qxSourceLocation &location) {
            const qxVariantKind *kind = qxVariantKinds::by(&qxVariantKind::tag, tag);
            if (tag == groupTag)
                readGroup(location);
            else if (tag == setTag)
                readSet(root, location);
            else if (kind)
                readVariant(kind, location);
            else if (reserved.contains(tag))
                m_xml.skipCurrentElement();
            else
                skipUnknown(below(root, tag, location.ordinal), location);
        });
    }
    while (!m_xml.atEnd())
        m_xml.readNext();
    m_tree.isWhole = !m_xml.hasError();
    if (m_tree.isWhole)
        return;
    const qxSourceLocation location{int(m_xml.lineNumber()), int(m_xml.columnNumber()) + 1, 0};
    add(qxCode::UnreadableDocument, m_xml.errorString(), QString(), location);
}

void qxSyntaxTreeReader::readGroup(const qxSourceLocation &location)
{
    if (refuseNameless(below(root, groupTag, location.ordinal), location))
        return;
    const std::size_t index = m_tree.groups.size();
    const QString name = attribute(nameAttribute);
    const QString path = namedPath(root, groupTag, location.ordinal, name);
    m_tree.groups.push_back({name, path, location, 0});
    const QString visible = QStringLiteral("visible");
    if (has(visible))
        checkWord(attribute(visible), visible, location, path);
    eachChild([&](const QString &tag, const qxSourceLocation &child) {
        if (tag != setTag)
            skipUnknown(below(path, tag, child.ordinal), child);
        else if (readSet(path, child))
            ++m_tree.groups[index].sets;
    });
}

bool qxSyntaxTreeReader::readSet(const QString &parent, const qxSourceLocation &location)
{
    if (refuseNameless(below(parent, setTag, location.ordinal), location))
        return false;
    qxSyntaxTreeSet set;
    set.name = attribute(nameAttribute);
    set.path = namedPath(parent, setTag, location.ordinal, set.name);
    set.location = location;
    set.defaultViewpoint = attribute(QStringLiteral("default-viewpoint"));
    set.script = {attribute(QStringLiteral("script")), set.path, location};
    QCryptographicHash hash(QCryptographicHash::Md5);
    digestText(hash, set.defaultViewpoint);
    digestText(hash, set.script.text);
    m_hash = &hash;
    eachChild(
        [&](const QString &tag, const qxSourceLocation &child) { readSetChild(set, tag, child); });
    m_hash = nullptr;
    set.digest = hash.result();
    m_tree.sets.push_back(std::move(set));
    return true;
}

void qxSyntaxTreeReader::readSetChild(qxSyntaxTreeSet &set, const QString &tag,
                                      const qxSourceLocation &location)
{
    const auto path = [&] { return below(set.path, tag, location.ordinal); };
    if (tag == hotkeyTag) {
        set.hotkey = {elementText(), QString(), location};
        return;
    }
    if (tag == QLatin1String("Preview"))
        return readPreview(path(), location);
    digest(*m_hash, tag);
    const qxVariantKind *kind = qxVariantKinds::by(&qxVariantKind::referenceTag, tag);
    const int list = nameListOf(tag);
    if (kind) {
        set.references.push_back(
            {kind, attribute(QStringLiteral("ref")), attribute(QStringLiteral("state")), location});
        m_xml.skipCurrentElement();
    } else if (list >= 0) {
        const QString name = attribute(QString::fromLatin1(nameTags[list].attribute));
        set.names[std::size_t(list)].push_back({name, QString(), location});
        m_xml.skipCurrentElement();
    } else if (tag == QLatin1String("MaterialSnapshot")) {
        set.snapshots.push_back({attribute(QStringLiteral("nodePath")),
                                 attribute(QStringLiteral("materialName")), location});
        m_xml.skipCurrentElement();
    } else if (tag == QLatin1String("InclInfo")) {
        checkNumbers(location, path());
        set.inclNodes = attribute(QStringLiteral("inclNodes")).toInt() != 0;
        m_xml.skipCurrentElement();
    } else if (tag == QLatin1String("Analyzer")) {
        checkNumbers(location, path());
        set.clipState = attribute(QStringLiteral("clipState")).toInt();
        m_xml.skipCurrentElement();
    } else {
        readTexts(set, tag, {QString(), path(), location});
    }
}

void qxSyntaxTreeReader::readTexts(qxSyntaxTreeSet &set, const QString &tag,
                                   const qxSyntaxTreeText &entry)
{
    const QString &path = entry.more;
    const bool isValue = tag == QLatin1String("Value");
    const bool isWord = tag == QLatin1String("SequentialAnimation");
    if (!isValue && !isWord && tag != QLatin1String("Script"))
        return skipUnknown(path, entry.location);
    if (isValue && !has(nameAttribute))
        add(qxCode::ValueWithoutName, QStringLiteral("a value without a name is skipped"), path,
            entry.location);
    const QString text = elementText();
    digestText(*m_hash, text);
    if (isWord && !text.isEmpty())
        checkWord(text, tag, entry.location, path);
    else if (!isValue && !isWord)
        set.script = {text, path, entry.location};
}

void qxSyntaxTreeReader::readPreview(const QString &path, const qxSourceLocation &location)
{
    m_xml.readNext();
    while (m_xml.isCharacters() && !m_xml.isCDATA() && m_xml.isWhitespace())
        m_xml.readNext();
    const bool isPicture = m_xml.isCDATA();
    if (!m_xml.isEndElement()) {
        if (m_xml.isStartElement())
            m_xml.skipCurrentElement();
        m_xml.skipCurrentElement();
    }
    if (!isPicture)
        add(qxCode::PreviewWithoutPicture,
            QStringLiteral("a preview that is no CDATA section is skipped"), path, location);
}

void qxSyntaxTreeReader::readVariant(const qxVariantKind *kind, const qxSourceLocation &location)
{
    const QString ownTag = kind->tag;
    if (refuseNameless(below(root, ownTag, location.ordinal), location))
        return;
    qxSyntaxTreeVariant variant;
    variant.kind = kind;
    variant.name = attribute(nameAttribute);
    variant.base = attribute(QStringLiteral("base"));
    variant.path = namedPath(root, ownTag, location.ordinal, variant.name);
    variant.location = location;
    eachChild([&](const QString &tag, const qxSourceLocation &child) {
        if (tag == QLatin1String("State"))
            return readOption(variant, child);
        if (tag != QLatin1String("Default"))
            return skipUnknown(below(variant.path, tag, child.ordinal), child);
        variant.standard = {attribute(QStringLiteral("ref")), QString(), child};
        m_xml.skipCurrentElement();
    });
    m_tree.variants.push_back(std::move(variant));
}

void qxSyntaxTreeReader::readOption(qxSyntaxTreeVariant &variant, const qxSourceLocation &location)
{
    qxSyntaxTreeOption option{attribute(nameAttribute), {}, location};
    const QString path = below(variant.path, QStringLiteral("State"), location.ordinal);
    eachChild([&](const QString &tag, const qxSourceLocation &child) {
        if (tag == hotkeyTag)
            option.hotkey = {elementText(), QString(), location};
        else
            skipUnknown(below(path, tag, child.ordinal), child);
    });
    variant.options.push_back(std::move(option));
}

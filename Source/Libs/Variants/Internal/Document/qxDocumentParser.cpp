#include "Internal/Document/qxDocumentParser.h"

#include "Internal/Document/qxDocumentNames.h"

#include <QHash>
#include <QStringList>

namespace names = qxDocumentNames;

namespace {

/// Elements that are somebody else's and are passed over.
const QStringList reserved{QStringLiteral("KeloNodeVariant"),
                           QStringLiteral("KeloMaterialVariant")};

/// The list of names that an element belongs to; -1 for another element.
int nameListOf(const QString &tag)
{
    static const QHash<QString, int> lists = [] {
        QHash<QString, int> result;
        for (const names::NameElement &each : names::nameElements)
            result.insert(each.tag, result.size());
        return result;
    }();
    return lists.value(tag, -1);
}

} // namespace

QString qxDocumentParser::Place::path() const
{
    if (!parent)
        return tag;
    QString path = QStringLiteral("%1/%2[%3]").arg(parent->path(), tag).arg(location.ordinal);
    if (!name.isEmpty())
        path += QStringLiteral(" \"%1\"").arg(name);
    return path;
}

qxDocumentParser::qxDocumentParser(qxElementCursor &cursor,
                                   const qxDocument::FlawListener *listener)
    : m_cursor(cursor), m_listener(listener)
{
}

void qxDocumentParser::readDocument(qxDocument &document)
{
    const Place root{nullptr, names::Variants, {}, {}};
    eachChild(root, [&](const Place &place) { readRootChild(document, place); });
}

void qxDocumentParser::readRootChild(qxDocument &document, const Place &place)
{
    const qxVariantKind *kind = qxVariantKinds::by(&qxVariantKind::tag, place.tag);
    const bool isSet = place.tag == names::VariantSet;
    if (!kind && !isSet && place.tag != names::VariantGroup) {
        if (reserved.contains(place.tag))
            m_cursor.pass();
        else
            passUnknown(place);
    } else if (!refuseNameless(place)) {
        if (kind)
            document.variants.push_back(variant(*kind, place));
        else if (isSet)
            document.sets.push_back(set(place));
        else
            readGroup(document, place);
    }
}

void qxDocumentParser::readGroup(qxDocument &document, const Place &place)
{
    const int index = int(document.groups.size());
    document.groups.push_back(groupHead(place));
    Place inside = place;
    inside.name = document.groups.back().name;
    eachChild(inside, [&](const Place &child) {
        if (child.tag != names::VariantSet)
            return passUnknown(child);
        if (refuseNameless(child))
            return;
        document.sets.push_back(set(child));
        document.sets.back().group = index;
        ++document.groups[std::size_t(index)].sets;
    });
}

qxDocumentGroup qxDocumentParser::groupHead()
{
    return groupHead({nullptr, names::VariantGroup, {}, {}});
}

qxDocumentGroup qxDocumentParser::groupHead(Place place)
{
    qxDocumentGroup group;
    group.name = place.name = m_cursor.attribute(names::name);
    group.comment = m_cursor.attribute(names::comment);
    group.path = pathOf(place);
    group.location = place.location;
    if (m_cursor.has(names::visible))
        group.isVisible = word(m_cursor.attribute(names::visible), names::visible, place);
    return group;
}

qxDocumentSet qxDocumentParser::set()
{
    return set({nullptr, names::VariantSet, {}, {}});
}

qxDocumentSet qxDocumentParser::set(Place place)
{
    qxDocumentSet set;
    set.name = place.name = m_cursor.attribute(names::name);
    set.comment = m_cursor.attribute(names::comment);
    set.defaultViewpoint = m_cursor.attribute(names::defaultViewpoint);
    set.path = pathOf(place);
    set.location = place.location;
    set.script = {m_cursor.attribute(names::script), set.path, place.location};
    eachChild(place, [&](const Place &child) { readSetChild(set, child); });
    return set;
}

void qxDocumentParser::readSetChild(qxDocumentSet &set, const Place &place)
{
    typedef void (qxDocumentParser::*Read)(qxDocumentSet & set, const Place &place);
    static const QHash<QString, Read> others{
        {names::SequentialAnimation, &qxDocumentParser::readSequence},
        {names::Preview, &qxDocumentParser::readPreview},
        {names::MaterialSnapshot, &qxDocumentParser::readSnapshot},
        {names::Value, &qxDocumentParser::readValue},
        {names::InclInfo, &qxDocumentParser::readInclusions},
        {names::Analyzer, &qxDocumentParser::readClipping},
    };
    const QString &tag = place.tag;
    const int list = nameListOf(tag);
    if (const auto *kind = qxVariantKinds::by(&qxVariantKind::referenceTag, tag)) {
        set.references.push_back({kind, m_cursor.attribute(names::ref),
                                  m_cursor.attribute(names::state), place.location});
        m_cursor.pass();
    } else if (list >= 0) {
        readName(set, qxNameList(list), place);
    } else if (tag == names::Hotkey) {
        set.hotkey = {m_cursor.text(), QString(), place.location};
        set.hasHotkey = true;
    } else if (tag == names::Script) {
        set.script = {m_cursor.text(), pathOf(place), place.location};
    } else if (const Read read = others.value(tag)) {
        (this->*read)(set, place);
    } else {
        passUnknown(place);
    }
}

void qxDocumentParser::readName(qxDocumentSet &set, qxNameList list, const Place &place)
{
    const QString &attribute = names::nameElements[std::size_t(list)].attribute;
    set.of(list).push_back({m_cursor.attribute(attribute), QString(), place.location});
    m_cursor.pass();
}

void qxDocumentParser::readSnapshot(qxDocumentSet &set, const Place &place)
{
    set.snapshots.push_back({m_cursor.attribute(names::nodePath),
                             m_cursor.attribute(names::materialName), place.location});
    m_cursor.pass();
}

void qxDocumentParser::readValue(qxDocumentSet &set, const Place &place)
{
    const bool hasKey = m_cursor.has(names::name);
    const QString key = m_cursor.attribute(names::name);
    if (!hasKey)
        tell(qxDocumentFlaw::NoKey, QStringLiteral("a value without a name is skipped"), place);
    const QString value = m_cursor.text();
    if (hasKey)
        set.values.push_back({key, value, place.location});
}

void qxDocumentParser::readSequence(qxDocumentSet &set, const Place &place)
{
    const QString text = m_cursor.text();
    set.isSequential = !text.isEmpty() && word(text, place.tag, place);
}

void qxDocumentParser::readInclusions(qxDocumentSet &set, const Place &place)
{
    for (int i = 0; i < qxInclusions; ++i) {
        const QString &attribute = names::inclusions[i];
        checkNumber(attribute, false, place);
        set.inclusions[std::size_t(i)] = m_cursor.attribute(attribute).toInt() != 0;
    }
    m_cursor.pass();
}

void qxDocumentParser::readClipping(qxDocumentSet &set, const Place &place)
{
    for (const qxClippingField &field : qxClippingField::all()) {
        checkNumber(field.attribute, field.isReal, place);
        field.assign(set.clipping, m_cursor.attribute(field.attribute));
    }
    m_cursor.pass();
}

void qxDocumentParser::readPreview(qxDocumentSet &set, const Place &place)
{
    if (!m_cursor.picture(set.preview))
        tell(qxDocumentFlaw::NoPicture,
             QStringLiteral("a preview that is no CDATA section is skipped"), place);
}

qxDocumentVariant qxDocumentParser::variant(const qxVariantKind &kind)
{
    return variant(kind, {nullptr, kind.tag, {}, {}});
}

qxDocumentVariant qxDocumentParser::variant(const qxVariantKind &kind, Place place)
{
    qxDocumentVariant variant;
    variant.kind = &kind;
    variant.name = place.name = m_cursor.attribute(names::name);
    variant.base = m_cursor.attribute(names::base);
    variant.path = pathOf(place);
    variant.location = place.location;
    eachChild(place, [&](const Place &child) {
        if (child.tag == names::State) {
            variant.options.push_back(option(child));
        } else if (child.tag == names::Default) {
            variant.standard = {m_cursor.attribute(names::ref), QString(), child.location};
            variant.hasStandard = true;
            m_cursor.pass();
        } else {
            passUnknown(child);
        }
    });
    return variant;
}

qxDocumentOption qxDocumentParser::option(const Place &place)
{
    qxDocumentOption option{m_cursor.attribute(names::name), {}, place.location};
    eachChild(place, [&](const Place &child) {
        if (child.tag == names::Hotkey)
            option.hotkey = {m_cursor.text(), QString(), place.location};
        else
            passUnknown(child);
    });
    return option;
}

void qxDocumentParser::eachChild(const Place &parent, const Child &child)
{
    m_cursor.eachChild([&](const QString &tag, const qxSourceLocation &location) {
        child({&parent, tag, location, {}});
    });
}

bool qxDocumentParser::refuseNameless(const Place &place)
{
    if (!m_cursor.attribute(names::name).isEmpty())
        return false;
    m_cursor.pass();
    tell(qxDocumentFlaw::NoName,
         QStringLiteral("a %1 without a name is skipped with all that is in it").arg(place.tag),
         place);
    return true;
}

void qxDocumentParser::passUnknown(const Place &place)
{
    m_cursor.pass();
    tell(qxDocumentFlaw::Unknown,
         QStringLiteral("the unknown element \"%1\" is skipped").arg(place.tag), place);
}

bool qxDocumentParser::word(const QString &text, const QString &what, const Place &place)
{
    const bool isTrue = text == names::trueWord;
    if (!isTrue && text != names::falseWord)
        tell(qxDocumentFlaw::NoWord, QStringLiteral("%1 \"%2\" reads as false").arg(what, text),
             place);
    return isTrue;
}

void qxDocumentParser::checkNumber(const QString &attribute, bool isReal, const Place &place)
{
    if (!m_listener || !m_cursor.has(attribute))
        return;
    const QString text = m_cursor.attribute(attribute);
    bool isNumber = false;
    if (isReal)
        text.toFloat(&isNumber);
    else
        text.toInt(&isNumber);
    if (!isNumber)
        tell(qxDocumentFlaw::NoNumber, QStringLiteral("%1 \"%2\" reads as 0").arg(attribute, text),
             place);
}

QString qxDocumentParser::pathOf(const Place &place) const
{
    return m_listener ? place.path() : QString();
}

void qxDocumentParser::tell(qxDocumentFlaw::Sort sort, const QString &message,
                            const Place &place) const
{
    if (m_listener)
        (*m_listener)({sort, message, place.path(), place.location});
}

#include "qxRecoveryFile.h"

#include "qxVariantKinds.h"

#include "qxDocumentXml.h"
#include "qxLog.h"
#include "qxRegistryDocument.h"
#include "qxText.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

#include <algorithm>

// A line of JSON that says whose edits they are, then the entries: each a line of JSON and, after
// it, a document with the things that have changed. A kill leaves half an entry at the end at most.

namespace {

const QString formKey = QStringLiteral("qxRecovery");
const int form = 1;
const QString sceneKey = QStringLiteral("scene");
const QString sizeKey = QStringLiteral("size");
const QString orderKey = QStringLiteral("order");
const QString sceneNamesKey = QStringLiteral("sceneNames");
const QString groupsKey = QStringLiteral("groups");
const QString nameKey = QStringLiteral("name");
const QString setsKey = QStringLiteral("sets");
const QString suffix = QStringLiteral(".edits");
const QString lockSuffix = QStringLiteral(".lock");

QByteArray lineOf(const QJsonObject &json)
{
    return QJsonDocument(json).toJson(QJsonDocument::Compact) + '\n';
}

QJsonObject toJson(const qxRegistryOrder &order)
{
    QJsonArray groups;
    for (const qxRegistryOrder::Group &group : order.groups)
        groups.append(
            QJsonObject{{nameKey, group.name}, {setsKey, QJsonArray::fromStringList(group.sets)}});
    QJsonObject json{{groupsKey, groups}, {setsKey, QJsonArray::fromStringList(order.sets)}};
    int number = 0;
    for (const qxVariantKind *kind : qxVariantKinds::all())
        json.insert(kind->word, QJsonArray::fromStringList(order.variants[number++]));
    return json;
}

qxDocument documentOf(const qxRegistryRecord::Changes &changes)
{
    qxDocument document;
    for (const qxVariantGroup *group : changes.groups)
        document.groups.push_back(qxRegistryDocument::of(*group));
    for (const qxVariantSet *set : changes.sets)
        document.sets.push_back(qxRegistryDocument::of(*set));
    for (const auto &each : changes.variants)
        document.variants.push_back(qxRegistryDocument::of(*each.first, *each.second));
    return document;
}

/// Goes over the entries that are whole; the file stands where the entry's document begins.
template <class Visit>
void visitEntries(QFile &file, const Visit &visit)
{
    while (!file.atEnd()) {
        const QJsonObject entry = QJsonDocument::fromJson(file.readLine()).object();
        const int size = entry[sizeKey].toInt(-1);
        const qint64 end = file.pos() + size;
        if (size < 0 || end >= file.size())
            return;
        visit(entry, size);
        file.seek(end + 1);
    }
}

/// The names in an order that was kept.
struct Names {
    explicit Names(const QJsonObject &order)
    {
        const auto take = [](QStringList &names, const QJsonArray &array) {
            for (const QJsonValue &name : array)
                names += name.toString();
        };
        for (const QJsonValue &group : order[groupsKey].toArray()) {
            groups += group[nameKey].toString();
            take(sets, group[setsKey].toArray());
            places.resize(sets.size(), groups.size() - 1);
        }
        take(sets, order[setsKey].toArray());
        places.resize(sets.size(), -1);
        for (const qxVariantKind *kind : qxVariantKinds::all()) {
            for (const QJsonValue &name : order[kind->word].toArray())
                variants += kind->word + QLatin1Char(' ') + name.toString();
        }
    }

    QStringList groups;
    QStringList sets;
    QStringList variants;
    std::vector<int> places; ///< the groups of the sets; -1 for none
};

/// A document that is edited by names. Things that were not there when the edits began stay.
class Replay {
public:
    Replay(qxDocument &document, const QJsonObject &order) : m_document(document), m_names(order) {}

    void put(const qxDocument &part)
    {
        put(m_document.groups, part.groups, [](const qxDocumentGroup &each) { return each.name; });
        put(m_document.sets, part.sets, [](const qxDocumentSet &each) { return each.name; });
        put(m_document.variants, part.variants, variantKey);
    }

    void arrange(const QJsonObject &order)
    {
        const Names next(order);
        QHash<QString, int> groups; // of the sets
        for (int place = 0; place < next.sets.size(); ++place)
            groups.insert(next.sets[place], next.places[std::size_t(place)]);
        QStringList homes;
        for (const qxDocumentGroup &each : m_document.groups)
            homes += each.name;
        keep(m_document.groups, m_names.groups, next.groups,
             [](const qxDocumentGroup &each) { return each.name; });
        const QHash<QString, int> places =
            placesOf(m_document.groups, [](const qxDocumentGroup &each) { return each.name; });
        keep(m_document.sets, m_names.sets, next.sets,
             [](const qxDocumentSet &each) { return each.name; });
        for (qxDocumentSet &each : m_document.sets) {
            const int known = groups.value(each.name, -1);
            const QString home = !groups.contains(each.name) ? homes.value(each.group)
                : known < 0                                  ? QString()
                                                             : next.groups[known];
            each.group = places.value(home, -1);
        }
        keep(m_document.variants, m_names.variants, next.variants, variantKey);
        m_names = next;
    }

private:
    static QString variantKey(const qxDocumentVariant &variant)
    {
        return variant.kind->word + QLatin1Char(' ') + variant.name;
    }
    template <class Thing, class KeyOf>
    static QHash<QString, int> placesOf(const std::vector<Thing> &things, const KeyOf &keyOf)
    {
        QHash<QString, int> places;
        for (std::size_t place = 0; place < things.size(); ++place)
            places.insert(keyOf(things[place]), int(place));
        return places;
    }
    static void adopt(qxDocumentSet &set, const qxDocumentSet &before) { set.group = before.group; }
    template <class Thing>
    static void adopt(Thing &, const Thing &)
    {
    }
    template <class Thing, class KeyOf>
    static void put(std::vector<Thing> &things, const std::vector<Thing> &part, const KeyOf &keyOf)
    {
        if (part.empty())
            return;
        const QHash<QString, int> places = placesOf(things, keyOf);
        for (const Thing &each : part) {
            const int place = places.value(keyOf(each), -1);
            things.push_back(each);
            if (place < 0)
                continue;
            adopt(things.back(), things[std::size_t(place)]);
            std::swap(things[std::size_t(place)], things.back());
            things.pop_back();
        }
    }
    /// In the order `after`, without what was in the order before only.
    template <class Thing, class KeyOf>
    static void keep(std::vector<Thing> &things, const QStringList &before,
                     const QStringList &after, const KeyOf &keyOf)
    {
        const QSet<QString> known(before.begin(), before.end());
        QHash<QString, int> places = placesOf(things, keyOf);
        std::vector<int> order;
        for (const QString &key : after) {
            if (places.contains(key))
                order.push_back(places.take(key));
        }
        for (std::size_t place = 0; place < things.size(); ++place) {
            const QString key = keyOf(things[place]);
            if (places.value(key, -1) == int(place) && !known.contains(key))
                order.push_back(int(place));
        }
        std::vector<Thing> kept;
        for (const int place : order)
            kept.push_back(std::move(things[std::size_t(place)]));
        things = std::move(kept);
    }

    qxDocument &m_document;
    Names m_names; ///< of the last order
};

} // namespace

QString qxRecoveryFile::folder()
{
    const QString place = qEnvironmentVariable("XDG_STATE_HOME");
    return (QDir::isAbsolutePath(place) ? place : QDir::homePath() + QLatin1String("/.local/state"))
        + QLatin1String("/qxVariants/recovery");
}

QList<qxRecoveryFile::Left> qxRecoveryFile::left()
{
    QList<Left> all;
    const QFileInfoList files =
        QDir(folder()).entryInfoList({QLatin1Char('*') + suffix}, QDir::Files, QDir::Time);
    for (const QFileInfo &each : files) {
        Left left;
        left.path = each.filePath();
        left.time = each.lastModified();
        left.lock = std::make_shared<QLockFile>(left.path + lockSuffix);
        left.lock->setStaleLockTime(0); // Only a program that is gone gives it up.
        QFile file(left.path);
        if (!left.lock->tryLock(0) || !file.open(QIODevice::ReadOnly))
            continue;
        const QJsonObject head = QJsonDocument::fromJson(file.readLine()).object();
        if (head[formKey].toInt() != form)
            continue;
        left.scene = head[sceneKey].toString();
        visitEntries(file, [&left](const QJsonObject &, int) { ++left.steps; });
        if (left.steps > 0)
            all += left;
        else
            left.discard();
    }
    return all;
}

QJsonObject qxRecoveryFile::Left::apply(qxDocument &document) const
{
    QFile file(path);
    QJsonObject names;
    if (!file.open(QIODevice::ReadOnly))
        return names;
    const QJsonObject head = QJsonDocument::fromJson(file.readLine()).object();
    Replay replay(document, head[orderKey].toObject());
    visitEntries(file, [&](const QJsonObject &entry, int size) {
        replay.put(qxDocumentXml::read(file.read(size)));
        if (entry.contains(orderKey))
            replay.arrange(entry[orderKey].toObject());
        names = entry[sceneNamesKey].toObject();
    });
    return names;
}

void qxRecoveryFile::Left::discard() const
{
    QFile::remove(path);
    lock->unlock();
}

qxRecoveryFile::qxRecoveryFile(const QString &scene, const qxRegistryOrder &order)
    : m_scene(scene), m_order(order)
{
}

qxRecoveryFile::~qxRecoveryFile()
{
    clear();
}

void qxRecoveryFile::clear()
{
    if (m_file.isOpen())
        m_file.remove();
    m_lock.reset();
}

/// What was typed is nobody else's business.
bool qxRecoveryFile::open()
{
    const QFile::Permissions mine = QFile::ReadOwner | QFile::WriteOwner;
    if (!QDir().mkpath(folder()) || !QFile::setPermissions(folder(), mine | QFile::ExeOwner))
        return false;
    for (int number = 1; number < 1000; ++number) {
        m_file.setFileName(QStringLiteral("%1/%2-%3%4")
                               .arg(folder())
                               .arg(QCoreApplication::applicationPid())
                               .arg(number)
                               .arg(suffix));
        m_lock = std::make_unique<QLockFile>(m_file.fileName() + lockSuffix);
        m_lock->setStaleLockTime(0);
        if (m_file.exists() || !m_lock->tryLock(0))
            continue;
        return m_file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered)
            && m_file.setPermissions(mine)
            && write(lineOf({{formKey, form}, {sceneKey, m_scene}, {orderKey, toJson(m_order)}}));
    }
    return false;
}

bool qxRecoveryFile::write(const QByteArray &bytes)
{
    return m_file.write(bytes) == bytes.size();
}

bool qxRecoveryFile::append(const qxRegistryRecord::Changes &changes, const QJsonObject &sceneNames)
{
    if (m_hasFailed)
        return false;
    const QByteArray xml = qxDocumentXml::write(documentOf(changes));
    QJsonObject entry{{sizeKey, xml.size()}};
    if (changes.isOrderOther)
        entry.insert(orderKey, toJson(qxRegistryOrder::now()));
    if (!sceneNames.isEmpty())
        entry.insert(sceneNamesKey, sceneNames);
    if ((m_file.isOpen() || open()) && write(lineOf(entry) + xml + '\n'))
        return true;
    m_hasFailed = true;
    qxLog::warning("Edits cannot be kept in %s: %s", qxText::toUtf8(folder()).c_str(),
                   qxText::toUtf8(m_file.errorString()).c_str());
    return false;
}

#include "PublishedPage.h"

#include "Files/Gltf/Common/qxTinyGltf.h"
#include "Files/Gltf/Read/qxGltfTransforms.h"
#include "Session/qxSceneJson.h"

#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGTransform.h>

#include <QJsonDocument>

#include <algorithm>
#include <cmath>

namespace {

std::vector<double> numbersOf(const qxJson &list)
{
    return list.is_array() ? list.get<std::vector<double>>() : std::vector<double>();
}

osg::Matrix localOf(const qxJson &json)
{
    tinygltf::Node node;
    node.matrix = numbersOf(qxGltfMember(json, "matrix"));
    node.translation = numbersOf(qxGltfMember(json, "translation"));
    node.rotation = numbersOf(qxGltfMember(json, "rotation"));
    node.scale = numbersOf(qxGltfMember(json, "scale"));
    const osg::RefPtr<osg::NodeCorePtr> core(qxGltfTransform(node));
    const auto transform = osg::TransformPtr::dcast(core.get());
    return transform == osg::NullFC ? osg::Matrix() : transform->getMatrix();
}

osg::Matrix matrixOf(const QJsonArray &numbers)
{
    osg::Matrix matrix;
    for (int i = 0; i < 16; ++i)
        matrix.getValues()[i] = float(numbers[i].toDouble());
    return matrix;
}

/// Numbers that overflow give nothing to compare: zero times infinity is no number.
bool isExtreme(const QJsonArray &numbers)
{
    return std::any_of(numbers.begin(), numbers.end(),
                       [](const QJsonValue &number) { return std::abs(number.toDouble()) > 1e15; });
}

QString textOf(const QJsonArray &array)
{
    return QString::fromUtf8(QJsonDocument(array).toJson(QJsonDocument::Compact));
}

QJsonObject named(const QJsonArray &list, const QString &name)
{
    for (const QJsonValue &each : list) {
        if (each["name"] == name)
            return each.toObject();
    }
    return QJsonObject();
}

} // namespace

PublishedPage::PublishedPage(const qxJson &file, const QJsonObject &published,
                             const QMap<int, QStringList> &materials)
    : m_file(file), m_published(published), m_materials(materials),
      m_nodes(int(qxGltfSection(file, "nodes").size())), m_camera(published["camera"].toObject())
{
    for (const QJsonValue &value : published["start"].toArray())
        m_slots += value.toDouble();
    for (int i = 0; i < m_nodes.size(); ++i) {
        const qxJson &json = m_file["nodes"][std::size_t(i)];
        m_nodes[i].local = localOf(json);
        for (const qxJson &child : qxGltfMember(json, "children"))
            m_nodes[child.get<int>()].above = i;
    }
    for (const QJsonValue &binding : published["nodes"].toArray())
        m_nodes[binding["node"].toInt()].binding = binding.toObject();
    for (const QJsonValue &binding : published["parts"].toArray())
        m_parts[{binding["node"].toInt(), binding["part"].toInt()}] = binding.toObject();
    QList<int> overlays;
    for (const QJsonValue &overlay : published["overlays"].toArray())
        overlays += overlay["node"].toInt();
    for (const int overlay : overlays) {
        int above = m_nodes[overlay].above;
        while (above >= 0 && !overlays.contains(above))
            above = m_nodes[above].above;
        m_nodes[overlay].isTop = above < 0;
    }
    if (published.contains("environment"))
        m_nodes[published["environment"].toInt()].isTop = true;
}

QJsonObject PublishedPage::setOf(const QString &name) const
{
    return named(m_published["sets"].toArray(), name);
}

QJsonObject PublishedPage::optionOf(const QString &kind, const QString &variant,
                                    const QString &option) const
{
    for (const QJsonValue &each : m_published["variants"].toArray()) {
        if (each["kind"] == kind && each["name"] == variant)
            return named(each["options"].toArray(), option);
    }
    return QJsonObject();
}

void PublishedPage::select(const QString &set)
{
    take(setOf(set)["step"].toObject());
}

void PublishedPage::select(const QString &kind, const QString &variant, const QString &option)
{
    take(optionOf(kind, variant, option)["step"].toObject());
}

void PublishedPage::take(const QJsonObject &step)
{
    for (const QJsonValue &each : step["assign"].toArray()) {
        const QJsonArray assignment = each.toArray();
        double &slot = m_slots[assignment[0].toInt()];
        const double from = m_slots[assignment.size() == 3 ? assignment[1].toInt() : 0];
        slot = assignment.size() == 3
            ? assignment[2].toObject()[QString::number(qint64(from))].toDouble(slot)
            : assignment[1].toDouble();
    }
    if (step.contains("viewpoint"))
        m_camera = m_published["viewpoints"].toArray()[step["viewpoint"].toInt()].toObject();
    m_clips.clear();
    for (const QJsonValue &clip : step["clips"].toArray())
        start(clip.toInt());
    const QJsonObject turn = step["turn"].toObject();
    if (!turn.isEmpty())
        start(turn["clips"].toArray()[int(m_slots[turn["slot"].toInt()])].toInt());
    for (Node &node : m_nodes)
        node.isKnown = false;
}

void PublishedPage::start(int clip)
{
    if (clip >= 0)
        m_clips += m_published["clips"].toArray()[clip].toObject()["name"].toString();
}

bool PublishedPage::holds(const QJsonValue &condition) const
{
    for (const QJsonValue &each : condition.toArray()) {
        if (!each[1].toArray().contains(m_slots[each[0].toInt()]))
            return false;
    }
    return true;
}

std::optional<bool> PublishedPage::isNow(const QJsonObject &holder) const
{
    return holder.contains("now") ? std::optional<bool>(holds(holder["now"])) : std::nullopt;
}

std::optional<bool> PublishedPage::isShown(const QString &set) const
{
    return isNow(setOf(set));
}

std::optional<bool> PublishedPage::isShown(const QString &kind, const QString &variant,
                                           const QString &option) const
{
    return isNow(optionOf(kind, variant, option));
}

const PublishedPage::Node &PublishedPage::node(int index)
{
    Node &known = m_nodes[index];
    if (known.isKnown)
        return known;
    const QJsonObject place = known.binding["place"].toObject();
    osg::Matrix local = known.local;
    if (!place.isEmpty()) {
        const auto value = qint64(m_slots[place["slot"].toInt()]);
        local = matrixOf(place["matrices"].toObject()[QString::number(value)].toArray());
    }
    const bool isAlone = known.above < 0 || known.isTop;
    known.toWorld = isAlone ? osg::Matrix() : node(known.above).toWorld;
    known.toWorld.mult(local);
    known.isShown = (isAlone || node(known.above).isShown) && holds(known.binding["shown"]);
    known.isKnown = true;
    return known;
}

int PublishedPage::materialOf(QJsonValue choice) const
{
    while (choice.isObject()) {
        const auto value = qint64(m_slots[choice["slot"].toInt()]);
        choice = choice["materials"][QString::number(value)];
    }
    return choice.toInt(-2);
}

QString PublishedPage::difference(const QJsonObject &record)
{
    for (const QJsonValue &each : record["nodes"].toArray()) {
        const QString difference = differenceOf(each.toObject());
        if (!difference.isEmpty())
            return QString("node %1: %2").arg(each["node"].toInt()).arg(difference);
    }
    // Without viewpoints the program looks at whatever is shown, and the page stays.
    QJsonObject camera = m_camera;
    camera.remove("name");
    if (record["camera"] != camera && !m_published["viewpoints"].toArray().isEmpty())
        return "camera";
    const QJsonValue clipping =
        m_published["clippings"].toArray()[int(m_slots[m_published["clipping"].toInt()])];
    return record["clipping"] == clipping ? QString() : "clipping";
}

QString PublishedPage::differenceOf(const QJsonObject &record)
{
    const int index = record["node"].toInt();
    const Node &known = node(index);
    if (known.isShown != record["shown"].toBool())
        return "shown";
    const QJsonArray matrix = qxSceneJson::matrix(known.toWorld);
    if (!isExtreme(matrix) && !isExtreme(record["matrix"].toArray())
        && matrix != record["matrix"].toArray())
        return QString("matrix %1, not %2").arg(textOf(matrix), textOf(record["matrix"].toArray()));
    if (record.contains("light") && holds(known.binding["light"]) != record["light"].toBool())
        return "light";
    const QJsonArray parts = record["parts"].toArray();
    for (int part = 0; part < parts.size(); ++part) {
        const QString difference = differenceOfPart(parts[part].toObject(), index, part);
        if (!difference.isEmpty())
            return QString("part %1: %2").arg(part).arg(difference);
    }
    return QString();
}

QString PublishedPage::differenceOfPart(const QJsonObject &record, int index, int part)
{
    const QJsonObject binding = m_parts.value({index, part});
    const int mesh = m_file["nodes"][std::size_t(index)]["mesh"].get<int>();
    const qxJson &primitive = m_file["meshes"][std::size_t(mesh)]["primitives"][std::size_t(part)];
    if (!primitive["attributes"].contains("POSITION"))
        return QString(); // There is nothing to show.
    if ((node(index).isShown && holds(binding["shown"])) != record["shown"].toBool())
        return "shown";
    const int material = binding.contains("wardrobe")
        ? materialOf(m_published["wardrobes"].toArray()[binding["wardrobe"].toInt()])
        : qxGltfIndex(primitive, "material");
    const QStringList names = m_materials.value(material);
    return names.contains(record["material"].toString()) ? QString()
                                                         : QString("material %1 (%2), not %3")
                                                               .arg(names.join('|'))
                                                               .arg(material)
                                                               .arg(record["material"].toString());
}

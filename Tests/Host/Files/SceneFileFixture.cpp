#include "Files/SceneFileFixture.h"

#include "OSGOverlayCore.h"
#include "qxLights.h"
#include "qxOverlays.h"

#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSwitchMaterial.h>

#include <QDir>
#include <QtEndian>

#include <cmath>
#include <sstream>

/// Where the node puts its own origin.
static std::string originOf(const osg::NodePtr &node)
{
    const osg::Matrix toWorld = node == osg::NullFC ? osg::Matrix() : node->getToWorld();
    std::ostringstream text;
    for (int i = 0; i < 3; ++i)
        text << ' ' << std::round(toWorld[3][i] * 1000) / 1000 + 0.0;
    return text.str();
}

/// What the core has to say: choice (& for clones), layer, light, material.
static std::string stateOf(const TestNode &node)
{
    const auto geometry = osg::GeometryPtr::dcast(node.core());
    if (geometry != osg::NullFC)
        return " <" + lookOf(geometry) + ">";
    const auto overlay = osg::OverlayCorePtr::dcast(node.core());
    if (overlay != osg::NullFC)
        return "=" + std::to_string(overlay->getLayer());
    if (qxLights::isLight(node))
        return qxLights::getOn(node) ? " on" : " off";
    if (std::string(node.core()->getTypeName()).find("Switch") != 0)
        return std::string();
    const bool isShared = node.core()->getParents().size() > 1;
    return "=" + std::to_string(node.choice()) + (isShared ? "&" : "");
}

static std::string below(const TestNode &node);

static std::string describe(const TestNode &node)
{
    std::string text = node.core()->getTypeName();
    text += osg::getName(node.node()) ? " '" + node.name() + "'" : " -";
    text += stateOf(node);
    if (originOf(node) != originOf(node.node()->getParent()))
        text += " @" + originOf(node);
    if (const int poses = qxNodeUtils::getTransformVariantCount(node))
        text += " in " + qxNodeUtils::getSelectedTransformVariantName(node) + " of "
            + std::to_string(poses);
    return text + (node.shown() ? "" : " hidden") + below(node);
}

static std::string below(const TestNode &node)
{
    std::string text;
    for (unsigned int i = 0; i < node.node()->getNChildren(); ++i)
        text += (i == 0 ? " (" : ", ") + describe(node.child(i));
    return text.empty() ? text : text + ")";
}

QByteArray sceneText(const QByteArray &members)
{
    return R"({"asset": {"version": "2.0"}, )" + members + "}";
}

QString SceneFileFixture::write(const QString &name, const qxJson &json) const
{
    return write(name, QByteArray::fromStdString(json.dump()));
}

void SceneFileFixture::load(const QString &name)
{
    host.clearScene();
    ASSERT_TRUE(file.load(name)) << file.errorString().toStdString();
    EXPECT_EQ(file.errorString(), "");
}

void SceneFileFixture::save(const QString &name)
{
    QDir().mkpath(QFileInfo(name).path());
    ASSERT_TRUE(file.save(name)) << file.errorString().toStdString();
}

void SceneFileFixture::saveAndLoad(const QString &name)
{
    const std::string before = tree();
    save(path(name));
    load(path(name));
    EXPECT_EQ(tree(), before);
    const QByteArray saved = bytesOf(path(name));
    save(path(name));
    EXPECT_EQ(bytesOf(path(name)), saved);
}

void SceneFileFixture::expectSaved(const qxJson &json)
{
    save(path("saved.gltf"));
    EXPECT_EQ(jsonOf(path("saved.gltf")), json);
}

QString SceneFileFixture::loadError(const QString &name)
{
    host.clearScene();
    const bool loaded = file.load(name);
    EXPECT_EQ(loaded, file.errorString().isEmpty());
    return file.errorString();
}

TestNode SceneFileFixture::find(const char *name) const
{
    const qxNodePtr node = qxScenegraph::findNode(name);
    if (node == osg::NullFC) {
        ADD_FAILURE() << "no node " << name;
        return scene.root();
    }
    return TestNode(node);
}

std::string SceneFileFixture::tree() const
{
    const std::string overlays = below(qxOverlays::getPoolRoot());
    const osg::NodePtr environment = qxScenegraph::environmentGeometrySwitch();
    return below(scene.root()) + (overlays.empty() ? "" : " overlays" + overlays)
        + (environment == osg::NullFC ? "" : " around " + describe(environment));
}

osg::GeometryPtr SceneFileFixture::part(unsigned int index, const char *node) const
{
    return osg::GeometryPtr::dcast(find(node).child(index).core());
}

void SceneFileFixture::setMaterial(const osg::GeometryPtr &geometry,
                                   const osg::MaterialPtr &material)
{
    const osg::CPEditor edit(geometry, osg::Geometry::MaterialFieldMask);
    geometry->setMaterial(material);
}

std::string lookOf(const osg::GeometryPtr &geometry)
{
    const auto material = osg::SwitchMaterialPtr::dcast(geometry->getMaterial());
    if (material == osg::NullFC)
        return qxMaterials::getName(geometry->getMaterial());
    std::string text = qxMaterials::getName(material) + ":";
    for (const osg::MaterialPtr &each : *material->getMFMaterials())
        text += " " + qxMaterials::getName(each) + ",";
    return text + " " + std::to_string(material->getChoice());
}

qxJson jsonOf(const QString &path)
{
    const QByteArray bytes = bytesOf(path);
    const QByteArray text = bytes.startsWith("glTF")
        ? bytes.mid(20, int(qFromLittleEndian<quint32>(bytes.constData() + 12)))
        : bytes;
    return qxJson::parse(text.toStdString());
}

qxJson sample(const char *name)
{
    return jsonOf(testData(QStringLiteral("Scenes/%1.gltf").arg(name)));
}

QByteArray binOf(const QString &path)
{
    const QByteArray bytes = bytesOf(path);
    return bytes.mid(20 + int(qFromLittleEndian<quint32>(bytes.constData() + 12)));
}

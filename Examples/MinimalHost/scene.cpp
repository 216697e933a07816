// A sailing boat seen from above; its bow points to the right.
#include "scene.h"

#include "OSGOverlayCore.h"
#include "OSGSwitchComponentTransform.h"
#include "OSGUberLight.h"
#include "Services/services.h"
#include "qxController.h"

#include <OpenSG/OSGNodePtr.h>
#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSimpleGeometry.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGSwitchMaterial.h>
#include <OpenSG/OSGTransform.h>

namespace {

/// Nothing else knows the scene while it is built, so its edits need no brackets but where OpenSG
/// itself derives something from them.
osg::NodePtr add(const osg::NodePtr &parent, const char *name, const osg::NodeCorePtr &core)
{
    const osg::NodePtr node = osg::makeNodeFor(core);
    osg::setName(node, name);
    parent->addChild(node);
    return node;
}

osg::NodePtr addSwitch(const osg::NodePtr &parent, const char *name)
{
    const osg::SwitchPtr core = osg::Switch::create();
    core->setChoice(0);
    return add(parent, name, core);
}

osg::MaterialPtr createPaint(const char *name, float red, float green, float blue)
{
    const osg::SimpleMaterialPtr paint = osg::SimpleMaterial::create();
    beginEditCP(paint);
    paint->setDiffuse(osg::Color3f(red, green, blue));
    endEditCP(paint);
    osg::setName(paint, name);
    return paint;
}

void addBox(const osg::NodePtr &parent, const char *name, const osg::Vec3f &size,
            const osg::MaterialPtr &material)
{
    const osg::GeometryPtr box = osg::makeBoxGeo(size[0], size[1], size[2], 1, 1, 1);
    box->setMaterial(material);
    add(parent, name, box);
    Scene::the().materials->add(material);
}

void addViewpoint(const char *name, float x, float height)
{
    qxUberCamera camera;
    camera.name = name;
    camera.toWorld.setTranslate(x, 0, 20);
    camera.height = height;
    qxUberCameraPool::the()->add(camera);
}

} // namespace

Scene &Scene::the() { return *single<Scene>(); }

void Scene::build()
{
    root = osg::makeNodeFor(osg::Group::create());
    overlays = osg::makeNodeFor(osg::Group::create());
    materials = osg::MaterialPool::create();
    addRefCP(root);
    addRefCP(overlays);
    addRefCP(materials);
    osg::setName(root, "Boat");

    const osg::SwitchMaterialPtr coat = osg::SwitchMaterial::create();
    osg::setName(coat, "Hull Paint");
    coat->addMaterial(createPaint("Red", 0.7f, 0.1f, 0.1f));
    coat->addMaterial(createPaint("Navy", 0.1f, 0.1f, 0.4f));
    addBox(root, "Hull", osg::Vec3f(8, 2, 1), coat);

    const osg::MaterialPtr cloth = createPaint("Cloth", 0.9f, 0.9f, 0.8f);
    const osg::NodePtr sail = addSwitch(root, "Sail");
    addBox(sail, "Main Sail", osg::Vec3f(3, 0.2f, 5), cloth);
    addBox(sail, "Spinnaker", osg::Vec3f(2, 4, 5), cloth);

    const osg::SwitchComponentTransformPtr boom = osg::SwitchComponentTransform::create();
    osg::Matrix swung;
    swung.setTransform(osg::Quaternion(osg::Vec3f(0, 0, 1), 0.5f));
    boom->getMFStates()->push_back(osg::Matrix());
    boom->getMFStates()->push_back(swung);
    addBox(add(root, "Boom", boom), "Spar", osg::Vec3f(3, 0.1f, 0.1f), cloth);
    addBox(root, "Flag", osg::Vec3f(0.5f, 0.1f, 8), cloth);
    add(root, "Lantern", osg::UberLight::create());

    const osg::NodePtr rudder = add(root, "Rudder", osg::Transform::create());
    osg::Matrix ahead, port;
    ahead.setTranslate(-4.5f, 0, 0);
    port.setTransform(osg::Vec3f(-4.5f, 0, 0), osg::Quaternion(osg::Vec3f(0, 0, 1), -0.6f));
    poses[rudder.getFieldContainerId()] = {{{"Ahead", ahead}, {"Port", port}}};
    addBox(rudder, "Blade", osg::Vec3f(1.5f, 0.2f, 1), createPaint("Wood", 0.5f, 0.3f, 0.1f));

    const osg::NodePtr sign =
        addSwitch(add(overlays, "Sign", osg::OverlayCore::create()), "Caption");
    add(sign, "For Sale", osg::Group::create());
    add(sign, "Sold", osg::Group::create());

    addViewpoint("Whole Boat", 0, 12);
    addViewpoint("Stern", -3, 5);
    camera = *qxUberCameraPool::the()->get(0);
}

void Scene::close()
{
    qxController::call("clearAllVariants", 1);
    poses.clear();
    subRefCP(root);
    subRefCP(overlays);
    subRefCP(materials);
}

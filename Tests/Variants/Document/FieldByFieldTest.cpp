#include "qxLightVariant.h"
#include "qxMaterialVariant.h"
#include "qxNodeVariant.h"
#include "qxOverlayVariant.h"
#include "qxTransformVariant.h"
#include "qxVariantGroup.h"
#include "qxVariantSet.h"

#include "DocumentFixture.h"

namespace {

/// What an object holds, a field in a line: all that a document has to bring back.
class Fields {
public:
    void text(const char *field, const QString &value)
    {
        lines.push_back(field + (" = \"" + value.toStdString() + "\""));
    }
    void number(const char *field, double value) { text(field, QString::number(value, 'g', 9)); }
    void triple(const char *field, const osg::Real32 *values)
    {
        for (int i = 0; i < 3; ++i)
            number(field, values[i]);
    }
    void shortcut(const QString &shortcut, int key, Qt::KeyboardModifiers modifiers)
    {
        text("shortcut", shortcut);
        number("key", key);
        number("modifiers", int(modifiers));
    }
    template <class List>
    void texts(const char *field, const List &values)
    {
        QStringList all;
        for (const QString &value : values)
            all += value;
        text(field, all.join("; "));
    }
    void states(const char *field, const qxStateList &values)
    {
        QStringList all;
        for (const qxVariantState &value : values)
            all += value.variant + "=" + value.state;
        text(field, all.join("; "));
    }
    void pairs(const char *field, const QMap<QString, QString> &values)
    {
        texts(field, values.keys() + values.values());
    }

    Lines lines;
};

void addClipping(Fields &fields, const qxAnalyzerVariant &clip)
{
    fields.number("clipState", clip.clipState);
    fields.triple("clipPlanePosition", clip.clipPlanePosition.getValues());
    fields.triple("clipPlaneNormal", clip.clipPlaneNormal.getValues());
    fields.number("clipPlaneShow", clip.clipPlaneShow);
    fields.triple("clipPlaneColor", clip.clipPlaneColor.getValuesRGB());
    fields.number("clipPlaneInvert", clip.clipPlaneInvert);
    fields.number("clipPlaneHideScene", clip.clipPlaneHideScene);
    fields.number("clipGridShow", clip.clipGridShow);
    fields.triple("clipGridColor", clip.clipGridColor.getValuesRGB());
    fields.number("clipContourShow", clip.clipContourShow);
    fields.triple("clipContourColor", clip.clipContourColor.getValuesRGB());
    fields.number("clipContourWidth", clip.clipContourWidth);
}

Lines fieldsOf(const qxVariantSet &set)
{
    Fields fields;
    fields.text("name", set.name);
    fields.text("group", set.group ? QString(set.group->name) : QString());
    fields.shortcut(set.hotkey, set.key, set.modifiers);
    fields.text("comment", set.comment);
    fields.text("script", set.script);
    fields.text("defaultViewpoint", set.defaultViewpoint);
    fields.texts("viewpoints", set.viewpoints);
    fields.texts("animations", set.animations);
    fields.number("sequentialAnimation", set.sequentialAnimation);
    fields.texts("geometries", set.geometries);
    fields.states("nodeVariants", set.nodeVariants);
    fields.states("materialVariants", set.materialVariants);
    fields.states("lightVariants", set.lightVariants);
    fields.states("transformVariants", set.transformVariants);
    fields.states("overlayVariants", set.overlayVariants);
    fields.pairs("values", set.values);
    fields.pairs("materialSnapshots", set.materialSnapshots);
    fields.texts("targetNodeNames", set.targetNodeNames);
    fields.text("preview", set.preview.toHex());
    bool incl[5] = {};
    set.getInclInfo(incl[0], incl[1], incl[2], incl[3], incl[4]);
    for (const bool included : incl)
        fields.number("incl", included);
    addClipping(fields, set.analyzer);
    return fields.lines;
}

Lines fieldsOf(const qxVariant &variant, const QString &base)
{
    Fields fields;
    fields.text("name", variant.name);
    fields.text("base", base);
    fields.text("defaultState", variant.defaultState);
    for (const qxVariantOption &option : variant.options) {
        fields.text("option", option.name);
        fields.shortcut(option.shortcut, option.key, option.modifiers);
    }
    return fields.lines;
}

/// All options that there are, each with a shortcut of its own.
void fill(qxVariant &variant, QString &base, const QString &kind)
{
    base = kind + " object";
    int number = 0;
    for (const QString &action :
         {variantEnable, variantDisable, variantToggle, variantNext, variantNextLoop,
          variantPrevious, variantPreviousLoop, variantAll, variantNone, kind + " <&> \"state\""})
        variant.add(action, QString("Ctrl+Shift+F%1").arg(++number));
    variant.add(kind + " last", QString());
    variant.defaultState = kind + " last";
}

void fillLists(qxVariantSet &set)
{
    for (const QString &number : {QString("2"), QString("1")}) {
        set.addNodeVariant("Node " + number, "Alloy");
        set.addMaterialVariant("Material " + number, variantNextLoop);
        set.addLightVariant("Light " + number, variantToggle);
        set.addOverlayVariant("Overlay " + number, variantDisable);
        set.addTransformVariant("Transform " + number, "Open");
        set.addViewpoint("Viewpoint " + number);
        set.addAnimation("Animation " + number);
        set.addGeometry("Geometry " + number);
        set.addTargetNodeName("Target " + number);
        set.addMaterialSnapshot("Car/Path " + number, "Paint " + number);
        set.values["Key " + number] = "Value " + number;
    }
}

void fill(qxVariantSet &set)
{
    fillLists(set);
    set.comment = "comment";
    set.script = "if a < b:\n\tpass\n";
    set.defaultViewpoint = "default";
    set.hotkey = "Ctrl+Alt+F7";
    set.updateShortcut();
    set.sequentialAnimation = true;
    set.setPreview(QByteArray("\x89PNG\0\r\n", 7));
    set.setInclInfo(true, true, true, true, true);
    qxAnalyzerVariant clip;
    clip.clipState = 3;
    clip.clipPlanePosition = osg::Pnt3f(1.5f, -2, 1234.56f);
    clip.clipPlaneNormal = osg::Vec3f(0.25f, -0.5f, 1e-7f);
    clip.clipPlaneShow = false;
    clip.clipPlaneColor = osg::Color3f(0.123456f, 0.375f, 1);
    clip.clipPlaneInvert = true;
    clip.clipPlaneHideScene = true;
    clip.clipGridShow = false;
    clip.clipGridColor = osg::Color3f(0.125f, 0.0625f, 0.75f);
    clip.clipContourShow = false;
    clip.clipContourColor = osg::Color3f(0.3125f, 0.4375f, 0.5625f);
    clip.clipContourWidth = 7;
    set.setAnalyzerVariant(clip);
}

class FieldByFieldTest : public DocumentFixture {
protected:
    /// Saves, forgets everything, and loads again.
    void reload()
    {
        const QByteArray document = written();
        host.clearScene();
        read(document);
    }
};

} // namespace

TEST_F(FieldByFieldTest, ASetThatIsNowhereAtItsDefaultsComesBackWhole)
{
    qxVariantGroup *const group = qxVariants::createVariantGroup("Group", false, false);
    group->comment = "of the group";
    qxVariantSet *const set = qxVariants::createVariantSet("Set", false, group);
    fill(*set);
    const Lines before = fieldsOf(*set);
    const Lines defaults = fieldsOf(qxVariantSet());
    ASSERT_EQ(before.size(), defaults.size());
    for (size_t i = 0; i < before.size(); ++i)
        EXPECT_NE(before[i], defaults[i]);

    reload();
    ASSERT_EQ(qxVariants::_variantSets.size(), 1u);
    EXPECT_EQ(fieldsOf(*qxVariants::_variantSets[0]), before);
    ASSERT_EQ(qxVariants::_variantGroups.size(), 1u);
    EXPECT_EQ(qxVariants::_variantGroups[0]->comment, "of the group");
    EXPECT_FALSE(qxVariants::_variantGroups[0]->visible);
}

TEST_F(FieldByFieldTest, EachFlagIsItsOwn)
{
    for (int i = 0; i < 5; ++i) {
        qxVariantSet *const set = qxVariants::createVariantSet(QString::number(i), false, nullptr);
        set->updateShortcut();
        set->setInclInfo(i == 0, i == 1, i == 2, i == 3, i == 4);
        set->setClippingShowPlane(i == 0);
        set->setClippingInvert(i == 1);
        set->setClippingHideScene(i == 2);
        set->setClippingShowGrid(i == 3);
        set->setClippingShowContour(i == 4);
    }
    std::vector<Lines> before, after;
    for (const qxVariantSet *set : qxVariants::_variantSets)
        before.push_back(fieldsOf(*set));
    reload();
    for (const qxVariantSet *set : qxVariants::_variantSets)
        after.push_back(fieldsOf(*set));
    EXPECT_EQ(after, before);
}

TEST_F(FieldByFieldTest, EveryOptionOfEveryKindComesBack)
{
    const auto describe = [] {
        return std::vector<Lines>{
            fieldsOf(*qxVariants::_nodeVariants[0], qxVariants::_nodeVariants[0]->nodeName),
            fieldsOf(*qxVariants::_materialVariants[0],
                     qxVariants::_materialVariants[0]->switchMaterialName),
            fieldsOf(*qxVariants::_lightVariants[0], qxVariants::_lightVariants[0]->lightName),
            fieldsOf(*qxVariants::_overlayVariants[0],
                     qxVariants::_overlayVariants[0]->overlayName),
            fieldsOf(*qxVariants::_transformVariants[0],
                     qxVariants::_transformVariants[0]->nodeName)};
    };
    qxNodeVariant *const node = qxVariants::createNodeVariant("N", false);
    fill(*node, node->nodeName, "node");
    qxMaterialVariant *const material = qxVariants::createMaterialVariant("M", false);
    fill(*material, material->switchMaterialName, "material");
    qxLightVariant *const light = qxVariants::createLightVariant("L", false);
    fill(*light, light->lightName, "light");
    qxOverlayVariant *const overlay = qxVariants::createOverlayVariant("O", false);
    fill(*overlay, overlay->overlayName, "overlay");
    qxTransformVariant *const transform = qxVariants::createTransformVariant("T", false);
    fill(*transform, transform->nodeName, "transform");
    const std::vector<Lines> before = describe();

    reload();
    EXPECT_EQ(describe(), before);
}

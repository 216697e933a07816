#include "qxMaterialVariant.h"

#include "DocumentFixture.h"

#include <OpenSG/OSGSwitchMaterial.h>

class MaterialRepairTest : public DocumentFixture {
protected:
    void readVariant(const QByteArray &base, const QByteArrayList &states)
    {
        QByteArray content = "<MaterialVariant name='V' base='" + base + "'>";
        for (const QByteArray &state : states)
            content += "<State name='" + state + "'/>";
        readInside(content + "</MaterialVariant>");
    }
    /// The material's name; behind a colon, when it is a switch material, those of its choices.
    static std::string textOf(const osg::MaterialPtr &material)
    {
        std::string text = qxMaterials::getName(material);
        const osg::SwitchMaterialPtr choices = osg::SwitchMaterialPtr::dcast(material);
        if (choices == osg::NullFC)
            return text;
        text += ":";
        for (const osg::MaterialPtr &each : choices->getMaterials())
            text += " " + qxMaterials::getName(each);
        return text;
    }
    static std::string materialOf(const TestNode &node)
    {
        return textOf(qxNodeUtils::getMaterial(node));
    }
    /// All materials of that name that the pool holds.
    static std::string allOf(const char *name)
    {
        std::string text;
        for (const osg::MaterialPtr &each : qxMaterials::findMaterials(name))
            text += textOf(each) + ";";
        return text;
    }

    const std::vector<unsigned int> once{0x10000};
};

TEST_F(MaterialRepairTest, AnExistingSwitchMaterialIsLeftAlone)
{
    scene.addSwitchMaterial("Paint", {"Red"});
    readVariant("Paint", {"Red", "Blue"});
    EXPECT_EQ(allOf("Paint"), "Paint: Red;");
    EXPECT_TRUE(moduleMessages.empty());
}

TEST_F(MaterialRepairTest, AnOrdinaryMaterialIsReplacedByASwitchOfItsName)
{
    const TestMaterial paint = scene.addMaterial("Paint");
    scene.addMaterial("Blue");
    const TestNode body = scene.addGeometry("Body", paint.material());
    const TestNode group = scene.addMaterialGroup("Group", paint.material());
    readVariant("Paint", {"Blue", "Missing", "Paint"});
    EXPECT_EQ(materialOf(body), "Paint: Blue Paint");
    EXPECT_EQ(TestMaterial(qxNodeUtils::getMaterial(body)).choice(), 0u);
    EXPECT_EQ(materialOf(group), "Paint") << "only what is drawn is changed here";
    EXPECT_EQ(moduleMessages, once);

    qxVariants::findMaterialVariant("V")->onSelect("!Next");
    EXPECT_EQ(TestMaterial(qxNodeUtils::getMaterial(body)).choice(), 1u);
}

TEST_F(MaterialRepairTest, AMaterialThatOnlyThePoolHoldsGoesAway)
{
    scene.addMaterial("Paint");
    readVariant("Paint", {});
    EXPECT_EQ(allOf("Paint"), "Paint:;");
    EXPECT_EQ(moduleMessages, once);
}

TEST_F(MaterialRepairTest, AMissingSwitchIsAddedAndTakesThePlaceOfItsBaseInGroups)
{
    const TestMaterial paint = scene.addMaterial("Paint");
    const TestNode group = scene.addMaterialGroup("Group", paint.material());
    const TestNode body = scene.addGeometry("Body", paint.material());
    readVariant("Paint Wheels", {"Chrome"}); // a suffix as long as that of the switch
    EXPECT_EQ(materialOf(group), "Paint");
    moduleMessages.clear();
    for (int round = 0; round < 2; ++round) {
        readVariant("Paint Switch", {"Paint", "Missing"});
        EXPECT_EQ(materialOf(group), "Paint Switch: Paint");
        EXPECT_EQ(materialOf(body), "Paint");
        EXPECT_EQ(moduleMessages, once);
    }
    readVariant("Trim", {"Chrome"});
    EXPECT_EQ(allOf("Trim"), "Trim:;");
    EXPECT_EQ(moduleMessages.size(), 2u);
}

#include "qxMaterialVariant.h"

#include "Core/qxModuleBus.h"
#include "DocumentFixture.h"
#include "qxMaterials.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGMaterialPool.h>
#include <OpenSG/OSGSwitchMaterial.h>

#include <QFile>

namespace {

class MaterialRepairTest : public DocumentFixture {
protected:
    MaterialRepairTest()
    {
        m_listener = qxModuleBus::addListener(
            [this](qxMessage &message) { codes.push_back(message.code()); });
    }
    ~MaterialRepairTest() override { qxModuleBus::removeListener(m_listener); }

    void readVariant(const QByteArray &base, const QByteArrayList &states)
    {
        QByteArray content = "<MaterialVariant name=\"V\" base=\"" + base + "\">";
        for (const QByteArray &state : states)
            content += "<State name=\"" + state + "\"/>";
        readInside(content + "</MaterialVariant>");
    }
    /// The names of a switch material's choices; "none" when the material is no switch.
    static std::string choicesOf(const osg::MaterialPtr &material)
    {
        const osg::SwitchMaterialPtr choices = osg::SwitchMaterialPtr::dcast(material);
        if (choices == osg::NullFC)
            return "none";
        std::string names;
        for (const osg::MaterialPtr &each : choices->getMaterials())
            names += qxMaterials::getName(each) + " ";
        return names;
    }
    static osg::MaterialPtr materialOf(const TestNode &node)
    {
        const osg::GeometryPtr geometry = osg::GeometryPtr::dcast(node.core());
        if (geometry != osg::NullFC)
            return geometry->getMaterial();
        return osg::MaterialGroupPtr::dcast(node.core())->getMaterial();
    }
    static unsigned int poolSize() { return qxScenegraph::getMaterialPool()->getCount(); }

    std::vector<unsigned int> codes;
    const std::vector<unsigned int> once{0x10000};

private:
    int m_listener = 0;
};

} // namespace

TEST_F(MaterialRepairTest, AnExistingSwitchMaterialIsLeftAlone)
{
    scene.addSwitchMaterial("Paint", {"Red"});
    const unsigned int before = poolSize();
    readVariant("Paint", {"Red", "Blue"});
    EXPECT_EQ(choicesOf(qxMaterials::findMaterial("Paint")), "Red ");
    EXPECT_EQ(poolSize(), before);
    EXPECT_TRUE(codes.empty());
}

TEST_F(MaterialRepairTest, AnOrdinaryMaterialIsReplacedByASwitchOfItsName)
{
    const TestMaterial paint = scene.addMaterial("Paint");
    scene.addMaterial("Blue");
    const TestNode body = scene.addGeometry("Body", paint.material());
    const TestNode group = scene.addMaterialGroup("Group", paint.material());
    const unsigned int before = poolSize();
    readVariant("Paint", {"Blue", "Missing", "Paint"});

    EXPECT_EQ(choicesOf(materialOf(body)), "Blue Paint ");
    EXPECT_EQ(qxMaterials::getName(materialOf(body)), "Paint");
    EXPECT_EQ(osg::SwitchMaterialPtr::dcast(materialOf(body))->getChoice(), 0u);
    EXPECT_EQ(choicesOf(materialOf(group)), "none"); // Only what is drawn is changed here.
    EXPECT_EQ(poolSize(), before);
    EXPECT_EQ(codes, once);
}

TEST_F(MaterialRepairTest, AMaterialThatOnlyThePoolHoldsGoesAway)
{
    scene.addMaterial("Paint");
    readVariant("Paint", {});
    EXPECT_EQ(choicesOf(qxMaterials::findMaterial("Paint")), "");
    EXPECT_EQ(qxMaterials::findMaterials("Paint").size(), 1u);
    EXPECT_EQ(codes, once);
}

TEST_F(MaterialRepairTest, AMissingSwitchTakesThePlaceOfItsBaseInGroups)
{
    const TestMaterial paint = scene.addMaterial("Paint");
    const TestNode group = scene.addMaterialGroup("Group", paint.material());
    const TestNode body = scene.addGeometry("Body", paint.material());
    readVariant("Paint Switch", {"Paint", "Missing"});
    EXPECT_EQ(choicesOf(materialOf(group)), "Paint ");
    EXPECT_EQ(qxMaterials::getName(materialOf(group)), "Paint Switch");
    EXPECT_EQ(choicesOf(materialOf(body)), "none");
    EXPECT_EQ(codes, once);

    readVariant("Paint Switch", {"Paint", "Missing"});
    EXPECT_EQ(codes, once);
}

TEST_F(MaterialRepairTest, OtherMissingSwitchesAreOnlyAdded)
{
    readVariant("Trim", {"Chrome"});
    EXPECT_EQ(choicesOf(qxMaterials::findMaterial("Trim")), "");
    EXPECT_EQ(codes, once);
}

TEST_F(MaterialRepairTest, ADocumentFromBeforeSwitchMaterialsGetsThem)
{
    for (const char *choice : {"Red", "Blue", "Wool"})
        scene.addMaterial(choice);
    const TestNode body = scene.addGeometry("Body", scene.addMaterial("Paint").material());
    const TestNode seat = scene.addMaterialGroup("Seat", scene.addMaterial("Leather").material());
    QFile file(QStringLiteral(QX_TEST_DATA "/Documents/older-materials.xml"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    read(file.readAll());

    EXPECT_EQ(choicesOf(materialOf(body)), "Red Blue ");
    EXPECT_EQ(choicesOf(materialOf(seat)), "Leather Wool ");
    qxVariants::findMaterialVariant("Seats")->onSelect("Wool");
    qxVariants::findMaterialVariant("Paint")->onSelect("!Next");
    EXPECT_EQ(qxVariants::findMaterialVariant("Seats")->onCurrent(), "Wool");
    EXPECT_EQ(qxVariants::findMaterialVariant("Paint")->onCurrent(), "Blue");
}

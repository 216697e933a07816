#include "Contract.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGMaterialChunk.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGMaterialPool.h>
#include <OpenSG/OSGMultiPassMaterial.h>
#include <OpenSG/OSGSimpleGeometry.h>
#include <OpenSG/OSGSimpleTexturedMaterial.h>
#include <OpenSG/OSGTextureChunk.h>

using namespace osg;

/// A switch material with a red and a glass material.
class SwitchMaterials : public testing::Test {
protected:
    SwitchMaterials()
    {
        m_glass->setTransparency(0.5f);
        m_switch->addMaterial(m_red.get());
        m_switch->addMaterial(m_glass.get());
    }

    const SimpleMaterialRefPtr m_red = held<SimpleMaterial>();
    const SimpleMaterialRefPtr m_glass = held<SimpleMaterial>();
    const SwitchMaterialRefPtr m_owner = held<SwitchMaterial>();
    const SwitchMaterialPtr m_switch = m_owner;
};

TEST_F(SwitchMaterials, AcceptDuplicatesButNoNull)
{
    m_switch->addMaterial(m_red.get());
    m_switch->addMaterial(NullFC);
    m_switch->subMaterial(m_red.get());
    EXPECT_EQ(m_switch->getMaterials().getValues(), (std::vector<MaterialPtr>{m_glass, m_red}));
    EXPECT_EQ(m_red.get().getRefCount(), 2);
    m_switch->subMaterial(m_red.get());
    EXPECT_FALSE(m_switch->hasMaterial(m_red.get()));
    EXPECT_TRUE(warns([&] { m_switch->subMaterial(m_red.get()); }));
}

TEST_F(SwitchMaterials, WarnOfAChoiceThatIsOutOfRangeWhenItIsUsed)
{
    EXPECT_EQ(m_switch->getChoice(), 0u);
    m_switch->setChoice(1);
    EXPECT_EQ(m_switch->getCurrentMaterial(), m_glass.get());
    m_switch->subMaterial(m_red.get());
    EXPECT_EQ(m_switch->getChoice(), 1u);
    MaterialPtr current = m_red.get();
    EXPECT_TRUE(warns([&] { current = m_switch->getCurrentMaterial(); }));
    EXPECT_EQ(current, NullFC);
    EXPECT_TRUE(warns([&] { current = m_switch->getMaterial(7); }));
    EXPECT_TRUE(warns([] { held<SwitchMaterial>()->getCurrentMaterial(); }));
    forgetRecords();
    endEditCP(m_switch, SwitchMaterial::ChoiceFieldMask);
    EXPECT_EQ(timesRecorded(m_switch, SwitchMaterial::ChoiceFieldMask), 1u);
}

TEST_F(SwitchMaterials, LookLikeTheirCurrentMaterial)
{
    const auto passes = held<MultiPassMaterial>();
    const auto outer = held<SwitchMaterial>();
    for (const MaterialPtr &each : {MaterialPtr(m_red), MaterialPtr(m_glass)})
        passes->addMaterial(each);
    outer->addMaterial(m_switch);
    outer->addMaterial(passes.get());
    EXPECT_FALSE(outer->isTransparent());
    m_switch->setChoice(1);
    EXPECT_TRUE(outer->isTransparent() && !outer->isMultiPass());
    outer->setChoice(1);
    EXPECT_TRUE(outer->isMultiPass() && outer->getNPasses() == 2);
    passes->subMaterial(m_red.get());
    EXPECT_FALSE(passes->hasMaterial(m_red.get()));
    passes->subMaterial(m_glass.get());
    EXPECT_TRUE(passes->isMultiPass() && passes->getNPasses() == 0);
    EXPECT_TRUE(warns([&] { EXPECT_EQ(passes->getState(), NullFC); }));
}

TEST_F(SwitchMaterials, StandInAPoolOnce)
{
    const MaterialPtr red = m_red.get(), glass = m_glass.get();
    MaterialPoolPtr nested;
    MaterialGroupPtr group;
    GeometryPtr geometry;
    const NodeRefPtr scene(makeCoredNode<MaterialGroup>(&group));
    scene->addChild(makeCoredNode<MaterialPool>(&nested));
    scene->getChild(0)->addChild(makeCoredNode<Geometry>(&geometry));
    group->setMaterial(m_switch);
    nested->add(red);
    geometry->setMaterial(glass);

    const auto pool = held<MaterialPool>();
    pool->add(scene.get());
    pool->add(red);
    pool->add(MaterialPtr());
    std::vector<MaterialPtr> all;
    pool->get(all);
    EXPECT_EQ(all, (std::vector<MaterialPtr>{m_switch, red, glass}));
    pool->sub(nested);
    EXPECT_EQ(pool->find(red), -1);
    EXPECT_TRUE(warns([&] { pool->sub(red); }));
    EXPECT_EQ(pool->getCount(), 2u);
    EXPECT_EQ(pool->get(1), glass);
    pool->add(nested);
    pool->sub(scene->getChild(0)->getChild(0));
    EXPECT_EQ(pool->get(), (std::set<MaterialPtr>{m_switch, red}));
    pool->sub(UInt32(0));
    EXPECT_EQ(pool->find(red), 0);
    pool->clear();
    EXPECT_EQ(pool->getCount(), 0u);
    EXPECT_EQ(red.getRefCount(), 3); // The test, the switch material and the other pool.
    EXPECT_EQ(glass.getRefCount(), 3);
}

TEST(SimpleMaterials, StartBlackOpaqueAndLit)
{
    const auto material = held<SimpleMaterial>();
    for (const Color3f &colour : {material->getAmbient(), material->getDiffuse(),
                                  material->getSpecular(), material->getEmission()})
        EXPECT_EQ(colour, Color3f(0, 0, 0));
    EXPECT_EQ(material->getShininess(), 1);
    EXPECT_EQ(material->getTransparency(), 0);
    EXPECT_TRUE(material->getLit() && material->getNPasses() == 1);
    EXPECT_EQ(material->getColorMaterial(), UInt32(GL_DIFFUSE));
    EXPECT_EQ(material->getTransparencyMode(), Material::TransparencyAutoDetection);
    EXPECT_EQ(NullMaterial, NullFC);
    EXPECT_NE(SimpleMaterialPtr::dcast(getDefaultMaterial()), NullFC);
    EXPECT_EQ(getDefaultMaterial(), getDefaultMaterial());
    EXPECT_EQ(SimpleMaterialPtr::dcast(getDefaultMaterial())->getDiffuse(), Color3f(.7f, .7f, .5f));
}

TEST(Transparency, IsForcedOnButNotOff)
{
    const auto glass = held<SimpleMaterial>();
    const auto chunks = held<ChunkMaterial>();
    const auto decal = held<SimpleTexturedMaterial>();
    const auto passes = held<MultiPassMaterial>();
    const auto image = held<Image>();
    const MaterialChunkPtr clear = MaterialChunk::create();
    EXPECT_EQ(clear->getShininess(), 10);
    glass->setTransparency(0.5f);
    clear->setDiffuse(Color4f(1, 1, 1, 0.5f));
    chunks->addChunk(clear);
    image->set(Image::OSG_RGBA_PF, 1, 1);
    decal->setImage(image.get());
    passes->addMaterial(glass.get());
    const std::pair<MaterialPtr, bool> rows[] = {
        {glass, true}, {decal, true}, {chunks, false}, {passes, false}};
    for (const auto &[material, isStill] : rows) {
        EXPECT_TRUE(material->isTransparent());
        material->setTransparencyMode(Material::TransparencyForceOpaque);
        EXPECT_EQ(material->isTransparent(), isStill) << material->getTypeName();
    }
    const auto opaque = held<SimpleMaterial>();
    opaque->setTransparencyMode(Material::TransparencyForceTransparent);
    EXPECT_TRUE(opaque->isTransparent());
}

TEST(SimpleTexturedMaterials, ReferToTheirImageWhenTheEditEnds)
{
    const auto material = held<SimpleTexturedMaterial>();
    const auto image = held<Image>();
    beginEditCP(material.get(), SimpleTexturedMaterial::ImageFieldMask);
    material->setImage(image.get());
    EXPECT_EQ(image.get().getRefCount(), 1);
    endEditCP(material.get(), SimpleTexturedMaterial::ImageFieldMask);
    EXPECT_GT(image.get().getRefCount(), 1);
    EXPECT_EQ(material->getImage(), image.get());
}

TEST(ChunkMaterials, AnswerTheRemovalOfAChunkWithFalse)
{
    const auto material = held<ChunkMaterial>();
    const auto colours = held<MaterialChunk>();
    const auto texture = held<TextureChunk>();
    EXPECT_TRUE(material->addChunk(colours.get()));
    EXPECT_EQ(colours.get().getRefCount(), 2);
    EXPECT_EQ(material->find(MaterialChunk::getClassType()), colours.get());
    EXPECT_EQ(material->find(TextureChunk::getClassType()), NullFC);
    EXPECT_TRUE(material->subChunk(texture.get()));
    EXPECT_FALSE(material->subChunk(colours.get()));
    EXPECT_EQ(colours.get().getRefCount(), 1);
}

TEST(MaterialOwners, TakeTheMaterialThatTheyHaveAndGroupsOneThatOnlyTheOldOneHolds)
{
    const auto owner = held<MaterialGroup>();
    const SwitchMaterialPtr around = SwitchMaterial::create();
    around->addMaterial(SimpleMaterial::create());
    const MaterialPtr inner = around->getMaterial(0);
    owner->setMaterial(around);
    owner->setMaterial(inner);
    EXPECT_EQ(inner.getRefCount(), 1);
    const auto geometry = held<Geometry>();
    geometry->setMaterial(SimpleMaterial::create());
    geometry->setMaterial(geometry->getMaterial());
    EXPECT_EQ(geometry->getMaterial().getRefCount(), 1);
}

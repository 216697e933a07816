#include "Contract.h"

#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGMaterialPool.h>
#include <OpenSG/OSGMultiPassMaterial.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGSwitchMaterial.h>

using namespace osg;

namespace {

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

} // namespace

TEST_F(SwitchMaterials, AcceptDuplicatesAndIgnoreNull)
{
    m_switch->addMaterial(m_red.get());
    m_switch->addMaterial(NullFC);
    EXPECT_EQ(m_switch->getMaterials().size(), 3u);
    m_switch->subMaterial(m_red.get());
    EXPECT_EQ(m_switch->getMaterials().getValues(), (std::vector<MaterialPtr>{m_glass, m_red}));
    EXPECT_EQ(m_red.get().getRefCount(), 2);
    m_switch->subMaterial(m_red.get());
    EXPECT_FALSE(m_switch->hasMaterial(m_red.get()) || m_switch->hasMaterial(NullFC));
    EXPECT_TRUE(warns([&] { m_switch->subMaterial(m_red.get()); }));
}

TEST_F(SwitchMaterials, KeepAChoiceThatIsOutOfRangeAndWarnWhenItIsUsed)
{
    EXPECT_EQ(m_switch->getChoice(), 0u);
    m_switch->setChoice(1);
    EXPECT_EQ(m_switch->getCurrentMaterial(), m_glass.get());
    m_switch->subMaterial(m_red.get());
    EXPECT_EQ(m_switch->getChoice(), 1u);
    MaterialPtr current = m_red.get();
    EXPECT_TRUE(warns([&] { current = m_switch->getCurrentMaterial(); }));
    EXPECT_EQ(current, NullFC);
    endEditCP(m_switch, SwitchMaterial::ChoiceFieldMask);
}

TEST_F(SwitchMaterials, LookLikeTheirCurrentMaterial)
{
    const auto passes = held<MultiPassMaterial>();
    const auto outer = held<SwitchMaterial>();
    passes->addMaterial(m_red.get());
    passes->addMaterial(m_glass.get());
    outer->addMaterial(m_switch);
    outer->addMaterial(passes.get());
    EXPECT_FALSE(outer->isTransparent());
    m_switch->setChoice(1);
    EXPECT_TRUE(outer->isTransparent());
    EXPECT_FALSE(outer->isMultiPass());
    outer->setChoice(1);
    EXPECT_TRUE(outer->isMultiPass());
    EXPECT_EQ(outer->getNPasses(), 2u);
}

TEST_F(SwitchMaterials, StandInPoolsInOrderWithoutDuplicatesAndNull)
{
    MaterialGroupPtr group;
    const NodeRefPtr scene(makeCoredNode<MaterialGroup>(&group));
    const auto pool = held<MaterialPool>();
    group->setMaterial(m_glass.get());
    pool->add(scene.get());
    const MaterialPtr red = m_red.get();
    for (const MaterialPtr &material : {MaterialPtr(m_switch), red, red, MaterialPtr()})
        pool->add(material);
    std::vector<MaterialPtr> all;
    pool->get(all);
    EXPECT_EQ(all, (std::vector<MaterialPtr>{m_glass, m_switch, red}));
    pool->sub(UInt32(2));
    EXPECT_EQ(pool->find(red), -1);
    EXPECT_TRUE(warns([&] { pool->sub(red); }));
}

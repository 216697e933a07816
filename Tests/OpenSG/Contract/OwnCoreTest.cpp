#include "Contract.h"

#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGUInt32Fields.h>

OSG_BEGIN_NAMESPACE

class LayerCore;
typedef FCPtr<GroupPtr, LayerCore> LayerCorePtr;

/// A core as a program writes its own, for both ways to build OpenSG 1.8.
class LayerCore : public Group {
    typedef Group Inherited;

public:
    typedef LayerCorePtr Ptr;
    enum { LayerFieldId = Inherited::NextFieldId, NextFieldId = LayerFieldId + 1 };
    static const BitVector LayerFieldMask;
    OSG_FIELD_CONTAINER_DECL(LayerCorePtr)

    SFUInt32 *getSFLayer() { return &_sfLayer; }
    virtual void dump(UInt32 = 0, const BitVector = 0) const {}

protected:
    LayerCore() : Inherited(), _sfLayer(5) {}
    LayerCore(const LayerCore &other) : Inherited(other), _sfLayer(other._sfLayer) {}
    virtual ~LayerCore() {}
#if !defined(OSG_FIXED_MFIELDSYNC)
    virtual void executeSync(FieldContainer &other, const BitVector &which)
    {
        Inherited::executeSyncImpl(static_cast<LayerCore *>(&other), which);
#else
    virtual void executeSync(FieldContainer &other, const BitVector &which, const SyncInfo &info)
    {
        Inherited::executeSyncImpl(static_cast<LayerCore *>(&other), which, info);
#endif
        _sfLayer.syncWith(static_cast<LayerCore &>(other)._sfLayer);
    }

    SFUInt32 _sfLayer;

private:
    friend class FieldContainer;
    static FieldDescription *_desc[];
    static FieldContainerType _type;
    void operator=(const LayerCore &);
};

OSG_FIELD_CONTAINER_INL_DEF(LayerCore, LayerCorePtr)

const BitVector LayerCore::LayerFieldMask = TypeTraits<BitVector>::One << LayerCore::LayerFieldId;
FieldDescription *LayerCore::_desc[] = {
    new FieldDescription(SFUInt32::getClassType(), "layer", LayerFieldId, LayerFieldMask, false,
                         (FieldAccessMethod)&LayerCore::getSFLayer)};
FieldContainerType LayerCore::_type(
    "LayerCore", "Group", NULL, [] { return FieldContainerPtr(LayerCore::createEmpty()); }, NULL,
    _desc, sizeof(_desc));
OSG_FIELD_CONTAINER_DEF(LayerCore, LayerCorePtr)

OSG_END_NAMESPACE

using namespace osg;

TEST(OwnCores, AreCreatedByNameEditedFoundByTheirFieldsAndCloned)
{
    const NodeCoreRefPtr made(FieldContainerFactory::the()->createNodeCore("LayerCore"));
    EXPECT_EQ(made->getType(), LayerCore::getClassType());
    LayerCorePtr core;
    const NodeRefPtr node(makeCoredNode<LayerCore>(&core));
    EXPECT_EQ(core->getField("layer"), core->getSFLayer());
    EXPECT_EQ(core->getField(LayerCore::LayerFieldId), core->getSFLayer());
    forgetRecords();
    {
        CPEdit(core, LayerCore::LayerFieldMask);
        core->getSFLayer()->setValue(9);
    }
    EXPECT_EQ(timesRecorded(core, LayerCore::LayerFieldMask), 1u);
    const NodeRefPtr clone(deepCloneTree(node.get()));
    EXPECT_EQ(LayerCorePtr::dcast(clone->getCore())->getSFLayer()->getValue(), 9u);
}

#include "Contract.h"

#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGUInt32Fields.h>

// A core as a program declares it for itself, in the form that every 1.x library accepts.
OSG_BEGIN_NAMESPACE

class OverlayCore;
typedef FCPtr<GroupPtr, OverlayCore> OverlayCorePtr;

class OverlayCore : public Group {
    typedef Group Inherited;

public:
    typedef OverlayCorePtr Ptr;
    enum { LayerFieldId = Inherited::NextFieldId, NextFieldId = LayerFieldId + 1 };
    static const BitVector LayerFieldMask;
    OSG_FIELD_CONTAINER_DECL(OverlayCorePtr)
    SFUInt32 *getSFLayer(void) { return &_sfLayer; }
    const UInt32 &getLayer(void) const { return _sfLayer.getValue(); }
    void setLayer(const UInt32 &v) { _sfLayer.setValue(v); }
    virtual void changed(BitVector which, UInt32 o) { Inherited::changed(which, o); }
    virtual void dump(UInt32 = 0, const BitVector = 0) const {}

protected:
    OverlayCore(void) : Inherited(), _sfLayer(0) {}
    OverlayCore(const OverlayCore &o) : Inherited(o), _sfLayer(o._sfLayer) {}
    virtual ~OverlayCore(void) {}
    virtual void executeSync(FieldContainer &other, const BitVector &which)
    {
        OverlayCore &o = static_cast<OverlayCore &>(other);
        Inherited::executeSyncImpl(&o, which);
        if (which & LayerFieldMask)
            _sfLayer.syncWith(o._sfLayer);
    }
    SFUInt32 _sfLayer;

private:
    friend class FieldContainer;
    static FieldDescription *_desc[];
    static FieldContainerType _type;
    void operator=(const OverlayCore &);
};

OSG_FIELD_CONTAINER_INL_DEF(OverlayCore, OverlayCorePtr)

const BitVector OverlayCore::LayerFieldMask = TypeTraits<BitVector>::One
    << OverlayCore::LayerFieldId;
FieldDescription *OverlayCore::_desc[] = {
    new FieldDescription(SFUInt32::getClassType(), "layer", LayerFieldId, LayerFieldMask, false,
                         (FieldAccessMethod)&OverlayCore::getSFLayer)};
FieldContainerType OverlayCore::_type("OverlayCore", "Group", NULL,
                                      (PrototypeCreateF)&OverlayCore::createEmpty, NULL, _desc,
                                      sizeof(_desc));
OSG_FIELD_CONTAINER_DEF(OverlayCore, OverlayCorePtr)

OSG_END_NAMESPACE

using namespace osg;

TEST(OwnCores, AreTypesLikeAnyOther)
{
    EXPECT_EQ(FieldContainerFactory::the()->findType("OverlayCore"), &OverlayCore::getClassType());
    EXPECT_EQ(OverlayCore::getClassType().getParent(), &Group::getClassType());
    EXPECT_TRUE(OverlayCore::getClassType().isNodeCore());
    EXPECT_EQ(OverlayCore::LayerFieldMask, 8u);
    const NodeCoreRefPtr byName(FieldContainerFactory::the()->createNodeCore("OverlayCore"));
    EXPECT_NE(OverlayCorePtr::dcast(byName.get()), NullFC);
}

TEST(OwnCores, AreEditedRecordedAndDeepClonedWithTheirFields)
{
    OverlayCorePtr core;
    const NodeRefPtr node(makeCoredNode<OverlayCore>(&core));
    beginEditCP(core, OverlayCore::LayerFieldMask);
    core->setLayer(7);
    endEditCP(core, OverlayCore::LayerFieldMask);
    EXPECT_EQ(timesRecorded(core, OverlayCore::LayerFieldMask), 1u);
    EXPECT_EQ(static_cast<SFUInt32 *>(core->getField("layer"))->getValue(), 7u);

    const NodeRefPtr clone(deepCloneTree(node));
    const OverlayCorePtr copy = OverlayCorePtr::dcast(clone->getCore());
    ASSERT_NE(copy, NullFC);
    EXPECT_NE(copy, core);
    EXPECT_EQ(copy->getLayer(), 7u);
}

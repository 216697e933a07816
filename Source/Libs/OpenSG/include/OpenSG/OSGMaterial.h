#pragma once

#include <OpenSG/OSGAttachmentContainer.h>
#include <OpenSG/OSGInt32Fields.h>
#include <OpenSG/OSGMaterialFields.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGStateFields.h>

namespace osg {

/// Base of the materials: how a surface looks. A material does not know its users.
class Material : public AttachmentContainer {
    typedef AttachmentContainer Inherited;

public:
    typedef MaterialPtr Ptr;
    enum { SortKeyFieldId = Inherited::NextFieldId, TransparencyModeFieldId, NextFieldId };
    enum {
        TransparencyAutoDetection = 0,
        TransparencyForceTransparent = 1,
        TransparencyForceOpaque = 2
    };

    OSG_ABSTR_FIELD_CONTAINER_DECL(MaterialPtr)

    /// Whether it has to be drawn after what is behind it.
    virtual bool isTransparent() const;
    /// Whether surfaces are drawn several times, and how often.
    virtual bool isMultiPass() const { return false; }
    virtual UInt32 getNPasses() const { return 1; }

    /// The state for a renderer, made when first asked for and kept up to date from then on.
    virtual StatePtr getState(UInt32 pass = 0);
    /// A new state.
    virtual StatePtr makeState() = 0;
    /// Brings the state up to date; every edit's end does that.
    virtual void rebuildState() = 0;

    /// Rebuilds the state.
    void changed(BitVector whichField, UInt32 origin) override;

    /// Order of drawing among transparent surfaces.
    OSG_SF_INIT(SFInt32, SortKey, 0)
    /// Whether isTransparent() finds out by itself, or what it says.
    OSG_SF_INIT(SFInt32, TransparencyMode, TransparencyAutoDetection)

protected:
    Material() = default;
    /// The copy makes a state of its own.
    Material(const Material &other);
    ~Material() override;

    /// Rebuilds the states of the materials that this one shows. When one of them shows this one,
    /// the program ends: OpenSG 1.8 goes round in the ring until there is no memory.
    void rebuildStatesOf(const MaterialPtr *begin, const MaterialPtr *end);

    StatePtr _pState;

    bool m_isRebuilding = false;

    OSG_CONTAINER_STATICS
};

typedef Material MaterialBase;
typedef RefPtr<MaterialPtr> MaterialRefPtr;

OSG_ABSTR_FIELD_CONTAINER_INL_DEF(Material, MaterialPtr)

/// The null material.
extern MaterialPtr NullMaterial;

} // namespace osg

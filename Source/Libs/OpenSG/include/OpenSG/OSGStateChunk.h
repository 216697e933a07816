#pragma once

#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGStateChunkFields.h>

namespace osg {

/// One aspect of how a surface is drawn; several make a material.
class StateChunk : public Attachment {
    typedef Attachment Inherited;

public:
    typedef StateChunkPtr Ptr;

    OSG_ABSTR_FIELD_CONTAINER_DECL(StateChunkPtr)

    /// Whether this chunk alone makes a surface transparent.
    virtual bool isTransparent() const { return false; }

protected:
    StateChunk() = default;
    StateChunk(const StateChunk &) = default;

private:
    friend class FieldContainer;
    static FieldContainerType _type;
};

typedef RefPtr<StateChunkPtr> StateChunkRefPtr;

OSG_ABSTR_FIELD_CONTAINER_INL_DEF(StateChunk, StateChunkPtr)

} // namespace osg

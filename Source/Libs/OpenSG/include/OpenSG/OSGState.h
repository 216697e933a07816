#pragma once

#include <OpenSG/OSGStateChunk.h>
#include <OpenSG/OSGStateFields.h>

namespace osg {

/// The chunks that a material comes down to, as a renderer takes them. References its chunks.
class State : public FieldContainer {
    typedef FieldContainer Inherited;

public:
    typedef StatePtr Ptr;
    enum { ChunksFieldId = Inherited::NextFieldId, NextFieldId };

    /// Slots that a chunk finds by itself: the next free one, or the first one whatever is there.
    enum { AutoSlot = -1, AutoSlotReplace = -2 };

    OSG_FIELD_CONTAINER_DECL(StatePtr)

    /// Null is ignored.
    void addChunk(const StateChunkPtr &chunk);
    void clearChunks();
    /// Whether one of the chunks is.
    bool isTransparent() const;

    void dump(UInt32 indent = 0, const BitVector flags = 0) const override;

    OSG_MF(MFStateChunkPtr, Chunks)

protected:
    State() = default;
    State(const State &) = default;
    ~State() override;

    OSG_CONTAINER_STATICS
};

typedef RefPtr<StatePtr> StateRefPtr;

OSG_FIELD_CONTAINER_INL_DEF(State, StatePtr)

} // namespace osg

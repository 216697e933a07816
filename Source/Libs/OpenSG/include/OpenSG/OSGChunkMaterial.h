#pragma once

#include <OpenSG/OSGChunkMaterialFields.h>
#include <OpenSG/OSGMaterial.h>
#include <OpenSG/OSGState.h>

namespace osg {

/// A material made of chunks.
class ChunkMaterial : public Material {
    typedef Material Inherited;

public:
    typedef ChunkMaterialPtr Ptr;
    enum { ChunksFieldId = Inherited::NextFieldId, SlotsFieldId, NextFieldId };

    OSG_FIELD_CONTAINER_DECL(ChunkMaterialPtr)

    /// References the chunk and appends it. Always true; null is not refused.
    bool addChunk(StateChunkPtr chunk, Int32 slot = State::AutoSlotReplace);
    /// Removes and releases the chunk. False when it did so, true when there is no such chunk.
    bool subChunk(StateChunkPtr chunk, Int32 slot = State::AutoSlotReplace);
    /// Position of the chunk, -1 when absent.
    Int32 find(StateChunkPtr chunk) const;
    /// The first chunk of exactly this type, null when there is none.
    StateChunkPtr find(const FieldContainerType &type) const;

    /// Whether one of the chunks is, unless the mode forces it.
    bool isTransparent() const override;
    StatePtr makeState() override;
    void rebuildState() override;

    /// The chunks in the order they were added.
    OSG_MF(MFStateChunkPtr, Chunks)
    /// The slot that each chunk was added for.
    OSG_MF(MFInt32, Slots)

protected:
    ChunkMaterial() = default;
    ChunkMaterial(const ChunkMaterial &) = default;
    ~ChunkMaterial() override;

    /// Appends the chunks that make up the material.
    virtual void addChunksTo(State &state) const;

    OSG_CONTAINER_STATICS
};

typedef ChunkMaterial ChunkMaterialBase;
typedef RefPtr<ChunkMaterialPtr> ChunkMaterialRefPtr;

OSG_FIELD_CONTAINER_INL_DEF(ChunkMaterial, ChunkMaterialPtr)

} // namespace osg

#include <OpenSG/OSGChunkMaterial.h>

namespace osg {

OSG_FIELD_MASK(ChunkMaterial, Chunks)
OSG_FIELD_MASK(ChunkMaterial, Slots)

FieldDescription *ChunkMaterial::_desc[] = {OSG_MF_DESC(ChunkMaterial, Chunks, "chunks", false),
                                            OSG_MF_DESC(ChunkMaterial, Slots, "slots", false)};

FieldContainerType ChunkMaterial::_type(
    "ChunkMaterial", "Material", NULL,
    [] { return FieldContainerPtr(ChunkMaterial::createEmpty()); }, NULL, _desc, sizeof(_desc));

OSG_FIELD_CONTAINER_DEF(ChunkMaterial, ChunkMaterialPtr)

ChunkMaterial::~ChunkMaterial()
{
    for (const StateChunkPtr &chunk : _mfChunks)
        subRefCP(chunk);
}

bool ChunkMaterial::addChunk(StateChunkPtr chunk, Int32 slot)
{
    addRefCP(chunk);
    _mfChunks.push_back(chunk);
    _mfSlots.push_back(slot);
    return true;
}

bool ChunkMaterial::subChunk(StateChunkPtr chunk, Int32 slot)
{
    for (UInt32 i = 0; i < _mfChunks.getSize(); ++i) {
        // Slots are told apart: a chunk may be there several times.
        if (_mfChunks[i] != chunk || _mfSlots[i] != slot)
            continue;
        _mfChunks.erase(_mfChunks.begin() + i);
        _mfSlots.erase(_mfSlots.begin() + i);
        subRefCP(chunk);
        return false;
    }
    return true;
}

Int32 ChunkMaterial::find(StateChunkPtr chunk) const
{
    const auto found = _mfChunks.find(chunk);
    return found == _mfChunks.end() ? -1 : Int32(found - _mfChunks.begin());
}

StateChunkPtr ChunkMaterial::find(const FieldContainerType &type) const
{
    for (const StateChunkPtr &chunk : _mfChunks) {
        if (chunk && chunk->getType() == type)
            return chunk;
    }
    return NullFC;
}

bool ChunkMaterial::isTransparent() const
{
    if (getTransparencyMode() != TransparencyAutoDetection)
        return Inherited::isTransparent();
    return std::any_of(_mfChunks.begin(), _mfChunks.end(),
                       [](const StateChunkPtr &chunk) { return chunk && chunk->isTransparent(); });
}

StatePtr ChunkMaterial::makeState()
{
    const StatePtr state = State::create();
    addChunksTo(*state);
    return state;
}

void ChunkMaterial::rebuildState()
{
    // Only a state that somebody has asked for is kept up to date.
    if (!_pState)
        return;
    _pState->clearChunks();
    addChunksTo(*_pState);
}

void ChunkMaterial::addChunksTo(State &state) const
{
    for (const StateChunkPtr &chunk : _mfChunks)
        state.addChunk(chunk);
}

} // namespace osg

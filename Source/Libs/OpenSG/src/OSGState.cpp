#include <OpenSG/OSGState.h>

namespace osg {

OSG_FIELD_MASK(State, Chunks)

FieldDescription *State::_desc[] = {OSG_MF_DESC(State, Chunks, "chunks", false)};

FieldContainerType State::_type(
    "State", "FieldContainer", NULL, [] { return FieldContainerPtr(State::createEmpty()); }, NULL,
    _desc, sizeof(_desc));

OSG_FIELD_CONTAINER_DEF(State, StatePtr)

State::~State()
{
    clearChunks();
}

void State::addChunk(const StateChunkPtr &chunk)
{
    if (!chunk)
        return;
    addRefCP(chunk);
    _mfChunks.push_back(chunk);
}

void State::clearChunks()
{
    for (const StateChunkPtr &chunk : _mfChunks)
        subRefCP(chunk);
    _mfChunks.clear();
}

bool State::isTransparent() const
{
    return std::any_of(_mfChunks.begin(), _mfChunks.end(),
                       [](const StateChunkPtr &chunk) { return chunk->isTransparent(); });
}

void State::dump(UInt32 indent, const BitVector) const
{
    dumpHeader(indent);
    for (const StateChunkPtr &chunk : _mfChunks)
        chunk->dump(indent + 4);
}

} // namespace osg

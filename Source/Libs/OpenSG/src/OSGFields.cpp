#include <OpenSG/OSGChunkMaterialFields.h>
#include <OpenSG/OSGColor3fFields.h>
#include <OpenSG/OSGColor4fFields.h>
#include <OpenSG/OSGComponentTransformFields.h>
#include <OpenSG/OSGDirectionalLightFields.h>
#include <OpenSG/OSGDynamicVolumeFields.h>
#include <OpenSG/OSGGeoPropPtrs.h>
#include <OpenSG/OSGGeometryFields.h>
#include <OpenSG/OSGImageFields.h>
#include <OpenSG/OSGInt16Fields.h>
#include <OpenSG/OSGInt64Fields.h>
#include <OpenSG/OSGInt8Fields.h>
#include <OpenSG/OSGMaterialChunkFields.h>
#include <OpenSG/OSGMaterialGroupFields.h>
#include <OpenSG/OSGMaterialPoolFields.h>
#include <OpenSG/OSGMatrixFields.h>
#include <OpenSG/OSGMultiPassMaterialFields.h>
#include <OpenSG/OSGNodeFields.h>
#include <OpenSG/OSGNumberFields.h>
#include <OpenSG/OSGPnt2fFields.h>
#include <OpenSG/OSGPnt3fFields.h>
#include <OpenSG/OSGPnt4fFields.h>
#include <OpenSG/OSGQuaternionFields.h>
#include <OpenSG/OSGSimpleTexturedMaterialFields.h>
#include <OpenSG/OSGSpotLightFields.h>
#include <OpenSG/OSGStateFields.h>
#include <OpenSG/OSGStringFields.h>
#include <OpenSG/OSGSwitchFields.h>
#include <OpenSG/OSGSwitchMaterialFields.h>
#include <OpenSG/OSGTextureChunkFields.h>
#include <OpenSG/OSGUInt64Fields.h>
#include <OpenSG/OSGVec2fFields.h>
#include <OpenSG/OSGVec3fFields.h>
#include <OpenSG/OSGVec4fFields.h>

namespace osg {

// The only copies of the field classes, so that a field type is the same in every library.
#define OSG_FIELD_CODE(VALUE) \
    template class SField<VALUE>; \
    template class MField<VALUE>;

OSG_FIELD_CODE(bool)
OSG_FIELD_CODE(Int8)
OSG_FIELD_CODE(Int16)
OSG_FIELD_CODE(Int32)
OSG_FIELD_CODE(Int64)
OSG_FIELD_CODE(UInt8)
OSG_FIELD_CODE(UInt16)
OSG_FIELD_CODE(UInt32)
OSG_FIELD_CODE(UInt64)
OSG_FIELD_CODE(Real32)
OSG_FIELD_CODE(Real64)
OSG_FIELD_CODE(std::string)
OSG_FIELD_CODE(Vec2f)
OSG_FIELD_CODE(Vec3f)
OSG_FIELD_CODE(Vec4f)
OSG_FIELD_CODE(Pnt2f)
OSG_FIELD_CODE(Pnt3f)
OSG_FIELD_CODE(Pnt4f)
OSG_FIELD_CODE(Color3f)
OSG_FIELD_CODE(Color4f)
OSG_FIELD_CODE(Matrix)
OSG_FIELD_CODE(Quaternion)
OSG_FIELD_CODE(DynamicVolume)

OSG_FIELD_CODE(FieldContainerPtr)
OSG_FIELD_CODE(AttachmentPtr)
template class SField<AttachmentMap>;
OSG_FIELD_CODE(AttachmentContainerPtr)
OSG_FIELD_CODE(NodePtr)
OSG_FIELD_CODE(NodeCorePtr)
OSG_FIELD_CODE(GroupPtr)
OSG_FIELD_CODE(SwitchPtr)
OSG_FIELD_CODE(TransformPtr)
OSG_FIELD_CODE(ComponentTransformPtr)
OSG_FIELD_CODE(LightPtr)
OSG_FIELD_CODE(PointLightPtr)
OSG_FIELD_CODE(DirectionalLightPtr)
OSG_FIELD_CODE(SpotLightPtr)
OSG_FIELD_CODE(MaterialGroupPtr)
OSG_FIELD_CODE(MaterialPoolPtr)
OSG_FIELD_CODE(DrawablePtr)
OSG_FIELD_CODE(MaterialDrawablePtr)
OSG_FIELD_CODE(GeometryPtr)
OSG_FIELD_CODE(StatePtr)
OSG_FIELD_CODE(StateChunkPtr)
OSG_FIELD_CODE(MaterialChunkPtr)
OSG_FIELD_CODE(TextureChunkPtr)
OSG_FIELD_CODE(MaterialPtr)
OSG_FIELD_CODE(ChunkMaterialPtr)
OSG_FIELD_CODE(SimpleMaterialPtr)
OSG_FIELD_CODE(SimpleTexturedMaterialPtr)
OSG_FIELD_CODE(SwitchMaterialPtr)
OSG_FIELD_CODE(MultiPassMaterialPtr)
OSG_FIELD_CODE(ImagePtr)
OSG_FIELD_CODE(GeoPositionsPtr)
OSG_FIELD_CODE(GeoNormalsPtr)
OSG_FIELD_CODE(GeoColorsPtr)
OSG_FIELD_CODE(GeoTexCoordsPtr)
OSG_FIELD_CODE(GeoIndicesPtr)
OSG_FIELD_CODE(GeoPTypesPtr)
OSG_FIELD_CODE(GeoPLengthsPtr)

} // namespace osg

#include <OpenSG/OSGMaterialPool.h>

#include <OpenSG/OSGAction.h>
#include <OpenSG/OSGMaterialDrawable.h>
#include <OpenSG/OSGMaterialGroup.h>

#include "OSGWarning.h"

namespace osg {

OSG_FIELD_MASK(MaterialPool, Materials)

FieldDescription *MaterialPool::_desc[] = {
    OSG_MF_DESC(MaterialPool, Materials, "materials", false)};

FieldContainerType MaterialPool::_type(
    "MaterialPool", "Group", NULL, [] { return FieldContainerPtr(MaterialPool::createEmpty()); },
    NULL, _desc, sizeof(_desc));

OSG_FIELD_CONTAINER_DEF(MaterialPool, MaterialPoolPtr)

namespace {

/// The materials of the cores of a tree, in the order of the walk, perhaps several times.
class MaterialCollector {
public:
    explicit MaterialCollector(const NodePtr &root)
    {
        if (root)
            traverse(root, osgTypedMethodFunctor1ObjPtrCPtrRef(this, &MaterialCollector::enter));
    }

    std::vector<MaterialPtr> materials;

private:
    Action::ResultE enter(NodePtr &node)
    {
        const NodeCorePtr core = node->getCore();
        if (const MaterialGroupPtr group = MaterialGroupPtr::dcast(core))
            materials.push_back(group->getMaterial());
        else if (const MaterialDrawablePtr drawable = MaterialDrawablePtr::dcast(core))
            materials.push_back(drawable->getMaterial());
        else if (const MaterialPoolPtr pool = MaterialPoolPtr::dcast(core))
            addAllOf(pool);
        return Action::Continue;
    }
    void addAllOf(const MaterialPoolPtr &pool)
    {
        std::vector<MaterialPtr> pooled;
        pool->get(pooled);
        materials.insert(materials.end(), pooled.begin(), pooled.end());
    }
};

} // namespace

MaterialPool::~MaterialPool()
{
    clear();
}

void MaterialPool::changed(BitVector whichField, UInt32 origin)
{
    // The list may have been filled directly, by a clone.
    if (m_set.size() != _mfMaterials.size())
        m_set = std::set<MaterialPtr>(_mfMaterials.begin(), _mfMaterials.end());
    Inherited::changed(whichField, origin);
}

void MaterialPool::add(const MaterialPtr &material)
{
    if (!material || !m_set.insert(material).second)
        return;
    addRefCP(material);
    _mfMaterials.push_back(material);
}

void MaterialPool::add(const NodePtr &root)
{
    const MaterialCollector found(root);
    for (const MaterialPtr &material : found.materials)
        add(material);
}

void MaterialPool::add(const MaterialPoolPtr &pool)
{
    if (!pool)
        return;
    // Over a copy: the pool may be this one.
    for (const MaterialPtr &material : MFMaterialPtr(pool->_mfMaterials))
        add(material);
}

void MaterialPool::sub(const MaterialPtr &material)
{
    const Int32 index = find(material);
    if (index < 0)
        warn("MaterialPool::sub: not a material of this pool");
    else
        sub(UInt32(index));
}

void MaterialPool::sub(const NodePtr &root)
{
    const MaterialCollector found(root);
    for (const MaterialPtr &material : found.materials) {
        if (find(material) >= 0)
            sub(material);
    }
}

void MaterialPool::sub(const MaterialPoolPtr &pool)
{
    if (!pool)
        return;
    for (const MaterialPtr &material : MFMaterialPtr(pool->_mfMaterials)) {
        if (find(material) >= 0)
            sub(material);
    }
}

void MaterialPool::sub(UInt32 index)
{
    if (index >= getCount())
        fail("MaterialPool::sub: there is no material at this index");
    const MaterialPtr material = _mfMaterials[index];
    _mfMaterials.erase(_mfMaterials.begin() + index);
    m_set.erase(material);
    subRefCP(material);
}

Int32 MaterialPool::find(const MaterialPtr &material) const
{
    const auto found = _mfMaterials.find(material);
    return found == _mfMaterials.end() ? -1 : Int32(found - _mfMaterials.begin());
}

MaterialPtr MaterialPool::get(UInt32 index)
{
    return index < getCount() ? _mfMaterials[index] : MaterialPtr();
}

void MaterialPool::get(std::vector<MaterialPtr> &materials)
{
    materials = _mfMaterials.getValues();
}

void MaterialPool::clear()
{
    MFMaterialPtr materials;
    materials.getValues().swap(_mfMaterials.getValues());
    m_set.clear();
    for (const MaterialPtr &material : materials)
        subRefCP(material);
}

} // namespace osg

#include "Core/qxModuleBus.h"
#include "Materials/qxMaterialNames.h"
#include "Materials/qxMaterialUsers.h"
#include "Scene/qxEditReader.h"
#include "qxMaterials.h"
#include "qxMessage.h"
#include "qxModuleBase.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGSimpleAttachments.h>

namespace {

/// Both indices, kept true by reading the scene graph's change list before each look-up.
class MaterialIndex {
public:
    static MaterialIndex &current()
    {
        static MaterialIndex index;
        index.follow();
        return index;
    }

    qxMaterialNames names;
    qxMaterialUsers users;

private:
    MaterialIndex()
    {
        m_follower.edited = [this](osg::UInt32 id, osg::BitVector mask) {
            m_poolEdited = m_poolEdited || id == m_poolId;
            names.edited(id);
            users.edited(id, mask);
        };
        m_follower.destroyed = [this](osg::UInt32 id) {
            names.destroyed(id);
            users.destroyed(id);
        };
        qxModuleBus::addListener([this](qxMessage &message) {
            if (message.code() == qxModuleBase::MaterialsChanged)
                materialsChanged();
        });
    }

    void reset()
    {
        names.reset(m_pool);
        users.reset();
    }

    /// Reading a document sends the message once for each switch material that it adds. What was
    /// recorded of the pool since the last message is what such a message is about.
    void materialsChanged()
    {
        follow();
        if (!m_poolEdited)
            reset();
        m_poolEdited = false;
    }

    void follow()
    {
        const osg::MaterialPoolPtr pool = qxScenegraph::getMaterialPool();
        const osg::UInt32 poolId = pool == osg::NullFC ? 0 : pool.getFieldContainerId();
        const bool samePool = poolId == m_poolId;
        m_pool = pool;
        m_poolId = poolId;
        const bool complete = poolId != 0 && m_edits.read(pool, m_follower);
        if (!samePool || !complete)
            reset();
    }

    osg::MaterialPoolPtr m_pool;
    osg::UInt32 m_poolId = 0; ///< tells a new pool in the storage of the old one
    bool m_poolEdited = false; ///< since the last message
    qxEditReader m_edits;
    qxEditReader::Follower m_follower;
};

} // namespace

qxMaterialNames &qxMaterialNames::current()
{
    return MaterialIndex::current().names;
}

void qxMaterials::setName(const osg::MaterialPtr &material, const char *name, bool exact)
{
    if (material == osg::NullFC || !name)
        return;
    osg::setName(material, exact ? std::string(name) : qxMaterialNames::current().freeName(name));
}

osg::MaterialPtr qxMaterials::findMaterial(const char *name)
{
    return name && *name ? qxMaterialNames::current().first(name) : osg::MaterialPtr();
}

std::vector<osg::MaterialPtr> qxMaterials::findMaterials(const char *name)
{
    if (!name || !*name)
        return {};
    return qxMaterialNames::current().find(name);
}

void qxMaterials::getNodesWithMaterial(std::vector<qxNodePtr> &nodes,
                                       const osg::MaterialPtr &material)
{
    MaterialIndex::current().users.find(nodes, material);
}

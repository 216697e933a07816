#pragma once

#include <OpenSG/OSGMaterialPool.h>

#include <string>
#include <unordered_map>
#include <vector>

/// Finds materials by name: those of a pool in its order, each followed by the materials that it
/// contains. Every material occurs once, at its first place.
class qxMaterialNames {
public:
    /// The one of the scene, updated by all edits until now.
    static qxMaterialNames &current();

    /// Switches to `pool`; everything is read again when needed.
    void reset(const osg::MaterialPoolPtr &pool);
    /// The object with that id was edited.
    void edited(osg::UInt32 id);
    /// The object with that id was destroyed.
    void destroyed(osg::UInt32 id);

    /// The first material of that name, or null, in constant time.
    osg::MaterialPtr first(const std::string &name);
    /// The materials of that name, empty when there are none.
    std::vector<osg::MaterialPtr> find(const std::string &name);
    /// The name, or if a material has it, the name with the first free number from 2 on.
    std::string freeName(const std::string &name);

private:
    /// A material as it was when it was read.
    struct Known {
        osg::MaterialPtr material;
        osg::UInt32 id;
        osg::UInt32 nameId; ///< of the attachment that holds the name, 0 for none
        std::string name;
        std::vector<osg::MaterialPtr> contents;
        int containers = 0; ///< how many others contain it
    };
    struct Pooled {
        osg::MaterialPtr material;
        std::size_t index; ///< in m_known
    };

    typedef std::vector<std::size_t> Places; ///< indices into m_known, ascending

    const Places &lookUp(const std::string &name, std::size_t wanted);
    void follow();
    bool followContents(std::size_t index);
    bool followName(std::size_t index);
    void removeName(std::size_t index);
    void followPool();
    bool onlyGrew() const;
    void read();
    std::size_t add(const osg::MaterialPtr &material);
    void addToPool(const osg::MaterialPtr &material);
    bool forget(std::size_t index);
    bool isStill(const Known &known) const;
    bool areStill(const Places &found, std::size_t wanted) const;

    osg::MaterialPoolPtr m_pool;
    bool m_outdated = true;
    bool m_poolEdited = false;
    bool m_displaced = false; ///< some are found elsewhere in m_known than in a walk
    bool m_sharesNames = false; ///< some have the same attachment for their name
    std::vector<osg::UInt32> m_destroyed; ///< known ones that were destroyed
    std::vector<Pooled> m_pooled; ///< the pool's contents when it was read
    std::vector<Known> m_known; ///< in the order of look-ups; forgotten ones are null
    std::unordered_map<osg::UInt32, std::size_t>
        m_byId; ///< by the ids of materials and their names
    std::unordered_map<std::string, Places> m_byName;
    std::unordered_map<std::string, std::size_t> m_tried; ///< numbers below this one are taken
};

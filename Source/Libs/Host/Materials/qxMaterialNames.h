#pragma once

#include <OpenSG/OSGMaterialPool.h>

#include <string>
#include <unordered_map>
#include <vector>

/// Finds materials by name: those of a pool in its order, and behind each one that is made of
/// others those that it contains. Every material counts once, where it comes first.
class qxMaterialNames {
public:
    /// That of the scene, told of all edits until now.
    static qxMaterialNames &current();

    /// From now on `pool` is meant, and everything is read anew when needed.
    void reset(const osg::MaterialPoolPtr &pool);
    /// Takes note that the object with that id was edited.
    void edited(osg::UInt32 id);
    /// Takes note that the object with that id is gone.
    void destroyed(osg::UInt32 id);

    /// The first material of that name, or null. It costs the same however many there are.
    osg::MaterialPtr first(const std::string &name);
    /// The materials of that name, empty when there are none.
    std::vector<osg::MaterialPtr> find(const std::string &name);
    /// The name, when a material has it with the first number from 2 on that no material has.
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
    std::vector<osg::UInt32> m_destroyed; ///< known ones that are gone
    std::vector<Pooled> m_pooled; ///< the pool's contents when it was read
    std::vector<Known> m_known; ///< in the order of look-ups; forgotten ones are null
    std::unordered_map<osg::UInt32, std::size_t>
        m_byId; ///< by the ids of materials and their names
    std::unordered_map<std::string, Places> m_byName;
    std::unordered_map<std::string, std::size_t> m_tried; ///< numbers below this one are taken
};

#include "Materials/qxMaterialNames.h"

#include "qxMaterialParts.h"
#include "qxMaterials.h"

#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGSimpleAttachments.h>

#include <algorithm>

namespace {

osg::UInt32 nameIdOf(const osg::MaterialPtr &material)
{
    const osg::AttachmentPtr name = material->findAttachment(osg::Name::getClassType());
    return name == osg::NullFC ? 0 : name.getFieldContainerId();
}

constexpr std::size_t allOfThem = std::size_t(-1);

bool lives(osg::UInt32 id)
{
    return osg::FieldContainerFactory::the()->getContainer(id) != osg::NullFC;
}

std::vector<osg::MaterialPtr> contentsOf(const osg::MaterialPoolPtr &pool)
{
    std::vector<osg::MaterialPtr> materials;
    if (pool != osg::NullFC)
        pool->get(materials);
    return materials;
}

} // namespace

void qxMaterialNames::reset(const osg::MaterialPoolPtr &pool)
{
    m_pool = pool;
    m_outdated = true;
}

void qxMaterialNames::edited(osg::UInt32 id)
{
    if (m_outdated)
        return;
    const auto known = m_byId.find(id);
    if (known != m_byId.end() && !isStill(m_known[known->second]))
        m_outdated = !followContents(known->second);
    if (id == m_pool.getFieldContainerId())
        m_poolEdited = true;
}

void qxMaterialNames::destroyed(osg::UInt32 id)
{
    if (m_byId.count(id) > 0)
        m_destroyed.push_back(id);
}

osg::MaterialPtr qxMaterialNames::first(const std::string &name)
{
    const Places &places = lookUp(name, 1);
    return places.empty() ? osg::MaterialPtr() : m_known[places.front()].material;
}

std::vector<osg::MaterialPtr> qxMaterialNames::find(const std::string &name)
{
    std::vector<osg::MaterialPtr> materials;
    for (const std::size_t index : lookUp(name, allOfThem))
        materials.push_back(m_known[index].material);
    return materials;
}

/// Where the materials of that name are known. The first `wanted` of them are as they were when
/// they were read: edits outside of brackets are found out here.
const qxMaterialNames::Places &qxMaterialNames::lookUp(const std::string &name, std::size_t wanted)
{
    static const Places none;
    follow();
    auto found = m_byName.find(name);
    if (found != m_byName.end() && !areStill(found->second, wanted)) {
        read();
        found = m_byName.find(name);
    }
    return found == m_byName.end() ? none : found->second;
}

std::string qxMaterialNames::freeName(const std::string &name)
{
    if (first(name) == osg::NullFC)
        return name;
    const auto tried = m_tried.find(name);
    std::size_t number = tried == m_tried.end() ? 2 : tried->second;
    std::string numbered = name + ' ' + std::to_string(number);
    while (first(numbered) != osg::NullFC)
        numbered = name + ' ' + std::to_string(++number);
    m_tried[name] = number; // not beyond it: it may not be given to a material after all
    return numbered;
}

void qxMaterialNames::follow()
{
    // The count also tells of materials that were added or removed outside of an edit.
    if (!m_outdated && (m_poolEdited || m_pool->getCount() != m_pooled.size()))
        followPool();
    // What the pool still seems to hold may be a new material in the storage of a destroyed one.
    for (const osg::UInt32 id : m_destroyed)
        m_outdated = m_outdated || m_byId.count(id) > 0;
    m_destroyed.clear();
    if (m_outdated)
        read();
}

/// Takes in the material's name; false when that may also concern other materials, or the order in
/// which those of the name are found is not known.
bool qxMaterialNames::followName(std::size_t index)
{
    Known &known = m_known[index];
    const osg::UInt32 nameId = nameIdOf(known.material);
    const std::string name = qxMaterials::getName(known.material);
    if (nameId == known.nameId && name == known.name)
        return true;
    if (m_sharesNames || (nameId != known.nameId && m_byId.count(nameId) > 0))
        return false;
    if (m_displaced && m_byName.count(name) > 0)
        return false;
    m_byId.erase(known.nameId);
    removeName(index);
    known.nameId = nameId;
    known.name = name;
    if (nameId != 0)
        m_byId.emplace(nameId, index);
    if (name.empty())
        return true;
    std::vector<std::size_t> &namesakes = m_byName[name];
    namesakes.insert(std::lower_bound(namesakes.begin(), namesakes.end(), index), index);
    return true;
}

/// The name is free again when it was the only one of that name.
void qxMaterialNames::removeName(std::size_t index)
{
    const std::string &name = m_known[index].name;
    const auto found = m_byName.find(name);
    if (found == m_byName.end())
        return;
    std::vector<std::size_t> &namesakes = found->second;
    namesakes.erase(std::remove(namesakes.begin(), namesakes.end(), index), namesakes.end());
    m_tried.erase(name.substr(0, name.rfind(' '))); // it may be a numbered one that was taken
    if (namesakes.empty())
        m_byName.erase(found);
}

/// Takes in the name, and what was appended to the contents of a material; false when more than
/// that happened, or when it changes the order in which materials of one name are found.
bool qxMaterialNames::followContents(std::size_t index)
{
    Known &known = m_known[index];
    if (!lives(known.id) || !followName(index))
        return false;
    const std::vector<osg::MaterialPtr> now = qxMaterialParts::of(known.material);
    const std::size_t before = known.contents.size();
    if (now.size() < before
        || !std::equal(known.contents.begin(), known.contents.end(), now.begin()))
        return false;
    const auto isInPlace = [&](const osg::MaterialPtr &added) {
        const auto found =
            added == osg::NullFC ? m_byId.end() : m_byId.find(added.getFieldContainerId());
        if (found == m_byId.end())
            return false;
        const Known &other = m_known[found->second];
        return found->second < index
            || (other.contents.empty() && m_byName[other.name].size() == 1);
    };
    if (!std::all_of(now.begin() + std::ptrdiff_t(before), now.end(), isInPlace))
        return false;
    for (std::size_t i = before; i < now.size(); ++i) {
        const std::size_t added = m_byId[now[i].getFieldContainerId()];
        ++m_known[added].containers;
        m_displaced = m_displaced || added > index;
    }
    known.contents = now;
    return true;
}

/// Whether the pool still has the last of what it had, and at the same places: then it only grew.
bool qxMaterialNames::onlyGrew() const
{
    const std::size_t count = m_pooled.size();
    if (m_pool->getCount() < count)
        return false;
    for (std::size_t i = count - std::min(count, std::size_t(4)); i < count; ++i) {
        if (m_pool->get(osg::UInt32(i)) != m_pooled[i].material)
            return false;
    }
    return true;
}

/// Keeps what still stands in the same order, forgets the others and appends what is behind it.
void qxMaterialNames::followPool()
{
    m_poolEdited = false;
    if (onlyGrew()) {
        for (std::size_t i = m_pooled.size(); i < m_pool->getCount(); ++i)
            addToPool(m_pool->get(osg::UInt32(i)));
        return;
    }
    const std::vector<osg::MaterialPtr> now = contentsOf(m_pool);
    std::size_t kept = 0;
    for (const Pooled &pooled : m_pooled) {
        if (kept < now.size() && now[kept] == pooled.material) {
            m_pooled[kept++] = pooled;
        } else if (!forget(pooled.index)) {
            m_outdated = true;
            return;
        }
    }
    m_pooled.resize(kept);
    for (; kept < now.size(); ++kept)
        addToPool(now[kept]);
}

void qxMaterialNames::read()
{
    m_known.clear();
    m_byId.clear();
    m_byName.clear();
    m_pooled.clear();
    m_tried.clear();
    m_displaced = m_sharesNames = false;
    for (const osg::MaterialPtr &material : contentsOf(m_pool))
        addToPool(material);
    m_outdated = m_pool == osg::NullFC;
    m_poolEdited = false;
}

void qxMaterialNames::addToPool(const osg::MaterialPtr &material)
{
    m_pooled.push_back({material, add(material)});
}

/// The index of the material, which is known from now on with everything that it contains.
std::size_t qxMaterialNames::add(const osg::MaterialPtr &material)
{
    const std::size_t index = m_known.size();
    const osg::UInt32 id = material.getFieldContainerId();
    const auto known = m_byId.emplace(id, index);
    if (!known.second)
        return known.first->second;
    const osg::UInt32 nameId = nameIdOf(material);
    if (nameId != 0)
        m_sharesNames = !m_byId.emplace(nameId, index).second || m_sharesNames;
    const std::string name = qxMaterials::getName(material);
    if (!name.empty())
        m_byName[name].push_back(index);
    const std::vector<osg::MaterialPtr> contents = qxMaterialParts::of(material);
    m_known.push_back({material, id, nameId, name, contents});
    for (const osg::MaterialPtr &contained : contents) {
        if (contained != osg::NullFC)
            ++m_known[add(contained)].containers;
    }
    return index;
}

/// False when others depend on it: it is contained in one, or contains some. The material may be
/// gone.
bool qxMaterialNames::forget(std::size_t index)
{
    Known &known = m_known[index];
    if (known.containers > 0 || !known.contents.empty())
        return false;
    m_byId.erase(known.id);
    m_byId.erase(known.nameId);
    removeName(index);
    known = Known();
    return true;
}

bool qxMaterialNames::isStill(const Known &known) const
{
    return lives(known.id) && nameIdOf(known.material) == known.nameId
        && qxMaterials::getName(known.material) == known.name
        && qxMaterialParts::of(known.material) == known.contents;
}

bool qxMaterialNames::areStill(const Places &found, std::size_t wanted) const
{
    const auto end = found.begin() + std::ptrdiff_t(std::min(found.size(), wanted));
    return std::all_of(found.begin(), end,
                       [this](std::size_t index) { return isStill(m_known[index]); });
}

#pragma once

#include <QString>

class qxVariantGroup;
class qxVariantSet;

/// The registry's operations on sets and groups, see those of qxVariants.
namespace qxSetRegistry {

qxVariantSet *createSet(const QString &name, bool notify, qxVariantGroup *group);
bool removeSet(const QString &name);
void clearSets();
void clearEmptySets();
bool hasEmptySets();
void optimizeSets();

qxVariantGroup *createGroup(const QString &name, bool notify, bool visible);
qxVariantGroup *findOrCreateGroup(const QString &name);
bool removeGroup(const QString &name);
void clearGroups();
void clearEmptyGroups();
bool hasEmptyGroups();

QString uniqueSetName(const QString &base);
QString uniqueGroupName(const QString &base);

} // namespace qxSetRegistry

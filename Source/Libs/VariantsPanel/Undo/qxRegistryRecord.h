#pragma once

#include "qxVariantMemento.h"

#include "qxSetMemento.h"

#include <QHash>
#include <QStringList>

class qxVariantGroup;

/// Where the things of the registry stand, by their names.
struct qxRegistryOrder {
    struct Group {
        QString name;
        QStringList sets;
        bool operator==(const Group &other) const
        {
            return name == other.name && sets == other.sets;
        }
    };

    static qxRegistryOrder now();
    bool operator==(const qxRegistryOrder &other) const
    {
        return groups == other.groups && sets == other.sets && variants == other.variants;
    }

    QList<Group> groups;
    QStringList sets; ///< those in no group
    QList<QStringList> variants; ///< in the order of qxVariantKinds::all
};

/// The contents of the registry at some time, to find out what has changed since. The time grows
/// with the registry, but what has not changed is not copied.
class qxRegistryRecord {
public:
    /// What has changed, valid until the registry changes.
    struct Changes {
        std::vector<const qxVariantGroup *> groups;
        std::vector<const qxVariantSet *> sets;
        std::vector<std::pair<const qxVariantKind *, const qxVariant *>> variants;
        bool isOrderOther = false; ///< something came, went or moved, too

        bool isEmpty() const
        {
            return groups.empty() && sets.empty() && variants.empty() && !isOrderOther;
        }
    };

    /// Of nothing: all that there is has changed.
    qxRegistryRecord() = default;
    /// What is new, or other than at the last update.
    Changes changes() const;
    /// Takes these changes, which must be the present ones, over.
    void update(const Changes &changes);
    /// What stood where at the last update.
    const qxRegistryOrder &order() const { return m_order; }

private:
    struct GroupContents {
        QString comment;
        bool isVisible;
    };

    qxRegistryOrder m_order;
    QHash<QString, GroupContents> m_groups;
    QHash<QString, qxSetMemento> m_sets;
    QHash<const qxVariantKind *, QHash<QString, qxVariantMemento>> m_variants;
};

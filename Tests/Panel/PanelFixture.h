#pragma once

#include "qxVariantGroup.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "HostFixture.h"
#include "TestFiles.h"
#include "Undo/qxSetEdits.h"
#include "qxPanelChanges.h"

#include <QtCore>

/// A test with two groups of sets, which tells what a view of them reads.
class PanelFixture : public HostFixture {
protected:
    PanelFixture()
    {
        addGroup("Outside", {"Red", "Blue"});
        addGroup("Inside", {"Leather"});
        qxVariants::createVariantSet("Alone", false, nullptr);
        settle();
    }

    static void addGroup(const char *name, const std::vector<const char *> &sets)
    {
        qxVariantGroup *const group = qxVariants::createVariantGroup(name, false, true);
        for (const char *set : sets)
            qxVariants::createVariantSet(set, false, group);
    }
    /// Lets announcements reach the views.
    static void settle()
    {
        QCoreApplication::processEvents();
        QCoreApplication::processEvents(); // What the first ones asked for.
    }
    static qxVariantSet &set(const char *name) { return *qxVariants::findVariantSet(name); }

    /// The names of sets or groups with commas between them, and the way back.
    template <class Objects>
    static QString namesOf(const Objects &objects)
    {
        QStringList names;
        for (const auto *each : objects)
            names << each->name;
        return names.join(',');
    }
    static QStringList names(const char *joined) { return QString(joined).split(','); }
    static QString setsOf(const char *group)
    {
        return namesOf(qxVariants::findVariantGroup(group)->sets);
    }

    /// Every row with its depth before it, such as "0 Outside,1 Red".
    static QString rows(const QAbstractItemModel &model, const QModelIndex &parent = QModelIndex(),
                        int depth = 0)
    {
        QStringList found;
        for (int row = 0; row < model.rowCount(parent); ++row) {
            const QModelIndex index = model.index(row, 0, parent);
            found << QString::number(depth) + ' ' + index.data().toString();
            if (model.rowCount(index) > 0)
                found << rows(model, index, depth + 1);
        }
        return found.join(',');
    }
};

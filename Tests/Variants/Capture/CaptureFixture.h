#pragma once

#include "qxVariantSet.h"
#include "qxVariants.h"

#include "HostFixture.h"

/// A test of capture and of what it needs.
class CaptureFixture : public HostFixture {
protected:
    typedef std::vector<std::string> Names;

    static qxVariantSet *newSet(const QString &name = "Sport")
    {
        return qxVariants::createVariantSet(name, false, nullptr);
    }

    /// Captures everything into the set.
    static void captureAll(qxVariantSet *set)
    {
        qxVariants::captureVariantsFromRootNodes(set, {qxScenegraph::getRootNode()}, true, true,
                                                 true, true, true, true, true, true);
    }

    /// What the set holds: states by kind, viewpoints, materials by path, the lines of the script.
    static Names contentsOf(const qxVariantSet &set)
    {
        const std::pair<const char *, const qxStateList *> kinds[] = {
            {"node", &set.nodeVariants},
            {"material", &set.materialVariants},
            {"light", &set.lightVariants},
            {"transform", &set.transformVariants}};
        Names lines;
        const auto add = [&lines](const QString &line) { lines.push_back(line.toStdString()); };
        for (const auto &kind : kinds) {
            for (const qxVariantState &each : *kind.second)
                add(QString(kind.first) + ' ' + each.variant + '=' + each.state);
        }
        for (const QString &viewpoint : set.viewpoints)
            add("viewpoint " + viewpoint);
        for (const QString &path : set.materialSnapshots.keys())
            add(path + ": " + set.materialSnapshots[path]);
        for (const QString &line : set.script.isEmpty() ? QStringList() : set.script.split('\n'))
            add(line);
        return lines;
    }

    /// Does the work; whenever a notification of that name is sent meanwhile, the reaction follows.
    template <class Reaction, class Work>
    static void listen(const std::string &notification, const Reaction &react, const Work &work)
    {
        const int listener = qxController::addListener([&](const char *name, qxMessage *, int) {
            if (name == notification)
                react();
        });
        work();
        qxController::removeListener(listener);
    }

    qxVariantSet *const set = newSet();
};

#include "qxExportLosses.h"

#include "qxVariantGroup.h"
#include "qxVariantKinds.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Files/qxExport.h"
#include "qxAnimManager.h"
#include "qxExplanation.h"
#include "qxMaterialForecast.h"
#include "qxNames.h"
#include "qxUberCameraPool.h"

#include <algorithm>

namespace {

qxLoss carried()
{
    return {};
}

qxLoss lost(qxLoss::Outcome outcome, const char *text)
{
    qxLoss loss;
    loss.outcome = outcome;
    loss.text = QString::fromLatin1(text);
    return loss;
}

qxLoss dropped(const char *text)
{
    return lost(qxLoss::Dropped, text);
}

/// Whether any of these nodes stands in the tree of the scene, rather than among the surroundings.
bool isInTree(const std::vector<qxSceneObject> &objects)
{
    return std::any_of(objects.begin(), objects.end(), [](const qxSceneObject &object) {
        osg::NodePtr top = object.node;
        while (top->getParent() != osg::NullFC)
            top = top->getParent();
        return top == osg::NodePtr(qxScenegraph::getRoot());
    });
}

struct EntryReason {
    const char *kind;
    qxLoss::Outcome outcome;
    const char *text;
};

const EntryReason reasons[] = {
    {"node", qxLoss::Dropped, "viewers cannot switch nodes by a variant"},
    {"target", qxLoss::Dropped, "viewers cannot switch nodes by a variant"},
    {"light", qxLoss::Dropped, "viewers cannot switch lights by a variant"},
    {"transform", qxLoss::Dropped, "viewers cannot move nodes by a variant"},
    {"viewpoint", qxLoss::Approximated, "it is a camera, to which no variant moves"},
    {"default viewpoint", qxLoss::Approximated, "it is a camera, to which no variant moves"},
    {"animation", qxLoss::Approximated, "it is there, but no variant starts it"},
    {"script", qxLoss::Dropped, "scripts do not travel"},
    {"clipping", qxLoss::Dropped, "glTF knows no clipping planes"},
};

qxLoss reasonOf(const QString &kind)
{
    const auto reason =
        std::find_if(std::begin(reasons), std::end(reasons),
                     [&kind](const EntryReason &each) { return kind == QLatin1String(each.kind); });
    return reason == std::end(reasons) ? dropped("glTF has no place for it")
                                       : lost(reason->outcome, reason->text);
}

} // namespace

qxExportLosses::qxExportLosses(const qxExport &file, const qxMaterialForecast &materials)
    : m_worn(materials.wornBy(file.geometries))
{
    for (const qxExport::Loss &loss : file.losses) {
        if (loss.kind == QLatin1String("animation") && loss.isGone)
            m_lostClips += loss.name;
        if (loss.kind == QLatin1String("viewpoint"))
            m_lostViewpoints += loss.name;
    }
}

void qxExportLosses::addScene(const qxExport &file)
{
    for (const qxExport::Loss &loss : file.losses)
        m_report.add({QString(), loss.kind, loss.name, QString(),
                      loss.isGone ? qxLoss::Dropped : qxLoss::Approximated, loss.reason});
    for (int id = 0; id < qxUberCameraPool::the()->count(); ++id) {
        const QString name = qxText::fromUtf8(qxUberCameraPool::the()->get(id)->name);
        if (!m_lostViewpoints.contains(name))
            m_report.add({QString(), QStringLiteral("viewpoint"), name, QString(), qxLoss::Carried,
                          QString()});
    }
    for (const std::string &clip : qxAnimManager::the()->clips()) {
        const QString name = qxText::fromUtf8(clip);
        if (!m_lostClips.contains(name))
            m_report.add({QString(), QStringLiteral("animation"), name, QString(), qxLoss::Carried,
                          QString()});
    }
    if (qxVariantKinds::count() > 0)
        m_report.add({QString(), QStringLiteral("variants"),
                      QString::number(qxVariantKinds::count()), QString(), qxLoss::Dropped,
                      QStringLiteral("viewers choose sets, not the variants of one thing")});
    for (const qxVariantGroup *group : qxVariants::_variantGroups)
        m_report.add({QString(), QStringLiteral("group"), group->name, QString(), qxLoss::Dropped,
                      QStringLiteral("viewers list all variants one after the other")});
}

void qxExportLosses::addSet(const qxVariantSet &set, Form form)
{
    qxForecast forecast;
    const qxExplanation explanation(set, forecast);
    for (const qxExplainedEntry &entry : explanation.entries()) {
        qxLoss loss = becameOf(entry, form);
        loss.set = set.name;
        loss.kind = entry.kind;
        loss.name = entry.name;
        loss.state = entry.state;
        m_report.add(loss);
    }
    addRest(set);
}

qxLoss qxExportLosses::becameOf(const qxExplainedEntry &entry, Form form) const
{
    const bool isKnown = entry.kind == QLatin1String("script")
        || (entry.kind == QLatin1String("animation") && entry.found > 0);
    if (entry.code && !isKnown)
        return dropped("it does nothing in the program, either");
    if (entry.kind == QLatin1String("animation") && m_lostClips.contains(entry.name))
        return dropped("what it moves is not there");
    if (entry.kind.endsWith(QLatin1String("viewpoint")) && m_lostViewpoints.contains(entry.name))
        return dropped("its place is beyond all numbers");
    if (entry.isVariant || entry.kind == QLatin1String("target"))
        return variantLoss(entry, form);
    return reasonOf(entry.kind);
}

qxLoss qxExportLosses::variantLoss(const qxExplainedEntry &entry, Form form) const
{
    if (entry.kind == QLatin1String(qxVariantKinds::overlay.word))
        return dropped("an overlay would lie in the scene");
    if (entry.kind == QLatin1String(qxVariantKinds::material.word)) {
        if (!isWorn(entry.object))
            return dropped("nothing that is exported wears it");
        const bool isStep = form == Variant && qxStateRequest(entry.state).step;
        return isStep ? lost(qxLoss::Approximated, "the step is one from the state of the file")
                      : carried();
    }
    const qxVariantKind *kind = qxVariantKinds::by(&qxVariantKind::word, entry.kind);
    const qxStateRule &rule = kind ? kind->rule : qxStateRules::node;
    if (!isInTree(rule.objects(entry.object)))
        return dropped("surroundings stay behind");
    return form == Scene || entry.changed == 0 ? carried() : reasonOf(entry.kind);
}

bool qxExportLosses::isWorn(const QString &material) const
{
    const std::vector<qxSceneObject> objects = qxStateRules::material.objects(material);
    return std::any_of(objects.begin(), objects.end(), [this](const qxSceneObject &object) {
        return m_worn.count(object.material.getFieldContainerId()) > 0;
    });
}

void qxExportLosses::addRest(const qxVariantSet &set)
{
    const auto add = [&](const char *kind, const QString &name, const char *text) {
        qxLoss loss = dropped(text);
        loss.set = set.name;
        loss.kind = QString::fromLatin1(kind);
        loss.name = name;
        m_report.add(loss);
    };
    if (!set.hotkey.isEmpty())
        add("key", set.hotkey, "viewers have no keys for variants");
    if (!set.comment.isEmpty())
        add("comment", QString(), "variants have nothing but a name");
    if (!set.preview.isEmpty())
        add("preview", QString(), "variants have nothing but a name");
    for (const QString &value : set.values.keys())
        add("value", value, "variants have nothing but a name");
}

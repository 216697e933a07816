// The steps that show something, and those that go through documents, files and the undo stack.

#include "qxVariantReader.h"
#include "qxVariantSet.h"
#include "qxVariantVerifier.h"
#include "qxVariantWriter.h"
#include "qxVariants.h"

#include "Undo/qxCaptureRecord.h"
#include "qxMessage.h"
#include "qxScenegraph.h"
#include "qxSoakSteps.h"

#include <algorithm>

static void capture(qxVariantSet &set)
{
    qxVariants::captureVariantsFromRootNodes(&set, {qxScenegraph::getRootNode()}, true, true, true,
                                             true, false, true, false, false);
}

/// Whether every entry was there before, and in that order.
static bool isPartOf(const qxPlainRegistry &less, const qxPlainRegistry &all)
{
    for (std::size_t i = 0; i < less.sets.size(); ++i) {
        for (std::size_t kind = 0; kind < qxPlainKinds; ++kind) {
            const auto &before = all.sets[i].references[kind];
            auto place = before.begin();
            for (const auto &each : less.sets[i].references[kind]) {
                place = std::find(place, before.end(), each);
                if (place == before.end())
                    return false;
            }
        }
    }
    return less.variants == all.variants && less.groups == all.groups;
}

static bool isUsed(const qxPlainRegistry &registry, std::size_t kind, const QString &variant)
{
    const auto refers = [&](const qxPlainSet &set) {
        const auto &references = set.references[kind];
        return std::any_of(references.begin(), references.end(),
                           [&](const auto &each) { return each.first == variant; });
    };
    return std::any_of(registry.sets.begin(), registry.sets.end(), refers);
}

/// What an undone capture leaves: variants that it made stay when a set asks for them.
static qxPlainRegistry withoutKept(qxPlainRegistry undone, const qxPlainRegistry &before)
{
    for (std::size_t kind = 0; kind < undone.variants.size(); ++kind) {
        auto &all = undone.variants[kind];
        const auto &old = before.variants[kind];
        all.erase(std::remove_if(all.begin(), all.end(),
                                 [&](const qxPlainVariant &each) {
                                     return qxPlainFind(old, each.name) == old.end()
                                         && isUsed(undone, kind, each.name);
                                 }),
                  all.end());
    }
    return undone;
}

static void sortVariants(qxPlainRegistry &registry)
{
    for (auto &all : registry.variants) {
        std::sort(all.begin(), all.end(),
                  [](const auto &one, const auto &other) { return one.name < other.name; });
    }
}

void qxSoakSteps::selectState()
{
    const Object &driven = object();
    const QString state = stateFor(driven);
    const auto &all = m_model.variants[std::size_t(driven.kind)];
    for (const qxPlainVariant &variant : all) {
        if (variant.base != driven.name)
            continue;
        qxPlainKind(driven.kind).find(variant.name)->onSelect(state);
        return apply(driven.kind, variant.name, state);
    }
}

void qxSoakSteps::selectSet()
{
    if (m_model.sets.empty())
        return;
    const qxPlainSet &set = m_model.sets[m_choice(unsigned(m_model.sets.size()))];
    qxVariants::selectVariantSet(set.name.toUtf8().constData(), m_choice(2) == 0);
    for (int kind = 0; kind < qxPlainKinds; ++kind) {
        for (const qxPlainSet::Reference &each : set.references[std::size_t(kind)])
            apply(kind, each.first, each.second);
    }
}

/// Whatever is shown meanwhile: what was captured comes back.
void qxSoakSteps::captureAndShowAgain()
{
    if (m_model.sets.empty())
        return;
    const QString name = m_model.sets[m_choice(unsigned(m_model.sets.size()))].name;
    const std::vector<Object> before = m_objects;
    const qxPlainRegistry old = m_model;
    capture(*qxVariants::findVariantSet(name));
    m_model = qxPlainRegistry::ofModule();
    if (m_model.groups != old.groups || m_model.sets.size() != old.sets.size())
        return fail(QStringLiteral("a capture changed groups or other sets"));
    for (int i = 0; i < 8 && m_failure.isEmpty(); ++i) {
        selectState();
        m_failure = check();
    }
    if (!m_failure.isEmpty())
        return;
    qxVariants::selectVariantSet(name.toUtf8().constData(), true);
    const qxPlainSet &set = *qxPlainFind(m_model.sets, name);
    for (std::size_t i = 0; i < m_objects.size(); ++i) {
        Object &each = m_objects[i];
        for (const qxPlainSet::Reference &entry : set.references[std::size_t(each.kind)]) {
            const auto &all = m_model.variants[std::size_t(each.kind)];
            const auto variant = qxPlainFind(all, entry.first);
            if (variant != all.end() && variant->base == each.name)
                each.shown = before[i].shown;
        }
    }
}

void qxSoakSteps::editAsUser()
{
    const qxPlainRegistry now = qxPlainRegistry::ofModule();
    const QString set = nameIn(now.sets);
    const QString group = nameIn(now.groups);
    const std::function<void()> edits[] = {[&] { m_edits.addSet(group); },
                                           [&] { m_edits.renameSet(set, text()); },
                                           [&] { m_edits.removeSets({set}); },
                                           [&] { m_edits.duplicateSets({set}); },
                                           [&] { m_edits.moveSets({set}, group, QString()); },
                                           [&] { m_edits.addGroup(); },
                                           [&] { m_edits.renameGroup(group, text()); },
                                           [&] { m_edits.removeGroup(group, m_choice(2) == 0); },
                                           [&] { m_edits.commentGroup(group, text()); },
                                           [&] {
                                               qxCaptureRecord record;
                                               m_edits.captureSet(QStringLiteral("Captured"), group,
                                                                  record, capture);
                                           }};
    edits[m_choice(unsigned(std::size(edits)))]();
}

/// Edits of a user, all of them taken back, and made again.
void qxSoakSteps::undoEdits()
{
    for (unsigned left = 1 + m_choice(6); left > 0; --left)
        editAsUser();
    qxPlainRegistry after = qxPlainRegistry::ofModule();
    m_edits.stack()->setIndex(0);
    const QString undone = m_model.difference(withoutKept(qxPlainRegistry::ofModule(), m_model));
    if (!undone.isEmpty())
        return fail("after undoing " + undone);
    m_edits.stack()->setIndex(m_edits.stack()->count());
    m_model = qxPlainRegistry::ofModule();
    qxPlainRegistry again = m_model;
    sortVariants(after); // those that were kept come earlier now
    sortVariants(again);
    const QString redone = after.difference(again);
    if (!redone.isEmpty())
        return fail("after redoing " + redone);
    m_edits.stack()->clear();
}

void qxSoakSteps::lookOver()
{
    qxVariantVerifier().verify(m_place + ".csv");
    const QString difference = m_model.difference(qxPlainRegistry::ofModule());
    if (!difference.isEmpty())
        return fail("after verifying " + difference);
    qxVariants::optimizeVariantSets();
    const qxPlainRegistry optimized = qxPlainRegistry::ofModule();
    if (!isPartOf(optimized, m_model))
        return fail(QStringLiteral("optimizing did more than to drop entries"));
    m_model = optimized;
}

void qxSoakSteps::readAgain(const QByteArray &document)
{
    qxVariantReader().read(document.constData());
    m_model.orderAsDocument();
}

void qxSoakSteps::writeAndRead()
{
    const QByteArray document = qxVariantWriter().write();
    qxMessage none;
    qxVariants::clearAll(none);
    readAgain(document);
}

void qxSoakSteps::saveAndOpen()
{
    m_file->setVariantsDocument(qxVariantWriter().write());
    if (!m_file->save(m_place))
        return fail(m_file->errorString());
    open(m_place);
    readAgain(m_file->variantsDocument());
}

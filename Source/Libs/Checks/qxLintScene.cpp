#include "qxLintScene.h"

#include "qxVariantKinds.h"

#include <algorithm>

namespace {

bool isSame(const qxLintBase::Change &one, const qxLintBase::Change &other)
{
    return one.key == other.key && one.isPut == other.isPut
        && (!one.isPut || one.value == other.value);
}

bool isSame(const qxLintBase::Reach &one, const qxLintBase::Reach &other)
{
    return one.isTaken == other.isTaken
        && std::equal(one.changes.begin(), one.changes.end(), other.changes.begin(),
                      other.changes.end(),
                      [](const auto &change, const auto &now) { return isSame(change, now); });
}

/// What `ask` answers, which is kept in `answers`.
template <class Answers, class Key, class Ask>
auto remembered(Answers &answers, const Key &key, const Ask &ask)
{
    const auto known = answers.constFind(key);
    return known != answers.constEnd() ? *known : *answers.insert(key, ask());
}

/// Whether each of the answers is what `ask` says.
template <class Answers, class Ask>
bool areStillSo(const Answers &answers, const Ask &ask)
{
    for (auto each = answers.begin(); each != answers.end(); ++each) {
        if (ask(each.key()) != each.value())
            return false;
    }
    return true;
}

} // namespace

qxLintScene::Look &qxLintScene::look()
{
    return m_look ? *m_look : m_look.emplace();
}

void qxLintScene::rest()
{
    for (qxLintBase *base : m_inHand)
        base->objects.reset();
    m_inHand.clear();
    m_look.reset();
}

const std::vector<qxSceneObject> &qxLintScene::objectsOf(qxLintBase &base)
{
    if (!base.objects) {
        look(); // the host finds names faster then
        base.objects = base.kind->rule.objects(base.name);
        m_inHand.push_back(&base);
    }
    return *base.objects;
}

void qxLintScene::lookUp(qxLintBase &base)
{
    const std::vector<qxSceneObject> &objects = objectsOf(base);
    base.hasObjects = !objects.empty();
    // What is of the wrong sort says so to any state.
    for (const qxSceneObject &each : objects)
        base.hasFittingObject = base.hasFittingObject
            || !look().survey.ask(base.kind->rule, each, QString()).front().isMisfit();
}

qxLintBase &qxLintScene::base(const qxVariantKind &kind, const QString &name)
{
    const auto known = m_bases.find({&kind, name});
    if (known != m_bases.end())
        return known->second;
    qxLintBase &base = m_bases[{&kind, name}];
    base.kind = &kind;
    base.name = name;
    lookUp(base);
    return base;
}

const qxLintBase::Reach &qxLintScene::reach(qxLintBase &base, const QString &state)
{
    const auto known = base.reaches.constFind(state);
    return known != base.reaches.constEnd() ? *known
                                            : *base.reaches.insert(state, work(base, state));
}

qxLintBase::Reach qxLintScene::work(qxLintBase &base, const QString &state)
{
    typedef qxLintBase::Change Change;
    qxLintBase::Reach reach;
    for (const qxSceneObject &object : objectsOf(base)) {
        const qxStateSurvey::Effects &effects = look().survey.ask(base.kind->rule, object, state);
        if (std::none_of(effects.begin(), effects.end(),
                         [](const qxEffect &each) { return each.isTaken(); }))
            continue;
        reach.isTaken = true;
        for (const qxEffect &each : effects) {
            const bool isPut = each.reason != qxReason::Toggled && each.reason != qxReason::Stepped;
            if (each.isChange())
                reach.changes.push_back(
                    {qxForecast::keyOf(object, each.aspect), isPut, each.value});
        }
    }
    // Of clones, which share their choice, the first one has it.
    const auto isBefore = [](const Change &one, const Change &other) {
        return one.key < other.key;
    };
    const auto isOne = [](const Change &one, const Change &other) { return one.key == other.key; };
    std::stable_sort(reach.changes.begin(), reach.changes.end(), isBefore);
    reach.changes.erase(std::unique(reach.changes.begin(), reach.changes.end(), isOne),
                        reach.changes.end());
    return reach;
}

bool qxLintScene::isNested(const qxVariantKind &kind, const QString &name)
{
    const Name key(&kind, name);
    return m_remembers ? remembered(m_nested, key, [&] { return askWhetherNested(key); })
                       : askWhetherNested(key);
}

bool qxLintScene::askWhetherNested(const Name &name)
{
    if (name.first == &qxVariantKinds::node)
        return look().scene.hasNestedNodes(name.second);
    return name.first == &qxVariantKinds::overlay && look().scene.hasNestedOverlays(name.second);
}

bool qxLintScene::has(Sort sort, const QString &name)
{
    return m_remembers ? remembered(m_answers[sort], name, [&] { return ask(sort, name); })
                       : ask(sort, name);
}

bool qxLintScene::ask(Sort sort, const QString &name)
{
    const qxSceneLookup &scene = look().scene;
    switch (sort) {
    case Viewpoint:
        return scene.hasViewpoint(name);
    case Animation:
        return scene.hasClip(name);
    case Path:
        return scene.hasPath(name);
    case Material:
        return scene.hasMaterial(name);
    default:
        return scene.hasNode(name);
    }
}

std::optional<qxForecast::Key> qxLintScene::visibilityOf(const QString &name)
{
    return m_remembers ? remembered(m_visibilities, name, [&] { return askForVisibility(name); })
                       : askForVisibility(name);
}

std::optional<qxForecast::Key> qxLintScene::askForVisibility(const QString &name)
{
    const auto nodes = look().scene.nodes(name);
    return nodes.empty() ? Visibility()
                         : qxForecast::keyOf(qxSceneObject(nodes.front()), qxAspect::Visibility);
}

bool qxLintScene::isStillSo(const qxLintBase &base)
{
    qxLintBase now{base.kind, base.name, false, false, {}, base.kind->rule.objects(base.name)};
    lookUp(now);
    if (now.hasObjects != base.hasObjects || now.hasFittingObject != base.hasFittingObject)
        return false;
    for (auto each = base.reaches.begin(); each != base.reaches.end(); ++each) {
        if (!isSame(work(now, each.key()), each.value()))
            return false;
    }
    return true;
}

bool qxLintScene::isStillSo()
{
    rest();
    look();
    bool isSame = std::all_of(m_bases.begin(), m_bases.end(),
                              [this](const auto &each) { return isStillSo(each.second); })
        && areStillSo(m_nested, [this](const Name &name) { return askWhetherNested(name); })
        && areStillSo(m_visibilities,
                      [this](const QString &name) { return askForVisibility(name); });
    for (int sort = 0; sort < SortCount; ++sort)
        isSame = isSame && areStillSo(m_answers[std::size_t(sort)], [&](const QString &name) {
                     return ask(Sort(sort), name);
                 });
    rest();
    if (!isSame)
        forget();
    return isSame;
}

void qxLintScene::forget()
{
    m_bases.clear();
    m_nested.clear();
    m_visibilities.clear();
    for (auto &answers : m_answers)
        answers.clear();
}

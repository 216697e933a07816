#include "qxPublishedStates.h"

#include "qxVariantGroup.h"
#include "qxVariantKinds.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Animation/qxAnimationPlayer.h"
#include "Session/qxSceneJson.h"
#include "Session/qxSceneRecord.h"
#include "Session/qxSceneSnapshot.h"
#include "Window/qxLanguage.h"
#include "qxFindCache.h"
#include "qxPublishedBindings.h"
#include "qxPublishedLosses.h"
#include "qxPublishedSteps.h"
#include "qxShownConditions.h"
#include "qxStateWords.h"
#include "qxText.h"

#include <QKeySequence>

namespace {

const QString nameKey = QStringLiteral("name");
const QString commentKey = QStringLiteral("comment");
const QString keyKey = QStringLiteral("key");
const QString setsKey = QStringLiteral("sets");
const QString stepKey = QStringLiteral("step");
const QString nowKey = QStringLiteral("now");

/// A group as it is shown; the one of sets without a group has none.
struct ShownGroup {
    const qxVariantGroup *group;
    std::vector<const qxVariantSet *> sets;
};

QString keyText(int key, Qt::KeyboardModifiers modifiers)
{
    return key > 0 ? QKeySequence(key | int(modifiers)).toString(QKeySequence::PortableText)
                   : QString();
}

QJsonArray viewpoints()
{
    QJsonArray list;
    const qxUberCameraPool &pool = *qxUberCameraPool::the();
    for (int id = 0; id < pool.count(); ++id) {
        QJsonObject viewpoint = qxSceneJson::camera(*pool.get(id));
        viewpoint[nameKey] = qxText::fromUtf8(pool.get(id)->name);
        list += viewpoint;
    }
    return list;
}

QJsonArray clips()
{
    QJsonArray list;
    const qxAnimationPlayer &player = qxAnimationPlayer::the();
    for (const qxAnimationClip &clip : player.clips())
        list += QJsonObject{{nameKey, qxText::fromUtf8(clip.name)},
                            {QStringLiteral("animation"), list.size()},
                            {QStringLiteral("loop"), player.isLooping()}};
    return list;
}

QJsonArray factsOf(const qxVariantSet &set)
{
    QJsonArray facts;
    for (auto fact = set.values.begin(); fact != set.values.end(); ++fact)
        facts += QJsonArray{fact.key(), fact.value()};
    return facts;
}

bool isShown(const qxVariantGroup &group, const QStringList &wanted)
{
    return wanted.isEmpty() ? group.visible : wanted.contains(group.name);
}

std::vector<ShownGroup> shownGroups(const QStringList &wanted)
{
    std::vector<ShownGroup> groups;
    for (const qxVariantGroup *group : qxVariants::_variantGroups) {
        if (isShown(*group, wanted))
            groups.push_back({group, {group->sets.begin(), group->sets.end()}});
    }
    ShownGroup others{nullptr, {}};
    for (const qxVariantSet *set : qxVariants::_variantSets) {
        if (!set->group && wanted.isEmpty())
            others.sets.push_back(set);
    }
    if (!others.sets.empty())
        groups.push_back(others);
    return groups;
}

} // namespace

struct qxPublishedStates::Content {
    Content(const qxSceneFile &file, const qxPublishWishes &wishes, qxLossReport &losses);

    void addSteps();
    void writeSets(qxLossReport &losses);
    QJsonArray variants() const;
    QJsonArray optionsOf(const qxVariantKind &kind, qxVariant &variant) const;

    const qxPublishWishes wishes;
    const std::vector<ShownGroup> groups;
    qxSlots slots;
    qxPublishedSteps steps;
    QStringList sets;
    QJsonObject json;
};

qxPublishedStates::Content::Content(const qxSceneFile &file, const qxPublishWishes &wished,
                                    qxLossReport &losses)
    : wishes(wished), groups(shownGroups(wished.groups)), steps(slots)
{
    const qxFindCache cache(true);
    const qxSceneSnapshot before;
    addSteps();
    steps.close();
    before.restore();
    writeSets(losses);
    json[QStringLiteral("variants")] = wishes.hasVariants ? variants() : QJsonArray();
    before.restore();
    json[QStringLiteral("start")] = slots.starts();
    json[QStringLiteral("camera")] = qxSceneJson::camera(qxSceneRecord::camera());
    json[QStringLiteral("viewpoints")] = viewpoints();
    json[QStringLiteral("clips")] = clips();
    QJsonArray clippings;
    for (const qxClipping &clipping : steps.clippings().all())
        clippings += qxSceneJson::clipping(clipping);
    json[QStringLiteral("clippings")] = clippings;
    const int clipping = slots.number(steps.clippings().slot());
    json[QStringLiteral("clipping")] = clipping < 0 ? slots.constant() : clipping;
    qxPublishedBindings(file, slots, steps.places(), losses).writeTo(json);
}

void qxPublishedStates::Content::addSteps()
{
    for (const ShownGroup &group : groups) {
        for (const qxVariantSet *set : group.sets)
            steps.add(*set);
    }
    if (!wishes.hasVariants)
        return;
    qxVariantKinds::visit([this](const qxVariantKind &kind, qxVariant &variant) {
        for (const QString &state : qxStateWords::choicesOf(kind, variant))
            steps.add(kind, variant, state);
    });
}

void qxPublishedStates::Content::writeSets(qxLossReport &losses)
{
    QJsonArray groupList;
    QJsonArray setList;
    for (const ShownGroup &group : groups) {
        QJsonArray places;
        for (const qxVariantSet *set : group.sets) {
            places += setList.size();
            sets += set->name;
            QJsonObject member = steps.of(*set);
            member[nameKey] = set->name;
            member[commentKey] = set->comment;
            member[keyKey] = keyText(set->key, set->modifiers);
            if (!set->values.isEmpty())
                member[QStringLiteral("facts")] = factsOf(*set);
            setList += member;
            qxPublishedLosses::add(*set, losses);
        }
        groupList += QJsonObject{{nameKey, group.group ? group.group->name : QString()},
                                 {commentKey, group.group ? group.group->comment : QString()},
                                 {setsKey, places}};
    }
    json[QStringLiteral("groups")] = groupList;
    json[setsKey] = setList;
}

QJsonArray qxPublishedStates::Content::variants() const
{
    const qxCatalogue words(wishes.language);
    QJsonArray list;
    qxVariantKinds::visit([&](const qxVariantKind &kind, qxVariant &variant) {
        list += QJsonObject{{QStringLiteral("kind"), QString(kind.word)},
                            {nameKey, variant.name},
                            {QStringLiteral("options"), optionsOf(kind, variant)}};
    });
    return list;
}

QJsonArray qxPublishedStates::Content::optionsOf(const qxVariantKind &kind,
                                                 qxVariant &variant) const
{
    QJsonArray options;
    const qxShownConditions shown(slots, kind, variant);
    for (const QString &state : qxStateWords::choicesOf(kind, variant)) {
        const qxVariantOption &held = *variant.find(state);
        const bool isAction = qxStateWords::isAction(kind, state);
        QJsonObject option{{nameKey, state},
                           {QStringLiteral("label"), qxStateWords::shown(kind, &variant, state)},
                           {QStringLiteral("action"), isAction},
                           {keyKey, keyText(held.key, held.modifiers)},
                           {stepKey, steps.of(kind, variant, state)}};
        const std::optional<QJsonArray> now = isAction ? std::nullopt : shown.of(state);
        if (now)
            option[nowKey] = *now;
        options += option;
    }
    return options;
}

qxPublishedStates::qxPublishedStates(const qxSceneFile &file, const qxPublishWishes &wishes,
                                     qxLossReport &losses)
    : m_content(std::make_unique<Content>(file, wishes, losses))
{
}

qxPublishedStates::~qxPublishedStates() = default;

const QJsonObject &qxPublishedStates::json() const
{
    return m_content->json;
}

int qxPublishedStates::slotOf(const qxSceneObject &object, qxAspect aspect) const
{
    const int slot = m_content->slots.find(object, aspect);
    return slot < 0 ? -1 : m_content->slots.number(slot);
}

std::vector<osg::Int64> qxPublishedStates::valuesOf(const qxSceneObject &object,
                                                    qxAspect aspect) const
{
    const int slot = m_content->slots.find(object, aspect);
    return slot < 0 ? qxSlots::Values{qxStateRules::valueOf(object, aspect)}
                    : m_content->slots.values(slot);
}

const QStringList &qxPublishedStates::sets() const
{
    return m_content->sets;
}

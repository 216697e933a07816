#include "qxVariantUses.h"

#include "qxVariantKind.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "qxNameLookUp.h"
#include "qxNames.h"
#include "qxStateRules.h"
#include "qxStateWords.h"

#include <QEvent>
#include <QHeaderView>
#include <QTextDocument>

namespace {

const int setRole = Qt::UserRole;
const int nodeRole = Qt::UserRole + 1; ///< a place in the list of nodes, from 1 on
const int mostRows = 500; ///< of sets and of nodes; nobody reads more

/// The nodes that the variant moves; for a material those that have it.
std::vector<qxNodePtr> nodesOf(const qxVariantKind &kind, const qxVariant &variant)
{
    std::vector<qxNodePtr> nodes;
    for (const qxSceneObject &object : kind.rule.objects(variant.*kind.sceneName)) {
        if (object.node != osg::NullFC)
            nodes.push_back(object.node);
        else
            qxMaterials::getNodesWithMaterial(nodes, object.material);
    }
    return nodes;
}

} // namespace

qxVariantUses::qxVariantUses()
{
    setObjectName(QStringLiteral("uses"));
    setColumnCount(2);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setEditTriggers(NoEditTriggers);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored); // The details say how much.
    header()->setSectionResizeMode(QHeaderView::Stretch);
    connect(this, &QTreeWidget::itemActivated, this, &qxVariantUses::follow);
    connect(this, &QTreeWidget::itemClicked, this, &qxVariantUses::follow);
}

void qxVariantUses::changeEvent(QEvent *event)
{
    QTreeWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        showUses(m_variant);
}

void qxVariantUses::showUses(const qxVariantName &variant)
{
    m_variant = variant;
    clear();
    setAccessibleName(tr("Used By"));
    const qxVariant *const found = variant.kind ? variant.kind->find(variant.name) : nullptr;
    if (!found)
        return;
    addSets(*found);
    addThings(*found);
    expandAll();
}

QTreeWidgetItem *qxVariantUses::addGroup(const QString &text)
{
    auto *const group = new QTreeWidgetItem(this, {text});
    group->setFlags(Qt::ItemIsEnabled);
    group->setFirstColumnSpanned(true);
    QFont font = group->font(0);
    font.setBold(true);
    group->setFont(0, font);
    return group;
}

void qxVariantUses::addSets(const qxVariant &variant)
{
    const qxUnchangedNames unchanged;
    QList<QTreeWidgetItem *> rows;
    int count = 0;
    for (const qxVariantSet *set : qxVariants::_variantSets) {
        const qxVariantState *const entry = (set->*m_variant.kind->states).find(variant.name);
        if (!entry || ++count > mostRows)
            continue;
        auto *const row = new QTreeWidgetItem(
            {set->name, qxStateWords::shown(*m_variant.kind, &variant, entry->state)});
        row->setData(0, setRole, set->name);
        row->setToolTip(1, qxStateWords::toolTip(*m_variant.kind, &variant, entry->state));
        rows << row;
    }
    if (count > mostRows)
        rows << new QTreeWidgetItem({tr("and %n more", nullptr, count - mostRows)});
    addGroup(count > 0 ? tr("In %n sets", nullptr, count) : tr("In no set"))->addChildren(rows);
}

void qxVariantUses::addThings(const qxVariant &variant)
{
    QList<QTreeWidgetItem *> rows;
    const std::vector<qxNodePtr> nodes = nodesOf(*m_variant.kind, variant);
    const int count = int(nodes.size());
    for (int place = 0; place < qMin(count, mostRows); ++place) {
        const qxNodePtr &node = nodes[std::size_t(place)];
        const QString path = qxText::fromUtf8(qxNames::pathOf(node));
        auto *const row = new QTreeWidgetItem({qxNames::nameOf(node), path});
        row->setData(0, nodeRole, place + 1);
        row->setToolTip(1, Qt::convertFromPlainText(path, Qt::WhiteSpaceNormal));
        rows << row;
    }
    if (count > mostRows)
        rows << new QTreeWidgetItem({tr("and %n more", nullptr, count - mostRows)});
    addGroup(
        count > 0
            ? tr("Moves %n nodes", nullptr, count)
            : tr("Moves nothing: the scene has no \"%1\"").arg(variant.*m_variant.kind->sceneName))
        ->addChildren(rows);
}

/// The scene may have changed since the rows were made.
void qxVariantUses::follow(QTreeWidgetItem *item)
{
    const QString set = item->data(0, setRole).toString();
    if (!set.isEmpty())
        Q_EMIT setWanted(set);
    const int place = item->data(0, nodeRole).toInt();
    const qxVariant *const variant = place > 0 ? m_variant.kind->find(m_variant.name) : nullptr;
    if (!variant)
        return;
    const std::vector<qxNodePtr> nodes = nodesOf(*m_variant.kind, *variant);
    if (std::size_t(place) <= nodes.size())
        Q_EMIT nodeWanted(nodes[std::size_t(place - 1)]);
}

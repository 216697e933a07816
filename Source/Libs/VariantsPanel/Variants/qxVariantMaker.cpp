#include "qxVariantMaker.h"

#include "qxVariantKinds.h"

#include "Registry/qxVariantSources.h"
#include "qxNameChooser.h"

#include <QCoreApplication>
#include <QHash>
#include <QMenu>
#include <QWidget>

#include <algorithm>

namespace {

QString titleOf(const qxVariantKind &kind)
{
    return QCoreApplication::translate("qxVariants", kind.title);
}

/// How many of what varies for the kind.
QString thingsOf(const qxVariantKind &kind, int count)
{
    if (&kind == &qxVariantKinds::node)
        return qxVariantMaker::tr("%n switches", nullptr, count);
    if (&kind == &qxVariantKinds::material)
        return qxVariantMaker::tr("%n switch materials", nullptr, count);
    if (&kind == &qxVariantKinds::light)
        return qxVariantMaker::tr("%n lights", nullptr, count);
    if (&kind == &qxVariantKinds::overlay)
        return qxVariantMaker::tr("%n switches among the overlays", nullptr, count);
    return qxVariantMaker::tr("%n nodes with transform states", nullptr, count);
}

/// What besides that a variant can be made of; empty for nothing.
QString othersOf(const qxVariantKind &kind)
{
    if (&kind == &qxVariantKinds::material)
        return qxVariantMaker::tr("Plain materials, too: each is put into a switch material");
    return &kind == &qxVariantKinds::node || &kind == &qxVariantKinds::overlay
        ? qxVariantMaker::tr("All others, too: they can be shown and hidden")
        : QString();
}

} // namespace

qxVariantMaker::qxVariantMaker(QUndoStack *steps, QWidget *place)
    : QObject(place), m_steps(*steps), m_place(place)
{
}

std::vector<qxVariantMaker::Offer> qxVariantMaker::offers()
{
    std::vector<Offer> offers;
    for (const qxVariantKind *kind : qxVariantKinds::all()) {
        if (const std::size_t count = qxVariantSources::varying(*kind).size())
            offers.push_back({kind, thingsOf(*kind, int(count))});
    }
    return offers;
}

QMenu *qxVariantMaker::menu()
{
    auto *const menu = new QMenu(m_place);
    connect(menu, &QMenu::aboutToShow, this, [this, menu] { fill(*menu); });
    return menu;
}

void qxVariantMaker::fill(QMenu &menu)
{
    menu.clear();
    for (const Offer &offer : offers()) {
        const qxVariantKind *const kind = offer.kind;
        menu.addAction(tr("Of All: %1").arg(offer.things), this,
                       [this, kind] { makeOfAll(*kind); });
    }
    menu.addSeparator();
    for (const qxVariantKind *kind : qxVariantKinds::all()) {
        if (!qxVariantSources::varying(*kind).empty() || !qxVariantSources::others(*kind).empty())
            menu.addAction(tr("Choose %1...").arg(titleOf(*kind)), this,
                           [this, kind] { makeOfChosen(*kind); });
    }
    menu.addSeparator();
    fillForSelected(menu);
    if (menu.isEmpty())
        menu.addAction(tr("The scene is empty"))->setEnabled(false);
}

void qxVariantMaker::fillForSelected(QMenu &menu)
{
    if (!m_selection)
        return;
    QHash<const qxVariantKind *, int> counts;
    for (const osg::NodePtr &node : m_selection()) {
        for (const qxVariantKind *kind : qxVariantEdits::kindsOf(node))
            ++counts[kind];
    }
    for (const qxVariantKind *kind : qxVariantKinds::all()) {
        if (const int count = counts.value(kind))
            menu.addAction(tr("%1 of %n selected nodes", nullptr, count).arg(titleOf(*kind)), this,
                           [this, kind] { makeOfSelected(*kind); });
    }
}

void qxVariantMaker::makeOfAll(const qxVariantKind &kind)
{
    Q_EMIT made(qxVariantEdits::createOfAll(m_steps, {&kind}));
}

void qxVariantMaker::makeOfChosen(const qxVariantKind &kind)
{
    QHash<QString, qxSceneObject> objects;
    const auto namesOf = [&objects](const std::vector<qxSceneObject> &sources) {
        QStringList names;
        for (const qxSceneObject &source : sources) {
            const QString name = qxVariantSources::nameOf(source);
            if (objects.contains(name)) // What varies comes first.
                continue;
            objects.insert(name, source);
            names << name;
        }
        return names;
    };
    qxNameChooser chooser(tr("Make Variants: %1").arg(titleOf(kind)), tr("Make Variants"), false,
                          m_place->window());
    chooser.setNames(namesOf(qxVariantSources::varying(kind)));
    QStringList others; // asked for once
    if (!othersOf(kind).isEmpty())
        chooser.setMore(othersOf(kind), [&] {
            return others.isEmpty() ? others = namesOf(qxVariantSources::others(kind)) : others;
        });
    if (chooser.exec() != QDialog::Accepted)
        return;
    std::vector<osg::NodePtr> nodes;
    std::vector<osg::MaterialPtr> materials;
    for (const QString &name : chooser.chosen()) {
        const qxSceneObject &object = *objects.constFind(name);
        if (object.node != osg::NullFC)
            nodes.push_back(object.node);
        else
            materials.push_back(object.material);
    }
    Q_EMIT made(materials.empty() ? qxVariantEdits::createOf(m_steps, kind, nodes)
                                  : qxVariantEdits::createOf(m_steps, materials));
}

void qxVariantMaker::makeOfSelected(const qxVariantKind &kind)
{
    // Those of which none can be made were not offered.
    std::vector<osg::NodePtr> nodes = m_selection();
    const auto isUnfit = [&kind](const osg::NodePtr &node) {
        const qxVariantEdits::Kinds kinds = qxVariantEdits::kindsOf(node);
        return std::find(kinds.begin(), kinds.end(), &kind) == kinds.end();
    };
    nodes.erase(std::remove_if(nodes.begin(), nodes.end(), isUnfit), nodes.end());
    Q_EMIT made(qxVariantEdits::createOf(m_steps, kind, nodes));
}

#include "qxVariantEdits.h"
#include "qxVariantKinds.h"
#include "qxVariantTexts.h"
#include "qxVariantUndoSteps.h"

#include "Registry/qxVariantSources.h"
#include "qxNames.h"
#include "qxPanelChanges.h"
#include "qxSceneStep.h"

#include <OpenSG/OSGSimpleAttachments.h>

#include <QSet>
#include <QUndoStack>

#include <algorithm>

namespace {
namespace creation {

using qxVariantEdits::Created;

/// Whether the node is called something, rather than after the type of its core.
bool isNamed(const osg::NodePtr &node)
{
    const osg::Char8 *const own = osg::getName(node);
    const osg::Char8 *const ofCore = node->getCore() == osg::NullFC
        ? nullptr
        : osg::getName(osg::AttachmentContainerPtr::dcast(node->getCore()));
    return (own && *own) || (ofCore && *ofCore);
}

bool isOverlay(const osg::NodePtr &node)
{
    osg::NodePtr top = node;
    while (top->getParent() != osg::NullFC)
        top = top->getParent();
    return top == qxOverlays::getPoolRoot();
}

bool canBe(const qxVariantKind &kind, const osg::NodePtr &node)
{
    const qxSceneObject source = qxVariantSources::sourceAt(kind, node);
    return !qxVariantSources::nameOf(source).isEmpty();
}

/// Makes the variants that are there since some moment one step, which is done.
class Record {
public:
    Record()
    {
        for (const qxVariantKind *kind : qxVariantKinds::all())
            m_counts.push_back(kind->count());
    }

    /// Those that came since. The registry appends.
    qxVariantEdits::Variants made() const
    {
        qxVariantEdits::Variants made;
        auto count = m_counts.begin();
        for (const qxVariantKind *kind : qxVariantKinds::all()) {
            std::size_t place = 0;
            kind->visit([&](const qxVariant &variant) {
                if (place++ >= *count)
                    made.push_back({kind, variant.name});
            });
            ++count;
        }
        return made;
    }
    void push(QUndoStack &steps, const Created &created, std::unique_ptr<qxSceneStep> scene) const;

private:
    std::vector<std::size_t> m_counts;
};

void Record::push(QUndoStack &steps, const Created &created,
                  std::unique_ptr<qxSceneStep> scene) const
{
    if (created.made.empty())
        return;
    auto parts = qxVariantsPresence::partsOf(created.made);
    const QString text = parts.size() == 1
        ? qxVariantTexts::tr("Make variant \"%1\"").arg(parts.front().contents.name)
        : qxVariantTexts::tr("Make %n variants", nullptr, int(parts.size()));
    auto presence =
        std::make_unique<qxVariantsPresence>(text, qxVariantsPresence::Come, std::move(parts));
    presence->markDone();
    if (scene) {
        scene->finish();
        steps.beginMacro(text);
        steps.push(scene.release());
        steps.push(presence.release());
        steps.endMacro();
    } else {
        steps.push(presence.release());
    }
    Q_EMIT qxPanelChanges::the().variantsEdited();
}

/// What users may not expect of variants of these names.
void tellTwins(Created &created)
{
    for (const qxVariantName &variant : created.made) {
        const auto *const found = variant.kind->find(variant.name);
        const std::size_t count =
            variant.kind->rule.objects(found->*variant.kind->sceneName).size();
        if (count > 1)
            created.notes << qxVariantTexts::tr("\"%1\" moves %n things of that name.", nullptr,
                                                int(count))
                                 .arg(variant.name);
    }
}

/// Makes variants of the objects; `created` may hold notes on others already.
Created make(QUndoStack &steps, const qxVariantKind &kind,
             const std::vector<qxSceneObject> &objects, Created created)
{
    const Record record;
    // What is no switch material is put into one.
    std::unique_ptr<qxSceneStep> scene;
    const bool changesScene =
        std::any_of(objects.begin(), objects.end(), [](const qxSceneObject &object) {
            return object.node == osg::NullFC && object.switchMaterial == osg::NullFC;
        });
    if (changesScene)
        scene = std::make_unique<qxSceneStep>();
    QSet<const qxVariant *> seen;
    for (const qxSceneObject &object : objects) {
        const std::size_t count = kind.count();
        const QString name = qxVariantSources::nameOf(object);
        const qxVariant *const variant = qxVariantSources::create(kind, object, true);
        if (!variant)
            created.notes << qxVariantTexts::tr("No variant could be made of \"%1\".").arg(name);
        else if (kind.count() == count && !seen.contains(variant))
            created.known.push_back({&kind, variant->name});
        seen.insert(variant);
    }
    created.made = record.made();
    for (const qxVariantName &variant : created.known)
        created.notes << qxVariantTexts::tr("There is a variant \"%1\" already.").arg(variant.name);
    record.push(steps, created, std::move(scene));
    tellTwins(created);
    return created;
}

} // namespace creation
} // namespace

qxVariantEdits::Kinds qxVariantEdits::kindsOf(const osg::NodePtr &node)
{
    if (node == osg::NullFC || !creation::isNamed(node) || node == qxScenegraph::getRoot())
        return Kinds();
    if (creation::isOverlay(node))
        return Kinds{&qxVariantKinds::overlay};
    Kinds kinds;
    for (const qxVariantKind *kind : {&qxVariantKinds::light, &qxVariantKinds::transform,
                                      &qxVariantKinds::node, &qxVariantKinds::material}) {
        if (creation::canBe(*kind, node))
            kinds.push_back(kind);
    }
    return kinds;
}

qxVariantEdits::Created qxVariantEdits::createOf(QUndoStack &steps, const qxVariantKind &kind,
                                                 const std::vector<osg::NodePtr> &nodes)
{
    std::vector<qxSceneObject> sources;
    Created created;
    for (const osg::NodePtr &node : nodes) {
        const Kinds kinds = kindsOf(node);
        if (std::find(kinds.begin(), kinds.end(), &kind) != kinds.end())
            sources.push_back(qxVariantSources::sourceAt(kind, node));
        else if (node != osg::NullFC)
            created.notes << qxVariantTexts::tr("No variant of that kind can be made of \"%1\".")
                                 .arg(qxNames::nameOf(node));
    }
    return creation::make(steps, kind, sources, std::move(created));
}

qxVariantEdits::Created qxVariantEdits::createOf(QUndoStack &steps,
                                                 const std::vector<osg::MaterialPtr> &materials)
{
    return creation::make(steps, qxVariantKinds::material,
                          std::vector<qxSceneObject>(materials.begin(), materials.end()), {});
}

qxVariantEdits::Created qxVariantEdits::createOfAll(QUndoStack &steps, const Kinds &kinds)
{
    const creation::Record record;
    for (const qxVariantKind *kind : kinds)
        qxVariantSources::createAll(*kind);
    Created created;
    created.made = record.made();
    record.push(steps, created, nullptr);
    return created;
}

#include "qxMaterialVariant.h"
#include "qxVariantGroup.h"
#include "qxVariantReader.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Files/qxSceneFile.h"
#include "HostFixture.h"
#include "Repair/qxDocumentRepair.h"
#include "qxMaterials.h"
#include "qxNames.h"
#include "qxRegistryDocument.h"
#include "qxTestPaths.h"

#include <OpenSG/OSGSwitchMaterial.h>

#include <QDirIterator>

#include <random>

using qxNames::nameOf;

namespace {

/// How often the right candidate was the first.
struct Rate {
    int all = 0;
    int first = 0;
    int wrong = 0; ///< taken without a question
    int left = 0; ///< not taken although it was the first

    void operator+=(const Rate &other)
    {
        all += other.all;
        first += other.first;
        wrong += other.wrong;
        left += other.left;
    }
};

std::ostream &operator<<(std::ostream &out, const Rate &rate)
{
    return out << rate.first << " of " << rate.all << " first, " << rate.wrong << " wrong taken, "
               << rate.left << " left";
}

} // namespace

/// Renames and moves things of real scenes, and looks whether the document finds them again.
class SeededRepairTest : public HostFixture {
protected:
    typedef QHash<QString, QString> Truth; ///< what became of names, by the keys of breaks

    void load(const QString &path)
    {
        host.clearScene();
        truth.clear();
        ASSERT_TRUE(file.load(path)) << file.errorString().toStdString();
        if (!file.variantsDocument().isEmpty())
            qxVariantReader().read(file.variantsDocument().constData());
        nodes = qxNodeUtils::getSceneNodes();
        nodes.erase(nodes.begin());
        addVariants();
        takeErrors();
        history = {qxRegistryDocument::current(), qxSceneOutline::take()};
    }

    /// Variants and sets over whatever the scene has.
    void addVariants()
    {
        qxVariantSet &set = *qxVariants::createVariantSet("Everything", true, nullptr);
        for (int i = 0; i < 60 && !nodes.empty(); ++i) {
            const qxNodePtr node = nodes[below(nodes.size())];
            if (!qxNodeUtils::isFoundByName(node))
                continue;
            set.add(qxVariants::createNodeVariant(node, true), QString());
            if (qxNodeUtils::hasTransformVariants(node))
                set.add(qxVariants::createTransformVariant(nameOf(node), true), QString());
            set.addTargetNodeName(nameOf(node));
        }
        std::vector<osg::MaterialPtr> materials;
        qxScenegraph::getMaterialPool()->get(materials);
        for (const osg::MaterialPtr &each : materials) {
            if (osg::SwitchMaterialPtr::dcast(each) != osg::NullFC)
                set.add(qxVariants::createMaterialVariant(each, true), QString());
        }
        for (const qxNodePtr &node : nodes) {
            const osg::MaterialPtr material = qxNodeUtils::getMaterial(node);
            if (material != osg::NullFC && !nameOf(material).isEmpty() && below(3) == 0)
                set.addMaterialSnapshot(qxText::fromUtf8(qxNames::pathOf(node)), nameOf(material));
        }
    }

    unsigned below(std::size_t count) { return unsigned(m_random() % count); }

    QString freshName(const QString &name)
    {
        const QString number = QString::number(++m_count);
        switch (below(4)) {
        case 0:
            return name + ".00" + number;
        case 1:
            return "geo_" + name.toLower() + number;
        case 2:
            return name.left(name.size() - 1) + " " + number;
        default:
            return QString::number(m_random(), 36) + number; // nothing like it
        }
    }

    /// Notes what becomes of the paths of the node and all below it by the work.
    template <class Work>
    void work(const osg::NodePtr &node, const Work &work)
    {
        const std::vector<qxNodePtr> tree = qxNodeUtils::getSubTreeNodes(node);
        QStringList before;
        for (const qxNodePtr &each : tree)
            before += qxText::fromUtf8(qxNames::pathOf(each));
        work();
        for (std::size_t i = 0; i < tree.size(); ++i)
            truth["path:" + before[int(i)]] = qxText::fromUtf8(qxNames::pathOf(tree[i]));
    }

    void renameNode(const osg::NodePtr &node, const QString &name)
    {
        const QString old = nameOf(node);
        work(node, [&] { qxNodeUtils::setName(node, qxText::toUtf8(name), false, osg::NullFC); });
        for (const char *word : {"node", "light-object", "transform-object"})
            truth[word + (":" + old)] = name;
        const osg::NodePtr parent = node->getParent();
        for (const qxDocumentVariant &each : history.document.variants) {
            if (each.base == nameOf(parent))
                truth["node-state:" + each.name + ":" + old] = name;
        }
    }

    void renameMaterial(const osg::MaterialPtr &material, const QString &name)
    {
        const QString old = nameOf(material);
        qxMaterials::setName(material, qxText::toUtf8(name).c_str(), true);
        truth["material:" + old] = truth["material-object:" + old] = name;
        for (const qxDocumentVariant &each : history.document.variants)
            truth["material-state:" + each.name + ":" + old] = name;
    }

    static void move(const osg::NodePtr &node, const osg::NodePtr &parent, osg::UInt32 place)
    {
        const osg::NodeRefPtr held(node);
        {
            const osg::CPEditor edit(node->getParent(), osg::Node::ChildrenFieldMask);
            node->getParent()->subChild(node);
        }
        const osg::CPEditor edit(parent, osg::Node::ChildrenFieldMask);
        parent->insertChild(std::min(place, parent->getNChildren()), node);
    }

    static osg::UInt32 placeOf(const osg::NodePtr &node)
    {
        return osg::UInt32(node->getParent()->findChild(node));
    }

    static bool isPlain(const osg::NodePtr &node)
    {
        const std::string sort = node->getCore()->getTypeName();
        return sort.find("Switch") == std::string::npos && sort != "Geometry";
    }

    /// Whether the node may go there without a switch or a ring being broken.
    static bool mayMove(const osg::NodePtr &node, const osg::NodePtr &parent)
    {
        for (osg::NodePtr at = parent; at != osg::NullFC; at = at->getParent()) {
            if (at == node)
                return false;
        }
        const osg::NodePtr now = node->getParent();
        return now != osg::NullFC && now != parent && isPlain(now) && isPlain(parent);
    }

    /// One change of the scene, what repairing makes of it, and back.
    void round(Rate &remembered, Rate &alone)
    {
        truth.clear();
        const osg::NodePtr node = nodes[below(nodes.size())];
        const unsigned sort = below(3);
        if (sort == 0) {
            const QString old = nameOf(node);
            renameNode(node, freshName(old));
            look(remembered, alone);
            qxNodeUtils::setName(node, qxText::toUtf8(old), false, osg::NullFC);
        } else if (sort == 1) {
            const osg::MaterialPtr material = qxNodeUtils::getMaterial(node);
            if (material == osg::NullFC || nameOf(material).isEmpty())
                return;
            const QString old = nameOf(material);
            renameMaterial(material, freshName(old));
            look(remembered, alone);
            qxMaterials::setName(material, qxText::toUtf8(old).c_str(), true);
        } else {
            const osg::NodePtr parent = nodes[below(nodes.size())];
            if (!mayMove(node, parent))
                return;
            const osg::NodePtr old = node->getParent();
            const osg::UInt32 place = placeOf(node);
            work(node, [&] { move(node, parent, below(3)); });
            look(remembered, alone);
            move(node, old, place);
        }
    }

    void look(Rate &remembered, Rate &alone)
    {
        remembered += rateOf(&history);
        alone += rateOf(nullptr);
    }

    Rate rateOf(const qxRepairHistory *known)
    {
        Rate rate;
        for (const qxBreak &each : qxDocumentRepair::find(history.document, known)) {
            if (broken.contains(each.key()))
                continue;
            const QString right = truth.value(each.key());
            EXPECT_FALSE(right.isEmpty()) << each.key().toStdString();
            ++rate.all;
            const bool isFirst = !each.candidates.empty() && each.candidates[0].name == right;
            rate.first += isFirst;
            rate.wrong += each.clear() && each.clear()->name != right;
            rate.left += isFirst && !each.clear();
            if (!isFirst || (known && !each.clear()))
                tell(each, right, known);
        }
        rate.wrong += wrongAfterAll(known);
        return rate;
    }

    /// How many names are other ones than before, and not the right ones, once all that is clear is
    /// repaired. Snapshots change their order, so they are compared as sets.
    int wrongAfterAll(const qxRepairHistory *known)
    {
        qxDocument document = history.document;
        QHash<QString, int> names;
        const auto count = [&names](int by) {
            return [&names, by](const qxDocumentPlace &place, QString &name) {
                names[QString::number(int(place.named)) + name] += by;
            };
        };
        qxDocumentPlaces::visit(document, count(1));
        for (const qxBreak &each : qxDocumentRepair::applyClear(document, known)) {
            const QString sort = QString::number(int(each.named));
            const QString right = truth.value(each.key());
            names[sort + each.name] -= each.places.size();
            names[sort + right] += each.places.size();
        }
        qxDocumentPlaces::visit(document, count(-1));
        int wrong = 0;
        for (const int left : names)
            wrong += left != 0;
        return wrong;
    }

    static void tell(const qxBreak &each, const QString &right, bool isKnown)
    {
        if (qEnvironmentVariableIsEmpty("QX_TELL"))
            return;
        std::cout << (isKnown ? "" : "(alone) ") << each.key().toStdString() << " is "
                  << right.toStdString() << '\n';
        for (const qxRepairCandidate &candidate : each.candidates)
            std::cout << "    " << candidate.score << ' ' << candidate.name.toStdString() << ": "
                      << candidate.reason.toStdString() << '\n';
    }

    void run(const QString &path, int rounds)
    {
        load(path);
        for (const qxBreak &each : qxDocumentRepair::find(history.document))
            broken.insert(each.key());
        Rate remembered;
        Rate alone;
        for (int i = 0; i < rounds && !nodes.empty(); ++i)
            round(remembered, alone);
        std::cout << QFileInfo(path).fileName().toStdString() << ": with history " << remembered
                  << "; without " << alone << '\n';
        all += remembered;
        allAlone += alone;
        EXPECT_EQ(qxDocumentRepair::find(history.document).size(), std::size_t(broken.size()));
        broken.clear();
    }

    qxSceneFile file;
    std::vector<qxNodePtr> nodes;
    qxRepairHistory history;
    Truth truth;
    QSet<QString> broken; ///< what does not work in the file itself
    Rate all;
    Rate allAlone;

private:
    std::mt19937 m_random{4711};
    int m_count = 0;
};

TEST_F(SeededRepairTest, TheDemoFindsWhatWasRenamedOrMoved)
{
    run(QX_DEMO_SCENE, 150);
    EXPECT_GE(all.first, all.all * 0.95);
    EXPECT_GE(allAlone.first, allAlone.all * 0.95);
    EXPECT_EQ(all.wrong, 0);
    EXPECT_GT(all.all, 100);
    EXPECT_EQ(allAlone.wrong, 0);
}

TEST_F(SeededRepairTest, OneThingIsNotWhatTwoNamesHaveBecome)
{
    load(QX_DEMO_SCENE);
    qxDocument document = history.document;
    qxDocumentSet &set = document.sets.front();
    set.snapshots = {{"Exhibition/Turntable/Roadster/Chassis/Wheel Front Leftx", "a", {}},
                     {"Exhibition/Turntable/Roadster/Chassis/Wheel Front Lefty", "b", {}}};
    const auto isOurs = [](const qxBreak &each) {
        return each.named == qxNamed::Path && each.name.contains("Wheel Front Left");
    };
    int count = 0;
    for (const qxBreak &each : qxDocumentRepair::find(document)) {
        if (!isOurs(each))
            continue;
        ++count;
        ASSERT_FALSE(each.candidates.empty());
        EXPECT_TRUE(each.candidates[0].reason.contains("by \"Exhibition"));
        qxBreak sure = each;
        sure.candidates = {{"Wheel", 1, "is all alike"}};
        EXPECT_EQ(sure.clear(), nullptr) << "another name claims it";
    }
    EXPECT_EQ(count, 2);
}

TEST_F(SeededRepairTest, RealScenesFindWhatWasRenamedOrMoved)
{
    if (qEnvironmentVariableIsEmpty("QX_SCENES"))
        GTEST_SKIP() << "QX_SCENES names no folder of real scenes";
    QDirIterator walk(qEnvironmentVariable("QX_SCENES"), {"*.gltf", "*.glb"}, QDir::Files,
                      QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString path = walk.next();
        if (!path.contains("/edge-cases/"))
            run(path, 60);
    }
    EXPECT_GE(all.first, all.all * 0.95);
    EXPECT_GE(allAlone.first, allAlone.all * 0.95);
    EXPECT_EQ(all.wrong, 0);
    EXPECT_EQ(allAlone.wrong, 0);
}

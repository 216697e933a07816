#include "qxMaterialVariant.h"

#include "SwitchesFixture.h"

#include <map>
#include <random>

/// A user who paints, shares, wraps and chooses materials at random between captures.
class RandomSessionsTest : public SwitchesFixture {
protected:
    std::size_t any(std::size_t count) { return m_random() % count; }
    TestNode anyNode() { return nodes[any(nodes.size())]; }
    /// One of a few ordinary materials.
    std::string anyPaint() { return "Paint " + std::to_string(any(6)); }

    /// Begins anew with a few nodes.
    void start(unsigned int seed)
    {
        host.clearScene();
        seen.clear();
        nodes.clear();
        m_random.seed(seed);
        for (int i = 0; i < 7; ++i) {
            const std::string name = "Node " + std::to_string(i);
            nodes.push_back(any(2) == 0 ? addBody(name, anyPaint())
                                        : scene.addMaterialGroup(name, scene.material(anyPaint())));
        }
    }

    void change()
    {
        const TestNode node = anyNode();
        const Names held = heldOn(node);
        switch (any(6)) {
        case 0:
        case 1:
            return paint({node}, anyPaint());
        case 2: // may be a switch material, which both share then
            return paint({node}, materialOf(anyNode()));
        case 3:
            if (qxMaterialVariant *variant =
                    qxVariants::createMaterialVariant(qxNodeUtils::getMaterial(node), false))
                variant->add(scene.material(anyPaint()), QString());
            return;
        case 4:
            if (!held.empty())
                choose(node, held[any(held.size())]);
            return;
        default:
            if (!seen.empty())
                select(std::next(seen.begin(), long(any(seen.size())))->first);
        }
    }

    Nodes nodes;
    std::map<QString, Names> seen; ///< what each set saw

private:
    std::mt19937 m_random;
};

TEST_F(RandomSessionsTest, EverySetBringsBackWhatItSaw)
{
    for (unsigned int seed = 0; seed < 300 && !HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        start(seed);
        for (int captures = 0; captures < 10 && !HasFailure(); ++captures) {
            for (std::size_t changes = any(8); changes > 0; --changes)
                change();
            const QString set = QString::number(any(7)); // some are captured anew
            const Names shown = shownOn(nodes);
            capture(set);
            ASSERT_EQ(shownOn(nodes), shown) << "capturing set " << set.toStdString();
            seen[set] = shown;
            for (const auto &each : seen) {
                if (any(3) == 0)
                    expectShown(each.first, nodes, each.second);
            }
        }
    }
}

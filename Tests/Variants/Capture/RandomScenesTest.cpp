#include "qxVariantCaptureChecker.h"
#include "qxVariantSet.h"

#include "CaptureFixture.h"
#include "RandomScene.h"

#include <QRegularExpression>

namespace {

/// What was seen while each set was captured, and what is seen when it is selected again.
class RandomScenesTest : public CaptureFixture {
protected:
    /// A switch that is hidden by its variant is also searched for a child called "!Disable".
    void TearDown() override
    {
        const QRegularExpression known("^Nodevariant Switch \\d+ does not have a child called "
                                       "!Disable$");
        for (const std::string &line : logged(qxLog::Error)) {
            if (known.match(QString::fromStdString(line)).hasMatch())
                expectError(line);
        }
        CaptureFixture::TearDown();
    }

    typedef std::map<std::string, std::string> Facts;

    /// What the user would let the guard do.
    void settleNames()
    {
        qxVariantCaptureChecker checker;
        checker.findAmbiguousNodes();
        for (const osg::NodePtr &node : checker.getAmbiguousNodes())
            qxNodeUtils::setName(node, qxNodeUtils::getName(node), true, scene.root());
        EXPECT_TRUE(qxVariants::verifyNodeNames());
    }

    Facts capture(const RandomScene &random, const QString &name)
    {
        SCOPED_TRACE(name.toStdString());
        const Facts facts = random.seen();
        qxVariantSet *const set = qxVariants::createVariantSet(name, false, nullptr);
        qxVariants::captureVariantsFromRootNodes(set, {scene.root().node()}, true, true, true, true,
                                                 true, true, true, true);
        SCOPED_TRACE("while it was captured");
        expectSeen(random, facts);
        return facts;
    }

    /// Everything that was seen is seen again. Facts about nodes that were hidden then, or that
    /// showed nothing, are free.
    static void expectSeen(const RandomScene &random, const Facts &expected)
    {
        const Facts now = random.seen();
        for (const auto &fact : expected) {
            const auto found = now.find(fact.first);
            EXPECT_EQ(found == now.end() ? "(not seen)" : found->second, fact.second) << fact.first;
        }
        for (const auto &fact : now) {
            const bool wasHidden = fact.second == "shown" && expected.count(fact.first) == 0;
            EXPECT_FALSE(wasHidden) << fact.first;
        }
    }
};

TEST_F(RandomScenesTest, ACapturedSetBringsBackWhatWasSeen)
{
    for (unsigned int seed = 1; seed <= 300; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        clearRegistry();
        host.clearScene();
        RandomScene random(seed);
        settleNames();
        std::vector<Facts> seen;
        for (const char *name : {"One", "Two", "Three"}) {
            random.shuffle();
            random.paint();
            seen.push_back(capture(random, name));
        }
        random.shuffle();
        const char *const names[] = {"One", "Two", "Three"};
        for (const std::size_t index : {0u, 2u, 1u, 0u}) {
            SCOPED_TRACE(names[index]);
            qxVariants::selectVariantSet(names[index], false);
            expectSeen(random, seen[index]);
        }
        ASSERT_FALSE(HasFailure());
    }
}

} // namespace

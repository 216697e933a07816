#include "RandomScene.h"
#include "SeenFixture.h"

namespace {

typedef SeenFixture RandomScenesTest;

TEST_F(RandomScenesTest, ACapturedSetBringsBackWhatWasSeen)
{
    for (unsigned int seed = 1; seed <= 300; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        clearRegistry();
        host.clearScene();
        RandomScene random(seed);
        settleNames();
        const char *const names[] = {"One", "Two", "Three"};
        std::vector<Facts> facts;
        for (const char *name : names) {
            random.shuffle();
            random.paint();
            facts.push_back(capture(name));
        }
        random.shuffle();
        for (const std::size_t index : {0u, 2u, 1u, 0u}) {
            SCOPED_TRACE(names[index]);
            qxVariants::selectVariantSet(names[index], false);
            expectSeen(facts[index]);
        }
        ASSERT_FALSE(HasFailure());
    }
}

} // namespace

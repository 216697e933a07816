#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGChangeList.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGThread.h>

#include <gtest/gtest.h>

#include <cstdlib>

using namespace osg;

/// Tells a story in a process of its own: the library starts and stops only once in each.
static void inOwnProcess(void (*story)())
{
    const auto tell = [story] {
        story();
        std::_Exit(testing::Test::HasFailure() ? 1 : 0);
    };
    EXPECT_EXIT(tell(), testing::ExitedWithCode(0), "");
}

static bool editIsRecorded()
{
    const SwitchRefPtr core(Switch::create());
    ChangeList *list = Thread::getCurrentChangeList();
    const UInt32 before = list->sizeChanged();
    endEditCP(core.get(), Switch::ChoiceFieldMask);
    return list->sizeChanged() > before;
}

TEST(BeforeTheStart, NothingIsCreatedAndTypesKnowOnlyThemselves)
{
    inOwnProcess([] {
        EXPECT_EQ(Switch::create(), NullFC);
        EXPECT_TRUE(Switch::getClassType().isDerivedFrom(Switch::getClassType()));
        EXPECT_FALSE(Switch::getClassType().isDerivedFrom(Group::getClassType()));
    });
}

TEST(TheStart, RecordsNothingUnlessToldTo)
{
    inOwnProcess([] {
        osgInit(0, nullptr);
        EXPECT_FALSE(editIsRecorded());
        Thread::getCurrentChangeList()->setReadOnly(false);
        EXPECT_TRUE(editIsRecorded());
    });
    inOwnProcess([] {
        ChangeList::setReadWriteDefault();
        EXPECT_TRUE(osgInit(0, nullptr));
        EXPECT_TRUE(Thread::getCurrentChangeList()->empty());
        EXPECT_TRUE(editIsRecorded());
    });
}

TEST(TheStop, NeedsNoStartAndIsForGood)
{
    inOwnProcess([] { EXPECT_TRUE(osgExit()); });
    inOwnProcess([] {
        EXPECT_TRUE(osgInit(0, nullptr));
        EXPECT_TRUE(osgInit(0, nullptr)); // Starting twice is harmless, stopping as well.
        EXPECT_NE(GroupRefPtr(Group::create()).get(), NullFC);
        EXPECT_TRUE(osgExit());
        EXPECT_TRUE(osgExit());
        osgInit(0, nullptr);
        EXPECT_EQ(Group::create(), NullFC);
    });
}

TEST(TypesOfALateLibrary, AreUnknownUntilInitialized)
{
    inOwnProcess([] {
        osgInit(0, nullptr);
        static FieldContainerType late("LateCore", "Group", nullptr,
                                       [] { return FieldContainerPtr(Group::createEmpty()); });
        EXPECT_FALSE(late.isDerivedFrom(Group::getClassType()));
        EXPECT_EQ(FieldContainerFactory::the()->createNodeCore("LateCore"), NullFC);
        EXPECT_TRUE(FieldContainerFactory::the()->initializePendingTypes());
        EXPECT_TRUE(late.isDerivedFrom(Group::getClassType()));
        EXPECT_NE(FieldContainerFactory::the()->createNodeCore("LateCore"), NullFC);
    });
}

TEST(TheStop, ComesWithTheEndOfTheProgram)
{
    const auto program = [] {
        std::atexit([] { std::_Exit(Group::create() == NullFC ? 0 : 1); });
        osgInit(0, nullptr);
        std::exit(Group::create() == NullFC ? 3 : 2);
    };
    EXPECT_EXIT(program(), testing::ExitedWithCode(0), "");
}

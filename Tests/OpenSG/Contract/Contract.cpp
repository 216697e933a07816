#include "Contract.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGChangeList.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGThread.h>

#include <algorithm>

/// Starts the library once for all tests, with recording of changes.
class Library : public testing::Environment {
public:
    void SetUp() override
    {
        osg::ChangeList::setReadWriteDefault();
        ASSERT_TRUE(osg::osgInit(0, nullptr));
    }
    void TearDown() override { EXPECT_TRUE(osg::osgExit()); }
};

const testing::Environment *const library = testing::AddGlobalTestEnvironment(new Library);

bool isAlive(osg::UInt32 id)
{
    return osg::FieldContainerFactory::the()->getContainer(id) != osg::NullFC;
}

void forgetRecords()
{
    osg::Thread::getCurrentChangeList()->clearAll();
}

std::size_t timesRecorded(const osg::FieldContainerPtr &container, osg::BitVector mask)
{
    const osg::ChangeList::ChangeEntry wanted(container.getFieldContainerId(), mask);
    const osg::ChangeList *list = osg::Thread::getCurrentChangeList();
    return std::size_t(std::count(list->beginChanged(), list->endChanged(), wanted));
}

bool warns(const std::function<void()> &call)
{
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    call();
    const bool hasError = !testing::internal::GetCapturedStderr().empty();
    return testing::internal::GetCapturedStdout().empty() && hasError;
}

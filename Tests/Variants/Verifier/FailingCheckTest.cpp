#include "qxNodeVariant.h"
#include "qxVariantSet.h"
#include "qxVariantVerifier.h"
#include "qxVariants.h"

#include "HostFixture.h"
#include "qxScenegraph.h"

#include <QTemporaryDir>

#include <cstdlib>
#include <new>

namespace {

/// No memory is given for anything larger; 0 for no limit.
std::size_t memoryLimit = 0;

void *allocate(std::size_t size)
{
    if (memoryLimit > 0 && size > memoryLimit)
        throw std::bad_alloc();
    if (void *memory = std::malloc(size > 0 ? size : 1))
        return memory;
    throw std::bad_alloc();
}

} // namespace

// A check calls nothing that a test could make throw, but everything that allocates may.
void *operator new(std::size_t size)
{
    return allocate(size);
}

void *operator new[](std::size_t size)
{
    return allocate(size);
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete[](void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, std::size_t) noexcept
{
    std::free(memory);
}

void operator delete[](void *memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace {

class FailingCheckTest : public HostFixture {
protected:
    static QByteArray reportOf(qxVariantVerifier &verifier, const QString &path, bool isDone)
    {
        testing::internal::CaptureStdout();
        EXPECT_EQ(verifier.verify(path), isDone);
        testing::internal::GetCapturedStdout();
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(FailingCheckTest, ACheckThatThrowsEndsTheVerificationWithTheLinesUpToThere)
{
    const std::size_t much = 100000;
    scene.add("Lamp");
    qxVariants::createVariantSet("Sport", false, nullptr);
    for (const QString &name : {QString("Lamp"), QString(int(much) + 1, 'x'), QString("Chair")})
        qxVariants::createNodeVariant(name, false)->nodeName = name;

    qxVariantVerifier verifier;
    const QString path = folder.filePath("report.csv");
    memoryLimit = much;
    const QByteArray part = reportOf(verifier, path, false);
    memoryLimit = 0;
    EXPECT_EQ(part, "Info,VariantSet,Sport,,,valid\nInfo,NodeVariant,Lamp,Lamp,,valid\n");

    // The file was closed, and the verifier goes on working.
    EXPECT_TRUE(reportOf(verifier, path, true)
                    .endsWith("Error,NodeVariant,Chair,Chair,,switch-node not found\n"));
    EXPECT_FALSE(qxScenegraph::hasFindCache());
}

#include "qxVariantSet.h"
#include "qxVariants.h"

#include "HostFixture.h"
#include "Pictures/qxMainGlView.h"

#include <QBuffer>
#include <QPixmap>

namespace {

/// The pixel of the view at that place, counted from the upper left corner.
QColor sourcePixel(int x, int y)
{
    return QColor(x % 256, y % 256, x / 256 * 16 + y / 256);
}

osg::ImageRefPtr sourcePicture(int width, int height)
{
    std::vector<osg::UInt8> bytes;
    for (int y = height - 1; y >= 0; --y) {
        for (int x = 0; x < width; ++x) {
            const QColor colour = sourcePixel(x, y);
            bytes.push_back(osg::UInt8(colour.red()));
            bytes.push_back(osg::UInt8(colour.green()));
            bytes.push_back(osg::UInt8(colour.blue()));
        }
    }
    const osg::ImageRefPtr picture(osg::Image::create());
    const osg::CPEditor edit(picture.get());
    picture->set(osg::Image::OSG_RGB_PF, width, height, 1, 1, 1, 0, bytes.data());
    return picture;
}

/// The same by way of a pixmap.
QByteArray pixmapPreview(int width, int height, const QRect &square)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            image.setPixelColor(x, y, sourcePixel(x, y));
    }
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPixmap::fromImage(image)
        .copy(square)
        .scaled(264, 256, Qt::IgnoreAspectRatio, Qt::FastTransformation)
        .save(&buffer, "PNG");
    return buffer.data();
}

/// How far the middle of the preview's pixel lies outside of the source pixel it was taken from.
double distanceOutside(int taken, int at, int count, int first, int side)
{
    const double wanted = first + (at + 0.5) * side / count;
    return std::abs(wanted - (taken + 0.5)) - 0.5;
}

class FrameBufferTest : public HostFixture {
protected:
    FrameBufferTest() : view(320, 200)
    {
        set = qxVariants::createVariantSet("Set", false, nullptr);
    }
    qxMainGlView view;
    qxVariantSet *set;
};

struct Crop {
    int width, height;
    QRect square;
};

} // namespace

TEST_F(FrameBufferTest, TheCentredSquareIsStretchedWithoutSmoothing)
{
    const Crop crops[] = {
        {800, 600, {100, 0, 600, 600}}, {600, 800, {0, 100, 600, 600}},
        {801, 300, {250, 0, 300, 300}}, {300, 801, {0, 250, 300, 300}},
        {7, 4, {1, 0, 4, 4}},           {5, 10, {0, 2, 5, 5}},
        {264, 264, {0, 0, 264, 264}},   {1, 1, {0, 0, 1, 1}},
    };
    for (const Crop &crop : crops) {
        SCOPED_TRACE(testing::Message() << crop.width << " by " << crop.height);
        view.show(sourcePicture(crop.width, crop.height).get());
        const QByteArray preview = qxVariants::getPreviewImageFromFrameBuffer(nullptr);
        const QImage image = QImage::fromData(preview, "PNG");
        ASSERT_EQ(image.size(), QSize(264, 256));
        EXPECT_EQ(preview, pixmapPreview(crop.width, crop.height, crop.square));
        double worst = 0;
        for (int y = 0; y < 256; ++y) {
            for (int x = 0; x < 264; ++x) {
                const QColor pixel = image.pixelColor(x, y);
                const int left = pixel.red() + pixel.blue() / 16 * 256;
                const int top = pixel.green() + pixel.blue() % 16 * 256;
                worst = std::max(
                    worst, distanceOutside(left, x, 264, crop.square.left(), crop.square.width()));
                worst = std::max(
                    worst, distanceOutside(top, y, 256, crop.square.top(), crop.square.height()));
            }
        }
        EXPECT_LT(worst, 0.02); // the rounding of the scaling
    }
}

TEST_F(FrameBufferTest, TheSetKeepsWhatTheViewShows)
{
    view.show(sourcePicture(40, 30).get());
    const QByteArray shown = qxVariants::getPreviewImageFromFrameBuffer(set);
    qxVariants::renderVariantSetPreview(set, true, false, false);
    EXPECT_FALSE(shown.isEmpty());
    EXPECT_EQ(set->getPreview(), shown);
}

class NothingToShowTest : public HostFixture {};

TEST_F(NothingToShowTest, WithoutAViewThatShowsSomethingAnEmptyPreviewIsStored)
{
    qxVariantSet set("Set");
    set.setPreview("earlier");
    qxVariants::renderVariantSetPreview(&set, true, false, false);
    EXPECT_EQ(set.getPreview(), QByteArray());

    set.setPreview("earlier");
    const qxMainGlView view(20000, 8);
    expectError("A picture cannot have 20000 by 8 pixels");
    qxVariants::renderVariantSetPreview(&set, true, false, false);
    EXPECT_EQ(set.getPreview(), QByteArray());
}
